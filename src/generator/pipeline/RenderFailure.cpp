// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderFailure.h"

#include "generator/encoding/VideoUtil.h"
#include "platform/TerminationWatcher.h"
#include "project/slides/ProjectItemSimple.h"

#include <QCoreApplication>

namespace velmora
{

RenderError RenderFailure::ofTool(const VideoUtil &util, const QString &folder)
{
    if (util.failure() != VideoUtil::Failure::DiskFull)
        return {RenderErrorCode::kEncoder, util.errorText()};
    return {RenderErrorCode::kDiskFull,
            QCoreApplication::translate("velmora::RenderFailure",
                                        "The disk that holds the folder \"%1\" is full.")
                .arg(folder)};
}

bool RenderFailure::comesOfTermination(const RenderError &error)
{
    return error.code == RenderErrorCode::kEncoder && isTerminationRequested();
}

RenderError RenderFailure::ofPhoto(const ProjectItem &item, const QString &reason)
{
    const auto *photo = qobject_cast<const ProjectItemSimple *>(&item);
    return {RenderErrorCode::kInput, photoText(photo ? photo->fileName() : item.title(), reason)};
}

QString RenderFailure::photoText(const QString &path, const QString &reason)
{
    return QCoreApplication::translate("velmora::RenderFailure", "The photo \"%1\" %2.")
        .arg(path, reason);
}

QString RenderFailure::soundText(const QString &path, const QString &reason)
{
    return QCoreApplication::translate("velmora::RenderFailure",
                                       "The sound file \"%1\" cannot be used: %2")
        .arg(path, reason);
}

} // namespace velmora
