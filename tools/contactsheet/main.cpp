// SPDX-License-Identifier: GPL-3.0-or-later
#include "contactsheet/ContactSheet.h"
#include "contactsheet/SamplePictures.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QImageReader>
#include <QTextStream>

using namespace velmora;

namespace
{

int fail(const QString &text)
{
    QTextStream(stderr) << text << '\n';
    return 2;
}

/// The photo cut and scaled to fill the frame; null if it cannot be read.
QImage loadPhoto(const QString &fileName, const QSize &size)
{
    QImageReader reader(fileName);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull())
        return image;
    const QImage filling =
        image.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((filling.width() - size.width()) / 2,
                        (filling.height() - size.height()) / 2);
    return filling.copy(QRect(corner, size)).convertToFormat(QImage::Format_RGB32);
}

/// "640x480"; empty if it is no size.
QSize parseSize(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('x'));
    const QSize size = parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
    return size.isEmpty() || size.width() > 8192 || size.height() > 8192 ? QSize() : size;
}

QVector<int> parsePercents(const QString &text)
{
    QVector<int> percents;
    for (const QString &part : text.split(QLatin1Char(',')))
        percents.append(part.toInt());
    return percents;
}

QVector<TransitionType> parseEffects(const QStringList &names)
{
    QVector<TransitionType> effects;
    for (const QString &name : names) {
        if (transitionByName(name) >= 0)
            effects.append(static_cast<TransitionType>(transitionByName(name)));
    }
    if (names.isEmpty()) {
        for (int type = 0; type < kTransitionCount; ++type) {
            if (static_cast<TransitionType>(type) != TransitionType::Random)
                effects.append(static_cast<TransitionType>(type));
        }
    }
    return effects;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Shows the transition effects at several moments on one picture."));
    parser.addHelpOption();
    parser.addOptions(
        {{QStringLiteral("size"), QStringLiteral("Size in which frames are rendered."),
          QStringLiteral("WxH"), QStringLiteral("960x540")},
         {QStringLiteral("tile"), QStringLiteral("Size in which frames are shown."),
          QStringLiteral("WxH"), QStringLiteral("240x135")},
         {QStringLiteral("effect"), QStringLiteral("Only this effect; may be repeated."),
          QStringLiteral("name")},
         {QStringLiteral("at"), QStringLiteral("Moments in percent."), QStringLiteral("list"),
          QStringLiteral("0,25,50,75,98")},
         {QStringLiteral("columns"), QStringLiteral("Effects beside each other."),
          QStringLiteral("number"), QStringLiteral("1")},
         {QStringLiteral("quality"), QStringLiteral("Quality of the file, 1 to 100."),
          QStringLiteral("number"), QStringLiteral("85")}});
    parser.addPositionalArgument(QStringLiteral("output"), QStringLiteral("The file to write."));
    parser.addPositionalArgument(QStringLiteral("from to"),
                                 QStringLiteral("Two photos instead of the painted pictures."),
                                 QStringLiteral("[from to]"));
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1 && files.size() != 3)
        return fail(parser.helpText());

    const QSize size = parseSize(parser.value(QStringLiteral("size")));
    ContactSheet sheet;
    sheet.tile = parseSize(parser.value(QStringLiteral("tile")));
    sheet.effects = parseEffects(parser.values(QStringLiteral("effect")));
    sheet.percents = parsePercents(parser.value(QStringLiteral("at")));
    sheet.columns = qBound(1, parser.value(QStringLiteral("columns")).toInt(), 10);
    if (size.isEmpty() || sheet.tile.isEmpty() || sheet.effects.isEmpty())
        return fail(QStringLiteral("A size or the name of an effect is wrong."));
    sheet.from = files.size() == 3 ? loadPhoto(files[1], size) : paintDayPicture(size);
    sheet.to = files.size() == 3 ? loadPhoto(files[2], size) : paintNightPicture(size);
    if (sheet.from.isNull() || sheet.to.isNull())
        return fail(QStringLiteral("A photo cannot be read."));
    const int quality = qBound(1, parser.value(QStringLiteral("quality")).toInt(), 100);
    if (!sheet.paint().save(files[0], nullptr, quality))
        return fail(QStringLiteral("The picture cannot be written to %1.").arg(files[0]));
    return 0;
}
