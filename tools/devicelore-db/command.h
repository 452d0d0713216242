#pragma once

#include "common/answer.h"
#include "common/toolInterface.h"

#include <QStringList>

#include <vector>

namespace kestrova::authoring {

using namespace tools;

/// One command of the tool. A new command is a function and a row in commands().
struct Command {
    CommandInterface interface;
    Answer (*run)(ParsedArguments const & arguments);
};

std::vector<Command> const & commands();

Answer newDatabase(ParsedArguments const & arguments);
Answer encrypt(ParsedArguments const & arguments);
Answer decrypt(ParsedArguments const & arguments);
Answer info(ParsedArguments const & arguments);
Answer check(ParsedArguments const & arguments);
Answer diff(ParsedArguments const & arguments);

} // namespace kestrova::authoring
