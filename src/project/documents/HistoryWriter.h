// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"

#include <QPointer>
#include <QString>

#include <atomic>
#include <deque>
#include <functional>

namespace velmora
{

/// Writes the states of a file on a thread of its own, in their order. A state that waits while a
/// later one is added is left out, so the last one is always written and never many. Used on one
/// thread, which runs an event loop for the answers.
class HistoryWriter
{
public:
    /// Writes one state, on the thread; a reason for the user, empty on success.
    using Write = std::function<QString()>;
    using Done = std::function<void(const QString &error)>;

    HistoryWriter() = default;
    /// Waits until everything is written. Answers that are still due are dropped.
    ~HistoryWriter();
    HistoryWriter(const HistoryWriter &) = delete;
    HistoryWriter &operator=(const HistoryWriter &) = delete;

    /// @p done gets the answer to this state or to the later one that took its place, by the event
    /// loop, unless @p context is gone by then.
    void add(Write write, QObject *context, Done done);
    /// Waits until everything is written. The answers come later, as always.
    void finish() { m_thread.finish(); }

private:
    struct Waiting {
        int number;
        QPointer<QObject> context;
        Done done;
    };

    void answer(int number, const QString &error);

    std::atomic_int m_newest{0};
    std::deque<Waiting> m_waiting; ///< For their answers, by their numbers.
    TaskThread m_thread;           ///< The last member: its work uses the others.
};

} // namespace velmora
