// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QJsonObject>

#include <functional>

namespace velmora
{

struct AppSettings;
class HistoryStore;
class ProjectFile;

/// The project as it was when its render began. Photos that were still on their way, or files from
/// a second start of the program, may change the open one meanwhile; the video and its entry in the
/// history do not have them. Removes the worker's request at its end. GUI thread.
class RenderedProject
{
    Q_DECLARE_TR_FUNCTIONS(velmora::RenderedProject)
public:
    RenderedProject() = default;
    ~RenderedProject();
    Q_DISABLE_COPY(RenderedProject)

    /// Writes a file; false with a reason for the user on failure. Any thread.
    using Writer = std::function<bool(QString *error)>;

    /// Takes @p project. What is returned writes the worker's request, a file that is called
    /// @p name; it does not need this object.
    Writer begin(const ProjectFile &project, const AppSettings &settings, const QString &name);
    const QString &request() const { return m_request; } ///< Empty: there is none.
    /// Nobody reads it any more, and it holds the user's paths and texts.
    void removeRequest();
    qint64 videoLength() const { return m_videoLength; } ///< ms
    /// Whether @p project has nothing that the video lacks, nor the other way round.
    bool isSameAs(const ProjectFile &project) const;
    /// Enters it in the history as the video @p fileName. @p done is called when that is written,
    /// with a reason for the user on failure, unless @p context is gone by then.
    void keepIn(HistoryStore &history, const AppSettings &settings, const QString &fileName,
                QObject *context, const std::function<void(const QString &error)> &done) const;

private:
    QString m_request;
    QJsonObject m_project;
    qint64 m_videoLength = 0;
};

} // namespace velmora
