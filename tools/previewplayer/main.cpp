// SPDX-License-Identifier: GPL-3.0-or-later
// previewplayer PROJECT [WIDTH HEIGHT [PREFIX]]: shows a saved project in the preview area and
// plays it. With PREFIX saves how it looks stopped, playing and full as PREFIX-*.png and ends.
#include "app/AppSettings.h"
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "ui/model/ProjectEditor.h"
#include "ui/preview/PreviewWidget.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

using namespace velmora;

namespace
{

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool takePictures(PreviewWidget &preview, ProjectFile &project, const QString &prefix)
{
    const auto save = [&](const char *name) {
        return preview.grab().save(prefix + QLatin1Char('-') + QLatin1String(name) +
                                   QStringLiteral(".png"));
    };
    waitFor(1000);
    bool saved = save("stopped");
    preview.setSlide(project.items().value(2));
    preview.previewSlide();
    waitFor(1200);
    saved = save("transition") && saved;
    preview.playFull();
    waitFor(4000);
    return save("slideshow") && saved;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Theme::install(application);
    const QStringList arguments = QApplication::arguments();
    AppSettings settings;
    QString error;
    const auto project = ProjectFile::loadFromFile(arguments.value(1), settings, &error);
    if (!project)
        qFatal("%s", qPrintable(error));
    ProjectEditor editor(settings);
    editor.setProject(project.get());
    PreviewWidget preview(editor, settings);
    preview.resize(arguments.value(2, QStringLiteral("360")).toInt(),
                   arguments.value(3, QStringLiteral("420")).toInt());
    preview.show();
    if (arguments.size() > 4)
        return takePictures(preview, *project, arguments.at(4)) ? 0 : 1;
    return QApplication::exec();
}
