// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velmora
{

/// The arguments of the file-sharing service's upload requests, which travel in a header, and its
/// answers. Any thread.
namespace DropboxMessages
{

/// How an uploaded file is stored at @p path.
QByteArray commit(const QString &path);
QByteArray start();
QByteArray append(const QString &sessionId, qint64 offset);
QByteArray finish(const QString &sessionId, qint64 offset, const QString &path);

struct Answer {
    QString sessionId; ///< Empty unless it can be sent back in a header.
    QString message;   ///< Of an error; plain, may be empty.
    qint64 correctOffset =
        -1; ///< How much of the session's data has arrived, if the error says it.
};
Answer parse(const QByteArray &body);

} // namespace DropboxMessages

} // namespace velmora
