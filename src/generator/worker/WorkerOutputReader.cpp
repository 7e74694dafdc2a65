// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/WorkerOutputReader.h"

namespace velmora
{

QVector<WorkerMessage> WorkerOutputReader::feed(const QByteArray &piece)
{
    QVector<WorkerMessage> messages;
    int start = 0;
    for (;;) {
        const int end = piece.indexOf('\n', start);
        const int length = (end < 0 ? piece.size() : end) - start;
        m_tooLong = m_tooLong || m_line.size() + length > WorkerProtocol::kMaximumLine;
        if (m_tooLong)
            m_line.clear();
        else
            m_line.append(piece.constData() + start, length);
        if (end < 0)
            return messages;
        const WorkerMessage message = WorkerProtocol::decode(m_line);
        if (message.kind != WorkerMessage::Kind::Invalid)
            messages.append(message);
        m_line.clear();
        m_tooLong = false;
        start = end + 1;
    }
}

} // namespace velmora
