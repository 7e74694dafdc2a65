// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/TokenAnswer.h"

#include <cstdint>
#include <cstdlib>

using namespace velmora;

/// A content type, a line end, and any bytes as a token endpoint's answer: a token that comes out
/// can stand in a header line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const int end = input.indexOf('\n');
    const TokenAnswer answer = TokenAnswer::parse(input.mid(0, end), input.mid(end + 1));
    for (const QString &token : {answer.accessToken(), answer.refreshToken()}) {
        for (const QChar c : token) {
            if (c.unicode() <= 0x20 || c.unicode() >= 0x7f)
                std::abort();
        }
    }
    if (!answer.problem.isEmpty() &&
        (!answer.values.isEmpty() || answer.problem.contains(QLatin1Char('\n'))))
        std::abort();
    return 0;
}
