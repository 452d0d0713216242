#pragma once

#include "common/failure.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace kestrova::tools {

/// An option of a tool or of one of its commands.
struct Option {
    char const * name;    ///< without the dashes
    char const * value;   ///< name of its value; null for an option without one
    char const * summary; ///< one line
};

/// A command as its users see it.
struct CommandInterface {
    char const * name;
    QStringList parameters;   ///< names of its arguments, all needed but a last one "[NAME]" or "[NAME...]"
    char const * summary;     ///< one line for the list of commands
    char const * description; ///< for `TOOL COMMAND --help`
    std::vector<Option> options;
};

/// A tool as its users see it: what parses its arguments, explains itself, and makes its manual page and its
/// shell completion.
struct ToolInterface {
    char const * name;
    QString version;
    char const * summary; ///< a sentence
    std::vector<CommandInterface> commands;
    std::vector<Option> options; ///< of all commands; --help and --version need no mention
    char const * exitCodes;
};

/// What the user asked for.
struct ParsedArguments {
    int command = -1; ///< its position among the tool's commands
    QStringList words;
    QHash<QString, QStringList> options; ///< values by name, of the options that were given
    std::optional<QString> text;         ///< to be printed instead of running a command

    bool isSet(char const * option) const { return options.contains(QLatin1String(option)); }

    /// The value that was given last; null when none was.
    QString value(char const * option) const
    {
        QStringList const given = values(option);
        return given.isEmpty() ? QString() : given.last();
    }

    QStringList values(char const * option) const { return options.value(QLatin1String(option)); }
};

/// Reads the arguments behind the program's name. Beside the tool's own options and --help and --version,
/// --print-manual-page and --print-completion are for those who package it. Throws Failure with ExitUsage.
ParsedArguments parseArguments(ToolInterface const & tool, QStringList const & arguments);

/// "NAME PARAMETER...", as a command is called.
QString signatureOf(CommandInterface const & command);

} // namespace kestrova::tools
