// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "helpers/FakeServices.h"
#include "helpers/Files.h"
#include "platform/Secrets.h"
#include "sharing/upload/TokenStore.h"
#include "sharing/upload/UploadController.h"
#include "sharing/upload/WebLoginDialog.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QEventLoop>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QSettings>
#include <QTimer>

namespace velmora
{

inline const QStringList kServices{QStringLiteral("youtube"), QStringLiteral("googledrive"),
                                   QStringLiteral("dropbox")};
/// Those that take a video in one request.
inline const QStringList kVideoServices = kServices.mid(0, 2);

/// The sign-in window that the user sees; null without one.
inline WebLoginDialog *shownSignIn()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *dialog = qobject_cast<WebLoginDialog *>(window);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/// How an upload went, as the controller's signals told.
struct UploadCourse {
    int signIns = 0;
    int signInEnds = 0;
    int starts = 0;
    QVector<int> progress;
    QStringList finished; ///< Identifier and address.
    QStringList failed;   ///< The error.
    int canceled = 0;

    int ends() const { return finished.size() / 2 + failed.size() + canceled; }
};

/// A user's files and settings, and uploads to the fake services.
class UploadFixture
{
public:
    explicit UploadFixture(FakeServices &services) : m_services(services)
    {
        services.reset();
        configure();
    }

    void configure(const QHash<QString, QString> &extra = {})
    {
        m_controller.reset();
        m_controller = std::make_unique<UploadController>(
            m_services.config(extra), *m_store,
            createSecrets(m_folder.path(), SecretKeyPlace::File));
        watch();
    }

    /// A file of random bytes.
    QString video(int size, const QString &name = QStringLiteral("My show.mp4"))
    {
        QByteArray bytes((size + 3) / 4 * 4, '\0');
        QRandomGenerator random(static_cast<quint32>(size));
        random.fillRange(reinterpret_cast<quint32 *>(bytes.data()), bytes.size() / 4);
        bytes.truncate(size);
        m_hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
        if (!writeFile(m_folder.filePath(name), bytes))
            qFatal("Cannot write the test's video");
        return m_folder.filePath(name);
    }
    /// Whether the services have the last video(), whole and once.
    bool hasArrived() const
    {
        return m_services.files().size() == 1 && stored("sha256") == QString::fromLatin1(m_hash);
    }
    /// What the services know about the first video.
    QString stored(const char *fact) const
    {
        return m_services.files().at(0).toObject().value(QLatin1String(fact)).toString();
    }
    /// Why the last upload failed, and what was wrong with requests.
    QString trouble() const
    {
        return (course.failed + m_services.problems()).join(QLatin1Char('\n'));
    }

    /// As if the user had signed in before.
    void grant(const QString &service)
    {
        const QJsonObject tokens = m_services.control({{QStringLiteral("grant"), service}});
        save(service, service == QLatin1String("dropbox")
                          ? QString::fromUtf8(QJsonDocument(tokens).toJson())
                          : tokens.value(QLatin1String("refresh_token")).toString());
    }
    void save(const QString &service, const QString &token)
    {
        TokenStore(*m_store, *m_secrets).save(keyOf(service), token);
    }
    /// The stored token.
    QString load(const QString &service)
    {
        return TokenStore(*m_store, *m_secrets).load(keyOf(service));
    }

    void start(const QString &service, const QString &file, const QString &title = QString())
    {
        course = {};
        m_controller->upload(service, file, title, nullptr);
    }
    /// Waits for the end.
    const UploadCourse &wait(int timeoutMs = 120'000)
    {
        QEventLoop loop;
        QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
        const UploadController *controller = m_controller.get();
        QObject::connect(controller, &UploadController::finished, &loop, &QEventLoop::quit);
        QObject::connect(controller, &UploadController::failed, &loop, &QEventLoop::quit);
        QObject::connect(controller, &UploadController::canceled, &loop, &QEventLoop::quit);
        if (course.ends() == 0)
            loop.exec();
        return course;
    }
    const UploadCourse &run(const QString &service, const QString &file,
                            const QString &title = QString())
    {
        start(service, file, title);
        return wait();
    }

    UploadController &controller() { return *m_controller; }
    QSettings &store() { return *m_store; }
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    UploadCourse course;

private:
    static QString keyOf(const QString &service)
    {
        const QStringList keys{QStringLiteral("yt"), QStringLiteral("gd"), QStringLiteral("db")};
        return keys.at(kServices.indexOf(service));
    }
    void watch()
    {
        UploadController *controller = m_controller.get();
        const auto on = [controller](auto signal, auto act) {
            QObject::connect(controller, signal, controller, act);
        };
        on(&UploadController::signInStarted, [this] { ++course.signIns; });
        on(&UploadController::signInEnded, [this] { ++course.signInEnds; });
        on(&UploadController::started, [this] { ++course.starts; });
        on(&UploadController::progress, [this](int percent) { course.progress.append(percent); });
        on(&UploadController::finished,
           [this](const QString &id, const QString &url) { course.finished << id << url; });
        on(&UploadController::failed, [this](const QString &error) { course.failed << error; });
        on(&UploadController::canceled, [this] { ++course.canceled; });
    }

    FakeServices &m_services;
    QTemporaryDir m_folder;
    const std::unique_ptr<Secrets> m_secrets = createSecrets(m_folder.path(), SecretKeyPlace::File);
    const std::unique_ptr<QSettings> m_store = openSettings(path("settings.ini"));
    std::unique_ptr<UploadController> m_controller;
    QByteArray m_hash;
};

} // namespace velmora
