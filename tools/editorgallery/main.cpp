// SPDX-License-Identifier: GPL-3.0-or-later
// editorgallery FOLDER LANGUAGE WIDTHxHEIGHT PHOTOS...: saves every page of the main window, which
// is of that size, as a picture.
#include "app/AppSettings.h"
#include "app/Identity.h"
#include "app/Translations.h"
#include "chrome/Theme.h"
#include "project/frames/CaptionFont.h"
#include "ui/main/PageTour.h"

#include <QApplication>
#include <QDir>
#include <QTranslator>

using namespace velmora;

int main(int argc, char **argv)
{
    applyIdentity();
    QApplication application(argc, argv);
    Theme::install(application);
    registerFontSubstitutes();
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 5) {
        qCritical("Usage: editorgallery FOLDER LANGUAGE WIDTHxHEIGHT PHOTOS...");
        return 2;
    }
    const QDir folder(arguments.at(1));
    QTranslator translator;
    if (Translations::load(translator, arguments.at(2)))
        QCoreApplication::installTranslator(&translator);
    MainViewFixture fixture;
    fixture.settings.locale = arguments.at(2);
    fixture.settings.outputProfile = QStringLiteral("original");
    fixture.settings.resolution = QSize(1920, 1080);
    PageTour tour(fixture, [&folder](const QString &name, QWidget &page) {
        QTest::qWait(2000); // Thumbnails and previews come later than the page.
        page.grab().save(folder.filePath(name + QStringLiteral(".png")));
    });
    tour.setWindowSize(resolutionFromText(arguments.at(3)));
    tour.run(arguments.mid(4));
    return 0;
}
