// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"

#include <QString>

#include <memory>

namespace velmora
{

/// Tells the caller of the command line how a render goes. Exactly one of finished(),
/// documentWritten(), failed() and cancelled() is called, last.
class RenderReport
{
public:
    virtual ~RenderReport() = default;
    virtual void progress(qint64 frame, qint64 count) = 0;
    virtual void stage(const QString &stage) = 0;
    virtual void finished(const QString &fileName) = 0;
    /// In place of a render: the project's document is complete.
    virtual void documentWritten(const QString &fileName) = 0;
    virtual void failed(const RenderError &error) = 0;
    virtual void cancelled() = 0;
};

/// For people: a bar on a terminal, else a line at each tenth; errors on standard error.
std::unique_ptr<RenderReport> createTextReport();
/// For programs: protocol lines on standard output; errors on standard error too.
std::unique_ptr<RenderReport> createProtocolReport();

/// Prints one message for the user on standard error.
void printError(const QString &text);

} // namespace velmora
