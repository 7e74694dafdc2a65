// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/preview/FrameSource.h"

#include <QThread>

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

namespace velmora
{

/// Renders preview frames on a thread of its own, with the code that renders the video's frames.
///
/// Memory: a slide is up to some hundred frames, which at 1280x720 would be gigabytes for three
/// slides. So frames are painted just in time: pictures are given out only until kHeldBytes of them
/// (two seconds at 1280x720) are held by the player, which releases each as soon as it is shown or
/// passed. A still is one picture, however long it lasts. Waiting for the photo of a slide to come
/// happens within that lead.
///
/// Lives in the GUI thread; its thread ends in the destructor.
class PreviewRenderer : public FrameSource
{
    Q_OBJECT
public:
    static constexpr qint64 kHeldBytes = 192 * 1024 * 1024;
    static constexpr int kFewestHeld = 8; ///< Pictures, however large.
    static constexpr int kMostHeld = 150;

    explicit PreviewRenderer(QObject *parent = nullptr);
    ~PreviewRenderer() override;

    void request(int buffId, const PreviewScript::Pointer &script, int slide,
                 int firstFrame) override;
    void cancel() override;
    void release(int pictures) override;

    /// How many pictures of a size are given out ahead.
    static int heldPictures(const QSize &size);

private:
    struct Job {
        int buffId;
        PreviewScript::Pointer script;
        int slide;
        int frame;
    };
    void work();
    bool mayBegin() const;
    void deliver(const Job &job, int generation, const QImage &picture);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    int m_held = 0;
    int m_generation = 0; ///< Of the requests since the last cancel().
    bool m_quit = false;
    std::unique_ptr<QThread> m_thread;
};

} // namespace velmora
