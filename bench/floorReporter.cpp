#include "floorReporter.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace kestrova::bench {

namespace {

std::string const floorSuffix = "/floor";

bool isFloor(std::string const & name)
{
    return name.size() > floorSuffix.size() &&
           name.compare(name.size() - floorSuffix.size(), floorSuffix.size(), floorSuffix) == 0;
}

template <typename Map>
std::optional<typename Map::mapped_type> valueAt(Map const & map, std::string const & key)
{
    auto const found = map.find(key);
    if (found == map.end())
        return std::nullopt;
    return found->second;
}

std::string fixed(std::optional<double> number, int decimals)
{
    if (!number)
        return "-";
    char text[64];
    std::snprintf(text, sizeof(text), "%.*f", decimals, *number);
    return text;
}

} // namespace

FloorReporter::FloorReporter(std::string path)
    : jsonPath(std::move(path))
{}

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
        if (run.run_type == Run::RT_Aggregate)
            continue;
        double const nanoseconds = run.cpu_accumulated_time * 1e9 / static_cast<double>(run.iterations);
        bool const isFirst = figures.count(name) == 0;
        if (isFirst)
            names.push_back(name);
        Figure & figure = figures[name];
        // Whatever else the machine does makes a run slower and none faster.
        figure.nanoseconds = isFirst ? nanoseconds : std::min(figure.nanoseconds, nanoseconds);
        for (auto const & [counter, value] : run.counters)
            figure.counters[counter] = value;
    }
}

void FloorReporter::Finalize()
{
    printTable();
    if (!jsonPath.empty())
        writeJson();
}

void FloorReporter::printTable() const
{
    std::printf("%-52s %12s %12s %8s %8s %12s\n", "", "ns a call", "floor", "ratio", "goal", "allocations");
    for (std::string const & name : names) {
        if (isFloor(name))
            continue;
        Figure const & figure = figures.at(name);
        std::optional<Figure> const floor = valueAt(figures, name + floorSuffix);
        std::optional<double> floorTime;
        std::optional<double> ratio;
        if (floor) {
            floorTime = floor->nanoseconds;
            ratio = figure.nanoseconds / floor->nanoseconds;
        }
        std::printf("%-52s %12.1f %12s %8s %8s %12s\n", name.c_str(), figure.nanoseconds,
                    fixed(floorTime, 1).c_str(), fixed(ratio, 2).c_str(),
                    fixed(valueAt(figure.counters, goalCounter), 2).c_str(),
                    fixed(valueAt(figure.counters, allocationsCounter), 1).c_str());
        for (auto const & [counter, value] : figure.counters) {
            if (counter != goalCounter && counter != allocationsCounter)
                std::printf("  %s: %.0f\n", counter.c_str(), value);
        }
    }
}

void FloorReporter::writeJson()
{
    QJsonArray rows;
    for (std::string const & name : names) {
        Figure const & figure = figures.at(name);
        if (isFloor(name))
            continue;
        QJsonObject row{{"name", QString::fromStdString(name)}, {"nanoseconds", figure.nanoseconds}};
        if (std::optional<Figure> const floor = valueAt(figures, name + floorSuffix)) {
            row["floorNanoseconds"] = floor->nanoseconds;
            row["ratio"] = figure.nanoseconds / floor->nanoseconds;
        }
        for (auto const & [counter, value] : figure.counters)
            row[QString::fromStdString(counter)] = value;
        rows.append(row);
    }
    QByteArray const text = QJsonDocument(rows).toJson();
    QFile file(QString::fromStdString(jsonPath));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        std::fprintf(stderr, "%s: %s\n", jsonPath.c_str(), qPrintable(file.errorString()));
        failed = true;
    }
}

} // namespace kestrova::bench
