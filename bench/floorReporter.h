#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kestrova::bench {

/// Counters that a benchmark may set, beside its time.
inline constexpr char goalCounter[] = "goal";               ///< the ratio to the floor not to be exceeded
inline constexpr char allocationsCounter[] = "allocations"; ///< on the heap, a call

/// Prints a table in which each figure stands beside its floor and their ratio, and writes it as JSON.
class FloorReporter : public benchmark::BenchmarkReporter {
public:
    /// Without a \a jsonPath nothing is written.
    explicit FloorReporter(std::string jsonPath);

    bool ReportContext(Context const & context) override;
    void ReportRuns(std::vector<Run> const & runs) override;
    void Finalize() override;

    /// Whether a benchmark gave a wrong answer, or the JSON file could not be written.
    bool hasFailed() const { return failed; }

private:
    struct Figure {
        double nanoseconds; ///< CPU time of one call, in the best of the repetitions
        std::map<std::string, double> counters;
    };

    void printTable() const;
    void writeJson();

    std::string jsonPath;
    std::vector<std::string> names; ///< in the order they were measured
    std::map<std::string, Figure> figures;
    bool failed = false;
};

} // namespace kestrova::bench
