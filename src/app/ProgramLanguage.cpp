// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramLanguage.h"

#include "app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace velmora
{

namespace
{

bool loadTextsOfQt(QTranslator &translator, const QString &locale)
{
    QStringList folders = Translations::folders();
    folders.append(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    // A locale knows the country of a language, under which Qt files some: "zh" is "zh_CN".
    for (const QString &folder : qAsConst(folders)) {
        if (translator.load(QLocale(locale), QStringLiteral("qtbase"), QStringLiteral("_"), folder))
            return true;
    }
    return false;
}

} // namespace

bool ProgramLanguage::apply(const QString &locale)
{
    if (!m_locale.isNull() && locale == m_locale)
        return m_isTranslated;
    m_locale = locale;
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_textsOfQt);
    if (loadTextsOfQt(m_textsOfQt, locale))
        QCoreApplication::installTranslator(&m_textsOfQt);
    m_isTranslated =
        Translations::load(m_texts, locale) && QCoreApplication::installTranslator(&m_texts);
    return m_isTranslated;
}

} // namespace velmora
