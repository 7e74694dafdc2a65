// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "helpers/FakeServices.h"
#include "platform/Secrets.h"
#include "services/MetricSender.h"
#include "sharing/history/HistoryWidget.h"
#include "ui/main/MainViewFixture.h"

#include <QComboBox>
#include <QCryptographicHash>
#include <QJsonDocument>
#include <QLineEdit>
#include <QProcess>
#include <QStackedWidget>
#include <QTcpServer>

using namespace velmora;

namespace
{

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <typename T> T *find(const QWidget *parent, const char *name)
{
    return parent->findChild<T *>(QLatin1String(name));
}

void clickIn(const QWidget *parent, const char *button)
{
    QTest::mouseClick(find<QAbstractButton>(parent, button), Qt::LeftButton);
}

/// The file @p name in the root of a disc image, as an independent program reads it.
QByteArray contentOnDisc(const QString &image, const QString &name)
{
    const QString copy = image + QStringLiteral(".copy");
    QProcess xorriso;
    xorriso.start(QStringLiteral("xorriso"),
                  {QStringLiteral("-osirrox"), QStringLiteral("on"), QStringLiteral("-indev"),
                   QStringLiteral("stdio:") + image, QStringLiteral("-extract"),
                   QLatin1Char('/') + name, copy});
    return xorriso.waitForFinished() ? contentOf(copy) : QByteArray();
}

} // namespace

/// What a user does: photos, CREATE, the final page and from there on. The worker, the encoder and
/// the window are the real ones; the services and the browser play their parts.
class SharingFlowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        applyIdentity();
        QVERIFY(m_services.isRunning());
    }
    void init();
    void cleanup();
    void videoIsUploaded_data();
    void videoIsUploaded();
    void failureIsTold_data();
    void failureIsTold();
    void cancelReturnsToTheList();
    void videoIsBurnt();
    void slideshowIsRemovedAndResumed();
    void unlistedVideoGoesOut_data();
    void unlistedVideoGoesOut();
    void newVersionIsTold();

private:
    void configure(const QHash<QString, QString> &extra = {});
    void render(const char *buttonOfFinalPage, const DialogDriver::Act &onNextDialog = {});
    void addFinishedVideo();
    void chooseService(const QString &key);
    HistoryWidget &history() const { return *m->view->findChild<HistoryWidget *>(); }
    QString page() const
    {
        return find<QStackedWidget>(&history(), "pages")->currentWidget()->objectName();
    }

    static bool isRecorded(const QByteArray &event)
    {
        return MetricSender::instance().pending().contains(QLatin1String("&m1=" + event));
    }

    FakeServices m_services{true};
    ScriptedBrowser m_browser;
    std::unique_ptr<MainViewFixture> m;
    QString m_video; ///< The last one that was rendered or added.
};

void SharingFlowTest::init()
{
    m_services.reset();
    m_browser.stops = false;
    m_browser.visited.clear();
    m = std::make_unique<MainViewFixture>();
    m->settings.resolution = {320, 240};
    m->settings.defaultTime = 1;
    m->settings.transitionTime = 1;
    // Gathers the usage events of the test, and never has enough of them to send.
    MetricSender::instance().configure(QUrl(QStringLiteral("http://127.0.0.1:9/")), {}, 999, true);
    configure();
}

void SharingFlowTest::cleanup()
{
    QCOMPARE(m->dialogs.failure(), QString());
    m.reset();
    MetricSender::instance().configure(QUrl(), {}, 999, false);
}

void SharingFlowTest::configure(const QHash<QString, QString> &extra)
{
    m->view.reset();
    m->uploads = std::make_unique<UploadController>(
        m_services.config(extra), *m->store, createSecrets(m->folder.path(), SecretKeyPlace::File));
    m->show();
}

/// From the empty start page to the final page, on which that button is pressed.
void SharingFlowTest::render(const char *buttonOfFinalPage, const DialogDriver::Act &onNextDialog)
{
    m->view->openFiles(
        {m->makePhoto(QStringLiteral("a.png")), m->makePhoto(QStringLiteral("b.png"))});
    QTRY_COMPARE(m->photos().size(), 2);
    ProjectItem *title = m->view->document().project()->items().first();
    CaptionStyle caption = title->caption();
    caption.text = QStringLiteral("By the sea");
    title->setCaption(caption);
    find<QLineEdit>(m->view.get(), "txtProjName")->setText(QStringLiteral("Öl & Meer!"));
    QString shown;
    QString heading;
    m->dialogs.expect([&, buttonOfFinalPage](QDialog *dialog) {
        heading = dialog->windowTitle();
        shown = find<QLabel>(dialog, "lblFile")->text();
        clickIn(dialog, buttonOfFinalPage);
    });
    if (onNextDialog)
        m->dialogs.expect(onNextDialog);
    m->click("btnCreate");
    QTRY_VERIFY(m->taskbar.visible);
    QVERIFY(!m->child<QWidget>("btnHistory")->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(!shown.isEmpty(), 60000);
    QCOMPARE(heading, QStringLiteral("Conversion has been completed"));
    QCOMPARE(m->view->page(), MainView::History);
    m_video = history().selectedFile();
    QCOMPARE(shown, QFileInfo(m_video).fileName());
    QVERIFY(QFileInfo(m_video).size() > 1000);
}

/// As if it had been made before.
void SharingFlowTest::addFinishedVideo()
{
    m_video = m->folder.filePath(QStringLiteral("old.mp4"));
    QFile file(m_video);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(100000));
    auto entry = std::make_unique<ProjectFile>(m->settings, ProjectFile::TitleSlide::Create);
    entry->setFileName(m_video);
    m->history->add(std::move(entry));
    m->click("btnHistory");
    QCOMPARE(history().selectedFile(), m_video);
}

/// Through the menu of the history page.
void SharingFlowTest::chooseService(const QString &key)
{
    m->click("btnUpload");
    auto *entry = find<QPushButton>(m->child<QFrame>("uploadServiceMenu"), key.toLatin1());
    QCOMPARE(entry->text().remove(QLatin1Char(' ')), key.toUpper());
    QTest::mouseClick(entry, Qt::LeftButton);
}

void SharingFlowTest::videoIsUploaded_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("address");
    QTest::newRow("youtube") << "btnUploadYoutube"
                             << "Youtube"
                             << "/watch?v=";
    QTest::newRow("googledrive") << "btnUploadGoogleDrive"
                                 << "Google Drive"
                                 << "/file/d/";
    QTest::newRow("dropbox") << "btnUploadDropBox"
                             << "Dropbox"
                             << "/home/Apps/";
}

void SharingFlowTest::videoIsUploaded()
{
    QFETCH(QString, button);
    QFETCH(QString, name);
    QFETCH(QString, address);
    QStringList pages;
    connect(m->uploads.get(), &UploadController::signInStarted, this,
            [&] { pages.append(page()); });
    connect(m->uploads.get(), &UploadController::started, this, [&] { pages.append(page()); });
    QString success;
    render(button.toLatin1().constData());
    m->dialogs.expect([&](QDialog *dialog) {
        success = find<QLabel>(dialog, "lblText")->text();
        m_browser.visited.clear();
        clickIn(dialog, "btnOpen");
    });
    QTRY_VERIFY(!success.isEmpty());
    QCOMPARE(success,
             QStringLiteral("Congratulations! Your file upload to %1 was successful!").arg(name));
    QCOMPARE(pages, QStringList({QStringLiteral("Oauth2Waiting"), QStringLiteral("pgUpload")}));
    QCOMPARE(page(), QStringLiteral("pgHistory"));
    QCOMPARE(m_services.problems().join(QLatin1Char('\n')), QString());
    QCOMPARE(m_services.files().size(), 1);
    const QJsonObject stored = m_services.files().at(0).toObject();
    QVERIFY(stored.value(QLatin1String("title")).toString().contains(QStringLiteral("Öl & Meer!")));
    QCOMPARE(stored.value(QLatin1String("sha256")).toString().toLatin1(),
             QCryptographicHash::hash(contentOf(m_video), QCryptographicHash::Sha256).toHex());
    // "OPEN" has led the browser to the service's page of the video.
    QCOMPARE(m_browser.visited.size(), 1);
    QVERIFY(m_browser.visited.first().startsWith(m_services.url() + address));
    QTRY_VERIFY(m_browser.lastPage.contains("Here is your video"));
    QCOMPARE(m->taskbar.value, 100);
    QVERIFY(!m->taskbar.visible);
    QVERIFY(isRecorded("upld:ok"));
}

void SharingFlowTest::failureIsTold_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("step"); ///< Or a line of the configuration that is left empty.
    QTest::addColumn<QByteArray>("failure");
    QTest::addColumn<QString>("text"); ///< The beginning.
    const QByteArray refusal = R"({"status": 403, "body": "{\"error\": {\"message\": \"Full\"}}"})";
    for (const char *service : {"youtube", "googledrive", "dropbox"}) {
        QTest::addRow("%s, no tokens", service)
            << service << "token" << QByteArray(R"({"status": 400})") << "Authorization error";
        QTest::addRow("%s, not secure", service)
            << service << "network/ca_file" << QByteArray() << "Authorization error";
    }
    for (const char *service : {"youtube", "googledrive"}) {
        QTest::addRow("%s, refused", service)
            << service << "upload" << refusal << "Error uploading video:Full";
        QTest::addRow("%s, broken", service)
            << service << "upload" << QByteArray(R"({"status": 500})")
            << "Error uploading video:Unknown error";
    }
    QTest::newRow("dropbox, refused")
        << "dropbox"
        << "single" << QByteArray(R"({"status": 409, "body": "{\"error_summary\": \"full/\"}"})")
        << "409: full/";
    QTest::newRow("dropbox, broken")
        << "dropbox"
        << "single" << QByteArray(R"({"status": 500})") << "500: Unknown error";
    QTest::newRow("not configured")
        << "dropbox"
        << "dropbox/client_id" << QByteArray() << "Uploading to Dropbox is not configured.";
}

void SharingFlowTest::failureIsTold()
{
    QFETCH(QString, service);
    QFETCH(QString, step);
    QFETCH(QByteArray, failure);
    QFETCH(QString, text);
    if (failure.isEmpty())
        configure({{step, QString()}});
    else
        m_services.fail(step, QJsonDocument::fromJson(failure).object(), 9);
    addFinishedVideo();
    QString heading;
    QString shown;
    m->dialogs.expect([&](QDialog *dialog) {
        heading = find<QLabel>(dialog, "lblTitle")->text();
        shown = find<QLabel>(dialog, "lblError")->text();
        clickIn(dialog, "btnClose");
    });
    chooseService(service);
    QTRY_VERIFY(!shown.isEmpty());
    QCOMPARE(heading, QStringLiteral("Upload stopped with error"));
    QVERIFY2(shown.startsWith(text), qPrintable(shown));
    QCOMPARE(page(), QStringLiteral("pgHistory"));
    QVERIFY(!m->taskbar.visible);
    QCOMPARE(m_services.files().size(), 0);
    QVERIFY(isRecorded("upld:failed") && isRecorded("upld:" + service.toLatin1()));
}

void SharingFlowTest::cancelReturnsToTheList()
{
    addFinishedVideo();
    m_browser.stops = true;
    chooseService(QStringLiteral("googledrive"));
    QTRY_COMPARE(page(), QStringLiteral("Oauth2Waiting"));
    clickIn(&history(), "btnCancelWaiting");
    QTRY_COMPARE(page(), QStringLiteral("pgHistory"));
    m_browser.stops = false;
    m_services.fail(QStringLiteral("upload"), {{QStringLiteral("hang"), true}});
    chooseService(QStringLiteral("googledrive"));
    QTRY_COMPARE(page(), QStringLiteral("pgUpload"));
    QTRY_VERIFY(m->taskbar.visible);
    clickIn(&history(), "btnCancel");
    QTRY_COMPARE(page(), QStringLiteral("pgHistory"));
    QVERIFY(!m->taskbar.visible);
}

void SharingFlowTest::videoIsBurnt()
{
    const QString image = m->folder.filePath(QStringLiteral("disc.img"));
    qputenv("VELMORA_DISC_IMAGES", QFile::encodeName(image));
    QString title;
    QString name;
    QString result;
    render("btnBurnDvd", [&](QDialog *dialog) {
        auto *drives = find<QComboBox>(dialog, "cbDevices");
        if (QTest::qWaitFor([&] { return drives->findData(QStringLiteral("stdio:") + image) >= 0; },
                            20000)) {
            drives->setCurrentIndex(drives->findData(QStringLiteral("stdio:") + image));
            title = find<QLineEdit>(dialog, "leDiskTitle")->text();
            name = find<QLineEdit>(dialog, "leFileName")->text();
            clickIn(dialog, "btnBurn");
            const auto *label = find<QLabel>(dialog, "lbResult");
            if (QTest::qWaitFor([label] { return label->isVisible(); }, 20000))
                result = label->text();
        }
        dialog->done(0);
    });
    QTRY_VERIFY(!result.isEmpty());
    qunsetenv("VELMORA_DISC_IMAGES");
    QCOMPARE(result, QStringLiteral("Succeeded"));
    QVERIFY(isRecorded("wdvd:1"));
    QCOMPARE(title, QStringLiteral("By the sea"));
    QCOMPARE(name, QFileInfo(m_video).fileName());
    QVERIFY(!contentOf(m_video).isEmpty());
    QVERIFY(contentOnDisc(image, name) == contentOf(m_video));
}

void SharingFlowTest::slideshowIsRemovedAndResumed()
{
    render("btnClose");
    m->dialogs.press(QStringLiteral("REMOVE"));
    QTest::keyClick(m->child<QWidget>("listHistory"), Qt::Key_Delete);
    const auto kept = [this] {
        HistoryStore store(m->folder.filePath(QStringLiteral("history.json")), m->settings);
        store.load();
        return store.projects().size();
    };
    QTRY_VERIFY(m->child<QWidget>("undoBar")->isVisible());
    QCOMPARE(kept(), std::size_t(0));
    QVERIFY(QFile::exists(m_video));
    clickIn(&history(), "btnUndo");
    QTRY_VERIFY(m->child<QWidget>("btnClearHistory")->isEnabled());
    QCOMPARE(kept(), std::size_t(1));
    QCOMPARE(history().selectedFile(), m_video);

    // One of its photos is gone when it is resumed.
    m->press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(m->view->page(), MainView::Start);
    QVERIFY(QFile::remove(m->folder.filePath(QStringLiteral("b.png"))));
    m->click("btnHistory");
    m->dialogs.press(QStringLiteral("RESUME"));
    m->click("btnResumeProject");
    QTRY_COMPARE(m->view->page(), MainView::Editor);
    QCOMPARE(m->dialogs.text(),
             QStringLiteral("Not all files exist, do you want to resume the project?"));
    QCOMPARE(m->photos(), QStringList(QStringLiteral("a.png")));
    QCOMPARE(m->view->document().project()->items().first()->caption().text,
             QStringLiteral("By the sea"));
}

void SharingFlowTest::unlistedVideoGoesOut_data()
{
    QTest::addColumn<QString>("button");
    for (const char *button : {"btnUploadYoutube", "btnBurnDvd"})
        QTest::newRow(button) << QString::fromLatin1(button);
}

/// The final page acts on the video that was made, whatever is selected in the history behind it.
void SharingFlowTest::unlistedVideoGoesOut()
{
    QFETCH(QString, button);
    addFinishedVideo();
    QFile made(m->folder.filePath(QStringLiteral("made.mp4")));
    QVERIFY(made.open(QIODevice::WriteOnly) && made.write("the new one") > 0);
    made.close();
    m->view->onFinished(made.fileName());
    QCOMPARE(history().selectedFile(), m_video);
    QString sent;
    m->dialogs.expect([&](QDialog *dialog) { clickIn(dialog, button.toLatin1().constData()); });
    m->dialogs.expect([&](QDialog *dialog) {
        const auto *burnt = find<QLineEdit>(dialog, "leFileName");
        sent = burnt ? burnt->text()
                     : m_services.files().at(0).toObject().value(QLatin1String("title")).toString();
        dialog->reject();
    });
    QTRY_VERIFY(!sent.isEmpty());
    QVERIFY2(sent.startsWith(QLatin1String("made")), qPrintable(sent));
}

void SharingFlowTest::newVersionIsTold()
{
    m->services = m_services.config();
    m->show();
    QString version;
    m->dialogs.expect([&](QDialog *dialog) {
        version = find<QLabel>(dialog, "lblVersion")->text();
        clickIn(dialog, "btnDownload");
    });
    m->view->runUpdateChecker();
    QTRY_COMPARE(version, QStringLiteral("99.0.0"));
    QTRY_COMPARE(m_browser.visited.size(), 1); // The page that offers it.
    QVERIFY(m_services.problems().isEmpty());
    QCOMPARE(m_services.steps(), QStringList(QStringLiteral("update")));
}

QTEST_MAIN(SharingFlowTest)
#include "SharingFlowTest.moc"
