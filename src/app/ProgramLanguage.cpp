// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramLanguage.h"

#include "app/Translations.h"

#include <QCoreApplication>

namespace velmora
{

bool ProgramLanguage::apply(const QString &locale)
{
    if (!m_locale.isNull() && locale == m_locale)
        return m_isTranslated;
    m_locale = locale;
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_textsOfQt);
    if (Translations::loadQt(m_textsOfQt, locale))
        QCoreApplication::installTranslator(&m_textsOfQt);
    m_isTranslated =
        Translations::load(m_texts, locale) && QCoreApplication::installTranslator(&m_texts);
    return m_isTranslated;
}

} // namespace velmora
