// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/sound/ProjectSound.h"

#include <QObject>

#include <memory>
#include <vector>

namespace velmora
{

class SoundPreparation;

/// Keeps the sound track of the present project, the one that a render would make, and makes it
/// again only when something that is heard or the length has changed. GUI thread, which never waits
/// for it but in the destructor.
class PreviewSound : public QObject
{
    Q_OBJECT
public:
    explicit PreviewSound(QObject *parent = nullptr);
    /// Ends all work and removes all files.
    ~PreviewSound() override;

    /// Asks for the track of a slideshow of @p length ms. Where it is not there yet, changed() says
    /// when it is; an older one is gone with this call.
    void require(const ProjectSound &sound, qint64 length);
    /// Whether require() was last called with these, and has not failed: what failed is tried
    /// again.
    bool isFor(const ProjectSound &sound, qint64 length) const;
    bool isPending() const;
    /// The WAV file; empty when pending, failed, or without music.
    QString track() const;
    /// Why there is no track.
    QString errorText() const;

signals:
    /// The track that was required is there, or cannot be made.
    void changed();

private:
    void retire();
    void onFinished(SoundPreparation *preparation);

    ProjectSound m_sound;
    qint64 m_length = 0;
    std::unique_ptr<SoundPreparation> m_current;
    std::vector<std::unique_ptr<SoundPreparation>> m_retired; ///< Cancelled and not ended yet.
};

} // namespace velmora
