#include "cache/driverCache.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QHash>

#include <sqlite3.h>

#include <stdexcept>

using namespace kestrova::Morvel::Devicelore;

namespace {

QDir folderOf(char const * path, char const * pattern)
{
    QDir dir(QString::fromUtf8(path));
    dir.setNameFilters({QString::fromUtf8(pattern)});
    dir.setFilter(QDir::Files | QDir::Readable);
    return dir;
}

/// The sample world, open once for all benchmarks that ask it. Never destroyed: Qt's connections would be
/// gone before.
CDriverCache & samples()
{
    static CDriverCache & cache = *new CDriverCache;
    static int const opened = cache.openDatabases(folderOf(KESTROVA_SAMPLES, "*.db3"));
    if (opened < 3)
        throw std::runtime_error("the sample databases do not open");
    return cache;
}

CDeviceGuid guidOf(char const * model)
{
    CDeviceGuid guid;
    if (!samples().guidOnDeviceType(QString::fromUtf8(model), guid))
        throw std::runtime_error("the sample world has lost a model");
    return guid;
}

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
    QDir const dir = folderOf(KESTROVA_SAMPLES, "*.db3");
    for (auto _ : state) {
        CDriverCache cache;
        if (cache.openDatabases(dir) < 3)
            state.SkipWithError("the sample databases do not open");
    }
}

void readAllRows(sqlite3 * database, char const * sql)
{
    sqlite3_stmt * statement = nullptr;
    if (sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) == SQLITE_OK) {
        while (sqlite3_step(statement) == SQLITE_ROW)
            benchmark::DoNotOptimize(sqlite3_column_text(statement, 0));
    }
    sqlite3_finalize(statement);
}

/// The same rows of the same databases, not encrypted, through the plain C interface.
void startUpByThePlainInterface(benchmark::State & state)
{
    QFileInfoList const files = folderOf(KESTROVA_PLAIN_SAMPLES, "*.plain").entryInfoList();
    if (files.size() < 3)
        state.SkipWithError("there are no plain samples");
    for (auto _ : state) {
        for (QFileInfo const & file : files) {
            sqlite3 * database = nullptr;
            sqlite3_open_v2(file.filePath().toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
            readAllRows(database, "SELECT GUID,DeviceType,Version,Access FROM Guids WHERE GUID LIKE'C7%'");
            readAllRows(database, "SELECT Type,DeviceType FROM Hardwaretypes");
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
BENCHMARK(startUp)->Name("start-up, sample world");
BENCHMARK(startUpByThePlainInterface)->Name("start-up, sample world/floor");

} // namespace
