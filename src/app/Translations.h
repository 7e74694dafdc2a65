// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QTranslator;

namespace velmora
{

/// The translation files "velmora_%1.qm", %1 being the language code. The user's "/translations"
/// folder comes before those that were installed with the program.
namespace Translations
{

/// Where the files are looked for, in this order.
QStringList folders();

/// Loads the file for @p locale ("de", also for "de_AT" when there is no nearer one) and logs the
/// result. False when there is none or it is damaged: the program then runs untranslated.
bool load(QTranslator &translator, const QString &locale);

/// The codes for which there are files, sorted.
QStringList available();

} // namespace Translations

} // namespace velmora
