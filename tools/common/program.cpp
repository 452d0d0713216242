#include "common/program.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>

namespace kestrova::tools {

namespace {

/// Flushed, or a message would overtake the data before it. Gives whether all of it could be written; if not,
/// errno says why.
bool write(FILE * stream, QString const & text)
{
    QByteArray const bytes = text.toUtf8();
    auto const count = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, count, stream) == count && std::fflush(stream) == 0;
}

} // namespace

int runTool(char const * name, int argc, char ** argv, int (*run)(QStringList const & arguments))
{
    QCoreApplication const application(argc, argv);
    QCoreApplication::setApplicationName(QString::fromUtf8(name));
    try {
        return run(QCoreApplication::arguments().mid(1));
    } catch (Failure const & failure) {
        complain(QString::fromUtf8(failure.what()));
        return failure.exitCode;
    } catch (std::bad_alloc const &) {
        complain(QStringLiteral("there is not enough memory"));
        return ExitDatabase;
    }
}

void print(QString const & text)
{
    if (!write(stdout, text))
        throw Failure(ExitDatabase, QStringLiteral("the answer cannot be written: %1")
                                        .arg(QString::fromLocal8Bit(std::strerror(errno))));
}

void printMessage(QString const & text)
{
    write(stderr, text);
}

void complain(QString const & message)
{
    printMessage(QStringLiteral("%1: %2\n").arg(QCoreApplication::applicationName(), message));
}

ExitCode printAnswer(Answer const & answer, bool asJson)
{
    print(asJson ? jsonText(answer.json) : answer.text);
    if (!answer.complaint.isEmpty())
        complain(answer.complaint);
    return answer.exitCode;
}

} // namespace kestrova::tools
