#include "longWork.h"

#include "common/program.h"

#include <unistd.h>

#include <csignal>

using namespace kestrova::tools;

namespace kestrova::authoring {

namespace {

constexpr int endingSignals[] = {SIGHUP, SIGINT, SIGTERM};

std::sig_atomic_t volatile receivedSignal = 0;

void remember(int signal)
{
    receivedSignal = signal;
}

void endAfterSignal()
{
    // The exit code that shells give to a program ended by a signal.
    if (receivedSignal != 0)
        throw Failure(static_cast<ExitCode>(128 + receivedSignal), QStringLiteral("interrupted"));
}

} // namespace

LongWork::LongWork(QString const & what, Ending ending)
    : action(what)
    , isShown(isatty(STDERR_FILENO) == 1)
{
    if (ending == WritesNothing)
        return;
    for (int const signal : endingSignals)
        std::signal(signal, remember);
}

LongWork::~LongWork()
{
    for (int const signal : endingSignals)
        std::signal(signal, SIG_DFL);
    if (shownPercent >= 0)
        printMessage(QStringLiteral("\r\x1B[K")); // clears the line
}

sqlcipher::Progress LongWork::progress()
{
    return [this](qint64 done, qint64 all) {
        endAfterSignal();
        if (isShown)
            show(static_cast<int>(done * 100 / all));
    };
}

void LongWork::show(int percent)
{
    if (percent == shownPercent)
        return;
    shownPercent = percent;
    printMessage(QStringLiteral("\r%1 %2 %").arg(action, QString::number(percent)));
}

} // namespace kestrova::authoring
