#include "floorReporter.h"

#include <QCoreApplication>

#include <clocale>
#include <cstring>

namespace {

constexpr char jsonOption[] = "--json=";

/// Takes the option out of the arguments and gives its file; empty without one.
std::string takeJsonPath(int & argc, char ** argv)
{
    std::string path;
    int kept = 0;
    for (int i = 0; i < argc; ++i) {
        if (std::strncmp(argv[i], jsonOption, std::strlen(jsonOption)) == 0)
            path = argv[i] + std::strlen(jsonOption);
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    return path;
}

} // namespace

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    // Qt has taken the user's locale over; the C library is to print the floors as the format language does.
    std::setlocale(LC_NUMERIC, "C");
    kestrova::bench::FloorReporter reporter(takeJsonPath(argc, argv));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.hasFailed() ? 1 : 0;
}
