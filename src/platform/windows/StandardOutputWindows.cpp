// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/StandardOutput.h"

#include <windows.h>

namespace velmora
{

void StandardOutput::ensureOpen() {} // handles of files are no standard streams here

bool StandardOutput::write(const QByteArray &data, int)
{
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    const char *position = data.constData();
    DWORD left = static_cast<DWORD>(data.size());
    while (left > 0) {
        DWORD written = 0;
        if (!::WriteFile(output, position, left, &written, nullptr) || written == 0)
            return false;
        position += written;
        left -= written;
    }
    return true;
}

} // namespace velmora
