// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"
#include "platform/DiscWriter.h"
#include "sharing/burning/BurnJob.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>

namespace velmora
{

class WriteThread;

/// A drive and what lay in it when it was last looked at.
struct BurnDevice {
    DiscRecorder recorder;
    DiscMedia media;
};

/// Knows the drives and runs one burn at a time. Drives are asked on a thread of their own, since
/// they may take their time. GUI thread.
class BurnController : public QObject
{
    Q_OBJECT
public:
    explicit BurnController(std::unique_ptr<DiscWriter> writer, QObject *parent = nullptr);
    /// Ends a running burn and waits for it, but not for drives that are slow to answer.
    ~BurnController() override;

    const QVector<BurnDevice> &devices() const { return m_devices; }
    /// Why no disc can be written at all, as a text for the user; empty if one can.
    QString hindrance() const { return m_writer->hindrance(); }
    /// See DiscWriter::fittingTitle().
    QString fittingTitle(const QString &title) const { return m_writer->fittingTitle(title); }
    bool isBurning() const { return m_thread != nullptr; }

    /// Looks for drives; devicesChanged() follows.
    void findDevices();
    /// Looks at the disc in one of devices() anew; mediaChecked() follows.
    void checkMedia(int index);
    /// Starts a burn, unless one runs; burnFinished() follows.
    void burn(const BurnJob &job);
    /// Ends the burn early, as a failure.
    void cancel();

signals:
    void devicesChanged();
    void mediaChecked(const DiscMedia &media);
    void burnProgress(int percentFinished);
    void burnFinished(bool succeeded);
    void elapsedTime(const QString &time); ///< Minutes and seconds, once a second.

private:
    void onProgress(int current, int total);
    void onThreadFinished();

    std::shared_ptr<DiscWriter> m_writer; ///< Questions that still run keep it, too.
    QVector<BurnDevice> m_devices;
    TaskThread *m_questions; ///< Outlives the controller where a drive is slow to answer.
    bool m_searching = false;
    bool m_checking = false;
    WriteThread *m_thread = nullptr;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
    int m_percent = -1;
};

} // namespace velmora
