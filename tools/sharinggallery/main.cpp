// SPDX-License-Identifier: GPL-3.0-or-later
// sharinggallery FOLDER LANGUAGE VIDEO PHOTOS...: saves the pages of history, final page, player,
// uploads, burning and update notice as pictures, with VIDEO in the player and PHOTOS in the rows
// of the history, and as HTML what a browser shows after a sign-in.
#include "app/AppSettings.h"
#include "app/Identity.h"
#include "app/Translations.h"
#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "platform/null/NullFileManager.h"
#include "sharing/burning/BurnController.h"
#include "sharing/burning/BurnDialog.h"
#include "sharing/burning/FakeDiscWriter.h"
#include "sharing/history/FinalWindow.h"
#include "sharing/history/HistoryFixture.h"
#include "sharing/history/HistoryWidget.h"
#include "sharing/history/UploadServiceMenu.h"
#include "sharing/playback/VideoDialog.h"
#include "sharing/upload/UploadController.h"
#include "sharing/upload/UploadFailWindow.h"
#include "sharing/upload/UploadSuccessWindow.h"
#include "sharing/upload/signin/AnswerPage.h"
#include "ui/main/ProjectResume.h"
#include "ui/update/UpdateDialog.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>
#include <QTranslator>

using namespace velmora;

namespace
{

QString s_folder;

void wait(int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    while (!deadline.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

void save(QWidget &widget, const QString &name)
{
    widget.show();
    wait(300);
    widget.grab().save(QDir(s_folder).filePath(name));
}

void save(QWidget &widget, const char *name)
{
    save(widget, QString::fromLatin1(name));
}

/// The dialog that is about to block its caller.
void saveNextDialog(const char *name)
{
    QTimer::singleShot(300, qApp, [name] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        save(*dialog, name);
        dialog->reject();
    });
}

void writePage(const char *name, const QString &html)
{
    QFile file(QDir(s_folder).filePath(QLatin1String(name)));
    if (file.open(QIODevice::WriteOnly))
        file.write(html.toUtf8());
}

void fill(HistoryFixture &history, const QStringList &photos)
{
    const char *names[] = {"Summer at the lake.mp4",
                           "Birthday 2026.mp4",
                           "Norway.mkv",
                           "Hochzeit Öl & Wein.mp4",
                           "A very long name of a video that has to be "
                           "shortened in the middle to fit its place.mp4",
                           "Garden.webm",
                           "First steps.avi"};
    int i = 0;
    for (const char *name : names) {
        std::unique_ptr<ProjectFile> project = history.make("x");
        project->setFileName(history.folder.filePath(QString::fromUtf8(name)));
        project->setResolution(i % 2 ? QSize(1280, 720) : QSize(3840, 2160));
        if (!photos.isEmpty())
            project->addFiles({photos.at(i % photos.size())}, 4, 1);
        if (i != 2)
            HistoryFixture::write(project->fileName(), 1048576LL * (3 + i * i * 57),
                                  QDate(2026, 1 + i, 3 + i));
        history.store.add(std::move(project));
        ++i;
    }
}

/// What is asked when a photo of a project is gone.
void showResume(HistoryFixture &history, HistoryWidget &widget)
{
    const std::unique_ptr<ProjectFile> project = history.make("Harbour.mp4");
    project->addFiles({QStringLiteral("/home/anna/Pictures/Harbour/Beach.jpg")}, 4, 1);
    ProjectResume resume(history.settings, &widget);
    saveNextDialog("resume.png");
    resume.start(*project);
    wait(700);
}

void showHistory(const QStringList &photos)
{
    HistoryFixture history;
    const auto store = openSettings(history.path("settings.ini"));
    UploadController uploads(ServicesConfig(), *store);
    HistoryWidget empty(history.store, history.settings);
    empty.resize(1024, 640);
    save(empty, "history-empty.png");
    fill(history, photos);
    HistoryWidget widget(history.store, history.settings);
    widget.setUploads(&uploads);
    widget.resize(1024, 640);
    save(widget, "history.png");
    saveNextDialog("history-remove.png");
    widget.onDeleteProject(widget.selectedFile());
    saveNextDialog("history-clear.png");
    widget.on_btnClearHistory_clicked();
    widget.findChild<QFrame *>(QStringLiteral("undoBar"))->show();
    widget.findChild<QLabel *>(QStringLiteral("lblUndo"))
        ->setText(QStringLiteral("Videos removed from the history: 1"));
    widget.resize(1440, 900);
    save(widget, "history-undo.png");
    UploadServiceMenu menu(&widget);
    menu.popUp(*widget.findChild<QPushButton *>(QStringLiteral("btnUpload")));
    save(menu, "service-menu.png");
    menu.close();
    auto *pages = widget.findChild<QStackedWidget *>(QStringLiteral("pages"));
    widget.findChild<QLabel *>(QStringLiteral("labelUploadText"))
        ->setText(QStringLiteral("Uploading Summer at the lake.mp4 to Google Drive"));
    widget.findChild<QLabel *>(QStringLiteral("labelUploadTime"))
        ->setText(QStringLiteral("Elapsed: 00:01:23"));
    widget.findChild<QProgressBar *>(QStringLiteral("progressBar"))->setValue(42);
    widget.findChild<QLabel *>(QStringLiteral("lblWaitingTitle"))
        ->setText(QStringLiteral("Connect to Google Drive"));
    widget.resize(1024, 640);
    pages->setCurrentWidget(widget.findChild<QWidget *>(QStringLiteral("pgUpload")));
    save(widget, "upload-progress.png");
    pages->setCurrentWidget(widget.findChild<QWidget *>(QStringLiteral("Oauth2Waiting")));
    save(widget, "upload-waiting.png");
    showResume(history, widget);
}

void showPlayer(const QString &video)
{
    VideoDialog player(video);
    player.play();
    const QDeadlineTimer deadline(10000);
    while (!player.isVisible() && !deadline.hasExpired())
        wait(20);
    if (!player.isVisible())
        return;
    wait(1500);
    save(player, "player.png");
}

void showUploadResults()
{
    for (const char *service : {"youtube", "googledrive", "dropbox"}) {
        UploadSuccessWindow success(QLatin1String(service),
                                    QStringLiteral("https://example.org/watch"));
        save(success, QStringLiteral("upload-success-%1.png").arg(QLatin1String(service)));
    }
    UploadFailWindow failure(
        QStringLiteral("Error uploading video:The user has exceeded the number "
                       "of videos they may upload."));
    save(failure, "upload-fail.png");
    const AnswerPage page;
    writePage("answer-connected.html", page.success());
    writePage("answer-not-connected.html", page.failure());
}

DiscMedia usedDisc()
{
    DiscMedia media;
    media.present = true;
    media.appendable = true;
    media.erasable = true;
    media.freeBytes = 4483LL * 1048576;
    media.volumeName = QStringLiteral("Holidays 2025");
    return media;
}

void press(QWidget &dialog, const char *button)
{
    dialog.findChild<QPushButton *>(QLatin1String(button))->click();
    wait(300);
}

void showBurning(const QString &video)
{
    FakeDiscWriter::State state;
    state.media = usedDisc();
    BurnController controller(std::make_unique<FakeDiscWriter>(state));
    BurnDialog dialog(controller, video, QString());
    save(dialog, "burn-settings.png");
    state.media.present = false;
    saveNextDialog("burn-no-disc.png");
    press(dialog, "btnBurn");
    state.media = usedDisc();
    state.media.appendable = false;
    press(dialog, "btnBurn");
    save(dialog, "burn-erase.png");
    press(dialog, "btnCancelTwo");
    state.media = usedDisc();
    press(dialog, "btnBurn");
    save(dialog, "burn-not-empty.png");
    state.hold = true;
    press(dialog, "btnNo");
    save(dialog, "burn-progress.png");
    saveNextDialog("burn-stop.png");
    press(dialog, "btnCancel");
    state.hold = false;
    wait(500);
    save(dialog, "burn-result.png");
}

void showFailedBurning(const QString &video)
{
    FakeDiscWriter::State state;
    BurnController nothing(std::make_unique<FakeDiscWriter>(state, 0));
    BurnDialog without(nothing, video, QString());
    save(without, "burn-no-drive.png");
    BurnController controller(std::make_unique<FakeDiscWriter>(state));
    BurnDialog dialog(controller, video, QString());
    state.media.present = true;
    state.media.blank = true;
    state.media.freeBytes = 1048576;
    dialog.show();
    wait(300);
    saveNextDialog("burn-no-space.png");
    press(dialog, "btnBurn");
    state.media.freeBytes *= 700;
    state.failingStep = QStringLiteral("write");
    press(dialog, "btnBurn");
    wait(300);
    save(dialog, "burn-error.png");
}

void showFinal()
{
    NullFileManager manager;
    FinalWindow final(QStringLiteral("/home/me/Summer at the lake.mp4"), manager);
    save(final, "final.png");
    saveNextDialog("final-no-file.png");
    press(final, "btnOpen");
}

} // namespace

int main(int argc, char **argv)
{
    applyIdentity();
    QApplication application(argc, argv);
    Theme::install(application);
    Theme::useProgramFont();
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4)
        return 2;
    QTranslator translator;
    if (Translations::load(translator, arguments.at(2)))
        QCoreApplication::installTranslator(&translator);
    s_folder = arguments.at(1);
    QDir().mkpath(s_folder);
    showHistory(arguments.mid(4));
    showPlayer(arguments.at(3));
    showUploadResults();
    const QTemporaryDir folder;
    const QString video = folder.filePath(QStringLiteral("Summer at the lake.mp4"));
    HistoryFixture::write(video, 3 * 1048576, QDate(2026, 1, 3));
    showBurning(video);
    showFailedBurning(video);
    showFinal();
    UpdateDialog update(QStringLiteral("4.0.1"), QUrl(QStringLiteral("https://example.org/get")),
                        QUrl(QStringLiteral("https://example.org/notes")));
    save(update, "update.png");
    return 0;
}
