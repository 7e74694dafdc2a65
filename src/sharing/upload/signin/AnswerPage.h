// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The page that the browser shows after a sign-in, made from a template in the resources. What
/// cannot be read is logged and left out. GUI thread.
class AnswerPage
{
public:
    /// Reads the template once.
    AnswerPage();

    QString success() const;
    QString failure() const;

private:
    QString build(const QString &image, const QString &first, const QString &second) const;

    QString m_template;
};

} // namespace velmora
