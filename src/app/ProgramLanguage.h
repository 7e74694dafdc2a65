// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTranslator>

namespace velmora
{

/// The language of the application's texts, those that Qt brings included, such as the buttons of
/// its file dialogs. Main thread, with an application object.
class ProgramLanguage
{
public:
    /// Installs the texts for @p locale in place of those before; does nothing if they are
    /// installed already. False: the program's own texts are English.
    bool apply(const QString &locale);

private:
    QString m_locale; ///< Null: none was applied yet.
    bool m_isTranslated = false;
    QTranslator m_texts;
    QTranslator m_textsOfQt;
};

} // namespace velmora
