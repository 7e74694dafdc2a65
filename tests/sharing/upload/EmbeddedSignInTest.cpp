// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "sharing/upload/UploadFixture.h"

#include <QTest>
#include <QWebEngineView>

#include <unistd.h>

using namespace velmora;

/// Signs in within the program, on a page that a browser component really shows.
class EmbeddedSignInTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        QVERIFY(m_services.isRunning());
    }
    void init() { m_user = std::make_unique<UploadFixture>(m_services); }
    void cleanup() { m_user.reset(); }

    void userDecides_data()
    {
        QTest::addColumn<bool>("allows");
        QTest::newRow("allow") << true;
        QTest::newRow("deny") << false;
    }

    void userDecides()
    {
        QFETCH(bool, allows);
        m_services.control({{QStringLiteral("answer"), QStringLiteral("page")}});
        m_user->start(QStringLiteral("youtube"), m_user->video(100000));
        QTRY_VERIFY(shownSignIn() && view()->title() == QLatin1String("Fake sign-in"));
        keepPicture();
        const QPointer<WebLoginDialog> shown = shownSignIn();
        view()->page()->runJavaScript(
            QStringLiteral("[...document.querySelectorAll('button')]"
                           ".find(button => button.textContent == '%1').click()")
                .arg(allows ? QStringLiteral("Allow") : QStringLiteral("Deny")));
        const UploadCourse course = m_user->wait();
        QCOMPARE(course.ends(), 1);
        QCOMPARE(course.finished.size(), allows ? 2 : 0);
        QCOMPARE(m_user->trouble(), allows ? QString() : QStringLiteral("Authorization error"));
        QTRY_VERIFY(!shown);
    }

    void closedDialogEndsTheUpload()
    {
        m_services.control({{QStringLiteral("answer"), QStringLiteral("page")}});
        m_user->start(QStringLiteral("youtube"), m_user->video(10));
        QTRY_VERIFY(shownSignIn());
        const QPointer<WebLoginDialog> shown = shownSignIn();
        shown->close();
        QCOMPARE(m_user->wait().failed, QStringList{QStringLiteral("Authorization error")});
        QTRY_VERIFY(!shown);
    }

private:
    static QWebEngineView *view() { return shownSignIn()->findChild<QWebEngineView *>(); }

    /// VELMORA_SCREENSHOTS names a folder for a picture of the dialog.
    static void keepPicture()
    {
        const QString folder = qEnvironmentVariable("VELMORA_SCREENSHOTS");
        if (folder.isEmpty())
            return;
        QTest::qWait(1000); // The page is painted in a process of its own.
        shownSignIn()->grab().save(folder + QStringLiteral("/sign-in.png"));
    }

    FakeServices m_services{false};
    std::unique_ptr<UploadFixture> m_user;
};

int main(int argc, char **argv)
{
    // The component's sandbox does not work for the superuser, as whom tests in containers run.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qputenv("QT_QUICK_BACKEND", "software"); // Without a display there is no OpenGL.
    QApplication application(argc, argv);
    EmbeddedSignInTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "EmbeddedSignInTest.moc"
