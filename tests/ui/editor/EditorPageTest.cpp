// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/ProjectFile.h"
#include "ui/editor/CreatePanel.h"
#include "ui/editor/MainWindowWidget.h"
#include "ui/model/ValueLists.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace velmora;

class EditorPageTest : public QObject
{
    Q_OBJECT

private:
    template <typename T> T *child(const char *name) const
    {
        return m_page->findChild<T *>(QLatin1String(name));
    }

    void click(const char *name) const { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }

    const QVector<ProjectItem *> &items() const { return m_project->items(); }

    void addPhotos(int count)
    {
        QStringList paths;
        for (int i = 0; i < count; ++i) {
            const QString path = m_folder->filePath(QStringLiteral("photo%1.png").arg(i));
            QImage image(64, 48, QImage::Format_RGB32);
            image.fill(QColor::fromHsv(i * 40, 200, 200));
            QVERIFY(image.save(path));
            paths.append(path);
        }
        m_page->onFilesDropped(paths, -1);
        QTRY_COMPARE(items().size(), count + 1);
    }

    /// Presses @p button of the next message box and keeps the box's text.
    void answerNext(QMessageBox::StandardButton button)
    {
        m_message.clear();
        auto *timer = new QTimer(m_page.get());
        connect(timer, &QTimer::timeout, this, [this, timer, button] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            timer->deleteLater();
            m_message = box->text();
            box->button(button) ? box->button(button)->click() : box->reject();
        });
        timer->start(10);
    }

    AppSettings m_settings;
    QString m_message;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HistoryStore> m_history;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<MainWindowWidget> m_page;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("VELMORA_DATA_DIR", m_folder->path().toUtf8());
        m_settings = AppSettings();
        m_settings.folder = m_folder->path();
        m_settings.resolution = {640, 480};
        m_settings.defaultTime = 1;
        m_settings.transitionTime = 1;
        m_history = std::make_unique<HistoryStore>(m_folder->filePath(QStringLiteral("h.json")),
                                                   m_settings);
        m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
        m_project->setFormat(QStringLiteral("mp4"));
        m_page = std::make_unique<MainWindowWidget>(m_settings, *m_history);
        m_page->setProject(m_project.get());
        m_page->resize(1200, 800);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }

    void cleanup()
    {
        m_page.reset();
        m_project.reset();
        m_history.reset();
    }

    void buttonsEditTheSelection()
    {
        addPhotos(3);
        const QVector<ProjectItem *> before = items();
        child<QTableView>("tableView")->selectRow(1);
        click("btnDown");
        QCOMPARE(items().at(2), before.at(1));
        click("m_btnRotate");
        QCOMPARE(before.at(1)->angle(), 90);
        QCOMPARE(before.at(2)->angle(), 0);
        QTest::keyClick(child<QTableView>("tableView"), Qt::Key_Delete);
        QCOMPARE(items().size(), 3);
        QTest::keyClick(m_page.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(items().size(), 4);
        click("btnClear");
        QCOMPARE(items().size(), 1);
        QVERIFY(!items().first()->isShown());
        QVERIFY(!child<QPushButton>("btnCreate")->isEnabled());
        click("btnRestore");
        QVERIFY(items().first()->isShown());
    }

    void changeAllSetsEverySlide()
    {
        addPhotos(2);
        emit child<QPopupButton>("btnDefaultTime")->valueSelected(7);
        for (const ProjectItem *slide : items())
            QCOMPARE(slide->time(), 7);
        const qint64 length = (3 * 7 + 2 * 1 + 1) * 1000; // the title's caption appears for 1 s
        QVERIFY(child<QPushButton>("btnTotal")->text().endsWith(ValueLists::durationText(length)));
    }

    void forbiddenNameStartsNothing()
    {
        QSignalSpy started(m_page.get(), &MainWindowWidget::progressStarted);
        child<QLineEdit>("txtProjName")->setText(QStringLiteral("a:b"));
        answerNext(QMessageBox::Ok);
        click("btnCreate");
        QCOMPARE(m_message, QStringLiteral("Project name should not contain any of these symbols: "
                                           "*:[]{}\\/!"));
        QCOMPARE(started.count(), 0);
    }

    void createMakesTheVideo()
    {
        addPhotos(1);
        QSignalSpy finished(m_page.get(), &MainWindowWidget::finished);
        QSignalSpy ended(m_page.get(), &MainWindowWidget::progressFinished);
        child<QLineEdit>("txtProjName")->setText(QStringLiteral("video!"));
        click("btnCreate");
        QCOMPARE(child<QStackedWidget>("tcCreate")->currentIndex(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 120000);
        QCOMPARE(finished.count(), 1);
        const QString file = m_folder->filePath(QStringLiteral("video!.mp4"));
        QVERIFY(QFileInfo(file).size() > 1000);
        QCOMPARE(m_history->projects().size(), std::size_t(1));
        QCOMPARE(m_history->projects().front()->fileName(), file);
        QCOMPARE(child<QStackedWidget>("tcCreate")->currentIndex(), 0);
    }

    void existingVideoIsKeptOnNo()
    {
        addPhotos(1);
        QFile file(m_folder->filePath(QStringLiteral("old.mp4")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QSignalSpy started(m_page.get(), &MainWindowWidget::progressStarted);
        child<QLineEdit>("txtProjName")->setText(QStringLiteral("old"));
        answerNext(QMessageBox::No);
        click("btnCreate");
        QVERIFY(!m_message.isEmpty());
        QCOMPARE(started.count(), 0);
    }

    void cancelReturnsToTheSetup()
    {
        addPhotos(2);
        QSignalSpy ended(m_page.get(), &MainWindowWidget::progressFinished);
        click("btnCreate");
        click("btnPauseResume");
        QVERIFY(m_page->createPanel().composer().isPaused());
        click("btnCancel");
        QCOMPARE(ended.count(), 1);
        QCOMPARE(child<QStackedWidget>("tcCreate")->currentIndex(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!m_page->createPanel().composer().isRunning(), 30000);
        QCOMPARE(m_history->projects().size(), std::size_t(0));
    }

    void failureIsTold()
    {
        QSignalSpy ended(m_page.get(), &MainWindowWidget::progressFinished);
        QSignalSpy finished(m_page.get(), &MainWindowWidget::finished);
        m_page->createPanel().composer().setProgram(m_folder->filePath(QStringLiteral("none")));
        answerNext(QMessageBox::Close);
        click("btnCreate");
        QTRY_COMPARE(ended.count(), 1);
        QCOMPARE(m_message, QStringLiteral("Creation error"));
        QCOMPARE(finished.count(), 0);
    }
};

QTEST_MAIN(EditorPageTest)
#include "EditorPageTest.moc"
