#pragma once

#include <QString>
#include <QStringList>

namespace kestrova::test {

/// What a program printed, and how it ended.
struct ProgramResult {
    int exitCode;
    QString output;
    QString messages; ///< from stderr
};

/// Runs a program to its end. Throws std::runtime_error when it cannot be started, crashes or does not end.
ProgramResult runProgram(QString const & program, QStringList const & arguments);

/// What starts a program, to be put before its name, so that its standard output is a disk without space.
QStringList onFullDisk();

} // namespace kestrova::test
