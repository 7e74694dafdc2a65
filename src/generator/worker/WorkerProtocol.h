// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"

#include <QByteArray>
#include <QString>

namespace velmora
{

/// One line that a worker prints: a compact JSON object, told apart by its "event".
struct WorkerMessage {
    enum class Kind { Invalid, Progress, Stage, Finished, Failed, Cancelled };
    Kind kind = Kind::Invalid;
    qint64 frame = 0; ///< Progress: work done, weighed in frames ...
    qint64 count = 0; ///< ... of all work.
    QString stage;    ///< Stage: its name.
    QString fileName; ///< Finished: the video.
    RenderError error;
};

/// Exit codes of the worker and of the command line.
enum WorkerExitCode { kExitDone = 0, kExitFailed = 1, kExitBadArguments = 2, kExitCancelled = 3 };
/// The exit code of a render that failed with @p error.
WorkerExitCode exitCodeOf(const RenderError &error);

/// Both directions of the protocol. Decoding accepts any bytes and yields Invalid for lines that
/// are not of it.
namespace WorkerProtocol
{

/// Lines longer than this are not of the protocol (bytes).
constexpr int kMaximumLine = 256 * 1024;

QByteArray encode(const WorkerMessage &message); ///< With its newline.
WorkerMessage decode(const QByteArray &line);

} // namespace WorkerProtocol

} // namespace velmora
