// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/CaptionStyle.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QJsonDocument>
#include <QTest>

#include <limits>
#include <memory>

using namespace velmora;

namespace
{

const QByteArray kTitle = R"({
    "type": "starter", "visible": false, "bg_index": 3, "time": 6, "angle": 90,
    "text": {"text": "Sommer '26", "font": "Noto Sans", "text_color": "#12ab9f",
             "position": 2, "transition": 26, "changed": true}})";
const QByteArray kPhoto = R"({
    "type": "image", "file_name": "/a b/%20'ü.png", "transition": 28, "time": 3, "angle": -90,
    "text": {"text": "", "font": "Segoe UI", "text_color": "#ffffff", "bg_color": "#0a0b0c",
             "position": 8, "transition": 27, "changed": false}})";
const QByteArray kEmptyTitle = R"({
    "type": "starter", "visible": false, "bg_index": 0, "time": 0, "angle": 0,
    "text": {"text": "", "font": "", "text_color": "#000000", "position": 0, "transition": 0,
             "changed": false}})";
const QByteArray kWrongPhoto =
    R"({"type": "image", "text": VALUE, "file_name": [VALUE], "time": {"a": VALUE}})";
const QByteArray kEmptyPhoto = R"({
    "type": "image", "file_name": "", "transition": 0, "time": 0, "angle": 0,
    "text": {"text": "", "font": "", "text_color": "#000000", "position": 0, "transition": 0,
             "changed": false}})";

QJsonObject parse(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        qFatal("Faulty test document: %s", text.constData());
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

QJsonObject documentOf(const ProjectItem &item)
{
    QJsonObject object;
    item.toJson(object);
    return object;
}

} // namespace

class SlidesTest : public QObject
{
    Q_OBJECT
private slots:
    void defaults()
    {
        const ProjectItemFirst first(7);
        QCOMPARE(first.title(), QStringLiteral("Starter"));
        QCOMPARE(documentOf(first), parse(R"({
            "type": "starter", "visible": true, "bg_index": 22, "time": 7, "angle": 0,
            "text": {"text": "My slideshow", "font": "Segoe UI", "text_color": "#ffffff",
                     "position": 4, "transition": 27, "changed": false}})"));

        const ProjectItemSimple photo(QStringLiteral("/photos/Küste 1.jpg"), 5, 12);
        QCOMPARE(photo.title(), QStringLiteral("Küste 1.jpg"));
        QCOMPARE(documentOf(photo), parse(R"({
            "type": "image", "file_name": "/photos/Küste 1.jpg", "transition": 12, "time": 5,
            "angle": 0,
            "text": {"text": "", "font": "Segoe UI", "text_color": "#ffffff",
                     "bg_color": "#000000", "position": 8, "transition": 27, "changed": false}})"));

        const ProjectItemSimple plain;
        QVERIFY(plain.fileName().isEmpty());
        QCOMPARE(plain.time(), 1);
        QCOMPARE(plain.transition(), 1);
    }

    void documents_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("title") << kTitle << kTitle;
        QTest::newRow("photo") << kPhoto << kPhoto;
        QTest::newRow("keys missing") << QByteArray(R"({"type": "starter"})") << kEmptyTitle;
        for (const char *value : {"null", "[]", "{}", "[[{}]]", "1", "\"x\"", "true"})
            QTest::addRow("wrong type %s", value)
                << QByteArray(kWrongPhoto).replace("VALUE", value) << kEmptyPhoto;
    }

    void documents()
    {
        QFETCH(QByteArray, read);
        QFETCH(QByteArray, written);
        QCOMPARE(documentOf(*itemFrom(read)), parse(written));
    }

    void captionPosition_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<int>("position");
        for (int position = 0; position <= 8; ++position)
            QTest::addRow("%d", position) << QByteArray::number(position) << position;
        for (const char *stored :
             {"9", "-1", "100", "-2147483648", "2147483647", "1e300", "-1e300"})
            QTest::newRow(stored) << QByteArray(stored) << 4;
        QTest::newRow("text") << QByteArray("\"8\"") << 0;
    }

    void captionPosition()
    {
        QFETCH(QByteArray, stored);
        QTEST(captionFrom("{\"position\":" + stored + "}").position, "position");
    }

    void captionColors_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("color"); // empty: none
        QTest::newRow("digits") << QByteArray("\"#01fE9a\"") << "#01fe9a";
        QTest::newRow("name") << QByteArray("\"red\"") << "#ff0000";
        QTest::newRow("empty") << QByteArray("\"\"") << "";
        QTest::newRow("not a colour") << QByteArray("\"#12345g\"") << "";
        QTest::newRow("number") << QByteArray("255") << "";
        QTest::newRow("object") << QByteArray("{\"r\":1}") << "";
        QTest::newRow("long") << '"' + QByteArray(1000000, 'a') + '"' << "";
    }

    void captionColors()
    {
        QFETCH(QByteArray, stored);
        QFETCH(QString, color);
        const CaptionStyle caption =
            captionFrom("{\"text_color\":" + stored + ",\"bg_color\":" + stored + "}");
        QCOMPARE(caption.textColor, QColor(color.isEmpty() ? QStringLiteral("black") : color));
        QCOMPARE(caption.backgroundColor, color.isEmpty() ? QColor() : QColor(color));
    }

    void captionChangedKeepsValueWithoutKey()
    {
        CaptionStyle caption;
        caption.changed = true;
        caption.fromJson(QJsonObject());
        QVERIFY(caption.changed);
        caption.fromJson(parse(R"({"changed":false})"));
        QVERIFY(!caption.changed);
    }

    void integers_data()
    {
        QTest::addColumn<int>("value");
        const auto row = [](const char *stored, int value) { QTest::newRow(stored) << value; };
        constexpr int kLowest = std::numeric_limits<int>::min();
        constexpr int kHighest = std::numeric_limits<int>::max();
        row("0", 0);
        row("-5", -5);
        row("2.9", 2);
        row("-2.9", -2);
        row("2147483647", kHighest);
        row("2147483648", kHighest);
        row("-2147483649", kLowest);
        row("9223372036854775807", kHighest);
        row("-99999999999999999999", kLowest);
        row("1e300", kHighest);
        for (const char *nothing : {"1e-300", "\"5\"", "null", "true", "[5]"})
            row(nothing, 0);
    }

    void integers()
    {
        const QByteArray stored = QTest::currentDataTag();
        QFETCH(int, value);
        const auto photo = itemFrom(R"({"type":"image","time":)" + stored + R"(,"angle":)" +
                                    stored + R"(,"transition":)" + stored + "}");
        QCOMPARE(photo->time(), value);
        QCOMPARE(photo->angle(), value);
        QCOMPARE(qobject_cast<ProjectItemSimple *>(photo.get())->transition(), value);
        const auto title = itemFrom(R"({"type":"starter","bg_index":)" + stored +
                                    R"(,"text":{"transition":)" + stored + "}}");
        QCOMPARE(qobject_cast<ProjectItemFirst *>(title.get())->backgroundIndex(), value);
        QCOMPARE(title->caption().effect, value);
    }

    void previewPlaceholderIsShared()
    {
        const ProjectItemSimple a;
        const ProjectItemFirst b(1);
        QVERIFY(!a.previewImage().isNull());
        QCOMPARE(a.previewImage().cacheKey(), b.previewImage().cacheKey());
    }
};

QTEST_GUILESS_MAIN(SlidesTest)
#include "SlidesTest.moc"
