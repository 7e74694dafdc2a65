// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/EditorSide.h"
#include "chrome/Theme.h"
#include "ui/editor/EditorPage.h"

#include <QSignalSpy>
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
    void init()
    {
        m = std::make_unique<EditorPage>();
        QVERIFY(m->isShown);
    }
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
        const QStringList parts = {QStringLiteral("btnPlay"), QStringLiteral("btnOutResolution"),
                                   QStringLiteral("tableAudioFiles")};
        for (int tab = 0; tab < parts.size(); ++tab) {
            if (!tabs->isVisible() || !tabs->isTabVisible(tab))
                continue;
            tabs->setCurrentIndex(tab);
            QVERIFY(isShown(qPrintable(parts.at(tab))));
            for (int other = mode == EditorSide::Mode::Tabs ? 0 : 1; other < parts.size(); ++other)
                QCOMPARE(isShown(qPrintable(parts.at(other))), other == tab);
            QCoreApplication::processEvents();
            QCOMPARE(m->page->size(), size);
        }
        if (mode != EditorSide::Mode::Tabs)
            QVERIFY(isShown("btnPlay"));
        if (mode == EditorSide::Mode::All)
            QVERIFY(isShown("btnOutResolution") && isShown("tableAudioFiles"));
        QVERIFY(isShown("btnCreate"));
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

    void windowBecomesSmallAgain()
    {
        const auto *side = m->child<EditorSide>("editorSide");
        m->page->resize(2560, 1340);
        QTRY_VERIFY(side->mode() == EditorSide::Mode::All);
        m->page->resize(1024, 604);
        QTRY_VERIFY(side->mode() == EditorSide::Mode::Tabs);
        QCOMPARE(m->page->size(), QSize(1024, 604));
        QVERIFY(m->page->minimumSizeHint().height() <= 604);
        QVERIFY(m->page->minimumSizeHint().width() <= 1024);
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
