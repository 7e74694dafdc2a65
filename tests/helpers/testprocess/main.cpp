// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "app/Log.h"
#include "helpers/Crash.h"
#include "platform/CrashDump.h"
#include "platform/ProcessTree.h"
#include "platform/SessionValues.h"
#include "platform/SingleInstance.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QProcess>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <thread>
#include <vector>

// A program that does what its arguments say, one after the other, for tests that need a real
// process: it ends, blocks, crashes, writes log lines or starts further processes.

namespace
{

using namespace velmora;

QStringList arguments;
std::vector<std::unique_ptr<QProcess>> children;

QString next()
{
    return arguments.isEmpty() ? QString() : arguments.takeFirst();
}

void say(const QByteArray &text)
{
    std::puts(text.constData());
    std::fflush(stdout);
}

// Starts this program with the words of the next argument and prints "child PID".
void startChild(std::unique_ptr<QProcess> process)
{
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(QCoreApplication::applicationFilePath(), next().split(QLatin1Char(' ')));
    process->waitForStarted();
    say("child " + QByteArray::number(process->processId()));
    children.push_back(std::move(process));
}

void writeLog()
{
    const int threads = next().toInt();
    const int count = next().toInt();
    Log::install(QStringLiteral("log"));
    std::vector<std::thread> running;
    for (int t = 0; t < threads; ++t) {
        running.emplace_back([t, count] {
            for (int i = 0; i < count; ++i)
                qInfo("process %lld thread %d line %d %s", QCoreApplication::applicationPid(), t, i,
                      QByteArray(i % 200, '*').constData());
        });
    }
    for (std::thread &thread : running)
        thread.join();
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

// Holds the single instance for ever.
void holdInstance()
{
    const SingleInstance instance(next());
    say(instance.isRunning() ? "second" : "first");
    QCoreApplication::exec();
}

void sendToInstance()
{
    SingleInstance second(next());
    const QString text = next();
    const int timeout = next().toInt();
    const bool delivered = second.isRunning() && second.sendMessage(text, timeout);
    say(delivered ? "delivered" : "not delivered");
}

void installCrashDump()
{
    QString error;
    if (!CrashDump::install(next(), &error))
        say(error.toUtf8());
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

const std::map<QByteArray, std::function<void()>> kActions = {
    {"--exit", [] { std::exit(next().toInt()); }},
    {"--block", [] { QThread::sleep(86400); }},
    {"--crash", crash},
    {"--overflow-stack", overflowSmallStack},
    {"--ignore-terminate", [] { std::signal(SIGTERM, SIG_IGN); }},
    {"--raise", [] { std::raise(next().toInt()); }},
    {"--run", [] { startChild(std::make_unique<QProcess>()); }},
    {"--run-own", [] { startChild(ProcessTree::createProcess(ProcessTree::Group::Own)); }},
    {"--run-inherited",
     [] { startChild(ProcessTree::createProcess(ProcessTree::Group::Inherited)); }},
    {"--log", writeLog},
    {"--session", setSession},
    {"--hold-instance", holdInstance},
    {"--send-instance", sendToInstance},
    {"--crash-dump", installCrashDump},
    {"--write-dump", [] { say(CrashDump::write() ? "written" : "refused"); }},
};

} // namespace

int main(int argc, char **argv)
{
    velmora::applyIdentity();
    const QCoreApplication application(argc, argv);
    arguments = QCoreApplication::arguments().mid(1);
    while (!arguments.isEmpty()) {
        const auto action = kActions.find(next().toUtf8());
        if (action == kActions.end())
            return 64;
        action->second();
    }
    return 0;
}
