// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helpers/Files.h"
#include "ui/main/DialogTour.h"
#include "ui/main/MainViewFixture.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QTableView>

#include <functional>

namespace velmora
{

/// Opens every page, panel and dialog of the main window, one after the other.
class PageTour
{
public:
    /// @p name is fit for a file name; @p page is what is shown.
    using Look = std::function<void(const QString &name, QWidget &page)>;

    PageTour(MainViewFixture &fixture, Look look) : m_fixture(fixture), m_look(std::move(look)) {}

    /// @p photos: the files of the slideshow, at least one.
    void run(const QStringList &photos)
    {
        m_fixture.show();
        m_fixture.view->resize(m_size);
        look("start");
        m_fixture.view->document().begin();
        m_fixture.child<QStackedWidget>("pages")->setCurrentIndex(MainView::Editor);
        look("editor-empty");
        m_fixture.view->openFiles(photos);
        QTRY_COMPARE(m_fixture.photos().size(), photos.size());
        lookAtEditor();
        lookAtCaptions();
        lookAtPanels();
        lookAtHistory();
        m_fixture.child<QStackedWidget>("pages")->setCurrentIndex(MainView::Editor);
        if (m_isWithDialogs)
            DialogTour(m_fixture, m_settle, m_look).run();
    }

    void setWindowSize(const QSize &size) { m_size = size; }
    /// They do not depend on the size of the window.
    void leaveOutDialogs() { m_isWithDialogs = false; }

private:
    void look(const char *name)
    {
        QTest::qWait(m_settle);
        m_look(QLatin1String(name), *m_fixture.view);
    }

    void lookAtEditor()
    {
        auto *tabs = m_fixture.child<QTabBar>("sideTabs");
        if (tabs && tabs->isVisible()) {
            const char *names[] = {"editor-preview", "editor-video", "editor-audio"};
            QCOMPARE(tabs->count(), 3);
            for (int i = 0; i < 3; ++i) {
                tabs->setCurrentIndex(i);
                look(names[i]);
            }
            tabs->setCurrentIndex(0);
        } else {
            look("editor");
        }
        auto *create = m_fixture.child<QStackedWidget>("tcCreate");
        create->setCurrentIndex(1);
        look("editor-progress");
        create->setCurrentIndex(0);
    }

    void lookAtCaptions()
    {
        auto *table = m_fixture.child<QTableView>("tableView");
        const char *names[] = {"caption-title", "caption-slide"};
        for (int row = 0; row < 2; ++row) {
            table->selectRow(row);
            table->setFocus();
            m_fixture.press(Qt::Key_F2);
            QTRY_VERIFY(m_fixture.view->editorPage().isEditingText());
            look(names[row]);
            m_fixture.click("butCancelText");
            QTRY_VERIFY(!m_fixture.view->editorPage().isEditingText());
        }
    }

    void lookAtPanels()
    {
        m_fixture.click("btnSettings");
        QTest::qWait(m_settle);
        look("settings");
        m_fixture.view->onSettingsHide();
        m_fixture.dialogs.expect([this](QDialog *dialog) {
            QTest::qWait(m_settle);
            m_look(QStringLiteral("help"), *dialog);
            dialog->reject();
        });
        m_fixture.view->onBtnHelpClicked();
        QTRY_COMPARE(m_fixture.dialogs.failure(), QString());
    }

    /// With a video, and with one whose file is gone.
    void lookAtHistory()
    {
        m_fixture.click("btnHistory");
        look("history-empty");
        m_fixture.addToHistory("Norway.mp4");
        m_fixture.addToHistory("Birthday 2026.mp4");
        QVERIFY(writeFile(m_fixture.folder.filePath(QStringLiteral("Birthday 2026.mp4")),
                          QByteArray(3000000, 'x')));
        m_fixture.view->onBtnHistoryClicked();
        look("history");
    }

    MainViewFixture &m_fixture;
    Look m_look;
    QSize m_size{1024, 700}; ///< px
    bool m_isWithDialogs = true;
    static constexpr int m_settle = 350; ///< ms: longer than the panels' animations
};

} // namespace velmora
