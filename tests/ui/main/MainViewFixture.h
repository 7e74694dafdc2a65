// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AppSettings.h"
#include "app/ServicesConfig.h"
#include "helpers/DialogDriver.h"
#include "platform/DesktopNotification.h"
#include "platform/FileManager.h"
#include "platform/TaskbarProgress.h"
#include "project/documents/HistoryStore.h"
#include "project/slides/ProjectItemSimple.h"
#include "sharing/upload/UploadController.h"
#include "ui/editor/MainWindowWidget.h"
#include "ui/main/MainView.h"
#include "ui/main/ProjectDocument.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QtTest>

namespace velmora
{

class RecordedTaskbar : public TaskbarProgress
{
public:
    void setWindow(QWindow *shown) override { window = shown; }
    void setVisible(bool shown) override { visible = shown; }
    void setPaused(bool on) override { paused = on; }
    void setValue(int percent) override { value = percent; }

    QWindow *window = nullptr;
    bool visible = false;
    bool paused = false;
    int value = -1;
};

class RecordedNotification : public DesktopNotification
{
public:
    void show(const QString &, const QString &text) override { texts.append(text); }

    QStringList texts;
};

class RecordedFileManager : public FileManager
{
public:
    bool showInFolder(const QString &path) override
    {
        paths.append(path);
        return true;
    }

    QStringList paths;
};

/// A main view on a data folder of its own.
class MainViewFixture
{
public:
    MainViewFixture()
    {
        qputenv("VELMORA_DATA_DIR", folder.path().toUtf8());
        store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
        settings.folder = folder.path();
        settings.locale = QStringLiteral("en");
        history = std::make_unique<HistoryStore>(folder.filePath(QStringLiteral("history.json")),
                                                 settings);
        uploads = std::make_unique<UploadController>(services, *store);
    }
    ~MainViewFixture() { view.reset(); }

    void show()
    {
        view.reset();
        view = std::make_unique<MainView>(MainView::Parts{
            settings, *store, services, *history, *uploads, taskbar, notification, fileManager});
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
        QApplication::setActiveWindow(view.get());
    }

    template <typename T> T *child(const char *name) const
    {
        return view->findChild<T *>(QLatin1String(name));
    }
    void click(const char *name) const { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }

    /// Presses a key in the window, which a closed dialog may have left inactive.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QApplication::setActiveWindow(view.get());
        QTest::keyClick(view.get(), static_cast<Qt::Key>(key), modifiers);
    }

    /// Types file names into the next file dialog; none: cancels it.
    void chooseFiles(const QStringList &files)
    {
        dialogs.expect([this, files](QDialog *dialog) {
            auto *fileDialog = qobject_cast<QFileDialog *>(dialog);
            if (!fileDialog)
                return dialog->reject();
            dialogFilters = fileDialog->nameFilters();
            dialogFolder = fileDialog->directory().absolutePath();
            if (files.isEmpty())
                return dialog->reject();
            QStringList quoted;
            for (const QString &file : files)
                quoted.append(QLatin1Char('"') + file + QLatin1Char('"'));
            auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            const QString text = quoted.size() == 1 ? files.first() : quoted.join(QLatin1Char(' '));
            // A file of the name that is proposed is selected, and would be the choice.
            dialog->findChild<QListView *>(QStringLiteral("listView"))->clearSelection();
            name->setText(text);
            const auto *buttons = dialog->findChild<QDialogButtonBox *>();
            const auto accept = fileDialog->acceptMode() == QFileDialog::AcceptSave
                                    ? QDialogButtonBox::Save
                                    : QDialogButtonBox::Open;
            QTest::mouseClick(buttons->button(accept), Qt::LeftButton);
        });
    }

    QString makePhoto(const QString &name) const
    {
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        const QString path = folder.filePath(name);
        return image.save(path) ? path : QString();
    }

    /// The file names of the open project's photos.
    QStringList photos() const
    {
        QStringList names;
        if (!view->document().project())
            return {QStringLiteral("no project")};
        for (const ProjectItem *slide : view->document().project()->items()) {
            if (const auto *photo = qobject_cast<const ProjectItemSimple *>(slide))
                names.append(QFileInfo(photo->fileName()).fileName());
        }
        return names;
    }

    /// Has the history list the slideshow of a video of that name.
    void addToHistory(const char *video)
    {
        auto entry = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
        entry->setFileName(folder.filePath(QLatin1String(video)));
        history->add(std::move(entry));
    }

    /// Opens an unsaved slideshow of one photo.
    void beginSlideshow()
    {
        view->openFiles({makePhoto(QStringLiteral("begin.png"))});
        QTRY_COMPARE(photos(), QStringList(QStringLiteral("begin.png")));
    }

    QTemporaryDir folder;
    std::unique_ptr<QSettings> store;
    AppSettings settings;
    ServicesConfig services;
    std::unique_ptr<HistoryStore> history;
    std::unique_ptr<UploadController> uploads;
    RecordedTaskbar taskbar;
    RecordedNotification notification;
    RecordedFileManager fileManager;
    DialogDriver dialogs;
    QStringList dialogFilters; ///< Of the last file dialog.
    QString dialogFolder;
    std::unique_ptr<MainView> view;
};

} // namespace velmora
