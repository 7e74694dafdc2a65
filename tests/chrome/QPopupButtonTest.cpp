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
        QTest::addColumn<Qt::Key>("opening");
        QTest::addColumn<QVector<Qt::Key>>("keys");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("emissions");
        // The menu starts on the current value, so one step down leads to the next.
        const QVector<Qt::Key> next = {Qt::Key_Down, Qt::Key_Return};
        QTest::newRow("space") << Qt::Key_Space << next << 5 << 1;
        QTest::newRow("enter") << Qt::Key_Return << next << 5 << 1;
        QTest::newRow("down") << Qt::Key_Down << next << 5 << 1;
        QTest::newRow("F4") << Qt::Key_F4 << next << 5 << 1;
        QTest::newRow("current") << Qt::Key_Space << QVector<Qt::Key>{Qt::Key_Return} << 3 << 1;
        QTest::newRow("escape") << Qt::Key_Space << QVector<Qt::Key>{Qt::Key_Down, Qt::Key_Escape}
                                << 3 << 0;
    }

    void keyboardSelectsOnce()
    {
        QFETCH(Qt::Key, opening);
        QFETCH(QVector<Qt::Key>, keys);
        QFETCH(int, value);
        QSignalSpy selected(m_button.get(), &QPopupButton::valueSelected);
        bool isDone = false;
        whenMenuOpens(*m_button, [&](QMenu &menu) {
            QVERIFY(menu.activeAction());
            QVERIFY(menu.activeAction()->isChecked());
            for (const Qt::Key key : qAsConst(keys))
                QTest::keyClick(&menu, key);
            isDone = true;
        });
        QTest::keyClick(m_button.get(), opening);
        QTRY_VERIFY(isDone && !m_button->menu()->isVisible());
        QTEST(selected.size(), "emissions");
        QCOMPARE(selected.value(0, {value}).first().toInt(), value);
        QCOMPARE(m_button->value().toInt(), value);
        QCOMPARE(m_button->text(), QStringLiteral("%1 sec").arg(value));
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
