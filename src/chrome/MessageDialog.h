// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

#include <QString>
#include <QStringList>

class QCheckBox;

namespace velmora
{

/// A message or question in the program's look, with freely named buttons. GUI thread.
class MessageDialog : public CorDialog
{
    Q_OBJECT
public:
    enum class Kind { Information, Question, Warning };

    struct Message {
        Kind kind = Kind::Information;
        QString title;
        QString text;    ///< Plain text.
        QString details; ///< More plain text, shown smaller in a field that scrolls; may be empty.
        QString checkText;      ///< The label of a check box, off at first; empty: none.
        QStringList buttons;    ///< From left to right; the last one stands outermost.
        int defaultButton = 0;  ///< Filled, and chosen by Enter.
        int cancelButton = -1;  ///< Chosen by Escape and the close button; -1: the last one.
        bool dangerous = false; ///< The default button destroys something, and looks like it.
    };

    struct Answer {
        int button = -1; ///< Index in Message::buttons.
        bool checked = false;
    };

    explicit MessageDialog(const Message &message, QWidget *parent = nullptr);

    Answer answer() const;

    /// Shows the dialog until it is answered.
    static Answer ask(QWidget *parent, const Message &message);
    /// A message with one button, "CLOSE" unless @p button names it.
    static void inform(QWidget *parent, const QString &title, const QString &text,
                       const QString &button = QString());

private:
    QWidget *createTexts(const Message &message);
    QWidget *createButtons(const Message &message);

    int m_cancelButton;
    int m_chosen = -1;
    QCheckBox *m_check = nullptr;
};

} // namespace velmora
