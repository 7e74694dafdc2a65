// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"

#include "chrome/ChromeLog.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QHash>
#include <QPalette>
#include <QStringList>
#include <QStyleFactory>

#include <cmath>

// Q_INIT_RESOURCE declares a function, which must not land in a namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(images);
}

namespace velmora
{

namespace
{

QFont bodyFont()
{
    const QString family = QStringLiteral("Segoe UI");
    QFont::insertSubstitutions(family, {QStringLiteral("Open Sans"), QStringLiteral("Noto Sans")});
    QFont font(family);
    font.setPixelSize(Theme::BodySize);
    return font;
}

QPalette lightPalette()
{
    QPalette palette(QColor(Theme::Surface), QColor(Theme::Window));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, QColor(Theme::Text));
    palette.setColor(QPalette::Base, QColor(Theme::Surface));
    palette.setColor(QPalette::AlternateBase, QColor(Theme::Window));
    palette.setColor(QPalette::ToolTipBase, QColor(Theme::Surface));
    palette.setColor(QPalette::PlaceholderText, QColor(Theme::SecondaryText));
    palette.setColor(QPalette::Highlight, QColor(Theme::AccentPale));
    palette.setColor(QPalette::HighlightedText, QColor(Theme::Text));
    palette.setColor(QPalette::Link, QColor(Theme::Primary));
    palette.setColor(QPalette::LinkVisited, QColor(Theme::Primary));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(Theme::DisabledText));
    return palette;
}

QString readStyleSheet()
{
    QFile file(QStringLiteral(":/style.css"));
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcChrome).noquote() << "Cannot read the style sheet:" << file.errorString();
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

QString imagePath(const QString &name)
{
    return QStringLiteral(":/images/images/%1.png").arg(name);
}

/// The icons made so far: delegates ask for theirs at each paint.
QHash<QString, QIcon> &knownIcons()
{
    static QHash<QString, QIcon> icons;
    static const bool cleared = [] {
        // Pictures must not outlive the application.
        qAddPostRoutine([] { icons.clear(); });
        return true;
    }();
    Q_UNUSED(cleared)
    return icons;
}

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

void Theme::install(QApplication &application)
{
    initialiseResources();
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(lightPalette());
    QApplication::setFont(bodyFont());
    QApplication::setWindowIcon(applicationIcon());
    application.setStyleSheet(readStyleSheet());
}

void Theme::useProgramFont()
{
    constexpr int kSize = 11; // px
    QFont font(QStringLiteral("Segoe UI"));
    font.setPixelSize(kSize);
    QApplication::setFont(font);
}

QIcon Theme::icon(const QString &name, bool accent)
{
    QIcon &icon = knownIcons()[name + (accent ? QStringLiteral("/accent") : QString())];
    if (icon.isNull()) {
        icon = QIcon(imagePath(name));
        if (accent)
            icon.addFile(imagePath(name + QStringLiteral("-accent")), {}, QIcon::Normal, QIcon::On);
    }
    return icon;
}

QIcon Theme::applicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(imagePath(QStringLiteral("velmora-%1").arg(size)));
    return icon;
}

double Theme::contrast(const QColor &first, const QColor &second)
{
    const double a = luminance(first);
    const double b = luminance(second);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace velmora
