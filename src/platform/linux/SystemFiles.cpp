// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SystemFiles.h"

#include "platform/PlatformLog.h"
#include "platform/SystemInfo.h"

#include <QDir>
#include <QFile>

namespace velmora
{

namespace
{

constexpr qint64 kMaximumFile = 256 * 1024; // bytes

// Files of /proc and /sys have no size; they are read until nothing comes any more.
QStringList linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(kMaximumFile)).split(QLatin1Char('\n'));
}

// The value of the first line "key<separator>value".
QString valueOf(const QStringList &lines, const QString &key, QChar separator)
{
    for (const QString &line : lines) {
        const int position = line.indexOf(separator);
        if (position > 0 && line.left(position).trimmed() == key)
            return line.mid(position + 1).trimmed();
    }
    return {};
}

int memoryMb(const QString &root)
{
    const QString total = valueOf(linesOf(root + QStringLiteral("/proc/meminfo")),
                                  QStringLiteral("MemTotal"), QLatin1Char(':'));
    const qint64 kilobytes = total.section(QLatin1Char(' '), 0, 0).toLongLong();
    if (kilobytes <= 0)
        qCWarning(lcPlatform) << "Failed to get installed RAM, error:" << total;
    return static_cast<int>(qBound<qint64>(0, kilobytes / 1024, 1 << 30));
}

// Driver and PCI number of the first graphics card, for example "i915 8086:3E92".
QString videoAdapter(const QString &root)
{
    const QDir cards(root + QStringLiteral("/sys/class/drm"));
    const QStringList names = cards.entryList({QStringLiteral("card?")}, QDir::Dirs, QDir::Name);
    for (const QString &name : names) {
        const QStringList lines = linesOf(cards.filePath(name + QStringLiteral("/device/uevent")));
        const QString driver = valueOf(lines, QStringLiteral("DRIVER"), QLatin1Char('='));
        const QString number = valueOf(lines, QStringLiteral("PCI_ID"), QLatin1Char('='));
        if (!driver.isEmpty() || !number.isEmpty())
            return (driver + QLatin1Char(' ') + number).trimmed();
    }
    qCWarning(lcPlatform) << "Failed to get display device, error:"
                          << "no graphics card listed";
    return {};
}

// Mice and headsets have batteries too; theirs have the scope "Device".
bool hasBattery(const QString &root)
{
    const QDir supplies(root + QStringLiteral("/sys/class/power_supply"));
    const QStringList names = supplies.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const auto first = [&](const char *file) {
            return linesOf(supplies.filePath(name + QLatin1Char('/') + QLatin1String(file)))
                .value(0)
                .trimmed();
        };
        if (first("type") == QLatin1String("Battery") && first("scope") != QLatin1String("Device"))
            return true;
    }
    return false;
}

} // namespace

void readSystemFiles(SystemInfo &info, const QString &root)
{
    info.processor = valueOf(linesOf(root + QStringLiteral("/proc/cpuinfo")),
                             QStringLiteral("model name"), QLatin1Char(':'));
    info.memoryMb = memoryMb(root);
    info.videoAdapter = videoAdapter(root);
    info.laptop = hasBattery(root);
}

} // namespace velmora
