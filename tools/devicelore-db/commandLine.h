#pragma once

#include "sqlcipher/pageFormat.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kestrova::authoring {

struct Command;

/// What the user asked for.
struct CommandLine {
    Command const * command = nullptr;
    QStringList arguments;                                       ///< of the command, as many as it takes
    std::optional<QString> sqlFile;                              ///< --sql
    bool force = false;                                          ///< --force
    sqlcipher::PageFormat const * format = &sqlcipher::version4; ///< --format
    bool json = false;                                           ///< --json
    std::optional<QString> text; ///< a help text or version, to be printed instead of running the command
};

/// Reads the arguments behind the program's name. Throws Failure with ExitUsage.
CommandLine readCommandLine(QStringList const & arguments);

} // namespace kestrova::authoring
