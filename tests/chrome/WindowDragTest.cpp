// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/CorWindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <QProcess>
#include <QTest>

#include <csignal>

using namespace velmora;

namespace
{

/// A display of its own with a window manager, for as long as the object lives.
class Desktop
{
public:
    Desktop()
    {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
        if (!m_server.waitForReadyRead())
            qFatal("There is no X server.");
        qputenv("DISPLAY", ':' + m_server.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
        m_manager.start(QStringLiteral("openbox"),
                        {QStringLiteral("--startup"), QStringLiteral("echo ready")});
        if (!m_manager.waitForReadyRead())
            qFatal("There is no window manager.");
    }
    ~Desktop()
    {
        for (QProcess *process : {&m_manager, &m_server}) {
            process->terminate();
            process->waitForFinished();
        }
    }

    void signalManager(int signal) const
    {
        QCOMPARE(::kill(static_cast<pid_t>(m_manager.processId()), signal), 0);
    }

    /// Lets another program use the pointer; nothing is handled here meanwhile.
    static void point(const QString &commands)
    {
        QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), commands.split(QLatin1Char(' '))), 0);
    }

private:
    QProcess m_server;
    QProcess m_manager;
};

} // namespace

/// Drags with a real pointer whose button goes up before the window manager takes over.
class WindowDragTest : public QObject
{
    Q_OBJECT
public:
    explicit WindowDragTest(const Desktop &desktop) : m_desktop(desktop) {}

private slots:
    void initTestCase() { qApp->installEventFilter(this); }

    void init()
    {
        m_window = std::make_unique<CorWindow>();
        m_window->setContent(new QWidget);
        m_window->setGeometry(200, 150, 500, 300);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void dragThatIsOverAtOnce_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QPoint>("way"); // By which the window moves in the end.
        QTest::newRow("title bar") << QPoint(250, 20) << QPoint(140, 140);
        QTest::newRow("corner") << QPoint(498, 298) << QPoint(0, 0);
    }

    void dragThatIsOverAtOnce()
    {
        QFETCH(QPoint, at);
        QFETCH(QPoint, way);
        const QPoint before = m_window->pos();
        Desktop::point(
            pressAt(at) +
            QStringLiteral(" mousemove_relative 20 20 mousemove_relative 120 120 mouseup 1"));
        QTRY_COMPARE(m_window->pos(), before + way);
        QVERIFY(!followsThePointer());
        QCOMPARE(m_window->size(), QSize(500, 300));
    }

    void buttonIsHeld()
    {
        beginDrag({250, 20}, 20);
        QTRY_VERIFY(followsThePointer());
        const QByteArray before = geometry();
        Desktop::point(QStringLiteral("mouseup 1"));
        QTRY_VERIFY(!followsThePointer());
        QVERIFY(geometry() == before);
    }

    /// The window manager learns of the drag only when the button is up.
    void buttonGoesUpUnseen()
    {
        beginDrag({250, 20}, 1);
        m_desktop.signalManager(SIGSTOP);
        const QPoint before = m_seen;
        Desktop::point(QStringLiteral("mousemove_relative 30 30"));
        QTRY_COMPARE(m_seen, before + QPoint(30, 30));
        Desktop::point(QStringLiteral("mouseup 1"));
        m_desktop.signalManager(SIGCONT);
        QTRY_VERIFY(!followsThePointer());
    }

    void handlesResize_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QRect>("expected"); // After 40 px to the right and 24 px down.
        QTest::newRow("left") << QPoint(1, 150) << QRect(240, 150, 460, 300);
        QTest::newRow("right") << QPoint(498, 150) << QRect(200, 150, 540, 300);
        QTest::newRow("top") << QPoint(250, 1) << QRect(200, 174, 500, 276);
        QTest::newRow("bottom") << QPoint(250, 298) << QRect(200, 150, 500, 324);
        QTest::newRow("top left") << QPoint(1, 1) << QRect(240, 174, 460, 276);
        QTest::newRow("top right") << QPoint(498, 1) << QRect(200, 174, 540, 276);
        QTest::newRow("bottom left") << QPoint(1, 298) << QRect(240, 150, 460, 324);
        QTest::newRow("bottom right") << QPoint(498, 298) << QRect(200, 150, 540, 324);
    }

    void handlesResize()
    {
        QFETCH(QPoint, at);
        QFETCH(QRect, expected);
        const QPoint begin = m_window->mapToGlobal(at);
        const QPoint end = begin + QPoint(40, 24);
        m_isPressed = false;
        Desktop::point(pressAt(at));
        QTRY_VERIFY(m_isPressed);
        // The window manager takes over a little later.
        const QByteArray before = geometry();
        const auto isTakenOver = [&] {
            geometryWithPointerAt(begin.x(), begin.y());
            return geometryWithPointerAt(end.x(), end.y()) != before;
        };
        QTRY_VERIFY(isTakenOver());
        Desktop::point(QStringLiteral("mouseup 1"));
        QTRY_COMPARE(m_window->geometry(), expected);
    }

    void maximisedWindowComesBack()
    {
        const QRect before = m_window->geometry();
        m_window->toggleMaximised();
        QTRY_COMPARE(m_window->geometry(), QRect(0, 0, 1280, 800));
        QCOMPARE(m_window->frameRect(), m_window->rect());
        m_window->toggleMaximised();
        QTRY_COMPARE(m_window->geometry(), before);
    }

private:
    /// Place and size as the X server has them; the window manager tells them only after a drag.
    QByteArray geometry() const
    {
        QProcess tool;
        tool.start(QStringLiteral("xdotool"),
                   {QStringLiteral("getwindowgeometry"), QString::number(m_window->winId())});
        return tool.waitForFinished() ? tool.readAllStandardOutput() : QByteArray();
    }

    QString pressAt(QPoint place) const
    {
        const QPoint at = m_window->mapToGlobal(place);
        return QStringLiteral("mousemove %1 %2 mousedown 1").arg(at.x()).arg(at.y());
    }

    /// Presses there, moves a little and waits until this program has handled it.
    void beginDrag(QPoint place, int way)
    {
        const QPoint at = m_window->mapToGlobal(place);
        Desktop::point(pressAt(place) + QStringLiteral(" mousemove_relative %1 %1").arg(way));
        QTRY_COMPARE(m_seen, at + QPoint(way, way));
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove)
            m_seen = static_cast<QMouseEvent *>(event)->globalPos();
        m_isPressed |= event->type() == QEvent::MouseButtonPress;
        return QObject::eventFilter(watched, event);
    }

    QByteArray geometryWithPointerAt(int x, int y) const
    {
        Desktop::point(QStringLiteral("mousemove %1 %2").arg(x).arg(y));
        // The window manager shows this one only after it has handled the movement.
        QWidget next(nullptr, Qt::FramelessWindowHint);
        next.setAttribute(Qt::WA_ShowWithoutActivating);
        next.show();
        return QTest::qWaitForWindowExposed(&next) ? geometry() : QByteArray();
    }

    bool followsThePointer() const
    {
        const QByteArray before = geometryWithPointerAt(600, 400);
        return geometryWithPointerAt(640, 440) != before;
    }

    const Desktop &m_desktop;
    std::unique_ptr<CorWindow> m_window;
    QPoint m_seen; ///< Where the pointer was in the newest event.
    bool m_isPressed = false;
};

int main(int argc, char *argv[])
{
    const Desktop desktop;
    QApplication application(argc, argv);
    WindowDragTest test(desktop);
    return QTest::qExec(&test, argc, argv);
}
#include "WindowDragTest.moc"
