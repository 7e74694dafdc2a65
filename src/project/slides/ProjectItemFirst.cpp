// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/ProjectItemFirst.h"

#include "project/slides/JsonValues.h"

namespace velmora
{

namespace
{

const QLatin1String kType("type");
const QLatin1String kVisible("visible");
const QLatin1String kBackgroundIndex("bg_index");

} // namespace

ProjectItemFirst::ProjectItemFirst(int timeSeconds, QObject *parent)
    : ProjectItem(timeSeconds, parent)
{
    m_caption.text = tr("My slideshow");
    m_caption.textColor = Qt::white;
    m_caption.backgroundColor = QColor();
    m_caption.position = 4;
}

QString ProjectItemFirst::title() const
{
    return tr("Starter");
}

void ProjectItemFirst::toJson(QJsonObject &object) const
{
    ProjectItem::toJson(object);
    object.insert(kType, typeName());
    object.insert(kVisible, m_visible);
    object.insert(kBackgroundIndex, m_backgroundIndex);
}

void ProjectItemFirst::fromJson(const QJsonObject &object)
{
    ProjectItem::fromJson(object);
    m_visible = object.value(kVisible).toBool();
    m_backgroundIndex = readInt(object, kBackgroundIndex);
}

} // namespace velmora
