#include "commandLine.h"

#include <kestrovaDevicelore.h>

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace kestrova::inspector {

namespace {

QString const exitCodes =
    QStringLiteral("Exit codes: 0 ok, 2 wrong use, 3 not found, 4 trouble with a database.\n");

QString const optionsText =
    QStringLiteral("Options:\n"
                   "  --databases DIR     ask the databases (*.db3) of this folder too, behind those that "
                   "lie beside the tool;\n"
                   "                      may be given several times\n"
                   "  --access-level N    the level of the caller, 0 to 255 (1 if not given)\n"
                   "  --json              print JSON; docs/command-line.md explains its keys\n"
                   "  --help              print this text, or that of a command\n"
                   "  --version           print the version of the library\n");

QString signature(Command const & command)
{
    return QStringList(QStringList{QLatin1String(command.name)} + command.parameters).join(QLatin1Char(' '));
}

int widestSignature()
{
    int width = 0;
    for (Command const & command : commands())
        width = std::max(width, static_cast<int>(signature(command).size()));
    return width;
}

QString generalHelp()
{
    QString text =
        QStringLiteral("usage: devicelore COMMAND [ARGUMENT...] [OPTION...]\n\n"
                       "Answers questions about devices from their description databases.\n\nCommands:\n");
    for (Command const & command : commands())
        text += QStringLiteral("  %1  %2\n")
                    .arg(signature(command).leftJustified(widestSignature()), QLatin1String(command.summary));
    return text + QLatin1Char('\n') + optionsText + QLatin1Char('\n') + exitCodes;
}

QString ownOptionsText(Command const & command)
{
    if (command.options.empty())
        return {};
    QString text = QStringLiteral("Options of this command:\n");
    for (CommandOption const & option : command.options) {
        QString const use =
            QStringLiteral("--%1 %2").arg(QLatin1String(option.name), QLatin1String(option.value)).trimmed();
        text += QStringLiteral("  %1%2\n").arg(use.leftJustified(20), QLatin1String(option.summary));
    }
    return text + QLatin1Char('\n');
}

QString commandHelp(Command const & command)
{
    return QStringLiteral("usage: devicelore %1 [OPTION...]\n\n").arg(signature(command)) +
           QString::fromUtf8(command.description) + QLatin1Char('\n') + ownOptionsText(command) +
           optionsText + QLatin1Char('\n') + exitCodes;
}

QString versionText()
{
    int major = 0;
    int minor = 0;
    int bugfix = 0;
    Morvel::Devicelore::libVersion(bugfix, minor, major);
    return QStringLiteral("devicelore %1.%2.%3\n").arg(major).arg(minor).arg(bugfix);
}

Failure usageFailure(QString const & message)
{
    return {ExitUsage, message + QStringLiteral("; see devicelore --help")};
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

bool takesWords(Command const & command, int count)
{
    int const parameters = static_cast<int>(command.parameters.size());
    QString const last = parameters != 0 ? command.parameters.last() : QString();
    int const needed = last.endsWith(QLatin1Char(']')) ? parameters - 1 : parameters;
    return count >= needed && (count <= parameters || last.endsWith(QLatin1String("...]")));
}

/// The options of all commands, each name once.
std::map<QString, CommandOption> ownOptions()
{
    std::map<QString, CommandOption> options;
    for (Command const & command : commands()) {
        for (CommandOption const & option : command.options)
            options.emplace(QLatin1String(option.name), option);
    }
    return options;
}

bool hasOption(Command const & command, QString const & name)
{
    return std::any_of(command.options.begin(), command.options.end(),
                       [&](CommandOption const & option) { return name == QLatin1String(option.name); });
}

/// Qt takes "-12" for options named 1 and 2. With a mark in front it takes it for a word.
QChar const numberMark = QChar(QChar::ReplacementCharacter);

QStringList withNumbersMarked(QStringList const & arguments)
{
    static QRegularExpression const negativeNumber(QStringLiteral("^(-\\.?[0-9])"));
    QStringList marked = arguments;
    return marked.replaceInStrings(negativeNumber, numberMark + QStringLiteral("\\1"));
}

QString withoutMark(QString const & word)
{
    return word.startsWith(numberMark) ? word.mid(1) : word;
}

QHash<QString, QString> readOwnOptions(QCommandLineParser const & parser, Command const & command)
{
    QHash<QString, QString> values;
    for (auto const & [name, option] : ownOptions()) {
        if (!parser.isSet(name))
            continue;
        if (!hasOption(command, name))
            throw usageFailure(
                QStringLiteral("--%1 is no option of '%2'").arg(name, QLatin1String(command.name)));
        values.insert(name, option.value != nullptr ? withoutMark(parser.value(name)) : QString());
    }
    return values;
}

unsigned char readAccessLevel(QString const & text)
{
    bool isNumber = false;
    int const level = text.toInt(&isNumber);
    if (!isNumber || level < 0 || level > 255)
        throw usageFailure(QStringLiteral("--access-level takes a number from 0 to 255, not '%1'").arg(text));
    return static_cast<unsigned char>(level);
}

} // namespace

CommandLine readCommandLine(QStringList const & givenArguments)
{
    QStringList const arguments = withNumbersMarked(givenArguments);
    QCommandLineOption const databases(QStringLiteral("databases"), QString(), QStringLiteral("DIR"));
    QCommandLineOption const accessLevel(QStringLiteral("access-level"), QString(), QStringLiteral("N"));
    QCommandLineOption const json(QStringLiteral("json"));
    QCommandLineOption const help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    QCommandLineOption const version(QStringLiteral("version"));
    QCommandLineParser parser;
    parser.addOptions({databases, accessLevel, json, help, version});
    for (auto const & [name, option] : ownOptions())
        parser.addOption(QCommandLineOption(name, QString(), QLatin1String(option.value)));
    if (!parser.parse(QStringList{QStringLiteral("devicelore")} + arguments))
        throw usageFailure(parser.errorText().chopped(1));

    CommandLine line;
    QStringList words;
    for (QString const & word : parser.positionalArguments())
        words.append(withoutMark(word));
    if (parser.isSet(version)) {
        line.text = versionText();
        return line;
    }
    if (words.isEmpty()) {
        if (!parser.isSet(help))
            throw usageFailure(QStringLiteral("which command?"));
        line.text = generalHelp();
        return line;
    }
    line.command = findCommand(words.takeFirst());
    if (parser.isSet(help)) {
        line.text = commandHelp(*line.command);
        return line;
    }
    if (!takesWords(*line.command, static_cast<int>(words.size())))
        throw usageFailure(QStringLiteral("usage: devicelore %1").arg(signature(*line.command)));
    line.arguments = {words, readOwnOptions(parser, *line.command)};
    line.databaseFolders = parser.values(databases);
    if (parser.isSet(accessLevel))
        line.accessLevel = readAccessLevel(withoutMark(parser.value(accessLevel)));
    line.json = parser.isSet(json);
    return line;
}

} // namespace kestrova::inspector
