// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QWidget>

using namespace velmora;

namespace
{

const QString kFolder = QStringLiteral(":/images/images/");

QStringList s_styleWarnings;

void collectWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type >= QtWarningMsg && type != QtInfoMsg && text.contains(QLatin1String("style")))
        s_styleWarnings.append(text);
}

} // namespace

class ThemeTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        const QtMessageHandler before = qInstallMessageHandler(collectWarnings);
        Theme::install(*qApp);
        // The sheet is parsed when a widget is polished.
        QWidget widget;
        widget.ensurePolished();
        qInstallMessageHandler(before);
    }

    void everyIconHasBothScales_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList files = QDir(kFolder).entryList({QStringLiteral("*.png")});
        QVERIFY(files.size() > 50);
        for (const QString &file : files) {
            const bool oneScale =
                file.contains(QLatin1String("@2x")) || file.startsWith(QLatin1String("velmora-"));
            if (!oneScale)
                QTest::newRow(qPrintable(file)) << file.chopped(4);
        }
    }

    void everyIconHasBothScales()
    {
        QFETCH(QString, name);
        const QImage once = QImageReader(kFolder + name + QStringLiteral(".png")).read();
        const QImage twice = QImageReader(kFolder + name + QStringLiteral("@2x.png")).read();
        QVERIFY(!once.isNull());
        QCOMPARE(twice.size(), once.size() * 2);
        QVERIFY(twice.hasAlphaChannel());
    }

    void namedIconExists_data()
    {
        QTest::addColumn<QString>("name");
        const QByteArray names =
            "add-photo add-folder history settings help back up down shuffle AB-down "
            "AB-up rotate delete play pause stop repeat mute volume fullscreen clear "
            "audio audio-play audio-play-selected audio-st audio-st-selected "
            "audio-del audio-del-selected audio-toogle audio-toogle-selected "
            "textposition arrow-up arrow-down burgerdrop oauth2_connected "
            "oauth2_not_connected velmora window-minimise window-maximise "
            "window-restore window-close service-video service-drive service-box disc "
            "folder-open preview check";
        for (const QByteArray &name : names.split(' '))
            QTest::newRow(name.constData()) << QString::fromLatin1(name);
    }

    void namedIconExists()
    {
        QFETCH(QString, name);
        const QImage image = Theme::icon(name).pixmap(256, 256).toImage();
        QVERIFY(!image.isNull());
        // A drawing that fails to render leaves an empty picture of the right size.
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, y));
        QVERIFY(colours.size() > 2);
        // Delegates ask at each paint.
        QCOMPARE(Theme::icon(name).cacheKey(), Theme::icon(name).cacheKey());
    }

    void iconIsSharpAtTwoTimes()
    {
        // Without the larger file the pixmap would be that of the small one.
        const QPixmap pixmap = Theme::icon(QStringLiteral("settings")).pixmap(24, 24);
        QCOMPARE(pixmap.devicePixelRatio(), 2.0);
        QCOMPARE(pixmap.size(), QSize(48, 48));
        QCOMPARE(Theme::applicationIcon().pixmap(128, 128).size(), QSize(256, 256));
    }

    void textIsReadable_data()
    {
        QTest::addColumn<QRgb>("text");
        QTest::addColumn<QRgb>("background");
        const QPair<const char *, QRgb> surfaces[] = {{"window", Theme::Window},
                                                      {"surface", Theme::Surface},
                                                      {"selected", Theme::AccentPale},
                                                      {"hovered", Theme::AccentFaint}};
        const QPair<const char *, QRgb> texts[] = {
            {"text", Theme::Text}, {"secondary", Theme::SecondaryText}, {"icon", Theme::IconLine}};
        for (const auto &surface : surfaces)
            for (const auto &text : texts)
                QTest::addRow("%s on %s", text.first, surface.first)
                    << text.second << surface.second;
        QTest::newRow("link on window") << Theme::Primary << Theme::Window;
        QTest::newRow("link on surface") << Theme::Primary << Theme::Surface;
        QTest::newRow("error on window") << Theme::Danger << Theme::Window;
        QTest::newRow("audio row") << Theme::AccentText << Theme::Accent;
        QTest::newRow("primary") << Theme::OnPrimary << Theme::Primary;
        QTest::newRow("primary hovered") << Theme::OnPrimary << Theme::PrimaryHover;
        QTest::newRow("primary pressed") << Theme::OnPrimary << Theme::PrimaryPressed;
        QTest::newRow("danger") << Theme::OnPrimary << Theme::Danger;
        QTest::newRow("danger hovered") << Theme::OnPrimary << Theme::DangerHover;
    }

    void textIsReadable()
    {
        QFETCH(QRgb, text);
        QFETCH(QRgb, background);
        const double ratio = Theme::contrast(QColor(text), QColor(background));
        QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
    }

    void contrastIsTheKnownRatio()
    {
        QCOMPARE(Theme::contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(Theme::contrast(Qt::white, Qt::white), 1.0);
        // A published value: #767676 is the lightest grey that passes on white.
        QVERIFY(qAbs(Theme::contrast(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.01);
    }

    void styleSheetIsParsed()
    {
        QVERIFY(!qApp->styleSheet().isEmpty());
        QCOMPARE(s_styleWarnings, QStringList());
    }

    void styleSheetUsesOnlyPicturesThatExist()
    {
        const QRegularExpression address(QStringLiteral("url\\(([^)]+)\\)"));
        auto match = address.globalMatch(qApp->styleSheet());
        QVERIFY(match.hasNext());
        while (match.hasNext()) {
            const QString file = match.next().captured(1);
            QVERIFY2(QFile::exists(file), qPrintable(file));
        }
    }

    void fontHasSubstitutes()
    {
        // Qt keeps the names in lower case.
        QCOMPARE(QFont::substitutes(QStringLiteral("Segoe UI")),
                 QStringList({QStringLiteral("open sans"), QStringLiteral("noto sans")}));
        QCOMPARE(QApplication::font().pixelSize(), Theme::BodySize);
    }
};

// Screens of twice the usual density are where the larger pictures are used.
int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    ThemeTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "ThemeTest.moc"
