// SPDX-License-Identifier: GPL-3.0-or-later
// tokenholder FOLDER plain|guarded: reads the stored token of the video service and crashes with a
// core file, if the system writes any. "plain" reads it as the program never does, to show what a
// core file would hold.
#include "app/AppSettings.h"
#include "platform/Secrets.h"
#include "sharing/upload/TokenStore.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>

#include <csignal>
#include <sys/resource.h>

using namespace velmora;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc < 3)
        return 2;
    // What the system dumps usually; the test that started this may have changed it.
    QFile filter(QStringLiteral("/proc/self/coredump_filter"));
    if (!filter.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || filter.write("0x33\n") < 0)
        return 4;
    filter.close();
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const auto settings = openSettings(folder + QStringLiteral("/settings.ini"));
    const auto secrets = createSecrets(folder, SecretKeyPlace::File);
    QString token;
    if (qstrcmp(argv[2], "plain") == 0) {
        const QByteArray stored = settings->value(QStringLiteral("yt")).toString().toLatin1();
        token = QString::fromUtf8(
            secrets->unprotect(QByteArray::fromHex(stored)).value_or(QByteArray()));
    } else {
        token = TokenStore(*settings, *secrets).load(QStringLiteral("yt"));
    }
    if (token.isEmpty())
        return 3;
    const rlimit unlimited = {RLIM_INFINITY, RLIM_INFINITY};
    setrlimit(RLIMIT_CORE, &unlimited);
    std::raise(SIGABRT);
    return 0;
}
