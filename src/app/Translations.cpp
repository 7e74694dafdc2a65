// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Translations.h"

#include "app/AppLog.h"
#include "app/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace velmora
{

namespace
{

const QLatin1String kPrefix("velmora_");
const QLatin1String kSuffix(".qm");

QStringList folders()
{
    QStringList list = {Paths::translationsFolder()};
    if (QCoreApplication::instance()) {
        const QString programs = QCoreApplication::applicationDirPath();
        list << programs + QStringLiteral("/translations")
             << programs + QStringLiteral("/../share/velmora/translations");
    }
    return list;
}

} // namespace

bool Translations::load(QTranslator &translator, const QString &locale)
{
    const QString name = QStringLiteral("velmora_%1.qm").arg(locale);
    bool loaded = false;
    for (const QString &folder : folders()) {
        loaded = translator.load(name, folder, QStringLiteral("_."), kSuffix);
        if (loaded)
            break;
    }
    qCInfo(lcApp).noquote() << "Load translation:" << name << "result:" << loaded;
    return loaded;
}

bool Translations::loadQt(QTranslator &translator, const QString &locale)
{
    // The files of Qt name the country where a language has several ways to write it.
    const QString name = QStringLiteral("qtbase_%1").arg(QLocale(locale).name());
    const QStringList all =
        folders() + QStringList(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    return std::any_of(all.begin(), all.end(), [&](const QString &folder) {
        return translator.load(name, folder, QStringLiteral("_."), kSuffix);
    });
}

QStringList Translations::available()
{
    QStringList codes;
    for (const QString &folder : folders()) {
        const QStringList files =
            QDir(folder).entryList({kPrefix + QLatin1Char('*') + kSuffix}, QDir::Files);
        for (const QString &file : files)
            codes.append(file.mid(kPrefix.size(), file.size() - kPrefix.size() - kSuffix.size()));
    }
    codes.removeDuplicates();
    codes.sort();
    return codes;
}

} // namespace velmora
