// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Log.h"

#include <QRegularExpression>

namespace velmora
{

namespace
{

// All loops over a value are possessive: a long text can then not exhaust the matcher, which would
// leave it unmasked.
const QString kNames = QStringLiteral("(?:access_token|refresh_token|client_secret|authorization)");
const QString kNotInName = QStringLiteral("(?:(?<![A-Za-z0-9_])|(?<=%26|%3F))");
// A value in quotes, plain or escaped inside another quoted text; debug output of containers puts
// a type before it.
const QString kQuotedValue = QStringLiteral(
    R"((?:QVariant\(\w+,\s*)?(?:"(?:\\.|[^"\\])*+"?|'(?:\\.|[^'\\])*+'?|\\+"(?:(?!\\+")[\s\S])*+))");
const QString kBareValue = QStringLiteral(R"([^\s&"'<>,;)}\]\\]++)");
const QString kEncodedValue = QStringLiteral(R"((?:(?!%26)[^\s&"'<>,;)}\]\\])++)");

struct Rule {
    QRegularExpression pattern;
    QString replacement;
};

Rule makeRule(const QString &key, const QString &value, bool anyCase)
{
    return {QRegularExpression(QLatin1Char('(') + kNotInName + key + QLatin1Char(')') + value,
                               anyCase ? QRegularExpression::CaseInsensitiveOption
                                       : QRegularExpression::NoPatternOption),
            QStringLiteral("\\1***")};
}

// In this order: what an earlier rule masked does not hide from a later one.
const QVector<Rule> &rules()
{
    const QString endOfName = QStringLiteral(R"((?:\\*["'])?\s*[:=,]\s*)");
    const QString endOfQuotedName = QStringLiteral(R"(\\*["']\s*[:=,]\s*)");
    static const QVector<Rule> list = {
        // A header line: its value may hold spaces and quotes, so the whole line goes.
        makeRule(QStringLiteral("authorization[ \\t]*:[ \\t]*"), QStringLiteral("[^\\r\\n]++"),
                 true),
        makeRule(kNames + endOfName, kQuotedValue, true),
        makeRule(kNames + endOfName, kBareValue, true),
        makeRule(kNames + QStringLiteral("%3D"), kEncodedValue, true),
        makeRule(QStringLiteral("bearer[ \\t]+"), kBareValue, true),
        // "code" is also a common word: only forms that carry an authorisation code are masked, not
        // "Exit Code:0" or the number of an error in a JSON answer.
        makeRule(QStringLiteral("code") + endOfQuotedName, kQuotedValue, false),
        makeRule(QStringLiteral("code="), kQuotedValue, false),
        makeRule(QStringLiteral("code="), kBareValue, false),
        makeRule(QStringLiteral("code%3D"), kEncodedValue, false),
    };
    return list;
}

} // namespace

QString Log::maskSecrets(const QString &text)
{
    QString masked = text;
    for (const Rule &rule : rules())
        masked.replace(rule.pattern, rule.replacement);
    return masked;
}

} // namespace velmora
