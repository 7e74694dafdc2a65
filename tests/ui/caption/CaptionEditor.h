// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "ui/caption/TextEditWidget.h"
#include "ui/model/ProjectEditor.h"

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QUndoStack>
#include <QtTest>

#include <memory>

namespace velmora
{

/// The caption editor with a project of a title slide and two photos.
class CaptionEditor
{
public:
    CaptionEditor()
    {
        QImage photo(160, 90, QImage::Format_RGB32);
        photo.fill(Qt::darkCyan);
        QStringList files;
        for (const char *name : {"first.png", "second.png"}) {
            files.append(m_folder.filePath(QLatin1String(name)));
            photo.save(files.last());
        }
        settings.resolution = {640, 360};
        project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
        project->addFiles(files, 3, 1);
        editor = std::make_unique<ProjectEditor>(settings);
        editor->setProject(project.get());
        widget = std::make_unique<TextEditWidget>(*editor);
        widget->resize(900, 600);
        widget->show();
        QApplication::setActiveWindow(widget.get());
        QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    }

    template <typename T> T &child(const char *name) const
    {
        T *found = widget->findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("No widget %s", name);
        return *found;
    }
    void click(const char *name) const { QTest::mouseClick(&child<QWidget>(name), Qt::LeftButton); }
    /// Chooses an entry as a user does, with the keyboard.
    static void choose(QComboBox &box, const QString &text)
    {
        const int target = box.findText(text);
        QVERIFY2(target >= 0, qPrintable(text));
        box.setFocus();
        const Qt::Key key = target > box.currentIndex() ? Qt::Key_Down : Qt::Key_Up;
        for (int i = 0; i < box.count() && box.currentIndex() != target; ++i)
            QTest::keyClick(&box, key);
        QCOMPARE(box.currentIndex(), target);
    }
    void edit(ProjectItem *slide) const
    {
        widget->setItem(slide);
        QVERIFY(!widget->isEdited());
    }
    ProjectItem *slide(int row) const { return project->items().at(row); }
    QUndoStack &stack() const { return *editor->undoStack(); }

    AppSettings settings;
    std::unique_ptr<ProjectFile> project;
    std::unique_ptr<ProjectEditor> editor;
    std::unique_ptr<TextEditWidget> widget;

private:
    QTemporaryDir m_folder;
};

} // namespace velmora
