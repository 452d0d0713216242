#include "floorReporter.h"

#include <QCoreApplication>

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    kestrova::bench::FloorReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
