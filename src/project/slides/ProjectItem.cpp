// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/ProjectItem.h"

#include "project/slides/JsonValues.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

namespace velmora
{

namespace
{

const QLatin1String kType("type");
const QLatin1String kText("text");
const QLatin1String kTime("time");
const QLatin1String kAngle("angle");

/// All slides share the pixels of one placeholder: a history holds hundreds of thousands of them.
QImage placeholderImage()
{
    static const QImage placeholder = [] {
        constexpr int kSide = 62; // px, as the thumbnails that take its place
        QImage image(kSide, kSide, QImage::Format_RGB32);
        image.fill(QColor(0xc3, 0xc3, 0xc3));
        return image;
    }();
    return placeholder;
}

} // namespace

ProjectItem::ProjectItem(int timeSeconds, QObject *parent)
    : QObject(parent), m_time(timeSeconds), m_previewImage(placeholderImage())
{
}

void ProjectItem::toJson(QJsonObject &object) const
{
    object.insert(kText, m_caption.toJson());
    object.insert(kTime, m_time);
    object.insert(kAngle, m_angle);
}

void ProjectItem::fromJson(const QJsonObject &object)
{
    m_caption.fromJson(object.value(kText).toObject());
    m_time = readInt(object, kTime);
    m_angle = readInt(object, kAngle);
}

ProjectItem *ProjectItem::fromJson(const QJsonObject &object, QObject *parent)
{
    const QString type = object.value(kType).toString();
    ProjectItem *item = nullptr;
    if (type == ProjectItemFirst::typeName()) {
        item = new ProjectItemFirst(1, parent);
    } else if (type == ProjectItemSimple::typeName()) {
        item = new ProjectItemSimple(parent);
    } else {
        return nullptr;
    }
    item->fromJson(object);
    return item;
}

} // namespace velmora
