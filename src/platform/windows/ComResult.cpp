// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/ComResult.h"

#include "platform/PlatformLog.h"

namespace velmora
{

QString comResult(HRESULT result)
{
    return QString::number(static_cast<quint32>(result), 16);
}

bool stepSucceeded(HRESULT result, const char *step)
{
    if (FAILED(result))
        qCWarning(lcPlatform).noquote() << QStringLiteral("'%1' failed, result: '%2'")
                                               .arg(QLatin1String(step), comResult(result));
    return SUCCEEDED(result);
}

bool succeeded(HRESULT result, const char *failureText)
{
    if (FAILED(result))
        qCWarning(lcPlatform).noquote() << QString::fromLatin1(failureText).arg(comResult(result));
    return SUCCEEDED(result);
}

} // namespace velmora
