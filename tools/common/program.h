#pragma once

#include "common/answer.h"

#include <QString>
#include <QStringList>

namespace kestrova::tools {

/// The whole of a tool's main(): hands the arguments behind the program's name to \a run and returns its exit
/// code, or that of the Failure it throws, whose message goes to stderr behind the tool's name.
int runTool(char const * name, int argc, char ** argv, int (*run)(QStringList const & arguments));

/// Prints to stdout in UTF-8. Throws Failure with ExitDatabase when it cannot be written, as on a full disk.
void print(QString const & text);

/// Prints to stderr in UTF-8. What cannot be written there is lost.
void printMessage(QString const & text);

/// Prints a message to stderr, behind the tool's name.
void complain(QString const & message);

/// Prints the answer as text or as JSON, and what it complains of to stderr. Gives its exit code. Throws as
/// print() does.
ExitCode printAnswer(Answer const & answer, bool asJson);

} // namespace kestrova::tools
