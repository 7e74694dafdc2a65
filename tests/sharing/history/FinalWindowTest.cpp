// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/FinalWindow.h"
#include "chrome/Theme.h"
#include "helpers/DialogDriver.h"
#include "helpers/Files.h"
#include "platform/FileManager.h"

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
        QVERIFY(writeFile(m_video));
    }

    void init()
    {
        m_manager = NotingFileManager();
        open(m_video);
    }
    /// Its thread must not log any more when the test's own log is gone.
    void cleanup() { m_window.reset(); }

    void uploadsAreRefused()
    {
        const QString usual = button("btnUploadYoutube")->toolTip();
        m_window->refuseUploads(QStringLiteral("Not now."));
        for (const char *name : {"btnUploadYoutube", "btnUploadGoogleDrive", "btnUploadDropBox"}) {
            QVERIFY2(!button(name)->isEnabled(), name);
            QCOMPARE(button(name)->toolTip(), QStringLiteral("Not now."));
        }
        QVERIFY(button("btnBurnDvd")->isEnabled());
        m_window->allowUploads();
        QVERIFY(button("btnUploadYoutube")->isEnabled());
        QCOMPARE(button("btnUploadYoutube")->toolTip(), usual);
    }

    void folderIsOpened()
    {
        QTest::mouseClick(button("btnOpen"), Qt::LeftButton);
        QCOMPARE(m_manager.shown, QStringList{m_video});
        QVERIFY(m_window->isHidden());
    }

    void folderThatIsNotShown_data()
    {
        QTest::addColumn<QString>("video");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no file") << m_folder.filePath(QStringLiteral("gone.mp4"))
                                 << "File '%1' not found";
        QTest::newRow("no program") << m_video << "There is no program to show the folder of '%1'.";
    }

    void folderThatIsNotShown()
    {
        QFETCH(QString, video);
        QFETCH(QString, reason);
        m_manager.starts = false;
        open(video);
        DialogDriver driver;
        driver.press(QStringLiteral("CLOSE"));
        QTest::mouseClick(button("btnOpen"), Qt::LeftButton);
        QCOMPARE(driver.title(), QStringLiteral("Open file Error"));
        QCOMPARE(driver.text(), reason.arg(QDir::toNativeSeparators(video)));
        QVERIFY(m_window->isVisible());
    }

private:
    void open(const QString &video)
    {
        m_window = std::make_unique<FinalWindow>(video, m_manager);
        m_window->show();
    }
    QPushButton *button(const char *name) const
    {
        return m_window->findChild<QPushButton *>(QLatin1String(name));
    }

    QTemporaryDir m_folder;
    QString m_video;
    NotingFileManager m_manager;
    std::unique_ptr<FinalWindow> m_window;
};

QTEST_MAIN(FinalWindowTest)
#include "FinalWindowTest.moc"
