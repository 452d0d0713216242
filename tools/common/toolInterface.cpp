#include "common/toolInterface.h"

#include "common/toolDocuments.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>

namespace kestrova::tools {

namespace {

Failure usageFailure(ToolInterface const & tool, QString const & message)
{
    return {ExitUsage, message + QStringLiteral("; see %1 --help").arg(QLatin1String(tool.name))};
}

int findCommand(ToolInterface const & tool, QString const & name)
{
    auto const & commands = tool.commands;
    auto const found = std::find_if(commands.begin(), commands.end(), [&](CommandInterface const & command) {
        return name == QLatin1String(command.name);
    });
    if (found == commands.end())
        throw usageFailure(tool, QStringLiteral("there is no command '%1'").arg(name));
    return static_cast<int>(found - commands.begin());
}

bool takesWords(CommandInterface const & command, int count)
{
    int const parameters = static_cast<int>(command.parameters.size());
    QString const last = parameters != 0 ? command.parameters.last() : QString();
    int const needed = last.startsWith(QLatin1Char('[')) ? parameters - 1 : parameters;
    return count >= needed && (count <= parameters || last.contains(QLatin1String("...")));
}

bool hasOption(std::vector<Option> const & options, QString const & name)
{
    return std::any_of(options.begin(), options.end(),
                       [&](Option const & option) { return name == QLatin1String(option.name); });
}

/// The options of the tool and of all its commands, each name once.
std::vector<Option> allOptions(ToolInterface const & tool)
{
    std::vector<Option> options = tool.options;
    for (CommandInterface const & command : tool.commands) {
        for (Option const & option : command.options) {
            if (!hasOption(options, QLatin1String(option.name)))
                options.push_back(option);
        }
    }
    return options;
}

/// Qt takes "-12" for options named 1 and 2. With a mark in front it takes it for a word.
QChar const numberMark = QChar(QChar::ReplacementCharacter);

QStringList withNumbersMarked(QStringList const & arguments)
{
    static QRegularExpression const negativeNumber(QStringLiteral("^(-\\.?[0-9])"));
    QStringList marked = arguments;
    return marked.replaceInStrings(negativeNumber, numberMark + QStringLiteral("\\1"));
}

QStringList withoutMarks(QStringList words)
{
    for (QString & word : words) {
        if (word.startsWith(numberMark))
            word.remove(0, 1);
    }
    return words;
}

QHash<QString, QStringList> readOptions(QCommandLineParser const & parser, ToolInterface const & tool,
                                        CommandInterface const & command)
{
    QHash<QString, QStringList> values;
    for (Option const & option : allOptions(tool)) {
        QString const name = QLatin1String(option.name);
        if (!parser.isSet(name))
            continue;
        if (!hasOption(tool.options, name) && !hasOption(command.options, name))
            throw usageFailure(
                tool, QStringLiteral("--%1 is no option of '%2'").arg(name, QLatin1String(command.name)));
        values.insert(name, withoutMarks(parser.values(name)));
    }
    return values;
}

/// What is printed instead of an answer.
std::optional<QString> askedText(QCommandLineParser const & parser, ToolInterface const & tool,
                                 QStringList const & words)
{
    if (parser.isSet(QStringLiteral("version")))
        return QStringLiteral("%1 %2\n").arg(QLatin1String(tool.name), tool.version);
    if (parser.isSet(QStringLiteral("print-manual-page")))
        return manualPage(tool);
    if (parser.isSet(QStringLiteral("print-completion")))
        return bashCompletion(tool);
    if (!parser.isSet(QStringLiteral("help")))
        return {};
    if (words.isEmpty())
        return toolHelp(tool);
    auto const command = static_cast<std::size_t>(findCommand(tool, words.first()));
    return commandHelp(tool, tool.commands.at(command));
}

} // namespace

QString signatureOf(CommandInterface const & command)
{
    return QStringList(QStringList{QLatin1String(command.name)} + command.parameters).join(QLatin1Char(' '));
}

ParsedArguments parseArguments(ToolInterface const & tool, QStringList const & arguments)
{
    QCommandLineParser parser;
    for (Option const & option : allOptions(tool))
        parser.addOption(
            QCommandLineOption(QLatin1String(option.name), QString(), QLatin1String(option.value)));
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("help"), QStringLiteral("h")}));
    for (char const * const name : {"version", "print-manual-page", "print-completion"})
        parser.addOption(QCommandLineOption(QLatin1String(name)));
    if (!parser.parse(QStringList{QLatin1String(tool.name)} + withNumbersMarked(arguments)))
        throw usageFailure(tool, parser.errorText().chopped(1));

    ParsedArguments parsed;
    QStringList words = withoutMarks(parser.positionalArguments());
    parsed.text = askedText(parser, tool, words);
    if (parsed.text)
        return parsed;
    if (words.isEmpty())
        throw usageFailure(tool, QStringLiteral("which command?"));
    parsed.command = findCommand(tool, words.takeFirst());
    CommandInterface const & command = tool.commands.at(static_cast<std::size_t>(parsed.command));
    parsed.options = readOptions(parser, tool, command);
    if (!takesWords(command, static_cast<int>(words.size())))
        throw usageFailure(
            tool, QStringLiteral("usage: %1 %2").arg(QLatin1String(tool.name), signatureOf(command)));
    parsed.words = words;
    return parsed;
}

} // namespace kestrova::tools
