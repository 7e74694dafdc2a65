// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "helpers/FakeServices.h"
#include "platform/Secrets.h"
#include "sharing/upload/TokenStore.h"
#include "sharing/upload/UploadController.h"

#include <QCryptographicHash>
#include <QEventLoop>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QSettings>
#include <QTimer>

#include <optional>

namespace velmora
{

/// How an upload went, as the controller's signals told.
struct UploadCourse {
    int signIns = 0;
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
        m_store = openSettings(m_folder.filePath(QStringLiteral("settings.ini")));
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
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != size)
            qFatal("Cannot write the test's video");
        return file.fileName();
    }
    /// Whether the services have the last video(), whole and once.
    bool hasArrived() const
    {
        const QJsonArray files = m_services.files();
        return files.size() == 1 &&
               files.at(0).toObject().value(QLatin1String("sha256")) == QString::fromLatin1(m_hash);
    }

    /// As if the user had signed in before.
    void grant(const QString &service, const QString &key)
    {
        const QJsonObject tokens = m_services.control({{QStringLiteral("grant"), service}});
        const QString refresh = tokens.value(QLatin1String("refresh_token")).toString();
        save(key, key == QLatin1String("db")
                      ? QString::fromUtf8(QJsonDocument(tokens).toJson(QJsonDocument::Compact))
                      : refresh);
    }
    void save(const QString &key, const QString &token)
    {
        const auto secrets = createSecrets(m_folder.path(), SecretKeyPlace::File);
        TokenStore(*m_store, *secrets).save(key, token);
    }
    QString load(const QString &key)
    {
        const auto secrets = createSecrets(m_folder.path(), SecretKeyPlace::File);
        return TokenStore(*m_store, *secrets).load(key);
    }

    void start(const QString &service, const QString &file, const QString &title = QString())
    {
        course = {};
        m_controller->upload(service, file, title, nullptr);
    }
    /// Waits for the end.
    const UploadCourse &wait(int timeoutMs = 30000)
    {
        QEventLoop loop;
        QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
        m_onEnd = [&loop] { loop.quit(); };
        if (course.ends() == 0)
            loop.exec();
        m_onEnd = nullptr;
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
    void ended()
    {
        if (m_onEnd)
            m_onEnd();
    }
    void watch()
    {
        UploadController *controller = m_controller.get();
        const auto on = [controller](auto signal, auto act) {
            QObject::connect(controller, signal, controller, act);
        };
        on(&UploadController::signInStarted, [this] { ++course.signIns; });
        on(&UploadController::started, [this] { ++course.starts; });
        on(&UploadController::progress, [this](int percent) { course.progress.append(percent); });
        on(&UploadController::finished, [this](const QString &id, const QString &url) {
            course.finished << id << url;
            ended();
        });
        on(&UploadController::failed, [this](const QString &error) {
            course.failed << error;
            ended();
        });
        on(&UploadController::canceled, [this] {
            ++course.canceled;
            ended();
        });
    }

    FakeServices &m_services;
    QTemporaryDir m_folder;
    std::unique_ptr<QSettings> m_store;
    std::unique_ptr<UploadController> m_controller;
    QByteArray m_hash;
    std::function<void()> m_onEnd;
};

} // namespace velmora
