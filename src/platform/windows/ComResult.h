// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <objbase.h>

namespace velmora
{

/// A result as the log shows it: the digits of its hexadecimal code.
QString comResult(HRESULT result);

/// Whether a step went well; logs "'%1' failed, result: '%2'" if it did not.
bool stepSucceeded(HRESULT result, const char *step);

/// The same for a step with a text of its own, in which %1 stands for the result.
bool succeeded(HRESULT result, const char *failureText);

} // namespace velmora
