// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/StackDumpFile.h"

#include <QFile>
#include <QHash>
#include <QVector>

#include <cstring>

namespace velmora
{

namespace
{

constexpr qint64 kMaximumFile = 4 * 1024 * 1024; // bytes
constexpr int kMaximumFrames = 128;

struct Mapping {
    quintptr start = 0;
    quintptr end = 0;
    QString module;
};

QVector<quintptr> takeFrames(const QByteArray &bytes, int *textStart)
{
    QVector<quintptr> frames;
    int position = 0;
    const int step = static_cast<int>(sizeof(quintptr));
    while (position + step <= bytes.size() && frames.size() <= kMaximumFrames) {
        quintptr address = 0;
        std::memcpy(&address, bytes.constData() + position, sizeof(address));
        position += step;
        if (address == 0)
            break;
        frames.append(address);
    }
    *textStart = position;
    return frames;
}

// "start-end perms offset dev inode   path"
QVector<Mapping> readMaps(const QList<QByteArray> &lines)
{
    QVector<Mapping> maps;
    for (const QByteArray &line : lines) {
        const int dash = line.indexOf('-');
        const int blank = line.indexOf(' ');
        const int path = line.indexOf('/');
        if (dash <= 0 || blank < dash || path < blank)
            continue;
        bool startOk = false;
        bool endOk = false;
        Mapping mapping;
        mapping.start = static_cast<quintptr>(line.left(dash).toULongLong(&startOk, 16));
        mapping.end =
            static_cast<quintptr>(line.mid(dash + 1, blank - dash - 1).toULongLong(&endOk, 16));
        mapping.module = QFile::decodeName(line.mid(path));
        if (startOk && endOk)
            maps.append(mapping);
    }
    return maps;
}

QString placeOf(quintptr address, const QVector<Mapping> &maps)
{
    QHash<QString, quintptr> bases; // The first mapping of a module is the lowest one.
    for (const Mapping &mapping : maps) {
        if (!bases.contains(mapping.module))
            bases.insert(mapping.module, mapping.start);
        if (address >= mapping.start && address < mapping.end)
            return QStringLiteral("%1+0x%2")
                .arg(mapping.module)
                .arg(address - bases.value(mapping.module), 0, 16);
    }
    return QStringLiteral("0x%1").arg(address, 0, 16);
}

} // namespace

QStringList StackDumpFile::describe(const QString &file)
{
    QFile dump(file);
    if (!dump.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = dump.read(kMaximumFile);
    int textStart = 0;
    const QVector<quintptr> frames = takeFrames(bytes, &textStart);
    const QList<QByteArray> lines = bytes.mid(textStart).split('\n');
    if (frames.isEmpty() || !lines.first().startsWith(kSignalTag))
        return {};

    const int tagLength = static_cast<int>(std::strlen(kSignalTag));
    QStringList result = {QStringLiteral("Signal %1").arg(lines.first().mid(tagLength).toInt())};
    const QVector<Mapping> maps = readMaps(lines);
    for (int i = 0; i < frames.size(); ++i)
        result.append(QStringLiteral("#%1 %2").arg(i).arg(placeOf(frames.at(i), maps)));
    return result;
}

} // namespace velmora
