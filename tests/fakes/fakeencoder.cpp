// SPDX-License-Identifier: GPL-3.0-or-later
// FFmpeg, except that one of its runs does something else. The file that VELMORA_FAKE_ENCODER names
// has four lines: FFmpeg's path, a file that counts the runs, the number of the run, and the words
// for faketool that are done in its place, OUTPUT in them meaning the file that FFmpeg would write.
// Questions for the version do not count.
#include "helpers/Crash.h"
#include "platform/ProcessTree.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

using namespace velmora;

namespace
{

int run(const QString &program, const QStringList &arguments)
{
    const auto process = ProcessTree::createProcess(ProcessTree::Group::Inherited);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    process->start(program, arguments);
    process->waitForFinished(-1);
    if (process->exitStatus() == QProcess::CrashExit)
        crash();
    return process->exitCode();
}

qint64 countRun(const QString &file)
{
    QFile counter(file);
    return counter.open(QIODevice::Append) && counter.write("x") == 1 && counter.flush()
               ? counter.size()
               : -1;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    QFile orders(qEnvironmentVariable("VELMORA_FAKE_ENCODER"));
    if (!orders.open(QIODevice::ReadOnly))
        return 64;
    const QStringList lines = QString::fromUtf8(orders.readAll()).split(QLatin1Char('\n'));
    const bool asksVersion = arguments.value(0) == QLatin1String("-version");
    if (asksVersion || countRun(lines.value(1)) != lines.value(2).toInt())
        return run(lines.value(0), arguments);
    QStringList words = lines.value(3).split(QLatin1Char('|'));
    words.replaceInStrings(QStringLiteral("OUTPUT"), arguments.constLast());
    return run(QCoreApplication::applicationDirPath() + QStringLiteral("/faketool"), words);
}
