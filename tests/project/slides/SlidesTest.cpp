// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/CaptionStyle.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <limits>
#include <memory>

using namespace velmora;

class SlidesTest : public QObject
{
    Q_OBJECT
private slots:
    void defaults();
    void documentFormOfTitleSlide();
    void documentFormOfPhotoSlide();
    void captionPosition_data();
    void captionPosition();
    void captionColors_data();
    void captionColors();
    void captionWithoutBackground();
    void captionChangedKeepsValueWithoutKey();
    void captionVisibility_data();
    void captionVisibility();
    void integers_data();
    void integers();
    void factoryByType_data();
    void factoryByType();
    void missingKeysReadAsZero();
    void wrongTypesReadAsZero_data();
    void wrongTypesReadAsZero();
    void previewPlaceholderIsShared();
};

namespace
{

QJsonObject parse(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError) {
        qFatal("Faulty test document: %s", text.constData());
    }
    return object;
}

std::unique_ptr<ProjectItem> itemFrom(const QByteArray &text)
{
    return std::unique_ptr<ProjectItem>(ProjectItem::fromJson(parse(text), nullptr));
}

CaptionStyle captionFrom(const QByteArray &text)
{
    CaptionStyle caption;
    caption.fromJson(parse(text));
    return caption;
}

} // namespace

void SlidesTest::defaults()
{
    const ProjectItemFirst first(7);
    QCOMPARE(first.title(), QStringLiteral("Starter"));
    QCOMPARE(first.caption().text, QStringLiteral("My slideshow"));
    QCOMPARE(first.caption().fontFamily, QStringLiteral("Segoe UI"));
    QCOMPARE(first.caption().textColor, QColor(Qt::white));
    QVERIFY(!first.caption().backgroundColor.isValid());
    QCOMPARE(first.caption().position, 4);
    QCOMPARE(first.caption().effect, 27);
    QVERIFY(!first.caption().changed);
    QCOMPARE(first.backgroundIndex(), 22);
    QVERIFY(first.isShown());
    QCOMPARE(first.time(), 7);
    QCOMPARE(first.angle(), 0);

    const ProjectItemSimple photo(QStringLiteral("/photos/Küste 1.jpg"), 5, 12);
    QCOMPARE(photo.title(), QStringLiteral("Küste 1.jpg"));
    QVERIFY(photo.caption().text.isEmpty());
    QCOMPARE(photo.caption().textColor, QColor(Qt::white));
    QCOMPARE(photo.caption().backgroundColor, QColor(Qt::black));
    QCOMPARE(photo.caption().position, 8);
    QCOMPARE(photo.caption().effect, 27);
    QCOMPARE(photo.time(), 5);
    QCOMPARE(photo.transition(), 12);
    QVERIFY(photo.loadedImage().isNull());

    const ProjectItemSimple plain;
    QVERIFY(plain.fileName().isEmpty());
    QCOMPARE(plain.time(), 1);
    QCOMPARE(plain.transition(), 1);
}

void SlidesTest::documentFormOfTitleSlide()
{
    const QByteArray text = R"({
        "type": "starter", "visible": false, "bg_index": 3, "time": 6, "angle": 90,
        "text": {"text": "Sommer \"26\"", "font": "Noto Sans", "text_color": "#12ab9f",
                 "position": 2, "transition": 26, "changed": true}})";
    const auto item = itemFrom(text);
    const auto *first = qobject_cast<ProjectItemFirst *>(item.get());
    QVERIFY(first);
    QVERIFY(!first->isShown());
    QCOMPARE(first->backgroundIndex(), 3);
    QCOMPARE(first->time(), 6);
    QCOMPARE(first->angle(), 90);
    QCOMPARE(first->caption().text, QStringLiteral("Sommer \"26\""));
    QCOMPARE(first->caption().textColor, QColor(0x12, 0xab, 0x9f));
    QVERIFY(first->caption().changed);
    QJsonObject written;
    first->toJson(written);
    QCOMPARE(written, parse(text));
}

void SlidesTest::documentFormOfPhotoSlide()
{
    const QByteArray text = R"({
        "type": "image", "file_name": "/a b/%20'ü.png", "transition": 28, "time": 3, "angle": -90,
        "text": {"text": "", "font": "Segoe UI", "text_color": "#ffffff", "bg_color": "#0a0b0c",
                 "position": 8, "transition": 27, "changed": false}})";
    const auto item = itemFrom(text);
    const auto *photo = qobject_cast<ProjectItemSimple *>(item.get());
    QVERIFY(photo);
    QCOMPARE(photo->fileName(), QStringLiteral("/a b/%20'ü.png"));
    QCOMPARE(photo->transition(), 28);
    QCOMPARE(photo->angle(), -90);
    QCOMPARE(photo->caption().backgroundColor, QColor(0x0a, 0x0b, 0x0c));
    QJsonObject written;
    photo->toJson(written);
    QCOMPARE(written, parse(text));
}

void SlidesTest::captionPosition_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("position");
    for (int position = 0; position <= 8; ++position) {
        QTest::addRow("%d", position) << QByteArray::number(position) << position;
    }
    for (const char *stored : {"9", "-1", "100", "-2147483648", "2147483647", "1e300", "-1e300"}) {
        QTest::newRow(stored) << QByteArray(stored) << 4;
    }
    QTest::newRow("text") << QByteArray("\"8\"") << 0;
}

void SlidesTest::captionPosition()
{
    QFETCH(QByteArray, stored);
    QFETCH(int, position);
    QCOMPARE(captionFrom("{\"position\":" + stored + "}").position, position);
}

void SlidesTest::captionColors_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("textColor");
    QTest::addColumn<QString>("backgroundColor"); // empty: none
    const QString black = QStringLiteral("#000000");
    QTest::newRow("digits") << QByteArray("\"#01fE9a\"") << QStringLiteral("#01fe9a")
                            << QStringLiteral("#01fe9a");
    QTest::newRow("name") << QByteArray("\"red\"") << QStringLiteral("#ff0000")
                          << QStringLiteral("#ff0000");
    QTest::newRow("empty") << QByteArray("\"\"") << black << QString();
    QTest::newRow("not a colour") << QByteArray("\"#12345g\"") << black << QString();
    QTest::newRow("number") << QByteArray("255") << black << QString();
    QTest::newRow("object") << QByteArray("{\"r\":1}") << black << QString();
    QTest::newRow("long") << '"' + QByteArray(1000000, 'a') + '"' << black << QString();
}

void SlidesTest::captionColors()
{
    QFETCH(QByteArray, stored);
    QFETCH(QString, textColor);
    QFETCH(QString, backgroundColor);
    const CaptionStyle caption =
        captionFrom("{\"text_color\":" + stored + ",\"bg_color\":" + stored + "}");
    QCOMPARE(caption.textColor.name(), textColor);
    QCOMPARE(caption.backgroundColor.isValid(), !backgroundColor.isEmpty());
    if (!backgroundColor.isEmpty()) {
        QCOMPARE(caption.backgroundColor.name(), backgroundColor);
    }
}

void SlidesTest::captionWithoutBackground()
{
    CaptionStyle caption;
    caption.backgroundColor = Qt::red;
    caption.fromJson(parse(R"({"text":"a"})"));
    QVERIFY(!caption.backgroundColor.isValid());
    QVERIFY(!caption.toJson().contains(QLatin1String("bg_color")));
}

void SlidesTest::captionChangedKeepsValueWithoutKey()
{
    CaptionStyle caption;
    caption.changed = true;
    caption.fromJson(QJsonObject());
    QVERIFY(caption.changed);
    caption.fromJson(parse(R"({"changed":false})"));
    QVERIFY(!caption.changed);
}

void SlidesTest::captionVisibility_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("visible");
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("white space") << QStringLiteral(" \n\t\u00a0") << false;
    QTest::newRow("text") << QStringLiteral(" a ") << true;
}

void SlidesTest::captionVisibility()
{
    QFETCH(QString, text);
    CaptionStyle caption;
    caption.text = text;
    QTEST(caption.isVisible(), "visible");
}

void SlidesTest::integers_data()
{
    constexpr int kLowest = std::numeric_limits<int>::min();
    constexpr int kHighest = std::numeric_limits<int>::max();
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<int>("value");
    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("negative") << QByteArray("-5") << -5;
    QTest::newRow("fraction") << QByteArray("2.9") << 2;
    QTest::newRow("negative fraction") << QByteArray("-2.9") << -2;
    QTest::newRow("highest") << QByteArray("2147483647") << kHighest;
    QTest::newRow("above") << QByteArray("2147483648") << kHighest;
    QTest::newRow("below") << QByteArray("-2147483649") << kLowest;
    QTest::newRow("64 bits") << QByteArray("9223372036854775807") << kHighest;
    QTest::newRow("beyond 64 bits") << QByteArray("-99999999999999999999") << kLowest;
    QTest::newRow("huge") << QByteArray("1e300") << kHighest;
    QTest::newRow("tiny") << QByteArray("1e-300") << 0;
    QTest::newRow("text") << QByteArray("\"5\"") << 0;
    QTest::newRow("null") << QByteArray("null") << 0;
    QTest::newRow("boolean") << QByteArray("true") << 0;
    QTest::newRow("array") << QByteArray("[5]") << 0;
}

void SlidesTest::integers()
{
    QFETCH(QByteArray, stored);
    QFETCH(int, value);
    const auto photo = itemFrom(R"({"type":"image","time":)" + stored + R"(,"angle":)" + stored +
                                R"(,"transition":)" + stored + "}");
    QCOMPARE(photo->time(), value);
    QCOMPARE(photo->angle(), value);
    QCOMPARE(qobject_cast<ProjectItemSimple *>(photo.get())->transition(), value);
    const auto title = itemFrom(R"({"type":"starter","bg_index":)" + stored +
                                R"(,"text":{"transition":)" + stored + "}}");
    QCOMPARE(qobject_cast<ProjectItemFirst *>(title.get())->backgroundIndex(), value);
    QCOMPARE(title->caption().effect, value);
}

void SlidesTest::factoryByType_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("className"); // empty: no slide
    QTest::newRow("starter") << QByteArray(R"({"type":"starter"})")
                             << QByteArray("velmora::ProjectItemFirst");
    QTest::newRow("image") << QByteArray(R"({"type":"image"})")
                           << QByteArray("velmora::ProjectItemSimple");
    QTest::newRow("video") << QByteArray(R"({"type":"video"})") << QByteArray();
    QTest::newRow("other case") << QByteArray(R"({"type":"Image"})") << QByteArray();
    QTest::newRow("number") << QByteArray(R"({"type":1})") << QByteArray();
    QTest::newRow("empty") << QByteArray("{}") << QByteArray();
}

void SlidesTest::factoryByType()
{
    QFETCH(QByteArray, document);
    const auto item = itemFrom(document);
    QTEST(item ? QByteArray(item->metaObject()->className()) : QByteArray(), "className");
}

void SlidesTest::missingKeysReadAsZero()
{
    const auto item = itemFrom(R"({"type":"starter"})");
    const auto *first = qobject_cast<ProjectItemFirst *>(item.get());
    QCOMPARE(first->time(), 0);
    QCOMPARE(first->backgroundIndex(), 0);
    QVERIFY(!first->isShown());
    QVERIFY(first->caption().text.isEmpty());
    QVERIFY(first->caption().fontFamily.isEmpty());
    QCOMPARE(first->caption().position, 0);
    QCOMPARE(first->caption().effect, 0);
}

void SlidesTest::wrongTypesReadAsZero_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value : {"null", "[]", "{}", "[[{}]]", "1", "\"x\"", "true"}) {
        QTest::newRow(value) << QByteArray(value);
    }
}

void SlidesTest::wrongTypesReadAsZero()
{
    QFETCH(QByteArray, value);
    const auto item = itemFrom(R"({"type":"image","text":)" + value + R"(,"file_name":[)" + value +
                               R"(],"time":{"a":)" + value + "}}");
    QCOMPARE(item->time(), 0);
    QVERIFY(item->caption().text.isEmpty());
    QVERIFY(qobject_cast<ProjectItemSimple *>(item.get())->fileName().isEmpty());
}

void SlidesTest::previewPlaceholderIsShared()
{
    const ProjectItemSimple a;
    const ProjectItemFirst b(1);
    QVERIFY(!a.previewImage().isNull());
    QCOMPARE(a.previewImage().cacheKey(), b.previewImage().cacheKey());
}

QTEST_GUILESS_MAIN(SlidesTest)
#include "SlidesTest.moc"
