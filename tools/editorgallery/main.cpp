// SPDX-License-Identifier: GPL-3.0-or-later
// editorgallery FOLDER LANGUAGE WIDTHxHEIGHT PHOTOS...: saves the splash screen, every page of the
// main window, which is of that size, and its dialogs as pictures.
#include "app/AppSettings.h"
#include "app/Identity.h"
#include "app/Translations.h"
#include "chrome/Theme.h"
#include "programs/velmora/SplashScreen.h"
#include "project/frames/CaptionFont.h"
#include "ui/main/PageTour.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTranslator>

using namespace velmora;

namespace
{

const QString &videoFolder()
{
    static const QString folder = QStringLiteral("/home/anna/Videos");
    return folder;
}

/// Names a folder as users have it, in place of the temporary one.
void showHome(QWidget &page, const QString &temporary)
{
    const auto replace = [&](auto *widget, auto set) {
        QString text = widget->property("plainText").isValid()
                           ? widget->property("plainText").toString()
                           : widget->property("text").toString();
        if (text.contains(temporary))
            (widget->*set)(text.replace(temporary, videoFolder()));
    };
    for (QLabel *label : page.findChildren<QLabel *>())
        replace(label, &QLabel::setText);
    for (QLineEdit *field : page.findChildren<QLineEdit *>())
        replace(field, &QLineEdit::setText);
    for (QPlainTextEdit *field : page.findChildren<QPlainTextEdit *>())
        replace(field, &QPlainTextEdit::setPlainText);
}

void saveSplash(const QString &fileName)
{
    SplashScreen splash;
    splash.show();
    splash.showMessage(SplashScreen::texts().last(), Qt::AlignLeft, Qt::black);
    QTest::qWait(300);
    splash.grab().save(fileName);
}

} // namespace

int main(int argc, char **argv)
{
    applyIdentity();
    QApplication application(argc, argv);
    Theme::install(application);
    Theme::useProgramFont();
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
    saveSplash(folder.filePath(QStringLiteral("splash.png")));
    PageTour tour(fixture, [&](const QString &name, QWidget &page) {
        showHome(page, fixture.folder.path());
        QTest::qWait(2000); // Thumbnails and previews come later than the page.
        page.grab().save(folder.filePath(name + QStringLiteral(".png")));
    });
    tour.setWindowSize(resolutionFromText(arguments.at(3)));
    tour.run(arguments.mid(4));
    return 0;
}
