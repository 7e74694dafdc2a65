// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProcessTree.h"
#include "helpers/ProcessControl.h"
#include "helpers/TestProcess.h"

using namespace velmora;
using ProcessControl::isAlive;

// Of a process that "taskkill.exe" ended; elsewhere it has none.
constexpr int kForcedExit = 1;

class ProcessTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void endsWholeTree_data();
    void endsWholeTree();
    void killEndsWhatIgnoresTerminate();
    void leavesOthersAlone();
    void childrenDieWithTheirParent_data();
    void childrenDieWithTheirParent();
    void ignoresUnusablePids();

private:
    // Starts the helper with a grandchild and its child; fills in all three ids.
    std::unique_ptr<QProcess> startTree(QVector<qint64> *pids, const QString &prefix = QString())
    {
        auto process = ProcessTree::createProcess(ProcessTree::Group::Own);
        QStringList arguments = {QStringLiteral("--run"),
                                 prefix + QStringLiteral("--run --block --block"),
                                 QStringLiteral("--block")};
        if (!prefix.isEmpty())
            arguments.prepend(prefix.trimmed());
        process->start(testProcessPath(), arguments);
        if (!process->waitForStarted())
            return process;
        pids->append(process->processId());
        for (int i = 0; i < 2; ++i)
            pids->append(nextLine(*process).mid(6).toLongLong());
        return process;
    }

    static bool anyAlive(const QVector<qint64> &pids)
    {
        return std::any_of(pids.begin(), pids.end(), isAlive);
    }
    static bool allAlive(const QVector<qint64> &pids)
    {
        return pids.size() == 3 && std::all_of(pids.begin(), pids.end(), isAlive);
    }
};

void ProcessTreeTest::endsWholeTree_data()
{
    QTest::addColumn<bool>("hard");
    QTest::newRow("terminate") << false;
    QTest::newRow("kill") << true;
}

void ProcessTreeTest::endsWholeTree()
{
    QFETCH(bool, hard);
    QVector<qint64> pids;
    const auto process = startTree(&pids);
    QVERIFY(allAlive(pids));
    if (hard)
        ProcessTree::kill(process->processId());
    else
        ProcessTree::terminate(process->processId());
    QVERIFY(process->waitForFinished());
    QTRY_VERIFY(!anyAlive(pids));
}

void ProcessTreeTest::killEndsWhatIgnoresTerminate()
{
    QVector<qint64> pids;
    const auto process = startTree(&pids, QStringLiteral("--ignore-terminate "));
    QVERIFY(allAlive(pids));
    ProcessTree::terminate(process->processId());
    ProcessTree::kill(process->processId());
    QVERIFY(process->waitForFinished());
    QVERIFY(process->exitStatus() == QProcess::CrashExit || process->exitCode() == kForcedExit);
    QTRY_VERIFY(!anyAlive(pids));
}

void ProcessTreeTest::leavesOthersAlone()
{
    QVector<qint64> first;
    QVector<qint64> second;
    const auto one = startTree(&first);
    const auto two = startTree(&second);
    ProcessTree::kill(one->processId());
    QVERIFY(one->waitForFinished());
    QVERIFY(allAlive(second));
    ProcessTree::kill(two->processId());
    QVERIFY(two->waitForFinished());
}

void ProcessTreeTest::childrenDieWithTheirParent_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<bool>("crashed");
    QTest::newRow("own group, killed") << QStringLiteral("--run-own") << false;
    QTest::newRow("inherited group, killed") << QStringLiteral("--run-inherited") << false;
    QTest::newRow("crashed") << QStringLiteral("--run-own") << true;
}

void ProcessTreeTest::childrenDieWithTheirParent()
{
    QFETCH(QString, start);
    QFETCH(bool, crashed);
    QProcess parent;
    parent.start(testProcessPath(), {start, QStringLiteral("--block"), QStringLiteral("--block")});
    const qint64 child = nextLine(parent).mid(6).toLongLong();
    QVERIFY(isAlive(child));
    QVERIFY(crashed ? ProcessControl::crash(parent.processId())
                    : ProcessControl::kill(parent.processId()));
    QVERIFY(parent.waitForFinished());
    QTRY_VERIFY(!isAlive(child));
}

// kill(0) and kill(-1) would reach this process's own group and everybody.
void ProcessTreeTest::ignoresUnusablePids()
{
    for (const qint64 pid : {0, 1, -1, -1000}) {
        ProcessTree::terminate(pid);
        ProcessTree::kill(pid);
    }
}

QTEST_GUILESS_MAIN(ProcessTreeTest)
#include "ProcessTreeTest.moc"
