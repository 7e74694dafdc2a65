// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/SlideFrames.h"

#include "project/frames/SlideRenderer.h"

#include <QMutexLocker>

namespace velmora
{

SlideFrames::SlideFrames(const RenderPlan &plan, const FrameFormat &format)
    : m_plan(plan), m_format(format),
      m_entries(std::make_unique<Entry[]>(static_cast<size_t>(plan.slides().size())))
{
    if (!plan.slides().isEmpty())
        m_entries[static_cast<size_t>(plan.slides().size() - 1)].users = 1;
}

QImage SlideFrames::bare(int order, QString *error)
{
    Entry &entry = m_entries[static_cast<size_t>(order)];
    const QMutexLocker locker(&entry.mutex);
    makeBare(entry, order);
    *error = entry.error;
    return entry.bare;
}

QImage SlideFrames::captioned(int order, QString *error)
{
    Entry &entry = m_entries[static_cast<size_t>(order)];
    const QMutexLocker locker(&entry.mutex);
    if (entry.captioned.isNull()) {
        makeBare(entry, order);
        if (!entry.bare.isNull())
            entry.captioned =
                SlideRenderer::captionedFrame(entry.bare, *m_plan.slides().at(order).item);
    }
    *error = entry.error;
    return entry.captioned;
}

void SlideFrames::paintingDone(int order)
{
    Entry &entry = m_entries[static_cast<size_t>(order)];
    {
        const QMutexLocker locker(&entry.mutex);
        entry.bare = QImage();
    }
    release(entry);
    if (order > 0)
        release(m_entries[static_cast<size_t>(order - 1)]);
}

void SlideFrames::makeBare(Entry &entry, int order)
{
    if (!entry.bare.isNull() || !entry.error.isEmpty())
        return;
    const QMutexLocker locker(&m_decoding);
    entry.bare = SlideRenderer::bareFrame(*m_plan.slides().at(order).item, m_format, &entry.error);
}

void SlideFrames::release(Entry &entry)
{
    const QMutexLocker locker(&entry.mutex);
    if (--entry.users > 0)
        return;
    entry.bare = QImage();
    entry.captioned = QImage();
}

} // namespace velmora
