// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "helpers/FakeServices.h"
#include "helpers/Files.h"
#include "helpers/Words.h"
#include "platform/Secrets.h"
#include "services/MetricSender.h"
#include "sharing/history/HistoryWidget.h"
#include "ui/main/MainViewFixture.h"

#include <QComboBox>
#include <QStackedWidget>

using namespace velmora;

namespace
{

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
    return xorriso.waitForFinished() ? readFile(copy) : QByteArray();
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

    void init()
    {
        m_services.reset();
        m_browser.stops = false;
        m_browser.visited.clear();
        m = std::make_unique<MainViewFixture>();
        m->settings.resolution = {320, 240};
        m->settings.defaultTime = 1;
        m->settings.transitionTime = 1;
        // Gathers the usage events of the test, and never has enough of them to send.
        MetricSender::instance().configure(QUrl(QStringLiteral("http://127.0.0.1:9/")), {}, 999,
                                           true);
        configure();
    }

    void cleanup()
    {
        QCOMPARE(m->dialogs.failure(), QString());
        m.reset();
        MetricSender::instance().configure(QUrl(), {}, 999, false);
    }

    void videoIsUploaded_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("address");
        const auto row = [](const char *name, const char *button, const char *address) {
            QTest::newRow(name) << button << QString::fromLatin1(address);
        };
        row("Youtube", "btnUploadYoutube", "/watch?v=");
        row("Google Drive", "btnUploadGoogleDrive", "/file/d/");
        row("Dropbox", "btnUploadDropBox", "/home/Apps/");
    }
    void videoIsUploaded()
    {
        QFETCH(QString, button);
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
        QCOMPARE(success, QStringLiteral("Congratulations! Your file upload to %1 was successful!")
                              .arg(QLatin1String(QTest::currentDataTag())));
        QCOMPARE(pages, words("Oauth2Waiting pgUpload"));
        QCOMPARE(page(), QStringLiteral("pgHistory"));
        QCOMPARE(m_services.problems().join(QLatin1Char('\n')), QString());
        QCOMPARE(m_services.files().size(), 1);
        const QJsonObject stored = m_services.files().at(0).toObject();
        QVERIFY(
            stored.value(QLatin1String("title")).toString().contains(QStringLiteral("Öl & Meer!")));
        QCOMPARE(stored.value(QLatin1String("sha256")).toString().toLatin1(),
                 QCryptographicHash::hash(readFile(m_video), QCryptographicHash::Sha256).toHex());
        // "OPEN" has led the browser to the service's page of the video.
        QCOMPARE(m_browser.visited.size(), 1);
        QVERIFY(m_browser.visited.first().startsWith(m_services.url() + address));
        QTRY_VERIFY(m_browser.lastPage.contains("Here is your video"));
        QCOMPARE(m->taskbar.value, 100);
        QVERIFY(!m->taskbar.visible);
        QVERIFY(isRecorded("upld:ok"));
    }

    void failureIsTold_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("step"); ///< Or a line of the configuration that is left empty.
        QTest::addColumn<int>("status");   ///< 0 then.
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("text"); ///< The beginning.
        const auto row = [](const char *service, const char *step, int status, const char *body,
                            const char *text) {
            QTest::addRow("%s, %s %d", service, step, status)
                << service << QString::fromLatin1(step) << status << body
                << QString::fromLatin1(text);
        };
        for (const char *service : {"youtube", "googledrive", "dropbox"}) {
            row(service, "token", 400, "", "Authorization error");
            row(service, "network/ca_file", 0, "", "Authorization error");
        }
        for (const char *service : {"youtube", "googledrive"}) {
            row(service, "upload", 403, "{\"error\": {\"message\": \"Full\"}}",
                "Error uploading video:Full");
            row(service, "upload", 500, "", "Error uploading video:Unknown error");
        }
        row("dropbox", "single", 409, "{\"error_summary\": \"full/\"}", "409: full/");
        row("dropbox", "single", 500, "", "500: Unknown error");
        row("dropbox", "dropbox/client_id", 0, "", "Uploading to Dropbox is not configured.");
    }
    void failureIsTold()
    {
        QFETCH(QString, service);
        QFETCH(QString, step);
        QFETCH(int, status);
        QFETCH(QString, body);
        QFETCH(QString, text);
        QJsonObject answer{{QStringLiteral("status"), status}};
        if (!body.isEmpty())
            answer.insert(QStringLiteral("body"), body);
        if (status == 0)
            configure({{step, QString()}});
        else
            m_services.fail(step, answer, 9);
        addFinishedVideo();
        QString shown;
        m->dialogs.expect([&](QDialog *dialog) {
            QCOMPARE(find<QLabel>(dialog, "lblTitle")->text(),
                     QStringLiteral("Upload stopped with error"));
            shown = find<QLabel>(dialog, "lblError")->text();
            clickIn(dialog, "btnClose");
        });
        chooseService(service);
        QTRY_VERIFY(!shown.isEmpty());
        QVERIFY2(shown.startsWith(text), qPrintable(shown));
        QCOMPARE(page(), QStringLiteral("pgHistory"));
        QVERIFY(!m->taskbar.visible);
        QCOMPARE(m_services.files().size(), 0);
        QVERIFY(isRecorded("upld:failed") && isRecorded("upld:" + service.toLatin1()));
    }

    void cancelReturnsToTheList()
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

    void videoIsBurnt()
    {
        const QString image = m->folder.filePath(QStringLiteral("disc.img"));
        qputenv("VELMORA_DISC_IMAGES", QFile::encodeName(image));
        QString title;
        QString name;
        QString result;
        render("btnBurnDvd", [&](QDialog *dialog) {
            auto *drives = find<QComboBox>(dialog, "cbDevices");
            const auto drive = [&] { return drives->findData(QStringLiteral("stdio:") + image); };
            if (QTest::qWaitFor([&] { return drive() >= 0; }, 20000)) {
                drives->setCurrentIndex(drive());
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
        QVERIFY(!readFile(m_video).isEmpty());
        QVERIFY(contentOnDisc(image, name) == readFile(m_video));
    }

    void unlistedVideoGoesOut_data()
    {
        QTest::addColumn<QString>("button");
        for (const char *button : {"btnUploadYoutube", "btnBurnDvd"})
            QTest::newRow(button) << button;
    }

    /// The final page acts on the video that was made, whatever is selected in the history behind
    /// it.
    void unlistedVideoGoesOut()
    {
        QFETCH(QString, button);
        addFinishedVideo();
        const QString made = m->folder.filePath(QStringLiteral("made.mp4"));
        QVERIFY(writeFile(made, "the new one"));
        m->view->onFinished(made);
        QCOMPARE(history().selectedFile(), m_video);
        QString sent;
        m->dialogs.expect([&](QDialog *dialog) { clickIn(dialog, button.toLatin1().constData()); });
        m->dialogs.expect([&](QDialog *dialog) {
            const auto *burnt = find<QLineEdit>(dialog, "leFileName");
            const QJsonObject stored = m_services.files().at(0).toObject();
            sent = burnt ? burnt->text() : stored.value(QLatin1String("title")).toString();
            dialog->reject();
        });
        QTRY_VERIFY(!sent.isEmpty());
        QVERIFY2(sent.startsWith(QLatin1String("made")), qPrintable(sent));
    }

    void refusedUploadsComeBack()
    {
        addFinishedVideo();
        m_browser.stops = true;
        chooseService(QStringLiteral("googledrive"));
        QTRY_COMPARE(page(), QStringLiteral("Oauth2Waiting"));
        QVector<bool> enabled;
        m->dialogs.expect([&](QDialog *dialog) {
            const auto *button = find<QPushButton>(dialog, "btnUploadYoutube");
            enabled.append(button->isEnabled());
            m->uploads->cancel();
            enabled.append(button->isEnabled());
            dialog->reject();
        });
        m->view->onFinished(m_video);
        QTRY_COMPARE(enabled, (QVector<bool>{false, true}));
    }

    void newVersionIsTold()
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

private:
    void configure(const QHash<QString, QString> &extra = {})
    {
        m->view.reset();
        m->uploads = std::make_unique<UploadController>(
            m_services.config(extra), *m->store,
            createSecrets(m->folder.path(), SecretKeyPlace::File));
        m->show();
    }

    /// From the empty start page to the final page, on which that button is pressed.
    void render(const char *buttonOfFinalPage, const DialogDriver::Act &onNextDialog = {})
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
        m->dialogs.expect([&, buttonOfFinalPage](QDialog *dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Conversion has been completed"));
            shown = find<QLabel>(dialog, "lblFile")->text();
            clickIn(dialog, buttonOfFinalPage);
        });
        if (onNextDialog)
            m->dialogs.expect(onNextDialog);
        m->click("btnCreate");
        QTRY_VERIFY(m->taskbar.visible);
        QVERIFY(!m->child<QWidget>("btnHistory")->isEnabled());
        QTRY_VERIFY(!shown.isEmpty());
        QCOMPARE(m->view->page(), MainView::History);
        m_video = history().selectedFile();
        QCOMPARE(shown, QFileInfo(m_video).fileName());
        QVERIFY(QFileInfo(m_video).size() > 1000);
    }

    /// As if it had been made before.
    void addFinishedVideo()
    {
        m_video = m->folder.filePath(QStringLiteral("old.mp4"));
        QVERIFY(writeFile(m_video, QByteArray(100000, '\0')));
        m->addToHistory("old.mp4");
        m->click("btnHistory");
        QCOMPARE(history().selectedFile(), m_video);
    }

    /// Through the menu of the history page.
    void chooseService(const QString &key)
    {
        m->click("btnUpload");
        auto *entry = find<QPushButton>(m->child<QFrame>("uploadServiceMenu"), key.toLatin1());
        QCOMPARE(entry->text().remove(QLatin1Char(' ')), key.toUpper());
        QTest::mouseClick(entry, Qt::LeftButton);
    }

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

QTEST_MAIN(SharingFlowTest)
#include "SharingFlowTest.moc"
