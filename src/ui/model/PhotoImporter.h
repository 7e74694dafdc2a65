// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <memory>

class QThread;

namespace velmora
{

/// What a search for photos found.
struct PhotoImport {
    struct Refused {
        QString path;
        QString reason; ///< For the user, without the file's name.
    };
    QStringList photos; ///< Absolute paths, in the order in which slides are to follow.
    QVector<Refused> refused;
    int row = -1; ///< As given to start().
    bool cancelled = false;
};

/// Searches dropped files and folders, with their subfolders, for photos that can be read, on a
/// thread of its own. Files are taken in the order given, those of a folder in natural order. Other
/// files in folders are passed over in silence; files given by name are refused with a reason.
/// GUI thread; one search at a time.
class PhotoImporter : public QObject
{
    Q_OBJECT
public:
    explicit PhotoImporter(QObject *parent = nullptr);
    /// Cancels and waits for the file in work.
    ~PhotoImporter() override;

    bool isRunning() const { return m_thread != nullptr; }
    /// False while a search is running.
    bool start(const QStringList &paths, int row);
    void cancel() { m_cancelled = true; }

signals:
    void progress(int looked);                         ///< Photos looked at, now and then.
    void finished(const velmora::PhotoImport &import); ///< Once per start(), also when cancelled.

private:
    void search(const QStringList &paths);
    void searchFolder(const QString &folder);
    void look(const QString &path);
    void end();

    std::unique_ptr<QThread> m_thread;
    std::atomic_bool m_cancelled{false};
    PhotoImport m_import; ///< The thread's while it runs.
    int m_looked = 0;
};

} // namespace velmora
