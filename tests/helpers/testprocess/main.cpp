// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "app/Log.h"
#include "helpers/Crash.h"
#include "platform/CrashDump.h"
#include "platform/ProcessTree.h"
#include "platform/SessionValues.h"
#include "platform/SingleInstance.h"

#include <QCoreApplication>
#include <QHash>
#include <QLoggingCategory>
#include <QProcess>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

// A program that does what its arguments say, one after the other, for tests that need a real
// process: it prints, ends, blocks, crashes, writes log lines or starts further processes.

namespace
{

using namespace velmora;

QStringList arguments;
std::vector<std::unique_ptr<QProcess>> children;
std::unique_ptr<SingleInstance> instance;

QString next()
{
    return arguments.isEmpty() ? QString() : arguments.takeFirst();
}

void say(const QString &text)
{
    const QByteArray line = text.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

// Starts this program with the words of the next argument and prints "child PID".
void startChild(std::unique_ptr<QProcess> process)
{
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(QCoreApplication::applicationFilePath(), next().split(QLatin1Char(' ')));
    process->waitForStarted();
    say(QStringLiteral("child %1").arg(process->processId()));
    children.push_back(std::move(process));
}

void writeLog()
{
    const int threads = next().toInt();
    const int count = next().toInt();
    Log::install(QStringLiteral("log"));
    std::vector<std::unique_ptr<QThread>> running;
    for (int t = 0; t < threads; ++t) {
        running.emplace_back(QThread::create([t, count] {
            for (int i = 0; i < count; ++i)
                qInfo("process %lld thread %d line %d %s", QCoreApplication::applicationPid(), t, i,
                      QByteArray(i % 200, '*').constData());
        }));
        running.back()->start();
    }
    for (const auto &thread : running)
        thread->wait();
    Log::uninstall();
}

void setSession()
{
    const QString id = next();
    const QString folder = next();
    const QString what = next();
    const std::unique_ptr<SessionValues> values = createSessionValues(id, folder);
    if (what == QLatin1String("pause"))
        values->setPaused(true);
    else if (what == QLatin1String("resume"))
        values->setPaused(false);
    else if (what == QLatin1String("cancel"))
        values->setCanceled(true);
    else
        values->clear();
}

// Holds the single instance and prints what it receives, for ever.
void holdInstance()
{
    instance = std::make_unique<SingleInstance>(next());
    QObject::connect(instance.get(), &SingleInstance::messageReceived, instance.get(),
                     [](const QString &text) { say(QStringLiteral("received ") + text); });
    say(instance->isRunning() ? QStringLiteral("second") : QStringLiteral("first"));
    QCoreApplication::exec();
}

void sendToInstance()
{
    SingleInstance second(next());
    const QString text = next();
    const int timeout = next().toInt();
    const bool delivered = second.isRunning() && second.sendMessage(text, timeout);
    say(delivered ? QStringLiteral("delivered") : QStringLiteral("not delivered"));
}

void installCrashDump()
{
    QString error;
    if (!CrashDump::install(next(), &error))
        say(error);
}

// Of a thread whose stack is soon full, and soon written to a dump.
void overflowSmallStack()
{
    constexpr uint kStack = 256 * 1024; // bytes
    const std::unique_ptr<QThread> thread(QThread::create([] { overflowStack(); }));
    thread->setStackSize(kStack);
    thread->start();
    thread->wait();
}

[[noreturn]] void block()
{
    for (;;)
        QThread::sleep(3600);
}

const QHash<QString, std::function<void()>> &actions()
{
    static const QHash<QString, std::function<void()>> table = {
        {QStringLiteral("--print"), [] { say(next()); }},
        {QStringLiteral("--error"), [] { std::fprintf(stderr, "%s\n", qUtf8Printable(next())); }},
        {QStringLiteral("--exit"), [] { std::exit(next().toInt()); }},
        {QStringLiteral("--block"), [] { block(); }},
        {QStringLiteral("--crash"), crash},
        {QStringLiteral("--overflow-stack"), overflowSmallStack},
        {QStringLiteral("--ignore-terminate"), [] { std::signal(SIGTERM, SIG_IGN); }},
        {QStringLiteral("--raise"), [] { std::raise(next().toInt()); }},
        {QStringLiteral("--run"), [] { startChild(std::make_unique<QProcess>()); }},
        {QStringLiteral("--run-own"),
         [] { startChild(ProcessTree::createProcess(ProcessTree::Group::Own)); }},
        {QStringLiteral("--run-inherited"),
         [] { startChild(ProcessTree::createProcess(ProcessTree::Group::Inherited)); }},
        {QStringLiteral("--log"), writeLog},
        {QStringLiteral("--session"), setSession},
        {QStringLiteral("--hold-instance"), holdInstance},
        {QStringLiteral("--send-instance"), sendToInstance},
        {QStringLiteral("--crash-dump"), installCrashDump},
        {QStringLiteral("--write-dump"),
         [] { say(CrashDump::write() ? QStringLiteral("written") : QStringLiteral("refused")); }},
    };
    return table;
}

} // namespace

int main(int argc, char **argv)
{
    velmora::applyIdentity();
    const QCoreApplication application(argc, argv);
    arguments = QCoreApplication::arguments().mid(1);
    while (!arguments.isEmpty()) {
        const QString verb = next();
        if (!actions().contains(verb)) {
            std::fprintf(stderr, "unknown action %s\n", qUtf8Printable(verb));
            return 64;
        }
        actions().value(verb)();
    }
    return 0;
}
