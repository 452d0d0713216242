#include "facade/devicelore.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>

#include <cmath>
#include <cstring>
#include <random>
#include <set>
#include <string>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::MessageRecorder;

// Values of every object of the sample world go from the device to the user and back, and come back the same;
// what does not is listed.

namespace {

constexpr int smallRange = 4096;
constexpr int randomCodes = 1000;

/// Also the numbers of a float object: the grid points of its range.
struct Codes {
    double minimum;
    double step;
    std::vector<qint64> numbers; ///< minimum + number * step is a code
};

CDriverCache * openSamples()
{
    auto * const cache = new CDriverCache;
    cache->setGuidSupportedLevel(9);
    QDir dir(QStringLiteral(KESTROVA_SAMPLES));
    dir.setNameFilters({QStringLiteral("*.db3")});
    EXPECT_EQ(cache->openDatabases(dir), 4);
    return cache;
}

Codes codesOf(CObjectDef const & object, bool isFloat, std::mt19937 & random)
{
    Codes codes{object.minValue(), isFloat ? object.step() : 1.0, {}};
    auto const last = static_cast<qint64>(std::llround((object.maxValue() - object.minValue()) / codes.step));
    if (last < smallRange) {
        for (qint64 number = 0; number <= last; ++number)
            codes.numbers.push_back(number);
        return codes;
    }
    codes.numbers = {0, last / 2, last};
    std::uniform_int_distribution<qint64> distribution(0, last);
    for (int i = 0; i < randomCodes; ++i)
        codes.numbers.push_back(distribution(random));
    return codes;
}

bool isFloatFormat(QString const & format)
{
    static QRegularExpression const floatFormat(QStringLiteral("^%[-+0-9.]*f"));
    return floatFormat.match(format).hasMatch();
}

/// The device's bytes of a number, as the int that a control application reads them into.
QVariant rawOf(double number, bool isFloat)
{
    if (!isFloat)
        return QVariant(static_cast<int>(number));
    auto const single = static_cast<float>(number);
    int bits = 0;
    std::memcpy(&bits, &single, sizeof(bits));
    return QVariant(bits);
}

QVariant rawAgain(QVariant const & converted)
{
    return converted.userType() == QMetaType::Float ? rawOf(converted.toDouble(), true) : converted;
}

struct RoundTrip {
    CDevicelore facade{QPointer<CDriverCache>(openSamples()), nullptr};
    std::mt19937 random{20261121}; // always the same codes
    int values = 0;
    std::set<std::string> changed; ///< names of objects of which a value came back as another

    void goThroughAll()
    {
        facade.setDeviceAccessLevel(9);
        for (QString const & guid : facade.devicePropertyFilterByExpression(
                 QStringLiteral("SELECT GUID FROM Guids ORDER BY GUID"))) {
            QString const objects =
                QStringLiteral("SELECT Name FROM Objects, guidsandobjects WHERE objectid = "
                               "id AND guid = '%1' ORDER BY id");
            for (QString const & name : facade.devicePropertyFilterByExpression(objects.arg(guid)))
                goThrough(CDeviceGuid(guid), name);
        }
    }

    void goThrough(CDeviceGuid const & guid, QString const & name)
    {
        CObjectDef object;
        object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
        if (facade.GetObjectDef(guid, name, object, nullptr) != TharnNoError)
            return; // refused for good: another row of that name is found first
        if (object.objectType() == CObjectDef::ObjectTypeString) {
            for (QString const & text : {QStringLiteral("A"), QStringLiteral("Stage left")})
                note(name, bringBack(object, QVariant(text)) == QVariant(text));
            return;
        }
        bool const isFloat = isFloatFormat(object.format());
        Codes const codes = codesOf(object, isFloat, random);
        for (qint64 const number : codes.numbers) {
            QVariant const raw = rawOf(codes.minimum + static_cast<double>(number) * codes.step, isFloat);
            note(name, rawAgain(bringBack(object, raw)) == raw);
        }
    }

    QVariant bringBack(CObjectDef const & object, QVariant value)
    {
        if (!facade.deviceToReal(object, value) || !facade.realToDevice(object, value))
            return QVariant();
        return value;
    }

    void note(QString const & name, bool isSame)
    {
        ++values;
        if (!isSame)
            changed.insert(name.toStdString());
    }
};

} // namespace

TEST(SampleWorld, BringsEveryValueBackButThoseThatAreOneWay)
{
    MessageRecorder const recorder;
    RoundTrip trip;
    trip.goThroughAll();
    EXPECT_EQ(trip.changed, (std::set<std::string>{
                                "Info_MacAddress",     // a dump is shown and never set
                                "Info_SerialNumber",   // the flag 0x400 refuses the way to the user
                                "Service_Energy",      // eight bytes, and conversions hand over four
                                "Service_ErrorBits",   // a bit pattern is shown and never set
                                "Service_Latency",     // eight bytes again
                                "Service_LoadIndex",   // an unsigned byte comes back signed
                                "Service_PanelKeys",   // a bit pattern
                                "Service_PanelLetter", // a character is no number
                                "Service_Reserved",    // the conversion T prints and reads nothing
                            }));
    EXPECT_GT(trip.values, 100000);
    EXPECT_EQ(recorder.messages(), QStringList());
}
