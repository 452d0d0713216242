#pragma once

#include "common/answer.h"

#include <QString>
#include <QStringList>

#include <cstdio>

namespace kestrova::tools {

/// The whole of a tool's main(): hands the arguments behind the program's name to \a run and returns its exit
/// code, or that of the Failure it throws, whose message goes to stderr behind the tool's name.
int runTool(char const * name, int argc, char ** argv, int (*run)(QStringList const & arguments));

/// Prints to \a stream in UTF-8.
void print(FILE * stream, QString const & text);

/// Prints a message to stderr, behind the tool's name.
void complain(QString const & message);

/// Prints the answer as text or as JSON, and what it complains of to stderr. Gives its exit code.
ExitCode printAnswer(Answer const & answer, bool asJson);

} // namespace kestrova::tools
