// SPDX-License-Identifier: GPL-3.0-or-later
// A render worker that follows a script in place of a project: its request file holds one step a
// line, a word of ToolActs.h or
//   print TEXT            a line on standard output
//   await paused|running|canceled   wait for the session value
//   helper FILE           start a child that hangs, and write its process id to the file
#include "app/Paths.h"
#include "fakes/ToolActs.h"
#include "platform/ProcessTree.h"
#include "platform/SessionValues.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QThread>

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
    void step(const QString &word, const QString &value)
    {
        if (word == QLatin1String("print"))
            act("out", value.toStdString());
        else if (word == QLatin1String("await"))
            await(value);
        else if (word == QLatin1String("helper"))
            startHelper(value);
        else if (!act(word.toStdString()))
            act(word.toStdString(), value.toStdString());
    }

private:
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

    void startHelper(const QString &pidFile)
    {
        m_helper = ProcessTree::createProcess(ProcessTree::Group::Inherited);
        const QString tool = QStringLiteral("/faketool");
        m_helper->start(QCoreApplication::applicationDirPath() + tool,
                        {QStringLiteral("deaf"), QStringLiteral("hang")});
        m_helper->waitForStarted();
        QSaveFile file(pidFile);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(QByteArray::number(m_helper->processId()));
            file.commit();
        }
    }

    std::unique_ptr<SessionValues> m_session =
        createSessionValues(option(QStringLiteral("--session_id")), Paths::dataFolder());
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
