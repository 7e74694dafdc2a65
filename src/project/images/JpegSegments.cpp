// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/JpegSegments.h"

#include <QIODevice>
#include <QtEndian>

namespace velmora
{

bool JpegSegments::next()
{
    if (!m_device.seek(m_position))
        return false;
    for (;;) {
        uchar marker = 0xff;
        if (m_device.read(1) != QByteArray(1, '\xff'))
            return false;
        while (marker == 0xff) { // Any number of fill bytes may stand before a marker's code.
            if (m_device.read(reinterpret_cast<char *>(&marker), 1) != 1)
                return false;
        }
        if (marker == 0xd9) // The end of the image.
            return false;
        if (marker == 0x01 || (marker >= 0xd0 && marker <= 0xd8)) // Markers without content.
            continue;
        uchar sizeBytes[2];
        if (m_device.read(reinterpret_cast<char *>(sizeBytes), 2) != 2)
            return false;
        m_marker = marker;
        m_size = qFromBigEndian<quint16>(sizeBytes) - 2;
        m_position = m_device.pos() + m_size;
        return m_size >= 0;
    }
}

} // namespace velmora
