// SPDX-License-Identifier: GPL-3.0-or-later
// StartBenchmark [STARTS]: starts the program that often (10 times by default) on a new data folder
// and prints how long it takes from the start of the process until the main window is painted,
// less the time that the splash screen waits by intent. Run it without a display with
// QT_QPA_PLATFORM=offscreen.
#include "programs/velmora/SplashScreen.h"

#include <QApplication>
#include <QPaintEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

// The program's main(), which the build gives another name here.
int velmoraMain(int argc, char **argv);

namespace
{

constexpr char kMeasured[] = "VELMORA_START_BENCHMARK"; // set for the program to be measured

/// ns on the clock that all processes share.
qint64 now()
{
    return std::chrono::steady_clock::now().time_since_epoch().count();
}

/// Ends the program when its main window is painted for the first time.
class FirstPaint : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == QLatin1String("mainWindow"))
            QTimer::singleShot(0, this, [] { // when the widgets in it are painted too
                std::printf("%lld\n", static_cast<long long>(now()));
                std::fflush(stdout);
                std::_Exit(0);
            });
        return QObject::eventFilter(watched, event);
    }
};

void watchForPaint()
{
    if (qEnvironmentVariableIsSet(kMeasured))
        qApp->installEventFilter(new FirstPaint(qApp));
}

/// ms; negative if the program did not come up.
double measureStart(const QString &dataFolder)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELMORA_DATA_DIR"), dataFolder);
    environment.insert(QLatin1String(kMeasured), QStringLiteral("1"));
    program.setProcessEnvironment(environment);
    const qint64 begin = now();
    program.start(QCoreApplication::applicationFilePath(), QStringList());
    program.waitForFinished();
    const qint64 end = program.readAllStandardOutput().trimmed().toLongLong();
    constexpr double kPass = 500; // ms
    const double waiting = kPass * velmora::SplashScreen::texts().size();
    return end > begin ? static_cast<double>(end - begin) / 1e6 - waiting : -1;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForPaint)

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet(kMeasured))
        return velmoraMain(argc, argv);
    QCoreApplication application(argc, argv);
    const int starts = std::max(argc > 1 ? std::atoi(argv[1]) : 10, 1);
    std::vector<double> times;
    for (int i = 0; i <= starts; ++i) {
        const QTemporaryDir folder;
        const double time = measureStart(folder.path());
        if (time < 0) {
            std::fprintf(stderr, "The program did not show its window.\n");
            return 1;
        }
        if (i > 0) // The first one finds nothing in the disk cache.
            times.push_back(time);
    }
    std::sort(times.begin(), times.end());
    std::printf(
        "from the start to the painted window: median %.0f ms, least %.0f ms, most %.0f ms\n",
        times.at(times.size() / 2), times.front(), times.back());
    return 0;
}
