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

    void answers_data()
    {
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("answer");
        const QString none;
        QTest::newRow("first button") << "button0" << 0 << 0;
        QTest::newRow("second button") << "button1" << 0 << 1;
        QTest::newRow("third button") << "button2" << 0 << 2;
        QTest::newRow("cross") << "btnCloseTop" << 0 << 2;
        QTest::newRow("enter") << none << int(Qt::Key_Return) << 1;
        QTest::newRow("escape") << none << int(Qt::Key_Escape) << 2;
    }

    void answers()
    {
        QFETCH(QString, clicked);
        QFETCH(int, key);
        const auto answer = ask([&](MessageDialog &dialog) {
            if (clicked.isEmpty())
                QTest::keyClick(&dialog, static_cast<Qt::Key>(key));
            else
                QTest::mouseClick(dialog.findChild<QAbstractButton *>(clicked), Qt::LeftButton);
        });
        QTEST(answer.button, "answer");
        QVERIFY(!answer.checked);
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
