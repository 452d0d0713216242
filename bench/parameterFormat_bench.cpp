#include "floorReporter.h"
#include "records/objectDef.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

using namespace kestrova::Morvel::Devicelore;

// Printing and parsing of parameters, one row a conversion. The floor of printing is the same text by
// snprintf and QString::fromLatin1, with a format and a number known beforehand; the floor of parsing is the
// C library's or Qt's way to read the same value from a text.

namespace {

struct Printing {
    char const * name;
    char const * format;
    char const * bytes; // hexadecimal, lowest first
    char const * text;
    void (*floor)(char * buffer, std::size_t size);
    double goal = 0.0; // none
};

constexpr double integerGoal = 1.0 / 3.0; // where the number is exact in a double

Printing const printings[] = {
    {"d", "%d", "D2 04", " 1234",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%*.*f", 5, 0, 1234.0); },
     integerGoal},
    {"d, two decimals", "%6.2d", "D2 04", " 12.34",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%*.*f", 6, 2, 12.34); }, integerGoal},
    {"u, eight bytes", "%I64u", "15 CD 5B 07 00 00 00 00", "           123456789",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%*.*f", 20, 0, 123456789.0); },
     integerGoal},
    {"u, beyond 2^52", "%I64u", "FF FF FF FF FF FF FF 7F", " 9223372036854775808",
     [](char * buffer, std::size_t size) {
         std::snprintf(buffer, size, "%*.*f", 20, 0, 9223372036854775808.0);
     }},
    {"f", "%6.2f", "00 00 C0 3F", "  1.50",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%*.*f", 6, 2, 1.5); }},
    {"x", "%04x", "AB 00", "00AB",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%0*llX", 4, 0xABULL); }},
    {"b", "%I8b", "53", "01010011",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%*s", 8, "01010011"); }},
    {"c", "%c", "41", "A",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%*c", 1, 'A'); }},
    {"s", "%s", "48 69 00", "             Hi",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%*s", 15, "Hi"); }},
    {"H", "%3H", "01 02 03", "01 02 03",
     [](char * buffer, std::size_t size) { std::snprintf(buffer, size, "%02X %02X %02X", 1U, 2U, 3U); }},
};

struct Parsing {
    char const * name;
    char const * text;
    char const * format;
    QVariant value;
    QVariant (*floor)(QString const & text);
};

QVariant scanned(QString const & text, char const * pattern)
{
    unsigned number = 0;
    std::sscanf(text.toLatin1().constData(), pattern, &number);
    return static_cast<int>(number);
}

Parsing const parsings[] = {
    {"d", "1234", "%d", 1234, [](QString const & text) { return scanned(text, "%d"); }},
    {"d, two decimals", "12.34", "%6.2d", 1234,
     [](QString const & text) { return QVariant(qRound(text.toDouble() * 100.0)); }},
    {"x", "1F", "%x", 31, [](QString const & text) { return scanned(text, "%x"); }},
    {"f", "12.5", "%f", 12.5F, [](QString const & text) { return QVariant(text.toFloat()); }},
    {"s", "Hello", "%s", QStringLiteral("Hello"),
     [](QString const & text) { return QVariant(QString::fromLatin1(text.toLatin1())); }},
    {"b", "01010011", "%I8b", 83,
     [](QString const & text) {
         return QVariant(static_cast<int>(std::strtol(text.toLatin1().constData(), nullptr, 2)));
     }},
    {"H", "1F", "%1H", quint32(31), [](QString const & text) { return QVariant(text.toUInt(nullptr, 16)); }},
};

void print(benchmark::State & state, Printing const & row)
{
    QString const format = QString::fromLatin1(row.format);
    QByteArray const bytes = QByteArray::fromHex(row.bytes);
    if (row.goal != 0.0)
        state.counters[kestrova::bench::goalCounter] = row.goal;
    QString text;
    while (state.KeepRunning()) {
        CObjectDef::paraToStr(format, bytes.constData(), static_cast<int>(bytes.size()), text, nullptr,
                              false);
        benchmark::DoNotOptimize(text.constData());
    }
    if (text != QLatin1String(row.text))
        state.SkipWithError("printed another text");
}

void printByTheCLibrary(benchmark::State & state, Printing const & row)
{
    QString text;
    while (state.KeepRunning()) {
        char buffer[256];
        row.floor(buffer, sizeof(buffer));
        text = QString::fromLatin1(buffer);
        benchmark::DoNotOptimize(text.constData());
    }
    if (text != QLatin1String(row.text))
        state.SkipWithError("the floor printed another text");
}

void parse(benchmark::State & state, Parsing const & row)
{
    QString const format = QString::fromLatin1(row.format);
    QString const text = QString::fromLatin1(row.text);
    QVariant value;
    while (state.KeepRunning()) {
        CObjectDef::strToPara(text, format, value);
        benchmark::DoNotOptimize(&value);
    }
    if (value != row.value)
        state.SkipWithError("parsed another value");
}

void parseByTheLibraries(benchmark::State & state, Parsing const & row)
{
    QString const text = QString::fromLatin1(row.text);
    QVariant value;
    while (state.KeepRunning()) {
        value = row.floor(text);
        benchmark::DoNotOptimize(&value);
    }
    if (value != row.value)
        state.SkipWithError("the floor parsed another value");
}

bool registerFormats()
{
    for (Printing const & row : printings) {
        std::string const name = std::string("paraToStr, ") + row.name;
        benchmark::RegisterBenchmark(name.c_str(), print, row);
        benchmark::RegisterBenchmark((name + "/floor").c_str(), printByTheCLibrary, row);
    }
    for (Parsing const & row : parsings) {
        std::string const name = std::string("strToPara, ") + row.name;
        benchmark::RegisterBenchmark(name.c_str(), parse, row);
        benchmark::RegisterBenchmark((name + "/floor").c_str(), parseByTheLibraries, row);
    }
    return true;
}

[[maybe_unused]] bool const formatsAreRegistered = registerFormats();

} // namespace
