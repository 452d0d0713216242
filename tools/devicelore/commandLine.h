#pragma once

#include "command.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kestrova::inspector {

/// What the user asked for.
struct CommandLine {
    Command const * command = nullptr;
    Arguments arguments;         ///< of the command, as many words as it takes and no foreign options
    QStringList databaseFolders; ///< further folders of databases, behind the tool's own
    unsigned char accessLevel = 1;
    bool json = false;
    std::optional<QString> text; ///< a help text or version, to be printed instead of running the command
};

/// Reads the arguments behind the program's name. Throws Failure with ExitUsage.
CommandLine readCommandLine(QStringList const & arguments);

} // namespace kestrova::inspector
