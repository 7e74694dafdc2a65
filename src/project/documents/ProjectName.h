// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QDateTime;

namespace velmora
{

/// The rule for project names, which become file names.
namespace ProjectName
{

/// Whether @p name has none of the forbidden symbols. An empty name has none.
bool isAllowed(const QString &name);
/// The file name that is proposed for a video made at @p time.
QString proposal(const QDateTime &time);
/// Whether @p name was proposed, at any time.
bool isProposal(const QString &name);
/// What to tell the user about a name that is not allowed.
QString forbiddenMessage();

} // namespace ProjectName

} // namespace velmora
