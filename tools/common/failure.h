#pragma once

#include <QString>

#include <stdexcept>

namespace kestrova::tools {

/// The tools' exit codes.
enum ExitCode : int {
    ExitOk = 0,
    ExitUsage = 2,
    ExitNotFound = 3,
    ExitDatabase = 4,
};

/// Ends the command with an exit code and a message for stderr, which says what is wrong and what to do.
class Failure : public std::runtime_error {
public:
    Failure(ExitCode code, QString const & message)
        : std::runtime_error(message.toStdString())
        , exitCode(code)
    {}

    ExitCode const exitCode;
};

} // namespace kestrova::tools
