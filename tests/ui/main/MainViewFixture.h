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

#include <QFileInfo>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace velmora
{

class RecordedTaskbar : public TaskbarProgress
{
public:
    void setWindow(QWindow *shown) override { window = shown; }
    void setVisible(bool shown) override { visible = shown; }
    void setPaused(bool) override {}
    void setValue(int percent) override { value = percent; }

    QWindow *window = nullptr;
    bool visible = false;
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
    std::unique_ptr<MainView> view;
};

} // namespace velmora
