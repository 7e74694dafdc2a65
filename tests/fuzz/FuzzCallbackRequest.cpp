// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/CallbackRequest.h"

#include <cstdint>
#include <cstdlib>

using namespace velmora;

/// Any bytes as the first line of a request to the sign-in's port.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray line(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const auto request = CallbackRequest::parse(line);
    if (!request)
        return 0;
    if (!request->path.startsWith(QLatin1Char('/')) || request->method.isEmpty() ||
        request->values.size() > 64 || request->values.contains(QString()))
        std::abort();
    return 0;
}
