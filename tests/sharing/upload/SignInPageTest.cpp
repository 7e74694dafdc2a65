// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "sharing/upload/UploadFixture.h"

#include <QTest>

using namespace velmora;

namespace
{

/// Of a program that shows pages itself.
class BlankPage : public EmbeddedPage
{
public:
    void navigate(const QUrl &) override {}
};

} // namespace

// Takes the place of the platform's.
std::unique_ptr<EmbeddedPage> velmora::createEmbeddedPage()
{
    return std::make_unique<BlankPage>();
}

/// The sign-in window is gone before anybody hears how the upload ended, since a message may follow
/// that would stand before it.
class SignInPageTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        QVERIFY(m_services.isRunning());
    }

    void windowClosesFirst_data()
    {
        QTest::addColumn<bool>("byUser");
        QTest::newRow("cancelled") << false;
        QTest::newRow("window closed") << true;
    }

    void windowClosesFirst()
    {
        QFETCH(bool, byUser);
        UploadFixture user(m_services);
        bool visible = false;
        const auto look = [&] { visible = shownSignIn() != nullptr; };
        connect(&user.controller(), &UploadController::failed, this, look);
        connect(&user.controller(), &UploadController::canceled, this, look);
        user.start(QStringLiteral("youtube"), user.video(10));
        QTRY_VERIFY(shownSignIn());
        if (byUser)
            shownSignIn()->close();
        else
            user.controller().cancel();
        QCOMPARE(user.wait().ends(), 1);
        QVERIFY(!visible);
    }

private:
    FakeServices m_services{false};
};

QTEST_MAIN(SignInPageTest)
#include "SignInPageTest.moc"
