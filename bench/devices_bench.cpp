#include "floorReporter.h"
#include "world.h"

#include <benchmark/benchmark.h>

#include <QHash>

#include <sqlite3.h>

#include <optional>

using namespace kestrova::Morvel::Devicelore;
using namespace kestrova::bench;

namespace {

void mapAKnownGuid(benchmark::State & state)
{
    CDeviceGuid const guid = samples().determineDriverGuid(guidOf("Hesko"));
    for (auto _ : state)
        benchmark::DoNotOptimize(&samples().determineDriverGuid(guid));
}

void mapAnUnknownVersion(benchmark::State & state)
{
    CDeviceGuid const guid = guidOf("Hesko").value() | 0xFE00U;
    for (auto _ : state)
        benchmark::DoNotOptimize(&samples().determineDriverGuid(guid));
}

void oneHashProbe(benchmark::State & state)
{
    CDeviceGuid const guid = guidOf("Hesko");
    QHash<CDeviceGuid, void *> hash;
    for (quint32 type = 0; type < 40; ++type)
        hash.insert(0xC7000000U | type, nullptr);
    for (auto _ : state)
        benchmark::DoNotOptimize(hash.constFind(guid));
}

void modelOfAGuid(benchmark::State & state)
{
    CDeviceGuid const guid = guidOf("Hesko");
    QString model;
    for (auto _ : state)
        benchmark::DoNotOptimize(samples().deviceTypeOnGuid(guid, model));
}

void startUp(benchmark::State & state)
{
    QDir const dir = folderOf(largeWorld(), QStringLiteral("*.db3"));
    state.counters[goalCounter] = 3.0;
    std::optional<CDriverCache> cache;
    for (auto _ : state) {
        cache.emplace();
        if (cache->openDatabases(dir) != 8 || cache->deviceModels().size() != 239)
            state.SkipWithError("the large world does not open");
        state.PauseTiming();
        cache.reset();
        state.ResumeTiming();
    }
}

/// Reads what \a sql selects, each value as what it is.
void readAllRows(sqlite3 * database, char const * sql)
{
    sqlite3_stmt * statement = nullptr;
    if (sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) == SQLITE_OK) {
        int const columns = sqlite3_column_count(statement);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < columns; ++column) {
                if (sqlite3_column_type(statement, column) == SQLITE_TEXT)
                    benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
                else
                    benchmark::DoNotOptimize(sqlite3_column_int(statement, column));
            }
        }
    }
    sqlite3_finalize(statement);
}

/// The same rows of the same databases, not encrypted, through the plain C interface.
void startUpByThePlainInterface(benchmark::State & state)
{
    QFileInfoList const files = folderOf(largeWorld(), QStringLiteral("*.plain")).entryInfoList();
    for (auto _ : state) {
        for (QFileInfo const & file : files) {
            sqlite3 * database = nullptr;
            sqlite3_open_v2(file.filePath().toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
            readAllRows(database,
                        "SELECT GUID,DeviceType,Version,Access,OnoType FROM Guids WHERE GUID LIKE'C7%'");
            readAllRows(database, "SELECT Type,DeviceType FROM Hardwaretypes");
            readAllRows(database, "SELECT Class,Name,Type,Ways,WayNames FROM SpeakerClasses");
            readAllRows(database, "SELECT SpeakerId,Name,Class,Rib,DisplayNameShort,SortOrder,"
                                  "CablefitMaxCount,WfActive FROM Speakers");
            readAllRows(database, "SELECT Id,OcaClassId,Description FROM ObjectClasses");
            sqlite3_close(database);
        }
    }
}

BENCHMARK(mapAKnownGuid)->Name("determineDriverGuid, exact");
BENCHMARK(oneHashProbe)->Name("determineDriverGuid, exact/floor");
BENCHMARK(mapAnUnknownVersion)->Name("determineDriverGuid, newest visible");
BENCHMARK(oneHashProbe)->Name("determineDriverGuid, newest visible/floor");
BENCHMARK(modelOfAGuid)->Name("deviceTypeOnGuid");
BENCHMARK(oneHashProbe)->Name("deviceTypeOnGuid/floor");
BENCHMARK(startUp)->Name("start-up, 8 databases, 10,000 devices");
BENCHMARK(startUpByThePlainInterface)->Name("start-up, 8 databases, 10,000 devices/floor");

} // namespace
