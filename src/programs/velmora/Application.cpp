// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmora/Application.h"

#include "app/CrashReporter.h"
#include "app/FirstRun.h"
#include "app/Log.h"
#include "app/Paths.h"
#include "chrome/Theme.h"
#include "platform/InstalledVersion.h"
#include "platform/SystemInfo.h"
#include "programs/velmora/ProgramLog.h"
#include "project/frames/CaptionFont.h"

#include <QDate>
#include <QScreen>

#include <exception>

namespace velmora
{

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv), m_instance(Paths::dataFolder()),
      m_store(openSettings(Paths::settingsFile())),
      m_services(ServicesConfig::fromFile(Paths::servicesFile()))
{
    connect(&m_instance, &SingleInstance::messageReceived, this, &Application::messageReceived);
    registerFontSubstitutes();
    logEnvironment();
    readSettings();
    applyLanguage(m_settings.locale);
    Theme::install(*this);
    if (!Paths::ensureFolder(Paths::cacheFolder()))
        qCCritical(lcProgram).noquote()
            << "Generator thread. Failed to creat cache path:" << Paths::cacheFolder();
}

Application::~Application() = default;

bool Application::sendMessage(const QString &text, int timeoutMs)
{
    return m_instance.sendMessage(text, timeoutMs);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        CrashReporter::onException(error.what());
    } catch (...) {
        CrashReporter::onException("unknown");
    }
    return false;
}

void Application::logEnvironment() const
{
    const QString today = QDate::currentDate().toString(QStringLiteral("yyyy_MM_dd"));
    qCInfo(lcProgram).noquote() << "Log file" << Log::currentFile();
    qCInfo(lcProgram).noquote()
        << "Log file tool" << QStringLiteral("%1/log_tool_%2.txt").arg(Paths::logFolder(), today);
    const QList<QScreen *> all = screens();
    qCInfo(lcProgram) << "Screen count" << all.size();
    for (int i = 0; i < all.size(); ++i)
        qCInfo(lcProgram).noquote()
            << QStringLiteral("Screen %1").arg(i) << resolutionToText(all.at(i)->size());
    const InstalledVersion installed = readInstalledVersion();
    qCInfo(lcProgram).noquote() << "Installed version" << installed.displayVersion
                                << installed.currentVersion;
}

void Application::readSettings()
{
    FirstRun::take(arguments(), *m_store);
    m_settings.load(*m_store, primaryScreenSize());
}

} // namespace velmora
