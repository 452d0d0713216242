#include "commandLine.h"

#include <kestrovaDevicelore.h>

namespace kestrova::inspector {

namespace {

QString versionText()
{
    int major = 0;
    int minor = 0;
    int bugfix = 0;
    Morvel::Devicelore::libVersion(bugfix, minor, major);
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(bugfix);
}

ToolInterface toolInterface()
{
    ToolInterface tool{
        "devicelore",
        versionText(),
        "answers questions about devices from their description databases",
        {},
        {{"databases", "DIR", "ask the databases (*.db3) of this folder too; may be given several times"},
         {"access-level", "N", "the level of the caller, 0 to 255 (1 if not given)"},
         {"json", nullptr, "print JSON; docs/command-line.md explains its keys"}},
        "Exit codes: 0 ok, 2 wrong use, 3 not found, 4 trouble with a database or in writing.\n",
    };
    for (Command const & command : commands())
        tool.commands.push_back(
            {command.name, command.parameters, command.summary, command.description, command.options});
    return tool;
}

unsigned char readAccessLevel(QString const & text)
{
    bool isNumber = false;
    int const level = text.toInt(&isNumber);
    if (!isNumber || level < 0 || level > 255)
        throw Failure(
            ExitUsage,
            QStringLiteral("--access-level takes a number from 0 to 255, not '%1'; see devicelore --help")
                .arg(text));
    return static_cast<unsigned char>(level);
}

} // namespace

CommandLine readCommandLine(QStringList const & arguments)
{
    ParsedArguments const parsed = parseArguments(toolInterface(), arguments);
    CommandLine line;
    line.text = parsed.text;
    if (line.text)
        return line;
    line.command = &commands().at(static_cast<std::size_t>(parsed.command));
    line.arguments.words = parsed.words;
    for (CommandOption const & option : line.command->options) {
        if (parsed.isSet(option.name))
            line.arguments.options.insert(QLatin1String(option.name), parsed.value(option.name));
    }
    line.databaseFolders = parsed.values("databases");
    if (parsed.isSet("access-level"))
        line.accessLevel = readAccessLevel(parsed.value("access-level"));
    line.json = parsed.isSet("json");
    return line;
}

} // namespace kestrova::inspector
