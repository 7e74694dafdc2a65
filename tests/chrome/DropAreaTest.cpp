// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/DropArea.h"
#include "chrome/Theme.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace velmora;

class DropAreaTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::install(*qApp); }

    void init()
    {
        m_area = std::make_unique<DropArea>();
        m_area->setPrompt(QStringLiteral("Drop your photos here"));
        m_area->resize(500, 400);
        m_area->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_area.get()));
    }

    void dropIsOneBatch()
    {
        QStringList calls;
        connect(m_area.get(), &DropArea::dropBegin, this,
                [&calls] { calls << QStringLiteral("begin"); });
        connect(m_area.get(), &DropArea::fileDropped, this,
                [&calls](const QString &file) { calls << file; });
        connect(m_area.get(), &DropArea::dropEnd, this,
                [&calls] { calls << QStringLiteral("end"); });
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QStringLiteral("/b.png")),
                      QUrl::fromLocalFile(QStringLiteral("/a.png"))});
        QVERIFY(enter(data));
        QDropEvent drop({60, 60}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_area.get(), &drop);
        QCOMPARE(calls, QStringList({QStringLiteral("begin"), QStringLiteral("/b.png"),
                                     QStringLiteral("/a.png"), QStringLiteral("end")}));
    }

    void lightsUpDuringTheDragOfFiles()
    {
        const QPoint inside(30, 30);
        QCOMPARE(m_area->grab().toImage().pixel(inside), Theme::Surface);
        QMimeData data;
        data.setText(QStringLiteral("/a.png"));
        QVERIFY(!enter(data));
        QCOMPARE(m_area->grab().toImage().pixel(inside), Theme::Surface);
        data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.png"))});
        QVERIFY(enter(data));
        QCOMPARE(m_area->grab().toImage().pixel(inside), Theme::AccentPale);
        QDragLeaveEvent leave;
        QApplication::sendEvent(m_area.get(), &leave);
        QCOMPARE(m_area->grab().toImage().pixel(inside), Theme::Surface);
    }

    void keyboardAndMouseActivate()
    {
        QSignalSpy activated(m_area.get(), &DropArea::activated);
        QTest::keyClick(m_area.get(), Qt::Key_Return);
        QTest::keyClick(m_area.get(), Qt::Key_Space);
        QTest::keyClick(m_area.get(), Qt::Key_A);
        QCOMPARE(activated.size(), 2);
        QTest::mouseClick(m_area.get(), Qt::LeftButton);
        QTest::mouseClick(m_area.get(), Qt::RightButton);
        QCOMPARE(activated.size(), 3);
        // A press inside that is released outside was thought better of.
        QTest::mousePress(m_area.get(), Qt::LeftButton);
        QTest::mouseRelease(m_area.get(), Qt::LeftButton, Qt::NoModifier, {-10, -10});
        QCOMPARE(activated.size(), 3);
    }

    void buttonInsideDoesNotActivate()
    {
        auto *button = new QPushButton(QStringLiteral("Add Photo"));
        m_area->addWidget(button);
        QSignalSpy activated(m_area.get(), &DropArea::activated);
        QSignalSpy clicked(button, &QPushButton::clicked);
        QTRY_VERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(activated.size(), 0);
    }

private:
    bool enter(QMimeData &data)
    {
        QDragEnterEvent event({60, 60}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        // As the window system hands it over: refused until a widget takes it.
        event.ignore();
        QApplication::sendEvent(m_area.get(), &event);
        return event.isAccepted();
    }

    std::unique_ptr<DropArea> m_area;
};

QTEST_MAIN(DropAreaTest)
#include "DropAreaTest.moc"
