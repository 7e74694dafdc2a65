// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/StandardOutput.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace velmora;

namespace
{

/// Puts a pipe in the place of standard output while it lives.
class OutputPipe
{
public:
    OutputPipe() : m_before(::dup(STDOUT_FILENO))
    {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) == 0) {
            m_readEnd = ends[0];
            ::dup2(ends[1], STDOUT_FILENO);
            ::close(ends[1]);
        }
    }
    ~OutputPipe()
    {
        restore();
        closeReader();
    }
    OutputPipe(const OutputPipe &) = delete;
    OutputPipe &operator=(const OutputPipe &) = delete;

    void restore()
    {
        if (m_before < 0)
            return;
        ::dup2(m_before, STDOUT_FILENO);
        ::close(m_before);
        m_before = -1;
    }
    void closeReader()
    {
        if (m_readEnd >= 0)
            ::close(m_readEnd);
        m_readEnd = -1;
    }
    QByteArray read(int size) const
    {
        std::vector<char> data(static_cast<size_t>(size));
        const ssize_t got = ::read(m_readEnd, data.data(), data.size());
        return {data.data(), static_cast<int>(std::max<ssize_t>(got, 0))};
    }

private:
    int m_before;
    int m_readEnd = -1;
};

} // namespace

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
        QCOMPARE(read, QByteArray("line\n"));
    }

    void writesMoreThanThePipeHolds()
    {
        const QByteArray data(1'000'000, 'x');
        OutputPipe pipe;
        QByteArray read;
        std::thread reader([&] {
            while (read.size() < data.size())
                read += pipe.read(50'000);
        });
        const bool written = StandardOutput::write(data, 60'000);
        if (!written)
            pipe.restore(); // the write end is gone, and the reader ends
        reader.join();
        pipe.restore();
        QVERIFY(written);
        QVERIFY(read == data);
    }

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

    void survivesAReaderThatIsGone()
    {
        OutputPipe pipe;
        pipe.closeReader();
        const bool written = StandardOutput::write("line\n", 1000);
        pipe.restore();
        QVERIFY(!written);
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
};

QTEST_APPLESS_MAIN(StandardOutputTest)
#include "StandardOutputTest.moc"
