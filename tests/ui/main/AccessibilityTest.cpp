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
    static const QSet<int> roles = {
        QAccessible::Button,       QAccessible::ButtonMenu,  QAccessible::ButtonDropDown,
        QAccessible::CheckBox,     QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::EditableText, QAccessible::Slider,      QAccessible::SpinBox,
        QAccessible::Table,        QAccessible::List,        QAccessible::Tree,
        QAccessible::ProgressBar};
    return roles.contains(role);
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

bool takesTab(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isVisible() && widget.isEnabled() &&
           !widget.focusProxy();
}

QString called(const QWidget &widget)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName());
}

/// Tells of the controls of @p page to which Tab goes back on the screen: up, but not to the next
/// column, or to the left in the same line.
QStringList misplaced(const QWidget &page)
{
    QStringList faults;
    const QWidget *before = nullptr;
    for (const QWidget *widget = page.nextInFocusChain(); widget != &page;
         widget = widget->nextInFocusChain()) {
        // The help follows what it explains, and stands at its label.
        if (!takesTab(*widget) || !page.isAncestorOf(widget) ||
            widget->objectName().startsWith(QLatin1String("btnHelp")))
            continue;
        const QRect place(widget->mapTo(&page, {}), widget->size());
        const QRect last = before ? QRect(before->mapTo(&page, {}), before->size()) : QRect();
        const bool isUp = place.bottom() < last.top() && place.left() < last.right();
        const bool isLeft = place.right() < last.left() && place.top() < last.bottom();
        if (before && (isUp || isLeft))
            faults.append(QStringLiteral("Tab goes back from %1 to %2")
                              .arg(called(*before), called(*widget)));
        before = widget;
    }
    return faults;
}

/// Tells of the controls of @p page that Tab does not reach.
QStringList unreached(QWidget &page)
{
    QApplication::setActiveWindow(page.window());
    const QSet<const QWidget *> reached = reachedByTab(page);
    // The window below the open settings waits.
    QWidget *panel = page.findChild<QWidget *>(QStringLiteral("settingsPanel"));
    const bool covered = panel && panel->isVisible();
    QStringList faults;
    for (const QWidget *widget : (covered ? panel : &page)->findChildren<QWidget *>()) {
        if (takesTab(*widget) && !reached.contains(widget))
            faults.append(QStringLiteral("Tab does not reach ") + called(*widget));
    }
    return faults;
}

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        Theme::useProgramFont();
    }

    void everyControlIsNamedAndReached_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("usual") << QSize(1024, 700);
        QTest::newRow("wide") << QSize(1920, 1080);
    }
    void everyControlIsNamedAndReached()
    {
        QFETCH(QSize, size);
        QStringList faults;
        int seen = 0;
        MainViewFixture fixture;
        PageTour tour(fixture, [&](const QString &page, QWidget &shown) {
            QStringList here;
            collect(QAccessible::queryAccessibleInterface(&shown), &here, &seen);
            here += unreached(shown);
            if (page.startsWith(QLatin1String("editor")) ||
                page.startsWith(QLatin1String("caption")))
                here += misplaced(shown);
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
};

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
