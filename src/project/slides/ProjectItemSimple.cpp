// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/ProjectItemSimple.h"

#include "project/slides/JsonValues.h"
#include "project/slides/TransitionType.h"

#include <QFileInfo>

namespace velmora
{

namespace
{

const QLatin1String kType("type");
const QLatin1String kFileName("file_name");
const QLatin1String kTransition("transition");

} // namespace

ProjectItemSimple::ProjectItemSimple(QObject *parent)
    : ProjectItemSimple(QString(), 1, static_cast<int>(TransitionType::Random), parent)
{
}

ProjectItemSimple::ProjectItemSimple(const QString &fileName, int timeSeconds, int transition,
                                     QObject *parent)
    : ProjectItem(timeSeconds, parent), m_fileName(fileName), m_transition(transition)
{
    m_caption.textColor = Qt::white;
    m_caption.backgroundColor = Qt::black;
    m_caption.position = 8;
}

QString ProjectItemSimple::title() const
{
    return QFileInfo(m_fileName).fileName();
}

void ProjectItemSimple::toJson(QJsonObject &object) const
{
    ProjectItem::toJson(object);
    object.insert(kType, typeName());
    object.insert(kFileName, m_fileName);
    object.insert(kTransition, m_transition);
}

void ProjectItemSimple::fromJson(const QJsonObject &object)
{
    ProjectItem::fromJson(object);
    m_fileName = object.value(kFileName).toString();
    m_transition = readInt(object, kTransition);
}

} // namespace velmora
