// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/GeneratorThread.h"

namespace velmora
{

/// Makes the sound track while the pictures are encoded. Failures go to the generator.
class GeneratorThread::PrepareAudioThread : public QThread
{
public:
    explicit PrepareAudioThread(GeneratorThread &generator);
    ~PrepareAudioThread() override;

    /// After the thread has ended: the finished track; empty when it failed.
    const QString &track() const { return m_track; }

protected:
    void run() override;

private:
    GeneratorThread &m_generator;
    QString m_track;
};

} // namespace velmora
