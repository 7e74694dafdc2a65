// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemSimple.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QTemporaryDir>

namespace velmora
{

/// A small project of photos painted into a temporary folder.
struct PreviewProject {
    PreviewProject()
    {
        settings.transitionTime = 1;
        project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Omit);
        project->setResolution({1280, 720});
    }

    QString photo(int variant, const QSize &size = {320, 180}) const
    {
        const QString path = folder.filePath(QStringLiteral("photo%1.png").arg(variant));
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        QLinearGradient gradient(0, 0, size.width(), size.height());
        gradient.setColorAt(0, QColor::fromHsv(variant * 67 % 360, 120, 230));
        gradient.setColorAt(1, QColor::fromHsv((variant * 67 + 90) % 360, 140, 90));
        painter.fillRect(image.rect(), gradient);
        painter.end();
        return image.save(path) ? path : QString();
    }

    ProjectItemSimple *add(const QString &path, int transition = 27, const QString &caption = {})
    {
        auto *slide = new ProjectItemSimple(path, 2, transition);
        CaptionStyle style = slide->caption();
        style.text = caption;
        slide->setCaption(style);
        project->insertItem(-1, slide);
        return slide;
    }

    /// Slides whose photos are not there: for whoever looks at times only.
    void addSlides(int count, int transition = 27)
    {
        for (int i = 0; i < count; ++i)
            add(QStringLiteral("/photo%1.jpg").arg(i), transition);
    }

    QTemporaryDir folder;
    AppSettings settings;
    std::unique_ptr<ProjectFile> project;
};

} // namespace velmora
