// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/StandardOutput.h"
#include "OutputPipe.h" // That of the system.

#include <QtTest>

#ifndef _WIN32
#include <fcntl.h>
#endif
#include <thread>

using namespace velmora;

class StandardOutputTest : public QObject
{
    Q_OBJECT
private slots:
    void writesAtOnce()
    {
        OutputPipe pipe;
        const bool written = StandardOutput::write("line\n", 0);
        const QByteArray read = pipe.read(100);
        pipe.restore();
        QVERIFY(written);
        QCOMPARE(read, QByteArray("line\n")); // Without a carriage return.
    }

    void writesMoreThanThePipeHolds()
    {
        const QByteArray data(1'000'000, 'x');
        OutputPipe pipe;
        QByteArray read;
        std::thread reader([&] {
            for (QByteArray piece = pipe.read(50'000); !piece.isEmpty(); piece = pipe.read(50'000))
                read += piece;
        });
        const bool written = StandardOutput::write(data, 60'000);
        pipe.restore(); // The write end is gone, and the reader ends.
        reader.join();
        QVERIFY(written);
        QVERIFY(read == data);
    }

    void survivesAReaderThatIsGone()
    {
        OutputPipe pipe;
        pipe.closeReader();
        const bool written = StandardOutput::write("line\n", 1000);
        pipe.restore();
        QVERIFY(!written);
    }

#ifndef _WIN32
    void givesUpOnAReaderThatDoesNotRead()
    {
        OutputPipe pipe;
        int lines = 0;
        while (lines < 100'000 && StandardOutput::write("line\n", 0))
            ++lines;
        const QByteArray read = pipe.read(1'000'000);
        pipe.restore();
        QVERIFY(lines > 100 && lines < 100'000);
        QCOMPARE(read.count('\n'), lines);
        QVERIFY(read.endsWith('\n'));
    }

    void closedStreamsAreReplaced()
    {
        const int before = ::dup(STDOUT_FILENO);
        ::close(STDOUT_FILENO);
        StandardOutput::ensureOpen();
        const bool written = StandardOutput::write("line\n", 1000);
        const int next = ::open("/dev/null", O_RDONLY);
        ::dup2(before, STDOUT_FILENO);
        ::close(before);
        ::close(next);
        QVERIFY(written);
        QVERIFY(next > STDERR_FILENO);
    }
#endif
};

QTEST_APPLESS_MAIN(StandardOutputTest)
#include "StandardOutputTest.moc"
