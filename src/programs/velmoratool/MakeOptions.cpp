// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/MakeOptions.h"

#include "app/AppSettings.h"
#include "generator/pipeline/OutputTarget.h"
#include "project/slides/TransitionType.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kLongestTime = 86400;     // s
constexpr int kLongestTransition = 600; // s
const QLatin1String kPrefix("--");

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(velmora::MakeOptions)
};

enum class Values { None, One, Many };

/// Stores one value (an empty one for options without) and returns a sentence if it is unusable.
using Store = QString (*)(MakeOptions &options, const QString &value);

struct Option {
    const char *name;
    Values values;
    bool fitsProject; ///< Whether it may stand beside "--project".
    Store store;
};

QString storeNumber(std::optional<int> &target, const QString &value, int low, int high)
{
    bool valid = false;
    const int number = value.toInt(&valid);
    if (!valid || number < low || number > high)
        return Texts::tr("\"%1\" is not a whole number from %2 to %3.")
            .arg(value, QString::number(low), QString::number(high));
    target = number;
    return {};
}

QString storeText(QString &target, const QString &value)
{
    target = value;
    return value.trimmed().isEmpty() ? Texts::tr("The text is empty.") : QString();
}

QString storeSize(MakeOptions &options, const QString &value)
{
    options.size = resolutionFromText(value);
    return options.size.isValid() ? QString()
                                  : Texts::tr("\"%1\" is not a size such as 1920x1080.").arg(value);
}

QString storeTransition(MakeOptions &options, const QString &value)
{
    options.transition = transitionByName(value);
    if (*options.transition >= 0)
        return {};
    QStringList names;
    for (const TransitionType type : transitionMenuOrder())
        names << transitionName(static_cast<int>(type));
    return Texts::tr("There is no transition \"%1\". There are: %2.")
        .arg(value, names.join(QLatin1String(", ")));
}

QString storeOrder(MakeOptions &options, const QString &value)
{
    if (value == QLatin1String("given"))
        options.order = MakeOptions::Order::Given;
    else if (value == QLatin1String("name"))
        options.order = MakeOptions::Order::Name;
    else if (value == QLatin1String("date"))
        options.order = MakeOptions::Order::Date;
    else
        return Texts::tr("\"%1\" is none of name, date and given.").arg(value);
    return {};
}

QString storeProfile(MakeOptions &options, const QString &value)
{
    options.profile = outputProfileFromKey(value);
    return outputProfileKey(*options.profile) == value
               ? QString()
               : Texts::tr("\"%1\" is neither original nor everywhere.").arg(value);
}

QString storeOutput(MakeOptions &options, const QString &value)
{
    options.output = value;
    if (OutputTarget::knownSuffixes().contains(QFileInfo(value).suffix().toLower()))
        return {};
    return Texts::tr("The name of the video \"%1\" must end in one of: %2.")
        .arg(value, QLatin1Char('.') + OutputTarget::knownSuffixes().join(QLatin1String(", .")));
}

template <bool MakeOptions::*Flag> QString raise(MakeOptions &options, const QString &)
{
    options.*Flag = true;
    return {};
}

template <QStringList MakeOptions::*List> QString append(MakeOptions &options, const QString &value)
{
    (options.*List) << value;
    return value.isEmpty() ? Texts::tr("A file name is empty.") : QString();
}

template <QString MakeOptions::*Text> QString text(MakeOptions &options, const QString &value)
{
    return storeText(options.*Text, value);
}

template <std::optional<int> MakeOptions::*Number, int Low, int High>
QString number(MakeOptions &options, const QString &value)
{
    return storeNumber(options.*Number, value, Low, High);
}

constexpr Option kOptions[] = {
    {"photos", Values::Many, false, append<&MakeOptions::photos>},
    {"music", Values::Many, false, append<&MakeOptions::music>},
    {"output", Values::One, true, storeOutput},
    {"size", Values::One, true, storeSize},
    {"time", Values::One, false, number<&MakeOptions::time, 1, kLongestTime>},
    {"transition", Values::One, false, storeTransition},
    {"transition-length", Values::One, false,
     number<&MakeOptions::transitionSeconds, 1, kLongestTransition>},
    {"title", Values::One, false, text<&MakeOptions::title>},
    {"captions-from-names", Values::None, false, raise<&MakeOptions::captionsFromNames>},
    {"fade", Values::One, false, number<&MakeOptions::fade, 0, kLongestTime>},
    {"offset", Values::One, false, number<&MakeOptions::offset, -kLongestTime, kLongestTime>},
    {"loop", Values::None, false, raise<&MakeOptions::loop>},
    {"stretch", Values::None, false, raise<&MakeOptions::stretch>},
    {"original-size", Values::None, false, raise<&MakeOptions::originalSize>},
    {"sort", Values::One, false, storeOrder},
    {"parallel", Values::None, true, raise<&MakeOptions::parallel>},
    {"profile", Values::One, true, storeProfile},
    {"project", Values::One, true, text<&MakeOptions::projectFile>},
    {"dump-project", Values::One, true, text<&MakeOptions::dumpFile>},
    {"json", Values::None, true, raise<&MakeOptions::json>},
    {"help", Values::None, true, raise<&MakeOptions::help>},
    {"version", Values::None, true, raise<&MakeOptions::version>},
};

class Parser
{
public:
    explicit Parser(const QStringList &arguments) : m_arguments(arguments) {}

    /// A sentence about what is wrong, or an empty text.
    QString parse();
    const MakeOptions &options() const { return m_options; }

private:
    QString parseOption(const QString &argument);
    QString storeValues(const Option &option, bool attached, const QString &attachedValue);
    QString storeValue(const Option &option, const QString &value);
    QString checkCombination() const;
    bool atValue() const;

    QStringList m_arguments;
    int m_next = 0;
    QSet<QString> m_given;
    MakeOptions m_options;
};

QString Parser::parse()
{
    while (m_next < m_arguments.size()) {
        const QString argument = m_arguments.at(m_next++);
        if (argument == QLatin1String("-h")) {
            m_options.help = true;
            continue;
        }
        if (!argument.startsWith(kPrefix))
            return Texts::tr("\"%1\" belongs to no option.").arg(argument);
        const QString error = parseOption(argument.mid(kPrefix.size()));
        if (!error.isEmpty())
            return error;
    }
    return m_options.help || m_options.version ? QString() : checkCombination();
}

QString Parser::parseOption(const QString &argument)
{
    const int equals = argument.indexOf(QLatin1Char('='));
    const QString name = argument.left(equals);
    const auto *const option =
        std::find_if(std::begin(kOptions), std::end(kOptions), [&name](const Option &candidate) {
            return name == QLatin1String(candidate.name);
        });
    if (option == std::end(kOptions))
        return Texts::tr("There is no option --%1.").arg(name);
    m_given.insert(name);
    return storeValues(*option, equals >= 0, argument.mid(equals + 1));
}

QString Parser::storeValues(const Option &option, bool attached, const QString &attachedValue)
{
    const QLatin1String name(option.name);
    if (option.values == Values::None)
        return attached ? Texts::tr("--%1 takes no value.").arg(name)
                        : option.store(m_options, QString());
    if (attached)
        return storeValue(option, attachedValue);
    if (!atValue())
        return Texts::tr("--%1 needs a value.").arg(name);
    QString error = storeValue(option, m_arguments.at(m_next++));
    while (error.isEmpty() && option.values == Values::Many && atValue())
        error = storeValue(option, m_arguments.at(m_next++));
    return error;
}

QString Parser::storeValue(const Option &option, const QString &value)
{
    const QString error = option.store(m_options, value);
    return error.isEmpty() ? QString()
                           : QStringLiteral("--%1: %2").arg(QLatin1String(option.name), error);
}

/// A single hyphen may open a value, such as a negative number.
bool Parser::atValue() const
{
    return m_next < m_arguments.size() && !m_arguments.at(m_next).startsWith(kPrefix);
}

QString Parser::checkCombination() const
{
    const bool fromProject = !m_options.projectFile.isEmpty();
    for (const Option &option : kOptions) {
        if (fromProject && !option.fitsProject && m_given.contains(QLatin1String(option.name)))
            return Texts::tr("--%1 cannot be combined with --project, which has its own.")
                .arg(QLatin1String(option.name));
    }
    if (!fromProject && m_options.photos.isEmpty())
        return Texts::tr("--photos or --project is needed.");
    if (!fromProject && m_options.output.isEmpty() && m_options.dumpFile.isEmpty())
        return Texts::tr("--output is needed.");
    if (m_options.stretch && m_options.originalSize)
        return Texts::tr("--stretch and --original-size exclude each other.");
    return {};
}

} // namespace

std::optional<MakeOptions> parseMakeOptions(const QStringList &arguments, QString *error)
{
    Parser parser(arguments);
    *error = parser.parse();
    if (!error->isEmpty())
        return {};
    return parser.options();
}

} // namespace velmora
