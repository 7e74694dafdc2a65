// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/FinalWindow.h"
#include "chrome/Theme.h"
#include "helpers/DialogDriver.h"
#include "platform/FileManager.h"
#include "sharing/upload/UploaderFactory.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace velmora;

namespace
{

class NotingFileManager : public FileManager
{
public:
    bool showInFolder(const QString &path) override
    {
        shown.append(path);
        return starts;
    }
    bool starts = true;
    QStringList shown;
};

} // namespace

class FinalWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        m_video = m_folder.filePath(QStringLiteral("a video.mp4"));
        QFile file(m_video);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void choicesCloseAndReport_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("service");
        const char *rows[][3] = {{"btnUploadYoutube", "YOUTUBE", "youtube"},
                                 {"btnUploadGoogleDrive", "GOOGLE DRIVE", "googledrive"},
                                 {"btnUploadDropBox", "DROPBOX", "dropbox"},
                                 {"btnBurnDvd", "BURN DVD", ""},
                                 {"btnClose", "CLOSE", ""}};
        for (const auto &row : rows)
            QTest::newRow(row[0]) << row[1] << row[2];
    }

    void choicesCloseAndReport()
    {
        const QString button = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QString, text);
        QFETCH(QString, service);
        NotingFileManager manager;
        FinalWindow window(m_video, manager);
        QSignalSpy uploads(&window, &FinalWindow::uploadService);
        QSignalSpy burn(&window, &FinalWindow::burnDvd);
        window.show();
        auto *pressed = window.findChild<QPushButton *>(button);
        QCOMPARE(pressed->text(), text);
        if (!service.isEmpty())
            QCOMPARE(pressed->toolTip(), uploadHindrance().isEmpty()
                                             ? QStringLiteral("Upload the video to this service")
                                             : uploadHindrance());
        QTest::mouseClick(pressed, Qt::LeftButton);
        QVERIFY(window.isHidden());
        QCOMPARE(uploads.isEmpty() ? QString() : uploads.first().first().toString(), service);
        QCOMPARE(burn.size(), button == QLatin1String("btnBurnDvd") ? 1 : 0);
        QVERIFY(manager.shown.isEmpty());
    }

    void uploadsAreRefused()
    {
        NotingFileManager manager;
        FinalWindow window(m_video, manager);
        window.refuseUploads(QStringLiteral("Not now."));
        for (const char *name : {"btnUploadYoutube", "btnUploadGoogleDrive", "btnUploadDropBox"}) {
            const auto *button = window.findChild<QPushButton *>(QLatin1String(name));
            QVERIFY2(!button->isEnabled(), name);
            QCOMPARE(button->toolTip(), QStringLiteral("Not now."));
        }
        QVERIFY(window.findChild<QPushButton *>(QStringLiteral("btnBurnDvd"))->isEnabled());
    }

    void folderIsOpened()
    {
        NotingFileManager manager;
        FinalWindow window(m_video, manager);
        window.show();
        QTest::mouseClick(window.findChild<QPushButton *>(QStringLiteral("btnOpen")),
                          Qt::LeftButton);
        QCOMPARE(manager.shown, QStringList{m_video});
        QVERIFY(window.isHidden());
    }

    void folderThatIsNotShown_data()
    {
        QTest::addColumn<QString>("video");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no file") << m_folder.filePath(QStringLiteral("gone.mp4"))
                                 << QStringLiteral("File '%1' not found");
        QTest::newRow("no program")
            << m_video << QStringLiteral("There is no program to show the folder of '%1'.");
    }

    void folderThatIsNotShown()
    {
        QFETCH(QString, video);
        QFETCH(QString, reason);
        NotingFileManager manager;
        manager.starts = false;
        FinalWindow window(video, manager);
        window.show();
        DialogDriver driver;
        driver.press(QStringLiteral("CLOSE"));
        QTest::mouseClick(window.findChild<QPushButton *>(QStringLiteral("btnOpen")),
                          Qt::LeftButton);
        QCOMPARE(driver.title(), QStringLiteral("Open file Error"));
        QCOMPARE(driver.text(), reason.arg(QDir::toNativeSeparators(video)));
        QVERIFY(window.isVisible());
    }

private:
    QTemporaryDir m_folder;
    QString m_video;
};

QTEST_MAIN(FinalWindowTest)
#include "FinalWindowTest.moc"
