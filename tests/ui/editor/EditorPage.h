// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "chrome/MessageDialog.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/ProjectFile.h"
#include "ui/editor/CreatePanel.h"
#include "ui/editor/MainWindowWidget.h"
#include "ui/editor/SlideTable.h"
#include "ui/model/SlideTableModel.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

#include <memory>

namespace velmora
{

/// The editor page with an empty project, settings and a data folder of its own.
class EditorPage
{
public:
    EditorPage()
    {
        qputenv("VELMORA_DATA_DIR", m_folder.path().toUtf8());
        settings.folder = m_folder.path();
        settings.resolution = {640, 480};
        settings.defaultTime = 1;
        settings.transitionTime = 1;
        history = std::make_unique<HistoryStore>(path("history.json"), settings);
        project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
        project->setFormat(QStringLiteral("mp4"));
        page = std::make_unique<MainWindowWidget>(settings, *history);
        page->setProject(project.get());
        page->resize(1200, 800);
        page->show();
        QApplication::setActiveWindow(page.get());
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    }
    ~EditorPage() { page.reset(); }

    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    template <typename T> T *child(const char *name) const
    {
        return page->findChild<T *>(QLatin1String(name));
    }
    SlideTable &table() const { return *child<SlideTable>("tableView"); }
    void click(const char *name) const { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }
    const QVector<ProjectItem *> &items() const { return project->items(); }
    QStringList names() const
    {
        QStringList names;
        for (const ProjectItem *slide : items())
            names.append(slide->title());
        return names;
    }

    /// The first letters of the photos' names.
    QString letters() const
    {
        QString letters;
        for (const QString &name : names().mid(1))
            letters += name.at(0);
        return letters;
    }

    QString makePhoto(const QString &name, const QColor &color = Qt::darkGreen) const
    {
        const QString file = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(file).path());
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(color);
        return image.save(file) ? file : QString();
    }

    /// "a.png", "b.png" ... for the letters, through the page as a drop after that row.
    void addPhotos(const QString &letters, int row = -1) const
    {
        QStringList paths;
        for (const QChar letter : letters)
            paths.append(makePhoto(letter + QStringLiteral(".png")));
        const int count = items().size() + paths.size();
        page->onFilesDropped(paths, row);
        QTRY_COMPARE(items().size(), count);
    }

    void select(const QVector<int> &rows) const
    {
        QItemSelection selection;
        for (const int row : rows)
            selection.select(table().model()->index(row, 0), table().model()->index(row, 3));
        table().selectionModel()->setCurrentIndex(table().model()->index(rows.first(), 0),
                                                  QItemSelectionModel::NoUpdate);
        table().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        QCoreApplication::processEvents(); // the controls follow once for all changes
    }

    void nameVideo(const QString &name) const { child<QLineEdit>("txtProjName")->setText(name); }
    /// Has CREATE fail, and waits until that is told.
    void createInVain()
    {
        page->createPanel().composer().setProgram(path("none"));
        answerNext(0);
        click("btnCreate");
        QTRY_VERIFY(!message().isEmpty());
    }

    /// Answers the next message dialog; message() then has what it said.
    void answerNext(int button)
    {
        m_message.clear();
        m_details.clear();
        auto *timer = new QTimer(page.get());
        QObject::connect(timer, &QTimer::timeout, page.get(), [this, timer, button] {
            auto *dialog = qobject_cast<MessageDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer->deleteLater();
            m_message = dialog->findChild<QLabel *>(QStringLiteral("lblText"))->text();
            const auto *more = dialog->findChild<QPlainTextEdit *>();
            m_details = more ? more->toPlainText() : QString();
            dialog->findChild<QPushButton *>(QStringLiteral("button%1").arg(button))->click();
        });
        timer->start(10);
    }
    const QString &message() const { return m_message; }
    const QString &details() const { return m_details; }

    AppSettings settings;
    std::unique_ptr<HistoryStore> history;
    std::unique_ptr<ProjectFile> project;
    std::unique_ptr<MainWindowWidget> page;

private:
    QTemporaryDir m_folder;
    QString m_message;
    QString m_details;
};

} // namespace velmora
