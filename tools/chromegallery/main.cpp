// SPDX-License-Identifier: GPL-3.0-or-later
// chromegallery [PREFIX]: shows the gallery, or saves it as PREFIX-window.png and
// PREFIX-message.png and ends.
#include "chrome/Theme.h"
#include "chromegallery/Gallery.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    velmora::Theme::install(application);
    velmora::Theme::useProgramFont();
    velmora::Gallery gallery;
    gallery.show();
    if (application.arguments().size() < 2)
        return QApplication::exec();

    const QString prefix = application.arguments().at(1);
    QWidget *message = velmora::Gallery::createMessage(&gallery);
    message->show();
    QApplication::processEvents();
    const bool saved = gallery.grab().save(prefix + QStringLiteral("-window.png")) &&
                       message->grab().save(prefix + QStringLiteral("-message.png"));
    return saved ? 0 : 1;
}
