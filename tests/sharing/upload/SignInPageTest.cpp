// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "chrome/Theme.h"
#include "platform/Secrets.h"
#include "sharing/upload/UploadController.h"
#include "sharing/upload/WebLoginDialog.h"

#include <QSettings>
#include <QTcpServer>
#include <QTemporaryDir>
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

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

WebLoginDialog *shownDialog()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *dialog = qobject_cast<WebLoginDialog *>(window);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

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
    void initTestCase() { Theme::install(*qApp); }
    void windowClosesFirst_data();
    void windowClosesFirst();
};

void SignInPageTest::windowClosesFirst_data()
{
    QTest::addColumn<bool>("byUser");
    QTest::newRow("cancelled") << false;
    QTest::newRow("window closed") << true;
}

void SignInPageTest::windowClosesFirst()
{
    QFETCH(bool, byUser);
    for (const char *key : {"ACCOUNTS", "API", "UPLOAD", "WEB"})
        qputenv((QByteArray("VELMORA_YOUTUBE_") + key).constData(), "https://127.0.0.1:9");
    qputenv("VELMORA_YOUTUBE_CLIENT_ID", "id");
    qputenv("VELMORA_YOUTUBE_CLIENT_SECRET", "secret");
    qputenv("VELMORA_YOUTUBE_PORT", QByteArray::number(freePort()));
    const QTemporaryDir folder;
    const auto store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
    QFile video(folder.filePath(QStringLiteral("a.mp4")));
    QVERIFY(video.open(QIODevice::WriteOnly));
    UploadController uploads(ServicesConfig(), *store,
                             createSecrets(folder.path(), SecretKeyPlace::File));
    int ends = 0;
    bool visible = false;
    const auto look = [&] {
        ++ends;
        visible = shownDialog() != nullptr;
    };
    connect(&uploads, &UploadController::failed, this, look);
    connect(&uploads, &UploadController::canceled, this, look);
    uploads.upload(QStringLiteral("youtube"), video.fileName(), QString(), nullptr);
    QTRY_VERIFY(shownDialog());
    if (byUser)
        shownDialog()->close();
    else
        uploads.cancel();
    QTRY_COMPARE(ends, 1);
    QVERIFY(!visible);
}

QTEST_MAIN(SignInPageTest)
#include "SignInPageTest.moc"
