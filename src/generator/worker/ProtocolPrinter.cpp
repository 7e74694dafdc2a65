// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/ProtocolPrinter.h"

#include "generator/GeneratorLog.h"
#include "generator/worker/WorkerProtocol.h"
#include "platform/StandardOutput.h"

namespace velmora
{

namespace
{

constexpr int kFinalWait = 60000; // ms that a result may wait for a reader that is busy or stopped

WorkerMessage messageOf(WorkerMessage::Kind kind)
{
    WorkerMessage message;
    message.kind = kind;
    return message;
}

bool printResult(const WorkerMessage &message)
{
    if (StandardOutput::write(WorkerProtocol::encode(message), kFinalWait))
        return true;
    qCWarning(generatorLog) << "Nobody reads the result";
    return false;
}

} // namespace

void ProtocolPrinter::progress(qint64 frame, qint64 count)
{
    WorkerMessage message = messageOf(WorkerMessage::Kind::Progress);
    message.frame = frame;
    message.count = count;
    // A reader that lags loses this line; a newer one follows.
    StandardOutput::write(WorkerProtocol::encode(message), 0);
}

void ProtocolPrinter::stage(const QString &stage)
{
    WorkerMessage message = messageOf(WorkerMessage::Kind::Stage);
    message.stage = stage;
    StandardOutput::write(WorkerProtocol::encode(message), 0);
}

bool ProtocolPrinter::finished(const QString &fileName)
{
    WorkerMessage message = messageOf(WorkerMessage::Kind::Finished);
    message.fileName = fileName;
    return printResult(message);
}

bool ProtocolPrinter::failed(const RenderError &error)
{
    WorkerMessage message = messageOf(WorkerMessage::Kind::Failed);
    message.error = error;
    return printResult(message);
}

bool ProtocolPrinter::cancelled()
{
    return printResult(messageOf(WorkerMessage::Kind::Cancelled));
}

} // namespace velmora
