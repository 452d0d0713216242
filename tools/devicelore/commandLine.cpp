#include "commandLine.h"

#include "command.h"

#include <kestrovaDevicelore.h>

#include <QCommandLineParser>

#include <algorithm>

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

QString generalHelp()
{
    QString text =
        QStringLiteral("usage: devicelore COMMAND [ARGUMENT...] [OPTION...]\n\n"
                       "Answers questions about devices from their description databases.\n\nCommands:\n");
    for (Command const & command : commands())
        text += QStringLiteral("  %1%2\n")
                    .arg(signature(command).leftJustified(20), QLatin1String(command.summary));
    return text + QLatin1Char('\n') + optionsText + QLatin1Char('\n') + exitCodes;
}

QString commandHelp(Command const & command)
{
    return QStringLiteral("usage: devicelore %1 [OPTION...]\n\n").arg(signature(command)) +
           QString::fromUtf8(command.description) + QLatin1Char('\n') + optionsText + QLatin1Char('\n') +
           exitCodes;
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

unsigned char readAccessLevel(QString const & text)
{
    bool isNumber = false;
    int const level = text.toInt(&isNumber);
    if (!isNumber || level < 0 || level > 255)
        throw usageFailure(QStringLiteral("--access-level takes a number from 0 to 255, not '%1'").arg(text));
    return static_cast<unsigned char>(level);
}

} // namespace

CommandLine readCommandLine(QStringList const & arguments)
{
    QCommandLineOption const databases(QStringLiteral("databases"), QString(), QStringLiteral("DIR"));
    QCommandLineOption const accessLevel(QStringLiteral("access-level"), QString(), QStringLiteral("N"));
    QCommandLineOption const json(QStringLiteral("json"));
    QCommandLineOption const help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    QCommandLineOption const version(QStringLiteral("version"));
    QCommandLineParser parser;
    parser.addOptions({databases, accessLevel, json, help, version});
    if (!parser.parse(QStringList{QStringLiteral("devicelore")} + arguments))
        throw usageFailure(parser.errorText().chopped(1));

    CommandLine line;
    QStringList words = parser.positionalArguments();
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
    if (words.size() != line.command->parameters.size())
        throw usageFailure(QStringLiteral("usage: devicelore %1").arg(signature(*line.command)));
    line.arguments = words;
    line.databaseFolders = parser.values(databases);
    if (parser.isSet(accessLevel))
        line.accessLevel = readAccessLevel(parser.value(accessLevel));
    line.json = parser.isSet(json);
    return line;
}

} // namespace kestrova::inspector
