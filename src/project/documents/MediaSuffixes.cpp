// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/MediaSuffixes.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <vector>

namespace velmora
{

QCollator naturalCollator()
{
    QLocale locale;
    if (locale.language() == QLocale::C) {
        // The C locale compares code points and knows no numeric order.
        locale = QLocale(QLocale::English, QLocale::UnitedStates);
    }
    QCollator collator(locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

const QStringList &photoSuffixes()
{
    static const QStringList suffixes = {
        QStringLiteral(".png"), QStringLiteral(".jpg"), QStringLiteral(".jpeg"),
        QStringLiteral(".bmp"), QStringLiteral(".tif"), QStringLiteral(".tiff"),
        QStringLiteral(".gif"),
    };
    return suffixes;
}

QStringList photoNameFilters()
{
    QStringList filters = photoSuffixes();
    for (QString &filter : filters) {
        filter.prepend(QLatin1Char('*'));
    }
    return filters;
}

bool isPhotoPath(const QString &path)
{
    const QStringList &suffixes = photoSuffixes();
    return std::any_of(suffixes.begin(), suffixes.end(), [&path](const QString &suffix) {
        return path.endsWith(suffix, Qt::CaseInsensitive);
    });
}

QStringList audioSuffixes(const QOperatingSystemVersion &system)
{
    constexpr int kVista = 6; // major version
    QStringList suffixes = {QStringLiteral("wav"), QStringLiteral("wma"), QStringLiteral("ogg"),
                            QStringLiteral("flac")};
    const bool beforeVista =
        system.type() == QOperatingSystemVersion::Windows && system.majorVersion() < kVista;
    if (!beforeVista) {
        suffixes = QStringList{QStringLiteral("m4a"), QStringLiteral("mp3")} + suffixes;
    }
    return suffixes;
}

bool isAudioPath(const QString &path)
{
    return audioSuffixes().contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

void sortNaturally(QStringList *paths)
{
    const QCollator collator = naturalCollator();
    std::sort(paths->begin(), paths->end(), [&collator](const QString &a, const QString &b) {
        const int order = collator.compare(QFileInfo(a).fileName(), QFileInfo(b).fileName());
        // Names that differ only in case keep one order on every run.
        return order != 0 ? order < 0 : a < b;
    });
}

void sortByFolder(QStringList *paths)
{
    const QCollator collator = naturalCollator();
    std::vector<QStringList> split;
    for (const QString &path : qAsConst(*paths)) {
        split.push_back(path.split(QLatin1Char('/')));
    }
    std::sort(split.begin(), split.end(), [&collator](const QStringList &a, const QStringList &b) {
        const auto place = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
        if (place.first == a.end() || place.second == b.end()) {
            return a.size() < b.size();
        }
        const bool isFileOfA = place.first + 1 == a.end();
        const bool isFileOfB = place.second + 1 == b.end();
        if (isFileOfA != isFileOfB) {
            return isFileOfA;
        }
        const int order = collator.compare(*place.first, *place.second);
        return order != 0 ? order < 0 : *place.first < *place.second;
    });
    std::transform(split.begin(), split.end(), paths->begin(),
                   [](const QStringList &parts) { return parts.join(QLatin1Char('/')); });
}

QStringList photosInFolder(const QString &folder, QString *error)
{
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isReadable()) {
        if (error) {
            *error = QCoreApplication::translate("MediaSuffixes", "The folder cannot be read.");
        }
        return {};
    }
    const QDir dir(info.absoluteFilePath());
    QStringList paths;
    const QStringList names = dir.entryList(photoNameFilters(), QDir::Files, QDir::Unsorted);
    for (const QString &name : names) {
        paths.append(dir.filePath(name));
    }
    sortNaturally(&paths);
    return paths;
}

} // namespace velmora
