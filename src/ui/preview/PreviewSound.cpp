// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewSound.h"

#include "ui/preview/SoundPreparation.h"

#include <algorithm>

namespace velmora
{

PreviewSound::PreviewSound(QObject *parent) : QObject(parent) {}

PreviewSound::~PreviewSound()
{
    for (const auto &preparation : m_retired)
        preparation->disconnect(this);
    if (m_current)
        m_current->disconnect(this);
}

void PreviewSound::require(const ProjectSound &sound, qint64 length)
{
    if (isFor(sound, length))
        return;
    retire();
    m_sound = sound;
    m_length = length;
    if (sound.isEmpty())
        return;
    m_current = std::make_unique<SoundPreparation>(sound, length);
    SoundPreparation *preparation = m_current.get();
    connect(preparation, &QThread::finished, this,
            [this, preparation] { onFinished(preparation); });
    preparation->start(QThread::LowPriority);
}

bool PreviewSound::isFor(const ProjectSound &sound, qint64 length) const
{
    return sound == m_sound && (length == m_length || sound.isEmpty()) && errorText().isEmpty();
}

void PreviewSound::retire()
{
    if (!m_current)
        return;
    m_current->cancel();
    if (isPending())
        m_retired.push_back(std::move(m_current));
    m_current.reset();
}

void PreviewSound::onFinished(SoundPreparation *preparation)
{
    if (preparation == m_current.get()) {
        emit changed();
        return;
    }
    m_retired.erase(std::remove_if(m_retired.begin(), m_retired.end(),
                                   [preparation](const std::unique_ptr<SoundPreparation> &old) {
                                       return old.get() == preparation;
                                   }),
                    m_retired.end());
}

bool PreviewSound::isPending() const
{
    return m_current && !m_current->isDone();
}

QString PreviewSound::track() const
{
    return m_current ? m_current->track() : QString();
}

QString PreviewSound::errorText() const
{
    return m_current ? m_current->errorText() : QString();
}

} // namespace velmora
