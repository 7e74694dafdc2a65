// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/SoundPreparation.h"

#include "app/Paths.h"
#include "generator/encoding/EncoderLocator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace velmora
{

SoundPreparation::SoundPreparation(ProjectSound sound, qint64 length, QObject *parent)
    : QThread(parent), m_sound(std::move(sound)), m_length(length)
{
}

SoundPreparation::~SoundPreparation()
{
    cancel();
    wait();
    m_done.load(); // what the thread has written is to be destroyed here
}

void SoundPreparation::run()
{
    prepare();
    m_done = true;
}

void SoundPreparation::prepare()
{
    const EncoderLocation encoder = locateEncoder();
    m_cache = std::make_unique<RenderCache>(Paths::cacheFolder());
    m_errorText = encoder.program.isEmpty() ? encoder.error : m_cache->errorText();
    if (!m_errorText.isEmpty())
        return;
    m_context.encoder = encoder.program;
    m_context.cachePath = m_cache->path();
    VideoUtil util(m_context);
    const QString track = m_sound.prepare(util, m_cache->file(QStringLiteral("audio")), m_length);
    if (m_context.cancelled)
        return;
    if (QFileInfo(track).size() > 0)
        m_track = track;
    else
        m_errorText = util.errorText();
    removeIntermediates();
}

void SoundPreparation::removeIntermediates() const
{
    QDir(m_cache->file(QStringLiteral("audio"))).removeRecursively();
    const QDir folder(m_cache->file(QStringLiteral("video")));
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files)) {
        if (file.absoluteFilePath() != QFileInfo(m_track).absoluteFilePath())
            QFile::remove(file.absoluteFilePath());
    }
}

} // namespace velmora
