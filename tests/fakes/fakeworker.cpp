// SPDX-License-Identifier: GPL-3.0-or-later
// A render worker that follows a script in place of a project: its request file holds one step a
// line:
//   print TEXT            a line on standard output
//   flood BYTES           fill standard error
//   await paused|running|canceled   wait for the session value
//   touch FILE            make a file
//   helper FILE           start a child that hangs, and write its process id to the file
//   deaf                  ignore requests to end
//   hang, crash, exit CODE
#include "app/Paths.h"
#include "helpers/Crash.h"
#include "platform/ProcessTree.h"
#include "platform/SessionValues.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace velmora;

namespace
{

QString option(const QString &name)
{
    const QStringList arguments = QCoreApplication::arguments();
    return arguments.value(arguments.indexOf(name) + 1);
}

class FakeWorker
{
public:
    FakeWorker()
        : m_session(
              createSessionValues(option(QStringLiteral("--session_id")), Paths::dataFolder()))
    {
    }

    void step(const QString &command, const QString &value)
    {
        if (command == QLatin1String("print"))
            print(value);
        else if (command == QLatin1String("flood"))
            flood(value.toInt());
        else if (command == QLatin1String("await"))
            await(value);
        else if (command == QLatin1String("touch"))
            writeFile(value, "reached");
        else if (command == QLatin1String("helper"))
            startHelper(value);
        else if (command == QLatin1String("deaf"))
            std::signal(SIGTERM, SIG_IGN);
        else if (command == QLatin1String("hang"))
            QThread::sleep(3600);
        else if (command == QLatin1String("crash"))
            velmora::crash();
        else if (command == QLatin1String("exit"))
            std::exit(value.toInt());
    }

private:
    static void print(const QString &text)
    {
        std::puts(text.toUtf8().constData());
        std::fflush(stdout);
    }

    static void flood(int bytes)
    {
        const QByteArray line = QByteArray(99, 'x') + '\n';
        for (int written = 0; written < bytes; written += line.size())
            std::fputs(line.constData(), stderr);
    }

    void await(const QString &what) const
    {
        const auto reached = [&] {
            if (what == QLatin1String("canceled"))
                return m_session->isCanceled();
            return m_session->isPaused() == (what == QLatin1String("paused"));
        };
        while (!reached())
            QThread::msleep(10);
    }

    static void writeFile(const QString &path, const QByteArray &content)
    {
        QSaveFile file(path);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(content);
            file.commit();
        }
    }

    void startHelper(const QString &pidFile)
    {
        m_helper = ProcessTree::createProcess(ProcessTree::Group::Inherited);
        const QString tool = QStringLiteral("/faketool");
        m_helper->start(QCoreApplication::applicationDirPath() + tool,
                        {QStringLiteral("deaf"), QStringLiteral("hang")});
        m_helper->waitForStarted();
        writeFile(pidFile, QByteArray::number(m_helper->processId()));
    }

    std::unique_ptr<SessionValues> m_session;
    std::unique_ptr<QProcess> m_helper;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QFile script(option(QStringLiteral("--request")));
    if (!script.open(QIODevice::ReadOnly))
        return 2;
    FakeWorker worker;
    while (!script.atEnd()) {
        const QString line = QString::fromUtf8(script.readLine()).trimmed();
        const int space = line.indexOf(QLatin1Char(' '));
        worker.step(line.left(space), space < 0 ? QString() : line.mid(space + 1));
    }
    return 0;
}
