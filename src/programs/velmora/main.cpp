// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CrashReporter.h"
#include "app/Identity.h"
#include "app/Log.h"
#include "app/Paths.h"
#include "platform/ComApartment.h"
#include "platform/FileNames.h"
#include "platform/SystemInfo.h"
#include "programs/velmora/Application.h"
#include "programs/velmora/ProgramLog.h"
#include "programs/velmora/SplashScreen.h"
#include "programs/velmora/SystemMetrics.h"
#include "services/MetricSender.h"
#include "services/MetricSetup.h"

#include <QLabel>

#include <cstdlib>
#include <ctime>

namespace
{

constexpr int kHandOverTimeout = 5000; // ms

void setUpFont()
{
    QFont font(QStringLiteral("Segoe UI"));
    font.setPixelSize(11);
    QApplication::setFont(font);
}

std::unique_ptr<QWidget> createMainWindow()
{
    auto window = std::make_unique<QLabel>(
        QCoreApplication::translate("MainWindow", "%1\nThe log is kept in %2")
            .arg(QCoreApplication::applicationName(), velmora::Paths::logFolder()));
    window->setObjectName(QStringLiteral("mainWindow"));
    window->setWindowTitle(QCoreApplication::applicationName());
    window->setMargin(40);
    return window;
}

void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

int runProgram(velmora::Application &application)
{
    using namespace velmora;
    SplashScreen splash;
    splash.play();
    setUpFont();

    qCInfo(lcProgram) << "main window";
    const std::unique_ptr<QWidget> window = createMainWindow();
    QObject::connect(
        &application, &Application::messageReceived, window.get(), [&window](const QString &text) {
            qCInfo(lcProgram).noquote() << QStringLiteral("Message received:'%1'").arg(text);
            bringToFront(*window);
        });
    bringToFront(*window);
    splash.finish(window.get());

    setUpMetrics(MetricSender::instance(), application.services(), application.settingsStore());
    recordSystem(MetricSender::instance(), readSystemInfo());
    return QApplication::exec();
}

int runInstance(int &argc, char **argv)
{
    velmora::Application application(argc, argv);
    if (application.isRunning() &&
        application.sendMessage(QStringLiteral("Wake up!"), kHandOverTimeout))
        return 0;
    return runProgram(application);
}

} // namespace

int main(int argc, char **argv)
{
    velmora::FileNames::allowAllLetters();
    velmora::applyIdentity();
    velmora::Log::install(QStringLiteral("log"));
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
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
