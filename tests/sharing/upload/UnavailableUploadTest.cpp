// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ServicesConfig.h"
#include "chrome/Theme.h"
#include "platform/FileManager.h"
#include "platform/Secrets.h"
#include "sharing/history/FinalWindow.h"
#include "sharing/history/UploadServiceMenu.h"
#include "sharing/upload/UploadController.h"

#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

const QString kText = QStringLiteral(
    "This copy of the program cannot upload videos: it was built without the component that signs "
    "in to services (Qt NetworkAuth).");

class UnusedFileManager : public FileManager
{
public:
    bool showInFolder(const QString &) override { return false; }
};

} // namespace

class UnavailableUploadTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Theme::install(*qApp); }

    // Nothing is configured either, but that is not what the user should try to change.
    void uploadSaysWhy()
    {
        const QSignalSpy failed(&m_uploads, &UploadController::failed);
        m_uploads.upload(QStringLiteral("dropbox"), QStringLiteral("a.mp4"), QStringLiteral("A"),
                         nullptr);
        QCOMPARE(failed.size(), 0);
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed.at(0).at(0).toString(), kText);
        QVERIFY(!m_uploads.isRunning());
    }

    void cancelEndsIt()
    {
        const QSignalSpy failed(&m_uploads, &UploadController::failed);
        const QSignalSpy canceled(&m_uploads, &UploadController::canceled);
        m_uploads.upload(QStringLiteral("youtube"), QStringLiteral("a.mp4"), QStringLiteral("A"),
                         nullptr);
        m_uploads.cancel();
        QCoreApplication::processEvents();
        QCOMPARE(canceled.size(), 1);
        QCOMPARE(failed.size(), 0);
    }

    void buttonsSayWhy()
    {
        UnusedFileManager fileManager;
        const FinalWindow window(m_folder.filePath(QStringLiteral("a.mp4")), fileManager);
        for (const char *name : {"btnUploadYoutube", "btnUploadGoogleDrive", "btnUploadDropBox"})
            QCOMPARE(window.findChild<QPushButton *>(QLatin1String(name))->toolTip(), kText);
        const UploadServiceMenu menu;
        const auto buttons = menu.findChildren<QPushButton *>();
        QCOMPARE(buttons.size(), 3);
        for (const QPushButton *button : buttons)
            QCOMPARE(button->toolTip(), kText);
    }

private:
    QTemporaryDir m_folder;
    QSettings m_store{m_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    UploadController m_uploads{ServicesConfig(), m_store,
                               createSecrets(m_folder.path(), SecretKeyPlace::File)};
};

QTEST_MAIN(UnavailableUploadTest)
#include "UnavailableUploadTest.moc"
