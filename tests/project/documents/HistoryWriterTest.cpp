// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/HistoryWriter.h"

#include <QSemaphore>
#include <QTest>

using namespace velmora;

class HistoryWriterTest : public QObject
{
    Q_OBJECT
private slots:
    /// However many states come while one is being written, the last alone follows it; all are
    /// answered, in their order and with what became of the one that was written.
    void leavesOutWhatIsOvertaken()
    {
        HistoryWriter writer;
        QSemaphore begun;
        QSemaphore goOn;
        QStringList written;
        QStringList answers;
        for (int state = 0; state < 5; ++state) {
            const auto write = [&, state] {
                begun.release();
                goOn.acquire();
                written.append(QString::number(state));
                return QStringLiteral("wrote %1").arg(state);
            };
            writer.add(write, this, [&, state](const QString &error) {
                answers.append(QStringLiteral("%1: %2").arg(state).arg(error));
            });
            if (state == 0)
                begun.acquire();
        }
        goOn.release(2);
        writer.finish();
        QCOMPARE(written, (QStringList{QStringLiteral("0"), QStringLiteral("4")}));
        QTRY_COMPARE(answers.size(), 5);
        QCOMPARE(answers.takeFirst(), QStringLiteral("0: wrote 0"));
        for (int i = 0; i < answers.size(); ++i)
            QCOMPARE(answers.at(i), QStringLiteral("%1: wrote 4").arg(i + 1));
    }
};

QTEST_GUILESS_MAIN(HistoryWriterTest)
#include "HistoryWriterTest.moc"
