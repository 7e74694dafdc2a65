// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVector>

#include <mutex>

/// Collects the texts of all log lines from any thread, in order, while it lives; they are not
/// printed. One at a time.
class LogCapture
{
public:
    LogCapture()
    {
        s_current = this;
        m_previous = qInstallMessageHandler(&LogCapture::handle);
    }
    ~LogCapture()
    {
        qInstallMessageHandler(m_previous);
        s_current = nullptr;
    }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    /// The lines of at least @p level, or of all levels.
    QStringList lines(QtMsgType level = QtDebugMsg) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        QStringList texts;
        for (const auto &line : m_lines) {
            if (severity(line.first) >= severity(level)) {
                texts.append(line.second);
            }
        }
        return texts;
    }

private:
    static int severity(QtMsgType type)
    {
        // QtInfoMsg has the highest number of all.
        return type == QtInfoMsg ? 1 : 2 * static_cast<int>(type);
    }
    static void handle(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        const std::lock_guard<std::mutex> lock(s_current->m_mutex);
        s_current->m_lines.append({type, text});
    }

    inline static LogCapture *s_current = nullptr;
    mutable std::mutex m_mutex;
    QVector<QPair<QtMsgType, QString>> m_lines;
    QtMessageHandler m_previous = nullptr;
};
