#include "commandLine.h"

#include "command.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>

namespace kestrova::authoring {

namespace {

struct Option {
    char const * name;
    char const * parameter; ///< empty for an option without value
    char const * help;
};

constexpr Option sqlOption{"sql", "TEXT.sql", "make the database that the statements of this text make"};
constexpr Option forceOption{"force", "", "replace the file if it is there already"};
constexpr Option formatOption{"format", "4|3", "the version of the page format (4 if not given)"};
constexpr Option jsonOption{"json", "", "print JSON; docs/database-format.md explains its keys"};
constexpr Option helpOption{"help", "", "print this text, or that of a command"};
constexpr Option versionOption{"version", "", "print the version"};

constexpr std::array<Option, 6> allOptions = {sqlOption,  forceOption, formatOption,
                                              jsonOption, helpOption,  versionOption};

QString const exitCodes =
    QStringLiteral("Exit codes: 0 ok, 2 wrong use, 3 not found, 4 trouble with a database.\n");

QString optionText(Option const & option)
{
    QString const signature =
        QStringLiteral("--%1 %2").arg(QLatin1String(option.name), QLatin1String(option.parameter));
    return QStringLiteral("  %1%2\n").arg(signature.leftJustified(17), QLatin1String(option.help));
}

QString signature(Command const & command)
{
    return QStringList(QStringList{QLatin1String(command.name)} + command.parameters).join(QLatin1Char(' '));
}

QString generalHelp()
{
    QString text =
        QStringLiteral("usage: devicelore-db COMMAND ARGUMENT... [OPTION...]\n\n"
                       "Makes and examines the database files that describe devices.\n\nCommands:\n");
    for (Command const & command : commands())
        text += QStringLiteral("  %1%2\n")
                    .arg(signature(command).leftJustified(19), QLatin1String(command.summary));
    return text + QLatin1String("\nOptions, beside those of each command:\n") + optionText(helpOption) +
           optionText(versionOption) + QLatin1Char('\n') + exitCodes;
}

QString commandHelp(Command const & command)
{
    QString text = QStringLiteral("usage: devicelore-db %1 [OPTION...]\n\n").arg(signature(command)) +
                   QString::fromUtf8(command.description) + QLatin1String("\nOptions:\n");
    for (Option const & option : allOptions) {
        if (command.options.contains(QLatin1String(option.name)))
            text += optionText(option);
    }
    return text + optionText(helpOption) + QLatin1Char('\n') + exitCodes;
}

Failure usageFailure(QString const & message)
{
    return {ExitUsage, message + QStringLiteral("; see devicelore-db --help")};
}

Command const * findCommand(QString const & name)
{
    auto const found = std::find_if(commands().begin(), commands().end(), [&](Command const & command) {
        return name == QLatin1String(command.name);
    });
    if (found == commands().end())
        throw usageFailure(QStringLiteral("there is no command '%1'").arg(name));
    return &*found;
}

sqlcipher::PageFormat const * findFormat(QString const & version)
{
    auto const found = std::find_if(
        sqlcipher::pageFormats.begin(), sqlcipher::pageFormats.end(),
        [&](sqlcipher::PageFormat const & format) { return version == QString::number(format.version); });
    if (found == sqlcipher::pageFormats.end())
        throw usageFailure(QStringLiteral("--format takes 4 or 3, not '%1'").arg(version));
    return &*found;
}

void refuseForeignOptions(QCommandLineParser const & parser, Command const & command)
{
    for (QString const & option : parser.optionNames()) {
        if (!command.options.contains(option))
            throw usageFailure(QStringLiteral("'%1' takes no --%2").arg(QLatin1String(command.name), option));
    }
}

QCommandLineOption parserOption(Option const & option)
{
    return {QLatin1String(option.name), QString(), QLatin1String(option.parameter)};
}

bool isSet(QCommandLineParser const & parser, Option const & option)
{
    return parser.isSet(QLatin1String(option.name));
}

QString value(QCommandLineParser const & parser, Option const & option)
{
    return parser.value(QLatin1String(option.name));
}

} // namespace

CommandLine readCommandLine(QStringList const & arguments)
{
    QCommandLineParser parser;
    for (Option const & option : allOptions)
        parser.addOption(parserOption(option));
    parser.addOption(QCommandLineOption(QStringLiteral("h")));
    if (!parser.parse(QStringList{QStringLiteral("devicelore-db")} + arguments))
        throw usageFailure(parser.errorText().chopped(1));

    CommandLine line;
    bool const wantsHelp = isSet(parser, helpOption) || parser.isSet(QStringLiteral("h"));
    QStringList words = parser.positionalArguments();
    if (isSet(parser, versionOption)) {
        line.text = QStringLiteral("devicelore-db " KESTROVA_VERSION "\n");
        return line;
    }
    if (words.isEmpty()) {
        if (!wantsHelp)
            throw usageFailure(QStringLiteral("which command?"));
        line.text = generalHelp();
        return line;
    }
    line.command = findCommand(words.takeFirst());
    if (wantsHelp) {
        line.text = commandHelp(*line.command);
        return line;
    }
    refuseForeignOptions(parser, *line.command);
    if (words.size() != line.command->parameters.size())
        throw usageFailure(QStringLiteral("usage: devicelore-db %1").arg(signature(*line.command)));
    line.arguments = words;
    if (isSet(parser, sqlOption))
        line.sqlFile = value(parser, sqlOption);
    line.force = isSet(parser, forceOption);
    if (isSet(parser, formatOption))
        line.format = findFormat(value(parser, formatOption));
    line.json = isSet(parser, jsonOption);
    return line;
}

} // namespace kestrova::authoring
