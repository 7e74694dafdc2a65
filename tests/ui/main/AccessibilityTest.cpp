// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "ui/main/PageTour.h"

#include <QAccessible>
#include <QtTest>

using namespace velmora;

namespace
{

/// What assistive technology must be able to name.
bool isInteractive(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::Table:
    case QAccessible::List:
    case QAccessible::Tree:
    case QAccessible::ProgressBar:
        return true;
    default:
        return false;
    }
}

void collect(QAccessibleInterface *node, QStringList *faults, int *seen)
{
    if (!node || !node->isValid() || node->state().invisible)
        return;
    if (isInteractive(node->role())) {
        ++*seen;
        const QObject *object = node->object();
        if (node->text(QAccessible::Name).trimmed().isEmpty())
            faults->append(
                QStringLiteral("%1 \"%2\" has no accessible name")
                    .arg(QString::fromLatin1(object ? object->metaObject()->className() : "item"),
                         object ? object->objectName() : QString()));
    }
    // The parts of these speak through the whole.
    if (node->role() == QAccessible::Table || node->role() == QAccessible::List ||
        node->role() == QAccessible::ComboBox)
        return;
    for (int i = 0; i < node->childCount(); ++i)
        collect(node->child(i), faults, seen);
}

/// The widgets that Tab reaches from @p window's first one until it comes round.
QSet<const QWidget *> reachedByTab(QWidget &window)
{
    QSet<const QWidget *> reached;
    const QWidget *last = nullptr;
    constexpr int kAtMost = 400;
    for (int i = 0; i < kAtMost; ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window,
                        Qt::Key_Tab);
        const QWidget *focus = QApplication::focusWidget();
        // A text goes through its links before it hands the focus on.
        if (!focus || (focus != last && reached.contains(focus)))
            break;
        reached.insert(focus);
        last = focus;
    }
    return reached;
}

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT

    static void addSizes()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("usual") << QSize(1024, 700);
        QTest::newRow("wide") << QSize(1920, 1080);
    }

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        Theme::useProgramFont();
    }

    void namesEveryControl_data() { addSizes(); }
    void namesEveryControl()
    {
        QFETCH(QSize, size);
        QStringList faults;
        int seen = 0;
        MainViewFixture fixture;
        PageTour tour(fixture, [&](const QString &page, QWidget &shown) {
            QStringList here;
            collect(QAccessible::queryAccessibleInterface(&shown), &here, &seen);
            for (const QString &fault : qAsConst(here))
                faults.append(page + QStringLiteral(": ") + fault);
        });
        tour.setWindowSize(size);
        if (size.width() > 1024)
            tour.leaveOutDialogs();
        tour.run({fixture.makePhoto(QStringLiteral("a.png")),
                  fixture.makePhoto(QStringLiteral("b.png"))});
        faults.removeDuplicates();
        QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
        QVERIFY(seen > 100);
    }

    void reachesEveryControlByTab_data() { addSizes(); }
    void reachesEveryControlByTab()
    {
        QFETCH(QSize, size);
        QStringList faults;
        MainViewFixture fixture;
        PageTour tour(fixture, [&](const QString &page, QWidget &shown) {
            QApplication::setActiveWindow(shown.window());
            const QSet<const QWidget *> reached = reachedByTab(shown);
            // The window below the open settings waits.
            QWidget *panel = shown.findChild<QWidget *>(QStringLiteral("settingsPanel"));
            const bool covered = panel && panel->isVisible();
            const QList<QWidget *> widgets = (covered ? panel : &shown)->findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                const bool takesFocus = (widget->focusPolicy() & Qt::TabFocus) != 0;
                if (takesFocus && widget->isVisible() && widget->isEnabled() &&
                    !widget->focusProxy() && !reached.contains(widget))
                    faults.append(QStringLiteral("%1: Tab does not reach %2 \"%3\"")
                                      .arg(page,
                                           QString::fromLatin1(widget->metaObject()->className()),
                                           widget->objectName()));
            }
        });
        tour.setWindowSize(size);
        if (size.width() > 1024)
            tour.leaveOutDialogs();
        tour.run({fixture.makePhoto(QStringLiteral("a.png"))});
        faults.removeDuplicates();
        QVERIFY2(faults.isEmpty(), qPrintable(QLatin1Char('\n') + faults.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
