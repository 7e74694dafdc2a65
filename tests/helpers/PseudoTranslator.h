// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QTranslator>

/// Translates every text into itself in brackets, which shows what is not translated.
class PseudoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return of(text);
    }

    static QString of(const char *text)
    {
        return QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']');
    }

    /// The texts and tooltips below @p widget that are neither translated nor @p allowed.
    static QStringList untranslated(const QWidget &widget, const QStringList &allowed)
    {
        QStringList texts;
        const QList<QWidget *> children = widget.findChildren<QWidget *>();
        for (const QWidget *child : children) {
            texts << child->toolTip() << child->accessibleName();
            if (const auto *button = qobject_cast<const QAbstractButton *>(child))
                texts << button->text();
            else if (const auto *label = qobject_cast<const QLabel *>(child))
                texts << label->text();
        }
        texts.removeDuplicates();
        QStringList bad;
        for (const QString &text : qAsConst(texts)) {
            const bool hasLetters = text.toUpper() != text.toLower();
            if (hasLetters && !text.contains(QLatin1Char('[')) && !allowed.contains(text))
                bad.append(text);
        }
        return bad;
    }
};
