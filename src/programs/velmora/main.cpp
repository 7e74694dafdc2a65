// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CrashReporter.h"
#include "app/Identity.h"
#include "app/Log.h"
#include "app/Paths.h"
#include "app/TaskThread.h"
#include "chrome/Theme.h"
#include "generator/pipeline/CacheSweeper.h"
#include "platform/ComApartment.h"
#include "platform/DesktopNotification.h"
#include "platform/DiscWriter.h"
#include "platform/FileManager.h"
#include "platform/FileNames.h"
#include "platform/ImageFormats.h"
#include "platform/SystemInfo.h"
#include "platform/TaskbarProgress.h"
#include "programs/velmora/Application.h"
#include "programs/velmora/ProgramLog.h"
#include "programs/velmora/SplashScreen.h"
#include "programs/velmora/SystemMetrics.h"
#include "project/documents/HistoryStore.h"
#include "services/MetricSender.h"
#include "services/MetricSetup.h"
#include "sharing/upload/UploadController.h"
#include "ui/main/MainView.h"
#include "ui/main/StartMessage.h"

#include <QTimer>

#include <cstdlib>
#include <ctime>

namespace
{

constexpr int kHandOverTimeout = 5000; // ms
constexpr int kMetricTimeout = 1000;   // ms that the end may wait for the last usage events

void playWhileLoading(velmora::SplashScreen &splash, velmora::HistoryStore &history)
{
    using namespace velmora;
    TaskThread loading;
    loading.add([&history]() -> TaskThread::Report {
        history.load();
        return [] {};
    });
    splash.play();
    loading.finish();
}

void setUpMetrics(velmora::Application &application)
{
    velmora::setUpMetrics(velmora::MetricSender::instance(), application.services(),
                          application.settings().sendStatistics, application.settingsStore());
}

/// Applies what the user changed in the settings panel.
void applySettings(velmora::Application &application)
{
    using namespace velmora;
    application.applyLanguage(application.settings().locale);
    setUpMetrics(application);
}

int runProgram(velmora::Application &application, const QStringList &files)
{
    using namespace velmora;
    // Another start may wake this one while the splash is shown.
    QStringList early;
    QObject waiting;
    QObject::connect(&application, &Application::messageReceived, &waiting,
                     [&early](const QString &text) { early.append(text); });
    HistoryStore history(Paths::historyFile(), application.settings());
    SplashScreen splash;
    playWhileLoading(splash, history);
    // A render or a burn that was killed may have left much, and the next one may be far off.
    TaskThread sweeper;
    CacheSweeper::sweepAllOn(sweeper, Paths::cacheFolder());
    sweeper.add([]() -> TaskThread::Report {
        removeBurnLeftovers();
        return [] {};
    });
    Theme::useProgramFont();
    UploadController uploads(application.services(), application.settingsStore());
    const std::unique_ptr<TaskbarProgress> taskbar = createTaskbarProgress();
    const std::unique_ptr<DesktopNotification> notification = createDesktopNotification();
    const std::unique_ptr<FileManager> fileManager = createFileManager();

    qCInfo(lcProgram) << "main window";
    MainView window({application.settings(), application.settingsStore(), application.services(),
                     history, uploads, *taskbar, *notification, *fileManager});
    QObject::disconnect(&application, nullptr, &waiting, nullptr);
    QObject::connect(&application, &Application::messageReceived, &window,
                     &MainView::onMessageReceived);
    QObject::connect(&window, &MainView::settingsSaved, &application,
                     [&application] { applySettings(application); });
    window.show();
    window.activateWindow();
    splash.finish(&window);

    setUpMetrics(application);
    recordSystem(MetricSender::instance(), readSystemInfo());
    MetricSender::instance().SendData(); // it is no whole batch
    // Dialogs need the event loop.
    QTimer::singleShot(0, &window, [&window, &early, files] {
        window.offerRestore();
        window.openFiles(files);
        window.runUpdateChecker();
        for (const QString &text : qAsConst(early))
            window.onMessageReceived(text);
    });
    const int result = QApplication::exec();
    // Another start need not wait for the rest of the end, which may be long.
    window.letGo();
    history.finish();
    application.releaseInstance();
    return result;
}

int runInstance(int &argc, char **argv)
{
    using namespace velmora;
    Application application(argc, argv);
    const QStringList files = StartMessage::filesOfArguments(Application::arguments());
    if (application.isRunning() &&
        application.sendMessage(StartMessage::compose(files), kHandOverTimeout))
        return 0;
    const int result = runProgram(application, files);
    MetricSender::instance().flush(kMetricTimeout);
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    velmora::FileNames::allowAllLetters();
    velmora::applyIdentity();
    velmora::installImageFormats();
    velmora::Log::install(QStringLiteral("log"));
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    QGuiApplication::setDesktopFileName(QStringLiteral("velmora"));
    int result = 0;
    {
        const velmora::ComApartment com;
        std::srand(static_cast<unsigned int>(std::time(nullptr)));
        const velmora::CrashReporter reporter(velmora::Paths::dataFolder());
        result = runInstance(argc, argv);
    }
    velmora::Log::uninstall();
    return result;
}
