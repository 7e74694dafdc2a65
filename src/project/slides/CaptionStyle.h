// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QJsonObject>
#include <QString>

namespace velmora
{

/// The caption of one slide. Plain value; JSON form as in the project document.
struct CaptionStyle {
    QString text;
    QString fontFamily = QStringLiteral("Segoe UI");
    QColor textColor = Qt::white;
    QColor backgroundColor; ///< Invalid: no box behind the caption.
    int position = 4;       ///< Cell of a 3 by 3 grid, 0 to 8, row by row from the top left.
    int effect = 27;        ///< TransitionType with which the caption appears.
    bool changed = false;

    /// Whether there is anything to paint: text that is more than white space.
    bool isVisible() const { return !text.trimmed().isEmpty(); }

    QJsonObject toJson() const;
    /// Reads leniently: missing or wrongly typed keys yield empty text, 0 or false.
    void fromJson(const QJsonObject &object);

    friend bool operator==(const CaptionStyle &a, const CaptionStyle &b)
    {
        return a.text == b.text && a.fontFamily == b.fontFamily && a.textColor == b.textColor &&
               a.backgroundColor == b.backgroundColor && a.position == b.position &&
               a.effect == b.effect && a.changed == b.changed;
    }
    friend bool operator!=(const CaptionStyle &a, const CaptionStyle &b) { return !(a == b); }
};

} // namespace velmora
