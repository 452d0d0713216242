#pragma once

#include "common/answer.h"
#include "common/toolInterface.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace kestrova::inspector {

using namespace tools;

class Inspector;

using CommandOption = Option;

/// What the user gave to a command.
struct Arguments {
    QStringList words;
    QHash<QString, QString> options; ///< value by name, of the options that were given
};

/// One command of the tool. A new command is a function and a row in commands().
struct Command {
    char const * name;
    QStringList parameters;   ///< names of its arguments, all needed but a last one "[NAME]" or "[NAME...]"
    char const * summary;     ///< one line for the list of commands
    char const * description; ///< for `devicelore COMMAND --help`
    Answer (*run)(Inspector & inspector, Arguments const & arguments);
    std::vector<CommandOption> options = {};
};

std::vector<Command> const & commands();

Answer databasesAnswer(Inspector & inspector, Arguments const & arguments);
Answer devicesAnswer(Inspector & inspector, Arguments const & arguments);
Answer deviceAnswer(Inspector & inspector, Arguments const & arguments);
Answer modesAnswer(Inspector & inspector, Arguments const & arguments);
Answer explainAnswer(Inspector & inspector, Arguments const & arguments);
Answer defaultsAnswer(Inspector & inspector, Arguments const & arguments);
Answer objectAnswer(Inspector & inspector, Arguments const & arguments);
Answer objectsAnswer(Inspector & inspector, Arguments const & arguments);
Answer speakersAnswer(Inspector & inspector, Arguments const & arguments);
Answer speakerAnswer(Inspector & inspector, Arguments const & arguments);
Answer filterAnswer(Inspector & inspector, Arguments const & arguments);
Answer describeAnswer(Inspector & inspector, Arguments const & arguments);
Answer convertAnswer(Inspector & inspector, Arguments const & arguments);
Answer checkAnswer(Inspector & inspector, Arguments const & arguments);
Answer textAnswer(Inspector & inspector, Arguments const & arguments);
Answer groupsAnswer(Inspector & inspector, Arguments const & arguments);
Answer queryAnswer(Inspector & inspector, Arguments const & arguments);
Answer dspAnswer(Inspector & inspector, Arguments const & arguments);
Answer versionAnswer(Inspector & inspector, Arguments const & arguments);

} // namespace kestrova::inspector
