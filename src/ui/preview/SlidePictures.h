// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/preview/PreviewScript.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>

#include <list>

namespace velmora
{

/// Paints the frames of scripts and remembers the fitted pictures of the last few slides, also from
/// one script to the next, so that repeating and seeking do not decode again. One thread.
class SlidePictures
{
    Q_DECLARE_TR_FUNCTIONS(velmora::SlidePictures)
public:
    /// Shares its pixels with what is remembered where nothing moves. A slide whose photo cannot be
    /// read is shown as a note saying so.
    QImage paint(const PreviewScript::Pointer &script, int slide, int frame);

private:
    struct Entry {
        QByteArray key; ///< What the picture depends on.
        const ProjectItem *item = nullptr;
        QImage bare;
        QImage captioned;
    };
    QImage picture(const ProjectItem &item, bool captioned);
    Entry &entryOf(const ProjectItem &item);
    QByteArray keyOf(const ProjectItem &item) const;
    QImage bareFrame(const ProjectItem &item) const;
    QImage note(const QString &fileName) const;

    PreviewScript::Pointer m_script; ///< Keeps the entries' slides alive.
    std::list<Entry> m_entries;      ///< Last used first.
};

} // namespace velmora
