// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/WorkerProtocol.h"
#include "generator/worker/WorkerOutputReader.h"

#include <QtTest>

using namespace velmora;
using Kind = WorkerMessage::Kind;

namespace
{

WorkerMessage progressMessage(qint64 frame, qint64 count)
{
    WorkerMessage message;
    message.kind = Kind::Progress;
    message.frame = frame;
    message.count = count;
    return message;
}

WorkerMessage failedMessage(const QString &text)
{
    WorkerMessage message;
    message.kind = Kind::Failed;
    message.error = {QStringLiteral("ERR_INPUT"), text};
    return message;
}

} // namespace

class WorkerProtocolTest : public QObject
{
    Q_OBJECT
private slots:
    void everyKindComesBack()
    {
        const auto back = [](const WorkerMessage &message) {
            return WorkerProtocol::decode(WorkerProtocol::encode(message));
        };
        const WorkerMessage progress = back(progressMessage(7, 9007199254740992));
        QCOMPARE(progress.kind, Kind::Progress);
        QCOMPARE(progress.frame, qint64(7));
        QCOMPARE(progress.count, qint64(9007199254740992));

        WorkerMessage message;
        message.kind = Kind::Stage;
        message.stage = QStringLiteral("Merge slide video");
        QCOMPARE(back(message).stage, message.stage);
        message.kind = Kind::Finished;
        message.fileName = QStringLiteral("/it's a \"video\"\n%1 ü 漢.mp4");
        QCOMPARE(back(message).fileName, message.fileName);
        message.kind = Kind::Cancelled;
        QCOMPARE(back(message).kind, Kind::Cancelled);

        const WorkerMessage failed = back(failedMessage(QStringLiteral("a\nb")));
        QCOMPARE(failed.kind, Kind::Failed);
        QCOMPARE(failed.error.code, QStringLiteral("ERR_INPUT"));
        QCOMPARE(failed.error.text, QStringLiteral("a\nb"));
    }

    void aMessageIsOneCompactLine()
    {
        QCOMPARE(WorkerProtocol::encode(progressMessage(1, 2)),
                 QByteArray("{\"count\":2,\"event\":\"progress\",\"frame\":1}\n"));
        const QByteArray line = WorkerProtocol::encode(failedMessage(QStringLiteral("a\r\nb")));
        QCOMPARE(line.count('\n'), 1);
        QVERIFY(line.endsWith('\n'));
    }

    void longTextsStillFitALine()
    {
        // A null character takes six bytes.
        const QByteArray line =
            WorkerProtocol::encode(failedMessage(QString(100000, QChar(QChar::Null))));
        QVERIFY(line.size() <= WorkerProtocol::kMaximumLine);
        QCOMPARE(WorkerProtocol::decode(line).kind, Kind::Failed);
    }

    void hostileLinesAreInvalid_data()
    {
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const char *name, const QByteArray &line) {
            QTest::newRow(name) << line;
        };
        row("empty", "");
        row("no JSON", "frame= 32 fps=0.0");
        row("broken UTF-8", "{\"event\":\"stage\",\"stage\":\"\xff\xfe");
        row("array", "[\"progress\",1,2]");
        row("no event", "{\"frame\":1,\"count\":2}");
        row("unknown event", "{\"event\":\"exec\",\"frame\":1,\"count\":2}");
        row("event of a wrong type", "{\"event\":{\"progress\":1},\"frame\":1,\"count\":2}");
        row("negative", "{\"event\":\"progress\",\"frame\":-1,\"count\":2}");
        row("beyond the end", "{\"event\":\"progress\",\"frame\":3,\"count\":2}");
        row("huge", "{\"event\":\"progress\",\"frame\":1,\"count\":1e300}");
        row("fraction", "{\"event\":\"progress\",\"frame\":0.5,\"count\":2}");
        row("number as text", "{\"event\":\"progress\",\"frame\":\"1\",\"count\":2}");
        row("no count", "{\"event\":\"progress\",\"frame\":0}");
        row("stage without name", "{\"event\":\"stage\"}");
        row("finished without file", "{\"event\":\"finished\",\"file\":\"\"}");
        row("finished with a number", "{\"event\":\"finished\",\"file\":3}");
        row("failed without code", "{\"event\":\"failed\",\"text\":\"x\"}");
        row("deep", QByteArray(50000, '['));
        row("too long", "{\"event\":\"stage\",\"stage\":\"" +
                            QByteArray(WorkerProtocol::kMaximumLine, 'x') + "\"}");
        row("null bytes", QByteArray(10, '\0'));
    }
    void hostileLinesAreInvalid()
    {
        QFETCH(QByteArray, line);
        QCOMPARE(WorkerProtocol::decode(line).kind, Kind::Invalid);
    }

    void readerTakesPiecesOfAnySize_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {1, 2, 7, 64, 1000000})
            QTest::newRow(qPrintable(QString::number(size))) << size;
    }
    void readerTakesPiecesOfAnySize()
    {
        QFETCH(int, size);
        const QByteArray output = WorkerProtocol::encode(progressMessage(1, 10)) + "garbage\n\n" +
                                  QByteArray(100000, 'x') + '\n' +
                                  WorkerProtocol::encode(progressMessage(2, 10)) +
                                  QByteArray("{\"event\":\"cancelled\"}\r\n{\"event\":\"canc");
        WorkerOutputReader reader;
        QVector<WorkerMessage> messages;
        for (int i = 0; i < output.size(); i += size)
            messages += reader.feed(output.mid(i, size));
        QCOMPARE(messages.size(), 3);
        QCOMPARE(messages[0].frame, qint64(1));
        QCOMPARE(messages[1].frame, qint64(2));
        QCOMPARE(messages[2].kind, Kind::Cancelled);
    }
};

QTEST_APPLESS_MAIN(WorkerProtocolTest)
#include "WorkerProtocolTest.moc"
