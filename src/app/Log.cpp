// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Log.h"

#include "app/Identity.h"
#include "app/Paths.h"
#include "platform/AppendToFile.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QReadWriteLock>
#include <QThread>

#include <cstdio>
#include <cstring>

namespace velmora
{

namespace
{

struct Target {
    QString folder;
    QString prefix = QStringLiteral("log");
    bool echo = false;
};

QReadWriteLock targetLock;

Target &target()
{
    static Target value;
    return value;
}

Target currentTarget()
{
    const QReadLocker locker(&targetLock);
    Target copy = target();
    if (copy.folder.isEmpty())
        copy.folder = Paths::logFolder();
    return copy;
}

QString fileOf(const Target &where)
{
    return QStringLiteral("%1/%2_%3.txt")
        .arg(where.folder, where.prefix,
             QDate::currentDate().toString(QStringLiteral("yyyy_MM_dd")));
}

QString levelWord(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("DEBUG");
    case QtInfoMsg:
        return QStringLiteral("INFO");
    case QtWarningMsg:
        return QStringLiteral("WARNING");
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("ERROR");
}

// The file's name without its folders: where the program was built is nobody's business.
QString contextText(const QMessageLogContext &context)
{
    QString text = QString::fromUtf8(context.category ? context.category : "default");
    if (context.file) {
        const char *slash = std::strrchr(context.file, '/');
        const char *backslash = std::strrchr(slash ? slash : context.file, '\\');
        const char *base = backslash ? backslash + 1 : slash ? slash + 1 : context.file;
        text += QStringLiteral("(%1:%2)").arg(QString::fromUtf8(base)).arg(context.line);
    }
    return text;
}

QString threadText()
{
    const auto id = reinterpret_cast<quintptr>(QThread::currentThreadId());
    return QStringLiteral("%1:%2").arg(QCoreApplication::applicationPid()).arg(id, 0, 16);
}

QStringList linesOf(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    while (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text.split(QLatin1Char('\n'));
}

void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const Target where = currentTarget();
    const QByteArray line = Log::formatLine(type, context, text).toUtf8();
    const QString fileName = fileOf(where);
    bool written = appendToFile(fileName, line);
    if (!written && QDir().mkpath(where.folder))
        written = appendToFile(fileName, line);
    const bool severe = type != QtDebugMsg && type != QtInfoMsg;
    if (severe && (!written || where.echo))
        std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr);
}

} // namespace

void Log::install(const QString &filePrefix, bool echo)
{
    {
        const QWriteLocker locker(&targetLock);
        target() = {Paths::logFolder(), filePrefix, echo};
    }
    qInstallMessageHandler(writeMessage);
}

void Log::uninstall()
{
    qInstallMessageHandler(nullptr);
}

QString Log::currentFile()
{
    return fileOf(currentTarget());
}

QString Log::formatLine(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QString level = levelWord(type);
    const QString source = contextText(context);
    const QString thread = threadText();
    const QString time = QTime::currentTime().toString(QStringLiteral("hh:mm:ss"));
    const QString version = programVersion();
    QString result;
    for (const QString &line : linesOf(maskSecrets(text))) {
        // One call of arg() for all: a "%1" within a message must not be taken for a placeholder.
        result += QStringLiteral("[%5][%4][%6][%1] %2: %3\n")
                      .arg(level, source, line, thread, time, version);
    }
    return result;
}

} // namespace velmora
