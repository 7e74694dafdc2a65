// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/HistoryWriter.h"

namespace velmora
{

HistoryWriter::~HistoryWriter()
{
    m_thread.finish();
}

void HistoryWriter::add(Write write, QObject *context, Done done)
{
    const int number = ++m_newest;
    m_waiting.push_back({number, context, std::move(done)});
    m_thread.add([this, number, write = std::move(write)]() -> TaskThread::Report {
        // The report takes what the state holds along, so that it ends on the thread of its owner.
        if (number != m_newest)
            return [write] {};
        return [this, number, write, error = write()] { answer(number, error); };
    });
}

void HistoryWriter::answer(int number, const QString &error)
{
    while (!m_waiting.empty() && m_waiting.front().number <= number) {
        const Waiting waiting = std::move(m_waiting.front());
        m_waiting.pop_front(); // The answer may run an event loop.
        if (waiting.context)
            waiting.done(error);
    }
}

} // namespace velmora
