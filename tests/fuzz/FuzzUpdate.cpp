// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/ProgramVersion.h"
#include "services/UpdateChecker.h"

#include <cstdint>
#include <cstdlib>

using namespace velmora;

/// Any bytes as the update service's answer: what is accepted is a version, and a newer one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray answer(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QString own = QStringLiteral("3.4.6");
    const QString version = UpdateChecker::newerVersion(answer, own);
    if (version.isEmpty())
        return 0;
    const auto parsed = ProgramVersion::parse(version);
    if (!parsed || parsed->toString() != version || !(*ProgramVersion::parse(own) < *parsed))
        std::abort();
    return 0;
}
