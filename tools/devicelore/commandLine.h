#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kestrova::inspector {

struct Command;

/// What the user asked for.
struct CommandLine {
    Command const * command = nullptr;
    QStringList arguments;       ///< of the command, as many as it takes
    QStringList databaseFolders; ///< further folders of databases, behind the tool's own
    unsigned char accessLevel = 1;
    bool json = false;
    std::optional<QString> text; ///< a help text or version, to be printed instead of running the command
};

/// Reads the arguments behind the program's name. Throws Failure with ExitUsage.
CommandLine readCommandLine(QStringList const & arguments);

} // namespace kestrova::inspector
