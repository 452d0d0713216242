#include "support/program.h"

#include <QProcess>

#include <stdexcept>

namespace kestrova::test {

ProgramResult runProgram(QString const & program, QStringList const & arguments)
{
    constexpr int patience = 120000; // milliseconds; the sanitizers are slow
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        throw std::runtime_error((program + QStringLiteral(": ") + process.errorString()).toStdString());
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList onFullDisk()
{
    return {QStringLiteral("sh"), QStringLiteral("-c"), QStringLiteral("exec \"$0\" \"$@\" > /dev/full")};
}

} // namespace kestrova::test
