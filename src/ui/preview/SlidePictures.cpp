// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/SlidePictures.h"

#include "generator/transitions/Transition.h"
#include "project/frames/CaptionFont.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemSimple.h"

#include <QDateTime>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr size_t kRemembered = 4; // slides: two of a transition, the one shown and the next

const ProjectItemSimple *photoOf(const ProjectItem &item)
{
    return qobject_cast<const ProjectItemSimple *>(&item);
}

} // namespace

QImage SlidePictures::paint(const PreviewScript::Pointer &script, int slide, int frame)
{
    if (script != m_script) {
        for (Entry &entry : m_entries)
            entry.item = nullptr;
        m_script = script;
    }
    const PreviewScript::Recipe recipe = script->recipe(slide, frame);
    const QImage to = picture(*recipe.to, recipe.toCaptioned);
    if (recipe.effect == TransitionType::None || !recipe.from)
        return to;
    const QImage from = picture(*recipe.from, recipe.fromCaptioned);
    QImage painted(to.size(), QImage::Format_RGB32);
    renderTransitionFrame(recipe.effect, from, to, {recipe.frame, recipe.count}, painted);
    return painted;
}

QImage SlidePictures::picture(const ProjectItem &item, bool captioned)
{
    Entry &entry = entryOf(item);
    if (entry.bare.isNull())
        entry.bare = bareFrame(item);
    if (!captioned)
        return entry.bare;
    if (entry.captioned.isNull())
        entry.captioned = SlideRenderer::captionedFrame(entry.bare, item);
    return entry.captioned;
}

SlidePictures::Entry &SlidePictures::entryOf(const ProjectItem &item)
{
    auto found = std::find_if(m_entries.begin(), m_entries.end(),
                              [&item](const Entry &entry) { return entry.item == &item; });
    if (found == m_entries.end()) {
        const QByteArray key = keyOf(item);
        found = std::find_if(m_entries.begin(), m_entries.end(),
                             [&key](const Entry &entry) { return entry.key == key; });
        if (found == m_entries.end())
            found = m_entries.insert(m_entries.begin(), Entry{key, nullptr, {}, {}});
        found->item = &item;
    }
    m_entries.splice(m_entries.begin(), m_entries, found);
    if (m_entries.size() > kRemembered)
        m_entries.pop_back();
    return m_entries.front();
}

QByteArray SlidePictures::keyOf(const ProjectItem &item) const
{
    QJsonObject document;
    item.toJson(document);
    QByteArray key = QJsonDocument(document).toJson(QJsonDocument::Compact);
    const FrameFormat &format = m_script->format();
    for (const int number : {format.size.width(), format.size.height(), int(format.origRatio),
                             int(format.scaleToFit), m_script->videoSize().width()})
        key += ' ' + QByteArray::number(number);
    if (const ProjectItemSimple *photo = photoOf(item)) {
        const QDateTime saved = QFileInfo(photo->fileName()).lastModified();
        key += ' ' + QByteArray::number(saved.isValid() ? saved.toMSecsSinceEpoch() : 0);
    }
    return key;
}

QImage SlidePictures::bareFrame(const ProjectItem &item) const
{
    FrameFormat format = m_script->format();
    const ProjectItemSimple *photo = photoOf(item);
    // Photos at their own size are as large in the frame as the video is large.
    const bool ownSize = photo && format.origRatio && !format.scaleToFit;
    if (ownSize)
        format.size = m_script->videoSize();
    const QImage frame = SlideRenderer::bareFrame(item, format);
    const QSize &size = m_script->format().size;
    if (frame.isNull())
        return note(photo ? QFileInfo(photo->fileName()).fileName() : item.title());
    return frame.size() == size
               ? frame
               : frame.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                     .convertToFormat(QImage::Format_RGB32);
}

QImage SlidePictures::note(const QString &fileName) const
{
    const QSize &size = m_script->format().size;
    QImage frame(size, QImage::Format_RGB32);
    frame.fill(Qt::black);
    QPainter painter(&frame);
    painter.setFont(captionFont(QStringLiteral("Segoe UI"), std::max(size.width() / 28, 8)));
    painter.setPen(QColor(0xb4, 0xc0, 0xca));
    const int margin = size.width() / 20;
    painter.drawText(frame.rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWrapAnywhere,
                     tr("The photo '%1' cannot be read.").arg(fileName));
    return frame;
}

} // namespace velmora
