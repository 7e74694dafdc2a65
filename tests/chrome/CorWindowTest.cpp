// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/CorWindow.h"
#include "chrome/ResizeHandle.h"
#include "chrome/Theme.h"
#include "chrome/TitleBar.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QToolButton>

using namespace velmora;

namespace
{

const QSize kWindow(640, 480);

} // namespace

class CorWindowTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::install(*qApp); }

    void init()
    {
        m_window = std::make_unique<CorWindow>();
        m_window->setWindowTitle(QStringLiteral("Holidays"));
        m_window->setContent(new QWidget);
        m_window->resize(kWindow);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void edgesAreFoundByPosition_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<int>("edges");
        QTest::addColumn<int>("cursor");
        const int right = kWindow.width() - 1;
        const int bottom = kWindow.height() - 1;
        const auto row = [](const char *name, QPoint at, Qt::Edges edges, Qt::CursorShape cursor) {
            QTest::newRow(name) << at << int(edges) << int(cursor);
        };
        row("left", {1, 200}, Qt::LeftEdge, Qt::SizeHorCursor);
        row("right", {right, 200}, Qt::RightEdge, Qt::SizeHorCursor);
        row("top", {300, 0}, Qt::TopEdge, Qt::SizeVerCursor);
        row("bottom", {300, bottom}, Qt::BottomEdge, Qt::SizeVerCursor);
        row("top left", {0, 0}, Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor);
        row("top left, along the top", {10, 1}, Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor);
        row("top right", {right, 0}, Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor);
        row("bottom left", {0, bottom}, Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor);
        row("bottom right", {right, bottom}, Qt::BottomEdge | Qt::RightEdge, Qt::SizeFDiagCursor);
        row("bottom right, along the right", {right, bottom - 10}, Qt::BottomEdge | Qt::RightEdge,
            Qt::SizeFDiagCursor);
    }

    void edgesAreFoundByPosition()
    {
        QFETCH(QPoint, at);
        QFETCH(int, edges);
        QFETCH(int, cursor);
        const auto *handle = qobject_cast<ResizeHandle *>(m_window->childAt(at));
        QVERIFY(handle);
        QCOMPARE(int(handle->edges()), edges);
        QCOMPARE(int(handle->cursor().shape()), cursor);
    }

    void handlesLeaveTheContentAlone()
    {
        // Also near the corners, whose handles are longer than they are thick.
        for (const QPoint at : {QPoint(300, 200), QPoint(6, 200), QPoint(8, kWindow.height() - 8),
                                QPoint(kWindow.width() - 8, kWindow.height() - 8)})
            QCOMPARE(m_window->childAt(at), m_window->content());
    }

    void handleAreaReachesIntoTheShadow()
    {
        const QRect frame(14, 14, 600, 400);
        const QSize window(628, 428);
        const QRect left = ResizeHandle::area(Qt::LeftEdge, window, frame);
        QCOMPARE(left.left(), frame.left() - ResizeHandle::Outside);
        QCOMPARE(left.right(), frame.left() + ResizeHandle::Inside - 1);
        const QRect corner = ResizeHandle::area(Qt::RightEdge | Qt::BottomEdge, window, frame);
        QCOMPARE(corner.bottomRight(),
                 frame.bottomRight() + QPoint(ResizeHandle::Outside, ResizeHandle::Outside));
        QCOMPARE(ResizeHandle::area(Qt::TopEdge, window, frame).right() + 1,
                 ResizeHandle::area(Qt::TopEdge | Qt::RightEdge, window, frame).left());
    }

    void maximisedWindowHasNoHandles()
    {
        m_window->showMaximized();
        QTRY_VERIFY(m_window->isMaximized());
        const QList<ResizeHandle *> handles = m_window->findChildren<ResizeHandle *>();
        QCOMPARE(handles.size(), 8);
        for (const ResizeHandle *handle : handles)
            QVERIFY(!handle->isVisible());
        QCOMPARE(m_window->frameRect(), m_window->rect());
        m_window->showNormal();
        for (const ResizeHandle *handle : handles)
            QTRY_VERIFY(handle->isVisible());
    }

    void doubleClickMaximisesAndRestores()
    {
        TitleBar *bar = m_window->titleBar();
        const QPoint at(200, 20);
        QTest::mouseDClick(bar, Qt::LeftButton, Qt::NoModifier, at);
        QTRY_VERIFY(m_window->isMaximized());
        QCOMPARE(find<QToolButton>("btnMaximise")->toolTip(), QStringLiteral("Restore"));
        QTest::mouseDClick(bar, Qt::LeftButton, Qt::NoModifier, at);
        QTRY_VERIFY(!m_window->isMaximized());
        QTest::mouseDClick(bar, Qt::RightButton, Qt::NoModifier, at);
        QVERIFY(!m_window->isMaximized());
    }

    void titleBarButtonsWork()
    {
        QTest::mouseClick(find<QToolButton>("btnMaximise"), Qt::LeftButton);
        QTRY_VERIFY(m_window->isMaximized());
        QTest::mouseClick(find<QToolButton>("btnMaximise"), Qt::LeftButton);
        QTRY_VERIFY(!m_window->isMaximized());
        QTest::mouseClick(find<QToolButton>("btnMinimise"), Qt::LeftButton);
        QTRY_VERIFY(m_window->isMinimized());
        m_window->showNormal();
        QTest::mouseClick(find<QToolButton>("btnCloseTop"), Qt::LeftButton);
        QTRY_VERIFY(!m_window->isVisible());
    }

    void fullScreenHidesTheTitleBar()
    {
        m_window->toggleFullScreen();
        QTRY_VERIFY(m_window->isFullScreen());
        QVERIFY(!m_window->titleBar()->isVisible());
        m_window->toggleFullScreen();
        QTRY_VERIFY(!m_window->isFullScreen());
        QVERIFY(m_window->titleBar()->isVisible());
    }

    void titleFollowsTheWindow()
    {
        QCOMPARE(m_window->titleBar()->title(), QStringLiteral("Holidays"));
        m_window->setWindowTitle(QStringLiteral("Alps[*]"));
        QCOMPARE(m_window->titleBar()->title(), QStringLiteral("Alps"));
        m_window->setWindowModified(true);
        QCOMPARE(m_window->titleBar()->title(), QStringLiteral("Alps*"));
    }

    void longNameLeavesItsMarkInSight()
    {
        const QString name = QStringLiteral("Summer ") + QString(200, QLatin1Char('x'));
        m_window->setWindowTitle(name + QStringLiteral("[*] - Program"));
        m_window->setWindowModified(true);
        const auto *label = find<QLabel>("titleText");
        for (const int width : {400, 600}) {
            m_window->resize(width, 480);
            QTRY_COMPARE(m_window->width(), width);
            QVERIFY(label->text().startsWith(QStringLiteral("Summer")));
            QVERIFY(label->text().endsWith(QStringLiteral("x* - Program")));
            const int spare = label->width() - label->sizeHint().width();
            QVERIFY2(spare >= 0 && spare < 20, qPrintable(QString::number(spare)));
        }
        m_window->resize(4000, 480);
        QTRY_COMPARE(label->text(), name + QStringLiteral("* - Program"));
    }

    void contentIsReplaced()
    {
        QPointer<QWidget> old = m_window->content();
        auto *fresh = new QFrame;
        m_window->setContent(fresh);
        QVERIFY(old.isNull());
        QCOMPARE(m_window->content(), fresh);
        QTRY_COMPARE(m_window->childAt(300, 200), fresh);
    }

private:
    template <typename Widget> Widget *find(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }

    std::unique_ptr<CorWindow> m_window;
};

QTEST_MAIN(CorWindowTest)
#include "CorWindowTest.moc"
