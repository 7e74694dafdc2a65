// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "app/ProgramLanguage.h"
#include "app/ServicesConfig.h"
#include "platform/SingleInstance.h"

#include <QApplication>
#include <QSettings>

#include <memory>

namespace velmora
{

/// The program's application object: identity, settings, translation, style sheet, working folders
/// and the single instance per user. One for the process, made on the main thread.
class Application : public QApplication
{
    Q_OBJECT
public:
    Application(int &argc, char **argv);
    ~Application() override;

    /// Whether another instance was first.
    bool isRunning() const { return m_instance.isRunning(); }
    /// Delivers a text to the running instance; whether it was received within @p timeoutMs.
    bool sendMessage(const QString &text, int timeoutMs);
    /// From now on another start is the first instance.
    void releaseInstance() { m_instance.release(); }

    AppSettings &settings() { return m_settings; }
    QSettings &settingsStore() { return *m_store; }
    const ServicesConfig &services() const { return m_services; }

    /// Has the program speak the language of @p locale; false: English.
    bool applyLanguage(const QString &locale) { return m_language.apply(locale); }

    /// An exception that a slot lets through is logged with a dump, and the program goes on.
    bool notify(QObject *receiver, QEvent *event) override;

signals:
    /// A second start sent a text, usually "Wake up!".
    void messageReceived(const QString &text);

private:
    void logEnvironment() const;
    void readSettings();

    SingleInstance m_instance;
    std::unique_ptr<QSettings> m_store;
    AppSettings m_settings;
    ServicesConfig m_services;
    ProgramLanguage m_language;
};

} // namespace velmora
