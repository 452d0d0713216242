#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kestrova::bench {

/// Prints a table in which each figure stands beside its floor and their ratio.
class FloorReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(Context const & context) override;
    void ReportRuns(std::vector<Run> const & runs) override;
    void Finalize() override;

private:
    std::vector<std::string> names;            ///< in the order they were measured
    std::map<std::string, double> nanoseconds; ///< CPU time of one call
    bool failed = false;
};

} // namespace kestrova::bench
