// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/ProjectItem.h"

namespace velmora
{

/// A photo slide: one image file, and the transition that leads into it from the slide before.
class ProjectItemSimple : public ProjectItem
{
    Q_OBJECT
public:
    /// A slide with time 1 and transition "Random", as the factory makes it before reading JSON.
    explicit ProjectItemSimple(QObject *parent = nullptr);
    ProjectItemSimple(const QString &fileName, int timeSeconds, int transition,
                      QObject *parent = nullptr);

    const QString &fileName() const { return m_fileName; } ///< Absolute path of the photo.
    void setFileName(const QString &fileName) { m_fileName = fileName; }
    int transition() const { return m_transition; } ///< A TransitionType value.
    void setTransition(int transition) { m_transition = transition; }
    const QImage &loadedImage() const { return m_loadedImage; }
    void setLoadedImage(const QImage &image) { m_loadedImage = image; }

    /// The value of the key "type" in the document.
    static QLatin1String typeName() { return QLatin1String("image"); }

    QString title() const override; ///< The file's name without its folder.
    void toJson(QJsonObject &object) const override;
    void fromJson(const QJsonObject &object) override;

private:
    QString m_fileName;
    int m_transition = 1;
    QImage m_loadedImage;
};

} // namespace velmora
