// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/QPopupButton.h"
#include "chrome/Theme.h"

#include <QApplication>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace velmora;

namespace
{

QPopupButton::Values times()
{
    return {
        {QStringLiteral("1 sec"), 1}, {QStringLiteral("3 sec"), 3}, {QStringLiteral("5 sec"), 5}};
}

/// Runs @p act once the menu is open; closes the menu if @p act left it open.
template <typename Act> void whenMenuOpens(QPopupButton &button, Act act)
{
    QTimer::singleShot(0, &button, [&button, act] {
        QMenu *menu = button.menu();
        QVERIFY(menu->isVisible());
        act(*menu);
        menu->close();
    });
}

} // namespace

class QPopupButtonTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::install(*qApp); }

    void init()
    {
        m_button = std::make_unique<QPopupButton>();
        m_button->setValues(times());
        m_button->setValue(3);
        m_button->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_button.get()));
    }

    void keyboardSelectsOnce_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("space") << int(Qt::Key_Space);
        QTest::newRow("enter") << int(Qt::Key_Return);
        QTest::newRow("down") << int(Qt::Key_Down);
        QTest::newRow("F4") << int(Qt::Key_F4);
    }

    void keyboardSelectsOnce()
    {
        QFETCH(int, key);
        QSignalSpy selected(m_button.get(), &QPopupButton::valueSelected);
        // The menu starts on the current value, so one step down leads to the next.
        whenMenuOpens(*m_button, [](QMenu &menu) {
            QTest::keyClick(&menu, Qt::Key_Down);
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        QTest::keyClick(m_button.get(), Qt::Key(key));
        QTRY_COMPARE(selected.size(), 1);
        QCOMPARE(selected.first().first().toInt(), 5);
        QCOMPARE(m_button->value().toInt(), 5);
        QCOMPARE(m_button->text(), QStringLiteral("5 sec"));
    }

    void mouseSelectsOnce()
    {
        QSignalSpy selected(m_button.get(), &QPopupButton::valueSelected);
        whenMenuOpens(*m_button, [](QMenu &menu) {
            const QPoint first = menu.actionGeometry(menu.actions().first()).center();
            QTest::mouseMove(&menu, first);
            QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, first);
        });
        QTest::mouseClick(m_button.get(), Qt::LeftButton);
        QTRY_COMPARE(selected.size(), 1);
        QCOMPARE(selected.first().first().toInt(), 1);
    }

    void choosingTheCurrentValueEmits()
    {
        QSignalSpy selected(m_button.get(), &QPopupButton::valueSelected);
        whenMenuOpens(*m_button, [](QMenu &menu) {
            QVERIFY(menu.activeAction());
            QVERIFY(menu.activeAction()->isChecked());
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        QTest::keyClick(m_button.get(), Qt::Key_Space);
        QTRY_COMPARE(selected.size(), 1);
        QCOMPARE(selected.first().first().toInt(), 3);
    }

    void escapeKeepsTheValue()
    {
        QSignalSpy selected(m_button.get(), &QPopupButton::valueSelected);
        whenMenuOpens(*m_button, [](QMenu &menu) {
            QTest::keyClick(&menu, Qt::Key_Down);
            QTest::keyClick(&menu, Qt::Key_Escape);
        });
        QTest::keyClick(m_button.get(), Qt::Key_Space);
        QTRY_VERIFY(!m_button->menu()->isVisible());
        QCOMPARE(selected.size(), 0);
        QCOMPARE(m_button->value().toInt(), 3);
    }

    void setValueShowsWithoutEmitting()
    {
        QSignalSpy selected(m_button.get(), &QPopupButton::valueSelected);
        m_button->setValue(1);
        QCOMPARE(m_button->text(), QStringLiteral("1 sec"));
        QCOMPARE(selected.size(), 0);
    }

    void unknownValueIsShown()
    {
        m_button->setValue(42);
        QCOMPARE(m_button->text(), QStringLiteral("42"));
        m_button->setValue(42, QStringLiteral("42 sec"));
        QCOMPARE(m_button->text(), QStringLiteral("42 sec"));
        // A list that arrives later gives the value its text.
        m_button->setValues({{QStringLiteral("very long"), 42}});
        QCOMPARE(m_button->text(), QStringLiteral("very long"));
    }

    void ampersandIsShown()
    {
        m_button->setValues({{QStringLiteral("Black & White"), 7}});
        m_button->setValue(7);
        QCOMPARE(m_button->text(), QStringLiteral("Black && White"));
    }

private:
    std::unique_ptr<QPopupButton> m_button;
};

QTEST_MAIN(QPopupButtonTest)
#include "QPopupButtonTest.moc"
