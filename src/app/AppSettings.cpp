// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"

#include "app/AppLog.h"

#include <QDir>
#include <QLocale>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>

namespace velmora
{

namespace
{

constexpr int kMaximumSide = 16384;    // px
constexpr int kLastTransition = 28;    // the last TransitionType
constexpr int kMaximumSeconds = 3600;  // s
constexpr int kMaximumTransition = 60; // s

int readInt(const QSettings &store, const char *key, int fallback, int minimum, int maximum)
{
    bool ok = false;
    const int value = store.value(QLatin1String(key)).toInt(&ok);
    return ok && value >= minimum && value <= maximum ? value : fallback;
}

// An unquoted comma in a file edited by hand makes QSettings read a list.
QString readText(const QSettings &store, const char *key)
{
    const QVariant value = store.value(QLatin1String(key));
    if (value.type() == QVariant::StringList)
        return value.toStringList().join(QLatin1Char(','));
    return value.toString();
}

bool readBool(const QSettings &store, const char *key, bool fallback)
{
    const QString text = readText(store, key).trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return fallback;
}

QString readFolder(const QSettings &store)
{
    const QString stored = readText(store, "folder");
    if (!stored.trimmed().isEmpty())
        return stored;
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    return desktop.isEmpty() ? QDir::homePath() : desktop;
}

// The code becomes part of a file name, so nothing but a language code may pass.
QString readLocale(const QSettings &store)
{
    static const QRegularExpression code(
        QStringLiteral("\\A[A-Za-z]{2,3}(?:[_-][A-Za-z0-9]{2,8})*\\z"));
    const QString stored = readText(store, "locale").trimmed();
    if (code.match(stored).hasMatch())
        return stored;
    const QString system = QLocale::system().name().left(2);
    return code.match(system).hasMatch() ? system : QStringLiteral("en");
}

QString readProfile(const QSettings &store)
{
    const QString stored = readText(store, "outputProfile").trimmed();
    return stored == QLatin1String("everywhere") ? stored : QStringLiteral("original");
}

} // namespace

void AppSettings::load(const QSettings &store, const QSize &screen)
{
    const AppSettings defaults;
    defaultTransition =
        readInt(store, "defaultTransition", defaults.defaultTransition, 0, kLastTransition);
    defaultTime = readInt(store, "defaultTime", defaults.defaultTime, 1, kMaximumSeconds);
    transitionTime =
        readInt(store, "transitionTime", defaults.transitionTime, 1, kMaximumTransition);
    audioOffset =
        readInt(store, "audioOffset", defaults.audioOffset, -kMaximumSeconds, kMaximumSeconds);
    audioFade = readInt(store, "audioFade", defaults.audioFade, 0, kMaximumSeconds);
    scaleToFit = readBool(store, "scaleToFit", defaults.scaleToFit);
    origRatio = readBool(store, "origRatio", defaults.origRatio);
    speedGeneration = readBool(store, "speedGeneration", defaults.speedGeneration);
    resolution = resolutionFromText(readText(store, "resolution"));
    if (!resolution.isValid())
        resolution = defaultResolution(screen);
    folder = readFolder(store);
    locale = readLocale(store);
    autoUpdates = readBool(store, "autoUpdates", defaults.autoUpdates);
    sendStatistics = readBool(store, "sendStatistics", defaults.sendStatistics);
    outputProfile = readProfile(store);
}

bool AppSettings::save(QSettings &store) const
{
    store.setValue(QStringLiteral("defaultTransition"), defaultTransition);
    store.setValue(QStringLiteral("defaultTime"), defaultTime);
    store.setValue(QStringLiteral("transitionTime"), transitionTime);
    store.setValue(QStringLiteral("audioOffset"), audioOffset);
    store.setValue(QStringLiteral("audioFade"), audioFade);
    store.setValue(QStringLiteral("scaleToFit"), scaleToFit);
    store.setValue(QStringLiteral("origRatio"), origRatio);
    store.setValue(QStringLiteral("speedGeneration"), speedGeneration);
    store.setValue(QStringLiteral("resolution"), resolutionToText(resolution));
    store.setValue(QStringLiteral("folder"), folder);
    store.setValue(QStringLiteral("locale"), locale);
    store.setValue(QStringLiteral("autoUpdates"), autoUpdates);
    store.setValue(QStringLiteral("sendStatistics"), sendStatistics);
    store.setValue(QStringLiteral("outputProfile"), outputProfile);
    store.sync();
    if (store.status() == QSettings::NoError)
        return true;
    // The store reports its first failure for good; another one of the same file does not know it.
    const std::unique_ptr<QSettings> second = openSettings(store.fileName());
    second->sync();
    if (second->status() == QSettings::NoError)
        return true;
    qCWarning(lcApp).noquote()
        << QStringLiteral("Cannot write settings to '%1'").arg(store.fileName());
    return false;
}

void AppSettings::saveTransitionTime(QSettings &store) const
{
    const QString key = QStringLiteral("transitionTime");
    if (store.value(key, AppSettings().transitionTime).toInt() != transitionTime)
        store.setValue(key, transitionTime);
}

std::unique_ptr<QSettings> openSettings(const QString &fileName)
{
    auto settings = std::make_unique<QSettings>(fileName, QSettings::IniFormat);
    settings->setIniCodec("UTF-8");
    return settings;
}

const QVector<QSize> &offeredResolutions()
{
    static const QVector<QSize> sizes = {{640, 480},   {800, 600},   {960, 540},  {1024, 768},
                                         {1280, 1024}, {1366, 768},  {1600, 900}, {1600, 1200},
                                         {1920, 1080}, {2560, 1440}, {3840, 2160}};
    return sizes;
}

QString resolutionToText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QSize resolutionFromText(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("\\A(\\d{1,5})x(\\d{1,5})\\z"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool usable = size.width() >= 1 && size.height() >= 1 && size.width() <= kMaximumSide &&
                        size.height() <= kMaximumSide;
    return usable ? size : QSize();
}

QSize defaultResolution(const QSize &screen)
{
    if (!screen.isValid())
        return {1920, 1080};
    const auto area = [](const QSize &size) { return size.width() * size.height(); };
    QSize best = offeredResolutions().first();
    for (const QSize &size : offeredResolutions()) {
        const bool fits = size.width() <= screen.width() && size.height() <= screen.height();
        if (fits && area(size) > area(best))
            best = size;
    }
    return best;
}

} // namespace velmora
