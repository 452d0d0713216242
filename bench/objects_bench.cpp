#include "allocations.h"
#include "floorReporter.h"
#include "records/objectDef.h"
#include "world.h"

#include <benchmark/benchmark.h>

#include <QHash>

#include <sqlite3.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using namespace kestrova::bench;

// The lookup of objects. The floor of an answer from memory is the same key text, written by hand into a text
// of the right size, and one probe of a QHash; with a channel also one copy of the qualifier, which the keys
// promise. The floor of an answer from the database is the same row read by a prepared statement of the plain
// C interface, from the same database without encryption.

namespace {

QFlags<ObjectDefMask> const range =
    QFlags<ObjectDefMask>(ObjectDefMinValue) | ObjectDefMaxValue | ObjectDefStep;
QFlags<ObjectDefMask> const everything{QFlag(~0U)};

constexpr char hexDigits[] = "0123456789abcdef";

/// An object of the sample world, and what is asked of it.
struct Question {
    CDeviceGuid guid = guidOf("Hesko");
    QString name = QStringLiteral("ChStatus_Gain");
    unsigned short number = facade().objectNumber(guid, name);
    CDeviceChannelInfo channel;
    CDeviceChannelInfo const * channelInfo = nullptr;

    explicit Question(bool withChannel)
    {
        channel.SetSpeakerId(12);
        channelInfo = withChannel ? &channel : nullptr;
    }
};

template <typename Ask>
double allocationsOf(Ask ask)
{
    ask();
    std::size_t const before = allocations();
    ask();
    return static_cast<double>(allocations() - before);
}

void lookUp(benchmark::State & state, bool byName, bool withChannel, QFlags<ObjectDefMask> mask)
{
    Question const question(withChannel);
    CObjectDef object;
    object.setMask(mask);
    auto const ask = [&] {
        return byName ? facade().GetObjectDef(question.guid, question.name, object, question.channelInfo)
                      : facade().GetObjectDef(question.guid, question.number, object, question.channelInfo);
    };
    state.counters[allocationsCounter] = allocationsOf(ask);
    TharnError result = TharnNoError;
    for (auto _ : state)
        result = ask();
    if (result != TharnNoError || object.maxValue() != 6.0)
        state.SkipWithError("another object");
}

/// The floor: what a cache cannot do without.
QChar * placeHex(QChar * place, unsigned value, int width)
{
    for (int shift = 4 * (width - 1); shift >= 0; shift -= 4)
        *place++ = QLatin1Char(hexDigits[value >> shift & 0xFU]);
    return place;
}

QChar * placeChannel(QChar * place, CDeviceChannelInfo const & channel)
{
    place = placeHex(place, static_cast<unsigned>(channel.GetChannelType()), 3);
    *place++ = QLatin1Char('_');
    unsigned const id = channel.GetSpeakerId();
    for (unsigned const divisor : {1000U, 100U, 10U, 1U})
        *place++ = QLatin1Char(static_cast<char>('0' + id / divisor % 10));
    *place++ = QLatin1Char('_');
    return place;
}

QString keyText(Question const & question, bool byName)
{
    int const channelSize = question.channelInfo != nullptr ? 9 : 0;
    int const ownSize = byName ? static_cast<int>(question.name.size()) : 4;
    QString text(9 + channelSize + ownSize, Qt::Uninitialized);
    QChar * place = placeHex(text.data(), question.guid.value(), 8);
    *place++ = QLatin1Char('_');
    if (question.channelInfo != nullptr) {
        CDeviceChannelInfo const copy(*question.channelInfo);
        place = placeChannel(place, copy);
    }
    if (byName)
        std::copy(question.name.cbegin(), question.name.cend(), place);
    else
        placeHex(place, question.number, 4);
    return text;
}

void buildTheKeyAndProbe(benchmark::State & state, bool byName, bool withChannel)
{
    Question const question(withChannel);
    QHash<QString, void *> hash;
    for (int i = 0; i < 100; ++i)
        hash.insert(QStringLiteral("C7000312_ChStatus_Other%1").arg(i), nullptr);
    hash.insert(keyText(question, byName), &hash);
    void * found = nullptr;
    for (auto _ : state)
        found = hash.value(keyText(question, byName));
    if (found == nullptr)
        state.SkipWithError("the floor finds nothing");
}

void lookUpAMiss(benchmark::State & state)
{
    Question const question(false);
    QString const name = QStringLiteral("ChStatus_Gaim"); // as long as the name of the hit
    CObjectDef object;
    object.setMask(range);
    auto const ask = [&] { return facade().GetObjectDef(question.guid, name, object, nullptr); };
    state.counters[allocationsCounter] = allocationsOf(ask);
    TharnError result = TharnNoError;
    for (auto _ : state)
        result = ask();
    if (result != TharnNotAvailable)
        state.SkipWithError("there is such an object");
}

/// The sample database of the device without its encryption.
class PlainSamples {
public:
    PlainSamples()
    {
        QString const path = plainSamples();
        sqlite3_open_v2(path.toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
        sqlite3_prepare_v2(database,
                           "SELECT * FROM objects,guidsandobjects WHERE objects.Name = ? AND "
                           "guidsandobjects.objectid = objects.id AND guidsandobjects.guid = ?",
                           -1, &byName, nullptr);
    }

    ~PlainSamples()
    {
        sqlite3_finalize(byName);
        sqlite3_close(database);
    }

    PlainSamples(PlainSamples const &) = delete;
    PlainSamples & operator=(PlainSamples const &) = delete;

    /// Reads the row of an object, each value as what it is; whether there is one.
    bool readObject(QByteArray const & guid, QByteArray const & name)
    {
        sqlite3_reset(byName);
        sqlite3_bind_text(byName, 1, name.constData(), static_cast<int>(name.size()), SQLITE_STATIC);
        sqlite3_bind_text(byName, 2, guid.constData(), static_cast<int>(guid.size()), SQLITE_STATIC);
        if (sqlite3_step(byName) != SQLITE_ROW)
            return false;
        int const columns = sqlite3_column_count(byName);
        for (int column = 0; column < columns; ++column) {
            switch (sqlite3_column_type(byName, column)) {
            case SQLITE_TEXT:
                benchmark::DoNotOptimize(sqlite3_column_text(byName, column));
                break;
            case SQLITE_FLOAT:
                benchmark::DoNotOptimize(sqlite3_column_double(byName, column));
                break;
            default:
                benchmark::DoNotOptimize(sqlite3_column_int(byName, column));
            }
        }
        return true;
    }

    /// The names of the device's objects.
    QStringList objectNames(QByteArray const & guid)
    {
        QStringList names;
        sqlite3_stmt * statement = nullptr;
        sqlite3_prepare_v2(database,
                           "SELECT Name FROM Objects, guidsandobjects WHERE objectid = id AND guid = ?", -1,
                           &statement, nullptr);
        sqlite3_bind_text(statement, 1, guid.constData(), static_cast<int>(guid.size()), SQLITE_STATIC);
        while (sqlite3_step(statement) == SQLITE_ROW)
            names.append(
                QString::fromUtf8(reinterpret_cast<char const *>(sqlite3_column_text(statement, 0))));
        sqlite3_finalize(statement);
        return names;
    }

private:
    sqlite3 * database = nullptr;
    sqlite3_stmt * byName = nullptr;
};

QByteArray guidText(CDeviceGuid const & guid)
{
    return guid.toString().toUpper().toLatin1();
}

/// One object after the other, each for the first time; when all are known, they are forgotten.
void lookUpCold(benchmark::State & state)
{
    CDeviceGuid const guid = guidOf("Hesko");
    QStringList const names = PlainSamples().objectNames(guidText(guid));
    CObjectDef object;
    object.setMask(everything);

    auto const lookUpAll = [&] {
        for (QString const & name : names)
            facade().GetObjectDef(guid, name, object, nullptr);
    };
    samples().forgetObjects();
    lookUpAll();
    samples().forgetObjects();
    std::size_t const bytesBefore = heapBytes();
    std::size_t const allocationsBefore = allocations();
    lookUpAll();
    auto const count = static_cast<double>(names.size());
    state.counters[allocationsCounter] = static_cast<double>(allocations() - allocationsBefore) / count;
    state.counters["bytes kept"] = static_cast<double>(heapBytes() - bytesBefore) / count;

    auto name = names.cend();
    TharnError result = TharnNoError;
    for (auto _ : state) {
        if (name == names.cend()) {
            state.PauseTiming();
            samples().forgetObjects();
            name = names.cbegin();
            state.ResumeTiming();
        }
        result = facade().GetObjectDef(guid, *name++, object, nullptr);
        if (result != TharnNoError)
            state.SkipWithError("an object is missing");
    }
}

void readTheRows(benchmark::State & state)
{
    PlainSamples plain;
    QByteArray const guid = guidText(guidOf("Hesko"));
    std::vector<QByteArray> names;
    for (QString const & name : plain.objectNames(guid))
        names.push_back(name.toUtf8());
    std::size_t next = 0;
    for (auto _ : state) {
        if (!plain.readObject(guid, names[next]))
            state.SkipWithError("the row is missing");
        next = next + 1 < names.size() ? next + 1 : 0;
    }
}

void readTheRow(benchmark::State & state)
{
    PlainSamples plain;
    QByteArray const guid = guidText(guidOf("Hesko"));
    QByteArray const name = QByteArrayLiteral("ChStatus_Gain");
    for (auto _ : state) {
        if (!plain.readObject(guid, name))
            state.SkipWithError("the row is missing");
    }
}

struct WarmLookup {
    char const * name;
    bool byName;
    bool withChannel;
    QFlags<ObjectDefMask> mask;
};

WarmLookup const warmLookups[] = {
    {"GetObjectDef by name, range", true, false, range},
    {"GetObjectDef by number, range", false, false, range},
    {"GetObjectDef by name on a speaker, range", true, true, range},
    {"GetObjectDef by number on a speaker, range", false, true, range},
    {"GetObjectDef by name, everything", true, false, everything},
    {"GetObjectDef by number, everything", false, false, everything},
    {"GetObjectDef by name on a speaker, everything", true, true, everything},
    {"GetObjectDef by number on a speaker, everything", false, true, everything},
};

void add(std::string const & name, double goal, std::function<void(benchmark::State &)> const & measured,
         std::function<void(benchmark::State &)> const & floor)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State & state) {
        state.counters[goalCounter] = goal;
        measured(state);
    });
    benchmark::RegisterBenchmark((name + "/floor").c_str(), floor);
}

bool registerObjects()
{
    for (WarmLookup const & row : warmLookups) {
        add(
            row.name, 1.5,
            [=](benchmark::State & state) { lookUp(state, row.byName, row.withChannel, row.mask); },
            [=](benchmark::State & state) { buildTheKeyAndProbe(state, row.byName, row.withChannel); });
    }
    auto const warm = [](benchmark::State & state) { lookUp(state, true, false, range); };
    add("GetObjectDef of a remembered miss; floor: a hit", 1.0, lookUpAMiss, warm);
    add("GetObjectDef by name; floor: a prepared statement", 0.05, warm, readTheRow);
    add("GetObjectDef for the first time", 4.0, lookUpCold, readTheRows);
    return true;
}

[[maybe_unused]] bool const objectsAreRegistered = registerObjects();

} // namespace
