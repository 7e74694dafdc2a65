// SPDX-License-Identifier: GPL-3.0-or-later
// Part of every fuzzer.
#include <QtGlobal>

extern "C" int LLVMFuzzerInitialize(int *, char ***);
extern "C" const char *__lsan_default_suppressions();

/// Drops all log lines: nearly every input provokes some.
extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

/// The JSON parser of Qt 5.15 loses an array or object whose key appears a second time. What this
/// program itself loses is still found, since its own frames allocate it.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libQt5Core";
}
