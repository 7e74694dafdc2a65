// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ExifReader.h"

#include <cstdint>
#include <cstdlib>

using namespace velmora;

/// Any bytes as a photo's file: whatever they say, the answer is one that callers can use.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto file =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const ExifInfo info = ExifReader::read(file);
    if (info.orientation < 1 || info.orientation > 8) {
        std::abort();
    }
    if (!info.taken.isNull() && !info.taken.isValid()) {
        std::abort();
    }
    return 0;
}
