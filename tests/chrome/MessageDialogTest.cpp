// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/MessageDialog.h"
#include "chrome/QTextEditEx.h"
#include "chrome/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace velmora;

namespace
{

MessageDialog::Message question()
{
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = QStringLiteral("Delete");
    message.text = QStringLiteral("Delete <b>all</b>?");
    message.checkText = QStringLiteral("Also the files");
    message.buttons =
        QStringList{QStringLiteral("DELETE"), QStringLiteral("KEEP"), QStringLiteral("CANCEL")};
    message.defaultButton = 1;
    return message;
}

/// Asks, with @p act done to the open dialog.
template <typename Act> MessageDialog::Answer ask(Act act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *dialog = qobject_cast<MessageDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        act(*dialog);
        dialog->reject();
    });
    return MessageDialog::ask(nullptr, question());
}

} // namespace

class MessageDialogTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::install(*qApp); }

    void buttonsAnswer_data()
    {
        QTest::addColumn<int>("button");
        for (int i = 0; i < 3; ++i)
            QTest::addRow("%d", i) << i;
    }

    void buttonsAnswer()
    {
        QFETCH(int, button);
        const auto answer = ask([button](MessageDialog &dialog) {
            QTest::mouseClick(
                dialog.findChild<QPushButton *>(QStringLiteral("button%1").arg(button)),
                Qt::LeftButton);
        });
        QCOMPARE(answer.button, button);
        QVERIFY(!answer.checked);
    }

    void enterChoosesTheDefault()
    {
        const auto answer =
            ask([](MessageDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        QCOMPARE(answer.button, 1);
    }

    void escapeAndCrossCancel()
    {
        const auto escaped =
            ask([](MessageDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(escaped.button, 2);
        const auto closed = ask([](MessageDialog &dialog) {
            QTest::mouseClick(dialog.findChild<QToolButton *>(QStringLiteral("btnCloseTop")),
                              Qt::LeftButton);
        });
        QCOMPARE(closed.button, 2);
    }

    void checkIsReported()
    {
        const auto answer = ask([](MessageDialog &dialog) {
            QTest::keyClick(dialog.findChild<QCheckBox *>(QStringLiteral("chkOption")),
                            Qt::Key_Space);
            QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("button0")),
                              Qt::LeftButton);
        });
        QCOMPARE(answer.button, 0);
        QVERIFY(answer.checked);
    }

    void textIsPlain()
    {
        const MessageDialog dialog(question());
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lblText"))->textFormat(),
                 Qt::PlainText);
    }

    void controlEnterAccepts()
    {
        QTextEditEx edit;
        QSignalSpy accepted(&edit, &QTextEditEx::accepted);
        QTest::keyClicks(&edit, QStringLiteral("a"));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(accepted.size(), 0);
        QTest::keyClick(&edit, Qt::Key_Return, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
        QCOMPARE(accepted.size(), 2);
        QCOMPARE(edit.toPlainText(), QStringLiteral("a\n"));
    }

    void pastedTextIsPlain()
    {
        struct Edit : QTextEditEx {
            using QTextEditEx::insertFromMimeData;
        } edit;
        QMimeData data;
        data.setHtml(QStringLiteral("<b>bold</b>"));
        data.setText(QStringLiteral("bold"));
        edit.insertFromMimeData(&data);
        QCOMPARE(edit.toPlainText(), QStringLiteral("bold"));
        QVERIFY(!edit.toHtml().contains(QLatin1String("font-weight:600")));
    }
};

QTEST_MAIN(MessageDialogTest)
#include "MessageDialogTest.moc"
