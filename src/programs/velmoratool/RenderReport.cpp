// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/RenderReport.h"

#include "generator/worker/ProtocolPrinter.h"
#include "generator/worker/RemainingTime.h"
#include "platform/StandardOutput.h"
#include "platform/Terminal.h"
#include "programs/velmoratool/ProgressText.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

namespace velmora
{

namespace
{

constexpr int kWait = 5000; // ms that a line may wait for a slow reader

QString cancelledText()
{
    return QCoreApplication::translate("velmora::RenderReport", "Cancelled. No video was written.");
}

void print(const QString &text)
{
    StandardOutput::write(text.toLocal8Bit(), kWait);
}

class TextReport : public RenderReport
{
public:
    TextReport() { m_clock.start(); }

    void progress(qint64 frame, qint64 count) override
    {
        const qint64 now = m_clock.elapsed();
        m_remaining.update(now, frame, count);
        const int columns = Terminal::columns();
        if (columns > 0) {
            m_barShown = true;
            print(QLatin1Char('\r') +
                  ProgressText::bar({frame, count, now, m_remaining.remaining(now)}, columns - 1));
        } else if (ProgressText::tenth(frame, count) > m_tenth) {
            m_tenth = ProgressText::tenth(frame, count);
            print(ProgressText::line({frame, count, now, m_remaining.remaining(now)}) +
                  QLatin1Char('\n'));
        }
    }

    void stage(const QString &) override {}

    void finished(const QString &fileName) override
    {
        endBar();
        print(QCoreApplication::translate("velmora::RenderReport", "The video is ready: %1")
                  .arg(fileName) +
              QLatin1Char('\n'));
    }

    void documentWritten(const QString &fileName) override
    {
        print(QCoreApplication::translate("velmora::RenderReport", "The project is ready: %1")
                  .arg(fileName) +
              QLatin1Char('\n'));
    }

    void failed(const RenderError &error) override
    {
        endBar();
        printError(error.text);
    }

    void cancelled() override
    {
        endBar();
        printError(cancelledText());
    }

private:
    void endBar()
    {
        if (m_barShown)
            print(QStringLiteral("\n"));
        m_barShown = false;
    }

    QElapsedTimer m_clock;
    RemainingTime m_remaining;
    int m_tenth = 0;
    bool m_barShown = false;
};

class ProtocolReport : public RenderReport
{
public:
    void progress(qint64 frame, qint64 count) override { ProtocolPrinter::progress(frame, count); }
    void stage(const QString &stage) override { ProtocolPrinter::stage(stage); }
    void finished(const QString &fileName) override { ProtocolPrinter::finished(fileName); }
    void documentWritten(const QString &fileName) override { finished(fileName); }

    void failed(const RenderError &error) override
    {
        ProtocolPrinter::failed(error);
        printError(error.text);
    }

    void cancelled() override
    {
        ProtocolPrinter::cancelled();
        printError(cancelledText());
    }
};

} // namespace

std::unique_ptr<RenderReport> createTextReport()
{
    return std::make_unique<TextReport>();
}

std::unique_ptr<RenderReport> createProtocolReport()
{
    return std::make_unique<ProtocolReport>();
}

void printError(const QString &text)
{
    QTextStream(stderr) << text << '\n';
}

} // namespace velmora
