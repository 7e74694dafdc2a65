// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>
#include <QVector>

#include <memory>

class QSettings;

namespace velmora
{

/// The settings that every part of the program reads; stored in "settings.ini". Plain value.
struct AppSettings {
    int defaultTransition = 1;
    int defaultTime = 3;    ///< s
    int transitionTime = 2; ///< s
    int audioOffset = 0;    ///< s
    int audioFade = 0;      ///< s
    bool scaleToFit = true;
    bool origRatio = true;
    bool speedGeneration = false; ///< Render slides on two threads.
    QSize resolution = {1920, 1080};
    QString folder; ///< Where projects and videos are written.
    QString locale; ///< Two-letter language code.
    bool autoUpdates = true;
    bool sendStatistics = false; ///< Anonymous usage events may be sent.
    QString outputProfile;       ///< "original" (the default) or "everywhere".

    /// Reads every key; missing and unusable values (not a number, out of range, no size, no
    /// language code, unknown profile) take their defaults: "resolution" follows the screen,
    /// "folder" is the desktop folder, "locale" the system's language. @p screen is the primary
    /// screen's size in px, invalid when there is none.
    void load(const QSettings &store, const QSize &screen);
    /// Writes every key. False with a log line when the store cannot be written.
    bool save(QSettings &store) const;
    /// Writes "transitionTime", which the editor changes as well; nothing if it stands there.
    void saveTransitionTime(QSettings &store) const;
};

/// Opens an INI file of the program, read and written as UTF-8; settings.ini is only opened so.
std::unique_ptr<QSettings> openSettings(const QString &fileName);

/// The output sizes that the program offers, in the order of their menus.
const QVector<QSize> &offeredResolutions();

/// "%1x%2" with a lower-case x.
QString resolutionToText(const QSize &size);
/// Parses "1280x720"; an invalid QSize for anything else or for sides outside 1 to 16384 px.
QSize resolutionFromText(const QString &text);
/// The largest of the offered output sizes that fits the screen (px), the first one if none fits,
/// 1920x1080 without a screen.
QSize defaultResolution(const QSize &screen);

} // namespace velmora
