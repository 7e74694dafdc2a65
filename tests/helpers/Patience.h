// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Every test program includes this before all else, so that QTRY_VERIFY and its kind wait longer
// than the five seconds of Qt: programs of a busy machine may need more just to start. Only a
// failure waits so long.
#include <QtTest/qtestcase.h>

namespace velmora
{

/// How long tests wait for what must happen, in ms. Qt waits three times as long before it calls
/// that a failure, and ctest ends a program after five minutes.
constexpr int kPatience = 60'000;

} // namespace velmora

#undef QTRY_VERIFY
#define QTRY_VERIFY(expr) QTRY_VERIFY_WITH_TIMEOUT((expr), velmora::kPatience)
#undef QTRY_VERIFY2
#define QTRY_VERIFY2(expr, message) QTRY_VERIFY2_WITH_TIMEOUT((expr), (message), velmora::kPatience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(expr, expected) QTRY_COMPARE_WITH_TIMEOUT((expr), expected, velmora::kPatience)
