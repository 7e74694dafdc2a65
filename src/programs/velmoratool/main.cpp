// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "app/Identity.h"
#include "app/Log.h"
#include "app/Paths.h"
#include "app/ServicesConfig.h"
#include "app/Translations.h"
#include "generator/worker/WorkerMain.h"
#include "generator/worker/WorkerProtocol.h"
#include "platform/FileNames.h"
#include "platform/ImageFormats.h"
#include "platform/MemoryArenas.h"
#include "platform/StandardOutput.h"
#include "platform/WindowlessPlatform.h"
#include "programs/velmoratool/HelpText.h"
#include "programs/velmoratool/MakeCommand.h"
#include "project/frames/CaptionFont.h"
#include "services/MetricSender.h"
#include "services/MetricSetup.h"

#include <QGuiApplication>
#include <QSettings>
#include <QTextStream>
#include <QTranslator>

namespace
{

/// How long the end of the program may wait for the last usage events to be sent, in ms.
constexpr int kMetricTimeout = 2000;

int showUsage()
{
    QTextStream(stderr) << velmora::helpText();
    return velmora::kExitBadArguments;
}

/// Chooses what to do: render for the editor, or one of the commands.
int dispatch(const QStringList &arguments, const velmora::AppSettings &settings)
{
    const QString first = arguments.value(1);
    if (first == QLatin1String("make"))
        return velmora::runMake(arguments.mid(2), settings);
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        QTextStream(stdout) << velmora::helpText();
        return velmora::kExitDone;
    }
    if (first == QLatin1String("--version")) {
        QTextStream(stdout) << velmora::versionText();
        return velmora::kExitDone;
    }
    return first.startsWith(QLatin1String("--")) ? velmora::runWorker(arguments, settings)
                                                 : showUsage();
}

} // namespace

int main(int argc, char *argv[])
{
    velmora::shareFreeMemory();
    velmora::StandardOutput::ensureOpen();
    velmora::FileNames::allowAllLetters();
    velmora::applyIdentity();
    velmora::installImageFormats();
    velmora::Log::install(QStringLiteral("log_tool"));
    velmora::chooseWindowlessPlatform();
    int result = 0;
    {
        QGuiApplication application(argc, argv);
        velmora::registerFontSubstitutes();
        velmora::AppSettings settings;
        const auto store = velmora::openSettings(velmora::Paths::settingsFile());
        settings.load(*store, QSize());
        velmora::MetricSender &metrics = velmora::MetricSender::instance();
        velmora::setUpMetrics(metrics,
                              velmora::ServicesConfig::fromFile(velmora::Paths::servicesFile()),
                              settings.sendStatistics, *store);
        QTranslator translator;
        if (velmora::Translations::load(translator, settings.locale))
            QCoreApplication::installTranslator(&translator);
        result = dispatch(QCoreApplication::arguments(), settings);
        metrics.flush(kMetricTimeout);
    }
    velmora::Log::uninstall();
    return result;
}
