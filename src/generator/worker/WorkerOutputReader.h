// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/worker/WorkerProtocol.h"

#include <QByteArray>
#include <QVector>

namespace velmora
{

/// Cuts a worker's standard output, which comes in pieces of any size, into messages. Lines that
/// are not of the protocol are skipped; memory stays bounded whatever is fed.
class WorkerOutputReader
{
public:
    /// The messages whose lines @p piece completes, in order.
    QVector<WorkerMessage> feed(const QByteArray &piece);

private:
    QByteArray m_line; ///< What has come of the current line.
    bool m_tooLong = false;
};

} // namespace velmora
