// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/DiscContent.h"

#include <QByteArray>
#include <QString>

struct Iso_Image;
namespace burn
{
struct burn_source;
}

namespace velmora
{

class BurnDrive;

/// The file system of one session: what the disc holds already and one more file. Functions log
/// their failures. Needs a BurnLibrary that outlives it.
class DiscImage
{
public:
    DiscImage() = default;
    ~DiscImage();
    Q_DISABLE_COPY(DiscImage)

    /// See DiscWriter::fittingTitle().
    static QString fittingTitle(const QString &title);

    /// Starts an empty file system, or one with the files of @p content on @p drive.
    bool begin(BurnDrive &drive, const DiscContent &content, const QString &volumeName);
    /// Puts @p video into the root folder.
    bool addFile(const QString &video, const QString &name);
    /// Starts to make the session's bytes, which source() delivers.
    bool finish(bool finalize);

    burn::burn_source *source() const { return m_source; }
    qint64 size() const; ///< Bytes of the session, after finish().
    /// The blocks that go to the start of an overwritable disc once the session is written, so that
    /// the disc shows the session; empty where that is not needed.
    QByteArray head() const { return m_head; }

private:
    bool import(BurnDrive &drive);
    QByteArray freeName(const QString &name) const;

    DiscContent m_content;
    Iso_Image *m_image = nullptr;
    burn::burn_source *m_source = nullptr;
    QByteArray m_head;
};

} // namespace velmora
