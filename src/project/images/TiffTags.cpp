// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/TiffTags.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace velmora
{

namespace
{

constexpr int kEntrySize = 12;         // bytes: tag, type, count, and the value or its offset
constexpr quint32 kInPlace = 4;        // bytes that a value may have to stand in its entry
constexpr quint32 kLongestValue = 256; // bytes; those wanted have some 20
constexpr int kHeaderSize = 8;
constexpr quint16 kExifDirectory = 0x8769;
// The orientation; when the photo was taken and when digitised; the fractions of those seconds.
constexpr std::array<quint16, 5> kWanted = {0x0112, 0x9003, 0x9004, 0x9291, 0x9292};

class TagCopier
{
public:
    TagCopier(QIODevice &device, bool isBigEndian) : m_device(device), m_isBigEndian(isBigEndian) {}

    QByteArray run()
    {
        m_block = readAt(0, 4);
        const QByteArray first = readAt(4, 4);
        append(quint32(kHeaderSize));
        return first.size() == 4 && copyDirectory(number<quint32>(first, 0), true) ? m_block
                                                                                   : QByteArray();
    }

private:
    /// Appends what is wanted of the directory at @p offset of the file to the block.
    bool copyDirectory(quint32 offset, bool mayNest)
    {
        const QByteArray counted = readAt(offset, 2);
        if (counted.size() != 2)
            return false;
        const int count = number<quint16>(counted, 0);
        const QByteArray entries = readAt(qint64(offset) + 2, qint64(count) * kEntrySize);
        QByteArray wanted;
        quint32 exif = 0;
        for (int at = 0; at + kEntrySize <= entries.size(); at += kEntrySize) {
            const auto tag = number<quint16>(entries, at);
            if (tag == kExifDirectory && mayNest)
                exif = number<quint32>(entries, at + 8);
            const bool fits = std::find(kWanted.begin(), kWanted.end(), tag) != kWanted.end() &&
                              valueSize(entries, at) <= kLongestValue;
            if (fits || (tag == kExifDirectory && mayNest))
                wanted += entries.mid(at, kEntrySize);
        }
        const int start = m_block.size();
        append(quint16(wanted.size() / kEntrySize));
        m_block += wanted;
        append(quint32(0)); // no further directory
        for (int at = start + 2; at < start + 2 + wanted.size(); at += kEntrySize)
            copyValue(at, exif);
        return true;
    }

    /// Brings over what the entry at @p at of the block only points to.
    void copyValue(int at, quint32 exif)
    {
        const quint32 size = valueSize(m_block, at);
        const auto offset = number<quint32>(m_block, at + 8);
        const auto here = quint32(m_block.size());
        if (number<quint16>(m_block, at) == kExifDirectory) {
            put(at + 8, here);
            if (!copyDirectory(exif, false))
                append(quint16(0));
        } else if (size > kInPlace) {
            put(at + 8, here);
            m_block += readAt(offset, size).leftJustified(int(size), '\0');
        }
    }

    /// Bytes of an entry's value, more than any that is wanted for a type that none of those has.
    quint32 valueSize(const QByteArray &bytes, int at) const
    {
        const auto type = number<quint16>(bytes, at + 2);
        const auto count = number<quint32>(bytes, at + 4);
        const quint32 width = type == 3 ? 2 : type == 4 ? 4 : type == 2 ? 1 : kLongestValue + 1;
        return std::min(count, kLongestValue + 1) * width;
    }

    QByteArray readAt(qint64 offset, qint64 size) const
    {
        return m_device.seek(offset) ? m_device.read(size) : QByteArray();
    }

    template <typename Number> Number number(const QByteArray &bytes, int at) const
    {
        const char *from = bytes.constData() + at;
        return m_isBigEndian ? qFromBigEndian<Number>(from) : qFromLittleEndian<Number>(from);
    }

    template <typename Number> void append(Number value)
    {
        m_block.append(int(sizeof(value)), '\0');
        put(m_block.size() - int(sizeof(value)), value);
    }

    template <typename Number> void put(int at, Number value)
    {
        char *to = m_block.data() + at;
        m_isBigEndian ? qToBigEndian(value, to) : qToLittleEndian(value, to);
    }

    QIODevice &m_device;
    const bool m_isBigEndian;
    QByteArray m_block;
};

} // namespace

QByteArray tiffTags(QIODevice &device)
{
    const QByteArray mark = device.seek(0) ? device.read(4) : QByteArray();
    const bool isBigEndian = mark == QByteArray("MM\0*", 4);
    if (!isBigEndian && mark != QByteArray("II*\0", 4))
        return {};
    return TagCopier(device, isBigEndian).run();
}

} // namespace velmora
