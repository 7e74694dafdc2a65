// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/WorkerOutputReader.h"

#include <cstdint>
#include <cstdlib>

using namespace velmora;

/// Any bytes, in pieces whose size the first byte gives: nothing invalid may come out, and what
/// comes out must survive being written and read again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    const int pieceSize = data[0] + 1;
    const QByteArray output(reinterpret_cast<const char *>(data + 1), static_cast<int>(size - 1));
    WorkerOutputReader reader;
    for (int i = 0; i < output.size(); i += pieceSize) {
        const QVector<WorkerMessage> messages = reader.feed(output.mid(i, pieceSize));
        for (const WorkerMessage &message : messages) {
            const WorkerMessage again = WorkerProtocol::decode(WorkerProtocol::encode(message));
            if (message.kind == WorkerMessage::Kind::Invalid || again.kind != message.kind ||
                again.frame != message.frame || message.frame > message.count)
                std::abort();
        }
    }
    return 0;
}
