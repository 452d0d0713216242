#pragma once

#include "common/answer.h"

#include <QStringList>

#include <vector>

namespace kestrova::inspector {

using namespace tools;

class Inspector;

/// One command of the tool. A new command is a function and a row in commands().
struct Command {
    char const * name;
    QStringList parameters;   ///< names of its arguments, all needed
    char const * summary;     ///< one line for the list of commands
    char const * description; ///< for `devicelore COMMAND --help`
    Answer (*run)(Inspector & inspector, QStringList const & arguments);
};

std::vector<Command> const & commands();

Answer databasesAnswer(Inspector & inspector, QStringList const & arguments);
Answer devicesAnswer(Inspector & inspector, QStringList const & arguments);
Answer deviceAnswer(Inspector & inspector, QStringList const & arguments);

} // namespace kestrova::inspector
