// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/MessageDialog.h"

#include "chrome/Theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace velmora
{

namespace
{

constexpr int kTextWidth = 380; // px

QString pictureName(MessageDialog::Kind kind)
{
    switch (kind) {
    case MessageDialog::Kind::Question:
        return QStringLiteral("question");
    case MessageDialog::Kind::Warning:
        return QStringLiteral("warning");
    case MessageDialog::Kind::Information:
        break;
    }
    return QStringLiteral("information");
}

} // namespace

MessageDialog::MessageDialog(const Message &message, QWidget *parent)
    : CorDialog(parent),
      m_cancelButton(message.cancelButton >= 0 ? message.cancelButton : message.buttons.size() - 1)
{
    setObjectName(QStringLiteral("messageDialog"));
    setWindowTitle(message.title);
    setAccessibleDescription(message.text);

    auto *picture = new QLabel(content());
    picture->setPixmap(Theme::icon(pictureName(message.kind)).pixmap(40, 40));
    auto *body = new QHBoxLayout;
    body->setSpacing(16);
    body->addWidget(picture, 0, Qt::AlignTop);
    body->addWidget(createTexts(message), 1);

    auto *layout = new QVBoxLayout(content());
    layout->setContentsMargins(24, 16, 24, 24);
    layout->setSpacing(24);
    layout->addLayout(body, 1);
    layout->addWidget(createButtons(message));
}

QWidget *MessageDialog::createTexts(const Message &message)
{
    auto *texts = new QWidget(content());
    auto *layout = new QVBoxLayout(texts);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(12);
    auto *text = new QLabel(message.text, texts);
    text->setObjectName(QStringLiteral("lblText"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setFixedWidth(kTextWidth);
    layout->addWidget(text);
    if (!message.details.isEmpty()) {
        auto *details = new QPlainTextEdit(message.details, texts);
        details->setObjectName(QStringLiteral("txtDetails"));
        details->setAccessibleName(tr("Details"));
        details->setReadOnly(true);
        details->setTabChangesFocus(true);
        details->setFixedHeight(120);
        layout->addWidget(details);
    }
    if (!message.checkText.isEmpty()) {
        m_check = new QCheckBox(message.checkText, texts);
        m_check->setObjectName(QStringLiteral("chkOption"));
        layout->addWidget(m_check);
    }
    layout->addStretch();
    return texts;
}

QWidget *MessageDialog::createButtons(const Message &message)
{
    auto *row = new QWidget(content());
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addStretch();
    for (int i = 0; i < message.buttons.size(); ++i) {
        auto *button = new QPushButton(message.buttons.at(i), row);
        button->setObjectName(QStringLiteral("button%1").arg(i));
        button->setMinimumWidth(96);
        if (i == message.defaultButton) {
            button->setDefault(true);
            button->setProperty(message.dangerous ? "danger" : "primary", true);
            button->setFocus();
        }
        connect(button, &QPushButton::clicked, this, [this, i] {
            m_chosen = i;
            accept();
        });
        layout->addWidget(button);
    }
    return row;
}

MessageDialog::Answer MessageDialog::answer() const
{
    return {m_chosen >= 0 ? m_chosen : m_cancelButton, m_check && m_check->isChecked()};
}

MessageDialog::Answer MessageDialog::ask(QWidget *parent, const Message &message)
{
    MessageDialog dialog(message, parent);
    dialog.exec();
    return dialog.answer();
}

void MessageDialog::inform(QWidget *parent, const QString &title, const QString &text,
                           const QString &button)
{
    Message message;
    message.title = title;
    message.text = text;
    message.buttons = QStringList{button.isEmpty() ? tr("CLOSE") : button};
    ask(parent, message);
}

} // namespace velmora
