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
    void endsWholeTree_data()
    {
        QTest::addColumn<bool>("terminates");
        QTest::addColumn<bool>("kills");
        QTest::addColumn<QString>("prefix");
        QTest::newRow("terminate") << true << false << "";
        QTest::newRow("kill") << false << true << "";
        QTest::newRow("kill what ignores terminate") << true << true << "--ignore-terminate ";
    }

    void endsWholeTree()
    {
        QFETCH(bool, terminates);
        QFETCH(bool, kills);
        QFETCH(QString, prefix);
        QVector<qint64> pids;
        const auto process = startTree(&pids, prefix);
        QVERIFY(allAlive(pids));
        if (terminates)
            ProcessTree::terminate(process->processId());
        if (kills)
            ProcessTree::kill(process->processId());
        QVERIFY(process->waitForFinished());
        QVERIFY(!kills || process->exitStatus() == QProcess::CrashExit ||
                process->exitCode() == kForcedExit);
        QTRY_VERIFY(std::none_of(pids.begin(), pids.end(), isAlive));
    }

    void leavesOthersAlone()
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

    void childrenDieWithTheirParent_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<bool>("crashed");
        QTest::newRow("own group, killed") << "--run-own" << false;
        QTest::newRow("inherited group, killed") << "--run-inherited" << false;
        QTest::newRow("crashed") << "--run-own" << true;
    }

    void childrenDieWithTheirParent()
    {
        QFETCH(QString, start);
        QFETCH(bool, crashed);
        QProcess parent;
        parent.start(testProcessPath(),
                     {start, QStringLiteral("--block"), QStringLiteral("--block")});
        const qint64 child = nextLine(parent).mid(6).toLongLong();
        QVERIFY(isAlive(child));
        QVERIFY(crashed ? ProcessControl::crash(parent.processId())
                        : ProcessControl::kill(parent.processId()));
        QVERIFY(parent.waitForFinished());
        QTRY_VERIFY(!isAlive(child));
    }

    // kill(0) and kill(-1) would reach this process's own group and everybody.
    void ignoresUnusablePids()
    {
        for (const qint64 pid : {0, 1, -1, -1000}) {
            ProcessTree::terminate(pid);
            ProcessTree::kill(pid);
        }
    }

private:
    // Starts the helper with a grandchild and its child; fills in all three ids.
    static std::unique_ptr<QProcess> startTree(QVector<qint64> *pids, const QString &prefix = {})
    {
        auto process = ProcessTree::createProcess(ProcessTree::Group::Own);
        const QStringList run = QString(prefix + QStringLiteral("--run")).split(QLatin1Char(' '));
        process->start(testProcessPath(),
                       run + QStringList{prefix + QStringLiteral("--run --block --block"),
                                         QStringLiteral("--block")});
        if (!process->waitForStarted())
            return process;
        pids->append(process->processId());
        for (int i = 0; i < 2; ++i)
            pids->append(nextLine(*process).mid(6).toLongLong());
        return process;
    }

    static bool allAlive(const QVector<qint64> &pids)
    {
        return pids.size() == 3 && std::all_of(pids.begin(), pids.end(), isAlive);
    }
};

QTEST_GUILESS_MAIN(ProcessTreeTest)
#include "ProcessTreeTest.moc"
