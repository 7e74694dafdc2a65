// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscWriter.h"
#include "platform/Shortened.h"

#include <QSemaphore>
#include <QStringList>
#include <QThread>

#include <atomic>
#include <mutex>

namespace velmora
{

/// Two drives without hardware, which note what is asked of them.
class FakeDiscWriter : public DiscWriter
{
public:
    struct State {
        DiscMedia media;
        QString failingStep; ///< "open", "erase", "check", "image", "finish", "write" or nothing.
        bool hold = false;   ///< A write waits until it is cancelled.
        QSemaphore writing;  ///< Gets one per write that began.
        QString slowStep;    ///< One of the same that waits for mayEnd.
        QSemaphore begun;    ///< Gets one when the slow step has begun.
        QSemaphore mayEnd;
        QString hindrance;            ///< Why nothing can be burned.
        std::atomic_bool slow{false}; ///< Nobody is told yet which drives there are.
        QSemaphore asked;             ///< Gets one whenever somebody wants to know them.
        QSemaphore gone;              ///< Gets one when the writer is destroyed.

        /// Notes a step, and tells whether it succeeds.
        bool takes(const QString &step)
        {
            {
                const std::lock_guard<std::mutex> lock(mutex);
                steps.append(step);
            }
            if (!slowStep.isEmpty() && step.startsWith(slowStep)) {
                begun.release();
                mayEnd.acquire();
            }
            return failingStep.isEmpty() || !step.startsWith(failingStep);
        }
        QStringList noted()
        {
            const std::lock_guard<std::mutex> lock(mutex);
            return steps;
        }
        std::mutex mutex;
        QStringList steps;
    };

    explicit FakeDiscWriter(State &state, int drives = 2) : m_state(state), m_drives(drives) {}

    ~FakeDiscWriter() override { m_state.gone.release(); }

    QString hindrance() const override { return m_state.hindrance; }
    QString fittingTitle(const QString &title) const override
    {
        return shortened(title, 15, [](const QString &text) { return text.size(); });
    }
    QVector<DiscRecorder> recorders() override
    {
        m_state.asked.release();
        while (m_state.slow)
            QThread::yieldCurrentThread();
        QVector<DiscRecorder> all;
        for (int i = 0; i < m_drives; ++i)
            all.append({QString::number(i), QStringLiteral("DVDRAM GH%1").arg(i),
                        QStringList{QStringLiteral("/dev/sr%1").arg(i)}});
        return all;
    }
    DiscMedia media(const QString &) override { return m_state.media; }
    std::unique_ptr<DiscSession> openSession(const QString &id) override
    {
        const bool opened = m_state.takes(QStringLiteral("open ") + id);
        return opened ? std::make_unique<Session>(m_state) : nullptr;
    }

private:
    class Session : public DiscSession
    {
    public:
        explicit Session(State &state) : m_state(state) {}

        bool erase(const DiscProgress &progress) override
        {
            progress(50, 100);
            return m_state.takes(QStringLiteral("erase"));
        }
        bool checkMedia() override { return m_state.takes(QStringLiteral("check")); }
        bool createImage(const QString &video, const QString &fileName,
                         const QString &volumeName) override
        {
            return m_state.takes(QStringLiteral("image %1 %2 %3").arg(video, fileName, volumeName));
        }
        bool finishImage(bool finalize) override
        {
            return m_state.takes(finalize ? QStringLiteral("finish closing")
                                          : QStringLiteral("finish"));
        }
        bool write(const DiscProgress &progress, const std::atomic_bool &cancelled) override
        {
            const bool succeeds = m_state.takes(QStringLiteral("write"));
            progress(42, 100);
            m_state.writing.release();
            while (m_state.hold && !cancelled)
                QThread::yieldCurrentThread();
            return !cancelled && succeeds;
        }

    private:
        State &m_state;
    };

    State &m_state;
    int m_drives;
};

} // namespace velmora
