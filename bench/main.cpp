#include "floorReporter.h"

#include <QCoreApplication>

#include <clocale>

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    // Qt has taken the user's locale over; the C library is to print the floors as the format language does.
    std::setlocale(LC_NUMERIC, "C");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    kestrova::bench::FloorReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
