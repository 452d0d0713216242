#include "floorReporter.h"

#include <cstdio>
#include <cstdlib>

namespace kestrova::bench {

namespace {

std::string const floorSuffix = "/floor";

bool isFloor(std::string const & name)
{
    return name.size() > floorSuffix.size() &&
           name.compare(name.size() - floorSuffix.size(), floorSuffix.size(), floorSuffix) == 0;
}

} // namespace

bool FloorReporter::ReportContext(Context const & context)
{
    PrintBasicContext(&GetErrorStream(), context);
    return true;
}

void FloorReporter::ReportRuns(std::vector<Run> const & runs)
{
    for (Run const & run : runs) {
        std::string const name = run.run_name.str();
        if (run.error_occurred) {
            std::fprintf(stderr, "%s: %s\n", name.c_str(), run.error_message.c_str());
            failed = true;
            continue;
        }
        if (nanoseconds.count(name) == 0)
            names.push_back(name);
        nanoseconds[name] = run.cpu_accumulated_time * 1e9 / static_cast<double>(run.iterations);
    }
}

void FloorReporter::Finalize()
{
    std::printf("%-44s %14s %14s %8s\n", "", "ns a call", "floor", "ratio");
    for (std::string const & name : names) {
        if (isFloor(name))
            continue;
        double const time = nanoseconds.at(name);
        auto const floor = nanoseconds.find(name + floorSuffix);
        if (floor == nanoseconds.end())
            std::printf("%-44s %14.1f %14s %8s\n", name.c_str(), time, "-", "-");
        else
            std::printf("%-44s %14.1f %14.1f %8.2f\n", name.c_str(), time, floor->second,
                        time / floor->second);
    }
    if (failed)
        std::exit(1);
}

} // namespace kestrova::bench
