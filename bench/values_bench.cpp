#include "allocations.h"
#include "floorReporter.h"
#include "records/deviceProperty.h"
#include "world.h"

#include <benchmark/benchmark.h>

using namespace kestrova::Morvel::Devicelore;
using namespace kestrova::bench;

// Conversion, validation and description of values whose objects are known. The floor of each is the sum of
// what it is made of: lookups, prints and parses by the library itself, with nothing around them.

namespace {

QFlags<ObjectDefMask> const described =
    QFlags<ObjectDefMask>(QFlag(0x43841FF)); // what a description asks of the object

CObjectDef objectNamed(char const * name)
{
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    facade().GetObjectDef(guidOf("Hesko"), QString::fromLatin1(name), object, nullptr);
    return object;
}

CDevicelore & mutableFacade()
{
    return const_cast<CDevicelore &>(facade()); // conversion is no const operation
}

template <typename Call>
void measure(benchmark::State & state, Call call)
{
    call();
    std::size_t const before = allocations();
    call();
    state.counters[allocationsCounter] = static_cast<double>(allocations() - before);
    for (auto _ : state)
        call();
}

void describeProperty(benchmark::State & state)
{
    CDeviceGuid const guid = guidOf("Hesko");
    CDeviceProperty property;
    property.setPropertyName(QStringLiteral("ChStatus_Gain"), QString());
    measure(state, [&] { benchmark::DoNotOptimize(facade().devicePropertyInfo(guid, property, nullptr)); });
    if (property.maxValue() != QVariant(6.0))
        state.SkipWithError("another property");
}

/// Two lookups, one of them for the kind of control, and the decimals of the format.
void lookUpTwice(benchmark::State & state)
{
    CDeviceGuid const guid = guidOf("Hesko");
    QString const name = QStringLiteral("ChStatus_Gain");
    CObjectDef object;
    object.setMask(described);
    CObjectDef nothing;
    measure(state, [&] {
        benchmark::DoNotOptimize(facade().GetObjectDef(guid, name, object, nullptr));
        benchmark::DoNotOptimize(facade().GetObjectDef(guid, name, nothing, nullptr));
        benchmark::DoNotOptimize(CObjectDef::decimals(object.format()));
    });
}

void validate(benchmark::State & state)
{
    CObjectDef const object = objectNamed("ChStatus_Gain");
    QVariant value;
    measure(state, [&] {
        value = QVariant(3.3);
        benchmark::DoNotOptimize(facade().validateValue(value, object, true));
    });
    if (value != QVariant(3.5))
        state.SkipWithError("another value");
}

void roundInAVariant(benchmark::State & state)
{
    CObjectDef const object = objectNamed("ChStatus_Gain");
    QVariant value;
    measure(state, [&] {
        value = QVariant(3.3);
        value = QVariant(roundOnStep(value.toDouble(), object.step()));
        benchmark::DoNotOptimize(&value);
    });
}

void makeReal(benchmark::State & state)
{
    CObjectDef const object = objectNamed("ChStatus_Trim");
    QVariant value;
    measure(state, [&] {
        value = QVariant(-1225);
        benchmark::DoNotOptimize(mutableFacade().deviceToReal(object, value));
    });
    if (value != QVariant(-12.25))
        state.SkipWithError("another value");
}

void printAndRead(benchmark::State & state)
{
    CObjectDef const object = objectNamed("ChStatus_Trim");
    QVariant value;
    measure(state, [&] {
        int const raw = -1225;
        QString text;
        CObjectDef::paraToStr(object.format(), &raw, sizeof(raw), text, nullptr, false);
        value = QVariant(text.toDouble());
        benchmark::DoNotOptimize(&value);
    });
}

void makeRaw(benchmark::State & state)
{
    CObjectDef const object = objectNamed("ChStatus_Trim");
    QVariant value;
    measure(state, [&] {
        value = QVariant(-12.25);
        benchmark::DoNotOptimize(mutableFacade().realToDevice(object, value));
    });
    if (value != QVariant(-1225))
        state.SkipWithError("another value");
}

void printAndParse(benchmark::State & state)
{
    CObjectDef const object = objectNamed("ChStatus_Trim");
    QVariant value;
    measure(state, [&] {
        CObjectDef::strToPara(QString::number(-12.25, 'f', 4), object.format(), value);
        benchmark::DoNotOptimize(&value);
    });
}

BENCHMARK(describeProperty)->Name("devicePropertyInfo");
BENCHMARK(lookUpTwice)->Name("devicePropertyInfo/floor");
BENCHMARK(validate)->Name("validateValue");
BENCHMARK(roundInAVariant)->Name("validateValue/floor");
BENCHMARK(makeReal)->Name("deviceToReal");
BENCHMARK(printAndRead)->Name("deviceToReal/floor");
BENCHMARK(makeRaw)->Name("realToDevice");
BENCHMARK(printAndParse)->Name("realToDevice/floor");

} // namespace
