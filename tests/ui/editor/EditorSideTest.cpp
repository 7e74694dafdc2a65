// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/EditorSide.h"
#include "chrome/Theme.h"
#include "ui/editor/EditorPage.h"

#include <QTabBar>

using namespace velmora;

Q_DECLARE_METATYPE(EditorSide::Mode)

/// The editor page at the sizes that windows have.
class EditorSideTest : public QObject
{
    Q_OBJECT

private:
    bool isShown(const char *name) const { return m->child<QWidget>(name)->isVisible(); }

    std::unique_ptr<EditorPage> m;

private slots:
    void initTestCase() { Theme::install(*qApp); }
    void init() { m = std::make_unique<EditorPage>(); }
    void cleanup() { m.reset(); }

    void asMuchIsShownAsFits_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<EditorSide::Mode>("mode");
        QTest::newRow("small") << QSize(1024, 604) << EditorSide::Mode::Tabs;
        QTest::newRow("usual") << QSize(1440, 804) << EditorSide::Mode::PreviewAndTabs;
        QTest::newRow("large") << QSize(2560, 1340) << EditorSide::Mode::All;
    }
    void asMuchIsShownAsFits()
    {
        QFETCH(QSize, size);
        QFETCH(EditorSide::Mode, mode);
        m->page->resize(size);
        const auto *side = m->child<EditorSide>("editorSide");
        QTRY_VERIFY(side->mode() == mode);
        QCOMPARE(m->page->size(), size);
        auto *tabs = m->child<QTabBar>("sideTabs");
        QCOMPARE(tabs->isVisible(), mode != EditorSide::Mode::All);
        const char *parts[] = {"btnPlay", "btnOutResolution", "tableAudioFiles"};
        const auto isAlways = [mode](int part) {
            return part == 0 ? mode != EditorSide::Mode::Tabs : mode == EditorSide::Mode::All;
        };
        for (int tab = 0; tab < 3; ++tab) {
            if (tabs->isVisible() && !tabs->isTabVisible(tab))
                continue;
            if (tabs->isVisible())
                tabs->setCurrentIndex(tab);
            for (int part = 0; part < 3; ++part)
                QCOMPARE(isShown(parts[part]), isAlways(part) || part == tab);
            QCoreApplication::processEvents();
            QCOMPARE(m->page->size(), size);
        }
        QVERIFY(isShown("btnCreate"));
        // And back, however large it was.
        m->page->resize(1024, 604);
        QTRY_VERIFY(side->mode() == EditorSide::Mode::Tabs);
        QCOMPARE(m->page->size(), QSize(1024, 604));
        QVERIFY(m->page->minimumSizeHint().height() <= 604);
        QVERIFY(m->page->minimumSizeHint().width() <= 1024);
    }

    void longTextsAreShownWhole()
    {
        m->page->resize(1024, 604);
        auto *button = m->child<QPushButton>("btnAddAudio");
        button->setText(QString(20, QLatin1Char('M')));
        m->child<QTabBar>("sideTabs")->setCurrentIndex(2);
        QTRY_VERIFY(button->isVisible());
        QTRY_VERIFY(button->width() >= button->sizeHint().width());
    }

    void previewComesToSight()
    {
        m->page->resize(1024, 604);
        m->addPhotos(QStringLiteral("a"));
        auto *tabs = m->child<QTabBar>("sideTabs");
        QTRY_VERIFY(tabs->isTabVisible(0));
        tabs->setCurrentIndex(1);
        QVERIFY(!isShown("btnPlay"));
        m->click("btnFullPreview");
        QVERIFY(isShown("btnPlay"));
    }
};

QTEST_MAIN(EditorSideTest)
#include "EditorSideTest.moc"
