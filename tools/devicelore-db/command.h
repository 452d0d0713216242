#pragma once

#include "common/answer.h"

#include <QStringList>

#include <vector>

namespace kestrova::authoring {

using namespace tools;

struct CommandLine;

/// One command of the tool. A new command is a function and a row in commands().
struct Command {
    char const * name;
    QStringList parameters;   ///< names of its arguments, all needed
    QStringList options;      ///< that it takes besides --help
    char const * summary;     ///< one line for the list of commands
    char const * description; ///< for `devicelore-db COMMAND --help`
    Answer (*run)(CommandLine const & line);
};

std::vector<Command> const & commands();

Answer newDatabase(CommandLine const & line);
Answer encrypt(CommandLine const & line);
Answer decrypt(CommandLine const & line);
Answer info(CommandLine const & line);

} // namespace kestrova::authoring
