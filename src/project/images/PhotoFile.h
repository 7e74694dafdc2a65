// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QImageReader>
#include <QSize>
#include <QString>

namespace velmora
{

/// One photo file while it is being read: recognised by its content, whatever its suffix, and
/// refused before decoding when its header announces more than can be held. Of pictures that take
/// much memory the process decodes one at a time. Any one thread.
class PhotoFile
{
public:
    explicit PhotoFile(const QString &path);

    /// Reads the header; false with problem() and detail() set when it is not a usable picture.
    bool open();
    /// The picture upright in sRGB, as RGB32 or premultiplied ARGB32, no smaller than
    /// @p minimum px (or than the picture itself) and at most about twice as large; null with
    /// problem() set on failure. Once only, after open().
    QImage read(const QSize &minimum);
    /// Decodes to the end and tells whether the picture is whole. Once only, after open().
    bool verify();
    /// The same at the cost of a look at the file's structure, unless that raises a doubt: damage
    /// in the midst of the picture passes.
    bool verifyEnd();

    /// What read() takes at its peak, in bytes, as far as the header tells; with an empty size what
    /// verify() takes. After open().
    qint64 memoryNeeded(const QSize &minimum) const;
    /// The size in px as shown, after turning upright.
    QSize uprightSize() const;
    /// A reason for the user without the file's name, such as "is empty".
    const QString &problem() const { return m_problem; }
    /// The decoder's own words for the log.
    const QString &detail() const { return m_detail; }

private:
    bool fail(const QString &problem, const QString &detail = QString());
    bool failAsTooLarge();
    bool openFile();
    void readHeaders();
    QSize storedMinimum(const QSize &minimum) const;
    bool isJpeg() const { return m_format == "jpeg"; }
    QImage decode(const QSize &minimum);
    QByteArray contents();

    QString m_path;
    QFile m_file;
    QImageReader m_reader;
    QByteArray m_format;
    QSize m_storedSize;
    qint64 m_coefficientBytes = 0; ///< Of a JPEG file.
    int m_pixelBytes = 0;          ///< That a pixel takes until it can be painted; not of a JPEG.
    int m_orientation = 1;
    QString m_problem;
    QString m_detail;
};

} // namespace velmora
