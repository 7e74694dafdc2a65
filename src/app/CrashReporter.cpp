// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CrashReporter.h"

#include "app/AppLog.h"
#include "app/Paths.h"
#include "platform/CrashDump.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

namespace velmora
{

CrashReporter::CrashReporter(const QString &dataFolder)
{
    QElapsedTimer timer;
    timer.start();
    const QString dumpFile = dataFolder + QStringLiteral("/velmora.dmp");
    reportEarlierCrash(dumpFile);

    QString error = QStringLiteral("no data folder");
    if (Paths::ensureFolder(dataFolder) && CrashDump::install(dumpFile, &error))
        qCInfo(lcApp).noquote()
            << QStringLiteral("Crash installer setup time:%1").arg(timer.elapsed());
    else
        qCWarning(lcApp).noquote()
            << QStringLiteral("Could not start crash reporter. %1").arg(error);
}

CrashReporter::~CrashReporter()
{
    CrashDump::uninstall();
}

void CrashReporter::onException(const char *what)
{
    qCCritical(lcApp) << "Exception caught, trying to continue..." << what;
    if (CrashDump::write())
        qCCritical(lcApp) << "Mini dump is inside";
}

void CrashReporter::reportEarlierCrash(const QString &dumpFile)
{
    const QFileInfo info(dumpFile);
    if (!info.exists())
        return;
    qCWarning(lcApp).noquote() << QStringLiteral("Crash dump found: '%1' of %2")
                                      .arg(dumpFile, info.lastModified().toString(Qt::ISODate));
    for (const QString &line : CrashDump::describe(dumpFile))
        qCWarning(lcApp).noquote() << line;
    // Kept under another name, for a report by hand, and told only once.
    const QString reported = dumpFile + QStringLiteral(".reported");
    QFile::remove(reported);
    if (!QFile::rename(dumpFile, reported))
        qCWarning(lcApp).noquote() << QStringLiteral("Cannot rename '%1'").arg(dumpFile);
}

} // namespace velmora
