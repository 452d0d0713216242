#include "common/program.h"

#include <QCoreApplication>

#include <new>

namespace kestrova::tools {

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

void print(FILE * stream, QString const & text)
{
    QByteArray const bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream); // or a message would overtake the data before it
}

void complain(QString const & message)
{
    print(stderr, QStringLiteral("%1: %2\n").arg(QCoreApplication::applicationName(), message));
}

ExitCode printAnswer(Answer const & answer, bool asJson)
{
    print(stdout, asJson ? jsonText(answer.json) : answer.text);
    if (!answer.complaint.isEmpty())
        complain(answer.complaint);
    return answer.exitCode;
}

} // namespace kestrova::tools
