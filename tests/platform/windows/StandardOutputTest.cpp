// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/StandardOutput.h"

#include <QtTest>

#include <algorithm>
#include <thread>
#include <vector>

#include <windows.h>

using namespace velmora;

namespace
{

/// Puts a pipe in the place of standard output while it lives.
class OutputPipe
{
public:
    OutputPipe() : m_before(GetStdHandle(STD_OUTPUT_HANDLE))
    {
        CreatePipe(&m_readEnd, &m_writeEnd, nullptr, 0);
        SetStdHandle(STD_OUTPUT_HANDLE, m_writeEnd);
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
        if (!m_writeEnd)
            return;
        SetStdHandle(STD_OUTPUT_HANDLE, m_before);
        CloseHandle(m_writeEnd);
        m_writeEnd = nullptr;
    }
    void closeReader()
    {
        if (m_readEnd)
            CloseHandle(m_readEnd);
        m_readEnd = nullptr;
    }
    QByteArray read(int size) const
    {
        std::vector<char> data(static_cast<size_t>(size));
        DWORD got = 0;
        ReadFile(m_readEnd, data.data(), static_cast<DWORD>(size), &got, nullptr);
        return {data.data(), static_cast<int>(got)};
    }

private:
    HANDLE m_before;
    HANDLE m_readEnd = nullptr;
    HANDLE m_writeEnd = nullptr;
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
        QCOMPARE(read, QByteArray("line\n")); // without a carriage return
    }

    void writesMoreThanThePipeHolds()
    {
        const QByteArray data(1000000, 'x');
        OutputPipe pipe;
        QByteArray read;
        std::thread reader([&] {
            for (QByteArray piece = pipe.read(50000); !piece.isEmpty(); piece = pipe.read(50000))
                read += piece;
        });
        const bool written = StandardOutput::write(data, 60000);
        pipe.restore(); // the write end is gone, and the reader ends
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
};

QTEST_APPLESS_MAIN(StandardOutputTest)
#include "StandardOutputTest.moc"
