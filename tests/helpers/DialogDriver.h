// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

/// Answers dialogs that block their caller: meets each modal dialog, in turn, with the next of the
/// prepared acts. A dialog that is not expected, or an act without a dialog, is a failure.
class DialogDriver : public QObject
{
public:
    using Act = std::function<void(QDialog *)>;

    DialogDriver()
    {
        connect(&m_timer, &QTimer::timeout, this, &DialogDriver::look);
        m_timer.setSingleShot(true);
        m_timer.start(kInterval);
    }

    void expect(const Act &act) { m_acts.append(act); }
    /// Presses the button with that text of the next dialog.
    void press(const QString &button)
    {
        expect([this, button](QDialog *dialog) {
            const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
            for (QPushButton *candidate : buttons) {
                if (candidate->text() == button) {
                    QTest::mouseClick(candidate, Qt::LeftButton);
                    return;
                }
            }
            m_failure = QStringLiteral("No button \"%1\" in \"%2\"").arg(button, m_title);
            dialog->reject();
        });
    }

    /// Of the last dialog that was met.
    const QString &title() const { return m_title; }
    const QString &text() const { return m_text; }
    /// Empty as long as everything went as prepared.
    QString failure() const
    {
        return m_failure.isEmpty() && !m_acts.isEmpty() ? QStringLiteral("A dialog is missing")
                                                        : m_failure;
    }

private:
    static constexpr int kInterval = 10; // ms

    void look()
    {
        // An act may open a dialog of its own, and a timer does not meet itself.
        m_timer.start(kInterval);
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || dialog == m_inWork)
            return;
        m_title = dialog->windowTitle();
        const auto *label = dialog->findChild<QLabel *>(QStringLiteral("lblText"));
        if (!label)
            label = dialog->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        m_text = label ? label->text() : QString();
        if (m_acts.isEmpty()) {
            m_failure = QStringLiteral("Unexpected dialog \"%1\": %2").arg(m_title, m_text);
            dialog->reject();
            return;
        }
        const Act act = m_acts.takeFirst();
        const QPointer<QDialog> outer = m_inWork;
        m_inWork = dialog;
        act(dialog);
        m_inWork = outer;
    }

    QTimer m_timer;
    QVector<Act> m_acts;
    QPointer<QDialog> m_inWork; ///< The act may process events.
    QString m_title;
    QString m_text;
    QString m_failure;
};
