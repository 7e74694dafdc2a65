// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QObject>
#include <QPair>
#include <QVector>

class QAbstractButton;
class QMenu;

namespace velmora
{

/// The actions of the slide table with their texts, icons and keys, for its buttons and its
/// context menu. Whoever makes them connects them. GUI thread.
class SlideActions : public QObject
{
    Q_OBJECT
public:
    /// The keys work in @p page and what it holds.
    explicit SlideActions(QWidget *page);

    /// Gives a button the icon of an action, and lets its texts and its state follow the action.
    static void bind(QAbstractButton *button, QAction *action);
    /// Takes the texts from the language that is set now.
    void retranslate();
    /// "Text (Key)"
    static QString toolTip(const QString &text, const QKeySequence &key);
    /// @p times and @p transitions are the menus of values that stand for those actions.
    void fillContextMenu(QMenu &menu, QMenu *times, QMenu *transitions) const;

    QAction *up;
    QAction *down;
    QAction *rotate;
    QAction *rotateBack;
    QAction *shuffle;
    QAction *sortByName;
    QAction *sortByDate;
    QAction *caption;
    QAction *captionOfAll;
    QAction *time;
    QAction *transition;
    QAction *preview;
    QAction *relocate;
    QAction *restore;
    QAction *remove;
    QAction *clear;

private:
    QAction *add(const char *name, const char *text, const QString &icon, const QKeySequence &key);

    QWidget *m_page;
    QVector<QPair<QAction *, const char *>> m_texts; ///< With their untranslated texts.
};

} // namespace velmora
