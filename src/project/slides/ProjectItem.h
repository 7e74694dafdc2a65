// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/CaptionStyle.h"

#include <QImage>
#include <QJsonObject>
#include <QObject>

namespace velmora
{

/// One slide of a slideshow: caption, display time and angle; see ProjectItemFirst (title slide)
/// and ProjectItemSimple (photo slide). Owned by its ProjectFile. GUI thread, or the one worker
/// thread that owns the project.
class ProjectItem : public QObject
{
    Q_OBJECT
public:
    explicit ProjectItem(int timeSeconds, QObject *parent = nullptr);

    const CaptionStyle &caption() const { return m_caption; }
    void setCaption(const CaptionStyle &caption) { m_caption = caption; }
    int time() const { return m_time; } ///< Display time in seconds.
    void setTime(int seconds) { m_time = seconds; }
    int angle() const { return m_angle; } ///< Clockwise rotation in degrees.
    void setAngle(int degrees) { m_angle = degrees; }
    const QImage &previewImage() const { return m_previewImage; }
    void setPreviewImage(const QImage &image) { m_previewImage = image; }

    /// Whether the slide is part of the video.
    virtual bool isShown() const { return true; }
    /// The label under which lists show the slide.
    virtual QString title() const = 0;

    virtual void toJson(QJsonObject &object) const;
    virtual void fromJson(const QJsonObject &object);

    /// Rebuilds a slide from its document form; null for an unknown "type". The caller owns it.
    static ProjectItem *fromJson(const QJsonObject &object, QObject *parent);

protected:
    CaptionStyle m_caption;

private:
    int m_time;
    int m_angle = 0;
    QImage m_previewImage;
};

} // namespace velmora
