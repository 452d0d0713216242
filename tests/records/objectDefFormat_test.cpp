#include "records/objectDef.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace kestrova::Morvel::Devicelore;

namespace {

QString latin1(char const * text)
{
    return QString::fromLatin1(text);
}

/// An object with everything known that decides its type.
CObjectDef object(char const * format, double minimum, double maximum, double step = 1.0)
{
    CObjectDef made;
    made.setMask(ObjectDefMask(0xB0));
    made.setFormat(latin1(format));
    made.setMin(minimum);
    made.setMax(maximum);
    made.setStep(step);
    return made;
}

} // namespace

TEST(DetermineObjectType, GoesByTheConversion)
{
    struct Row {
        char const * format;
        int type;
    };

    Row const rows[] = {
        {"%H", 4},
        {"%8H", 4},
        {"%x", 3},
        {"%X", 3},
        {"%04x", 3},
        {"%b", 255},
        {"%I8b", 255},
        {"%s", 2},
        {"%20s", 2},
        {"%c", 1},
        {"%d", 1},
        {"%D", 1},
        {"%5.1f", 1},
        {"%u", 1},
        {"%U", 1},
        {"%T", 77},
        {"", 77},
        {"dB", 77},
        {"V %d", 77}, // whatever stands before a "%" is
                      // no format
        {"%", 1},
        {"%.2f", 1},
        {"%q", 1},
        {"%5.1f dB", 1},
        {"%I16", 1},
    };
    for (Row const & row : rows) {
        CObjectDef def = object(row.format, -10, 10);
        def.setObjectType(CObjectDef::ObjectType(77));
        def.determineObjectType();
        EXPECT_EQ(def.objectType(), row.type) << row.format;
    }
}

TEST(DetermineObjectType, MakesAToggleOfExactlyZeroAndOne)
{
    double const notANumber = std::numeric_limits<double>::quiet_NaN();

    struct Row {
        char const * format;
        double minimum, maximum, step;
        int type;
    };

    Row const rows[] = {
        {"%3d", 0, 1, 1, 0},   {"%c", 0, 1, 1, 0},           {"%5.1f", 0, 1, 1, 0},
        {"%U", 0, 1, 1, 0},    {"%3d", 0, -1, 1, 0}, // the difference counts without its sign
        {"%3d", 1, 0, 1, 1},                         // here too, but the minimum is not 0
        {"%3d", 1, 2, 1, 1},   {"%3d", -1, 0, 1, 1},         {"%3d", 0, 2, 1, 1},
        {"%3d", 0, 1, 0.5, 1}, {"%3d", 0, 1, 0, 1},          {"%3d", 0, 1.0000001, 1, 1},
        {"%3d", 0, 0, 1, 1},   {"%3d", 0, notANumber, 1, 1}, {"%x", 0, 1, 1, 3},
        {"%b", 0, 1, 1, 255},  {"%s", 0, 1, 1, 2},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(testing::Message()
                     << row.format << ' ' << row.minimum << ' ' << row.maximum << ' ' << row.step);
        CObjectDef def = object(row.format, row.minimum, row.maximum, row.step);
        def.determineObjectType();
        EXPECT_EQ(def.objectType(), row.type);
    }
}

TEST(DetermineObjectType, TakesAnUnrequestedStepForOne)
{
    CObjectDef def;
    def.setMask(ObjectDefMask(0xB0));
    def.setFormat(latin1("%3d"));
    def.setMax(1);
    def.determineObjectType();
    EXPECT_EQ(def.objectType(), 0);
}

TEST(DetermineObjectType, DoesOnlyWhatTheMaskLets)
{
    struct Row {
        char const * name;
        unsigned mask;
        int type;
        char const * format;
        char const * unit;
    };

    Row const rows[] = {
        {"empty mask", 0x0, 255, "%3d V", ""},
        {"all but the format", 0xFFFFFF7F, 255, "%3d V", ""},
        {"format alone", 0x80, 255, "%3d V", " V"},
        {"format and minimum", 0x90, 255, "%3d V", " V"},
        {"format and maximum", 0xA0, 255, "%3d V", " V"},
        {"format, minimum and maximum", 0xB0, 0, "%3d V", " V"},
        {"format alone is enough for a text", 0x80, 2, "%s", ""},
        {"format alone is enough for a hexadecimal number", 0x80, 3, "%x", ""},
        {"format alone is enough for a dump", 0x80, 4, "%H", ""},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        CObjectDef def = object(row.format, 0, 1);
        def.setMask(ObjectDefMask(row.mask));
        def.determineObjectType();
        EXPECT_EQ(def.objectType(), row.type);
        EXPECT_EQ(def.unit().toStdString(), row.unit);
    }
}

TEST(DetermineObjectType, TakesTheUnitFromTheFormat)
{
    struct Row {
        char const * format;
        char const * unit;
    };

    Row const rows[] = {
        {"%5.1f dB", " dB"},
        {"%5.1fdB", "dB"},
        {"%5.1f%%", "%"},
        {"%5.1f%% per s", "% per s"},
        {"%5.1f%", ""},
        {"%5.1f\x81", "Ohm"},
        {"%5.1f\x81/m", "Ohm"},
        {"%5.1f \x81", " \xC2\x81"},
        {"%3d \xB0"
         "C",
         " \xC2\xB0"
         "C"},
        {"%3d", "before"},
        {"", "before"},
        {"V", "before"},
        {"kHz", "Hz"}, // without a "%" the format itself is the position, and its second character follows
    };
    for (Row const & row : rows) {
        CObjectDef def = object(row.format, 0, 10);
        def.setUnit(latin1("before"));
        def.determineObjectType();
        EXPECT_EQ(def.unit().toStdString(), row.unit) << row.format;
    }
}

TEST(IsNumeric, IsFalseForATextOnly)
{
    struct Row {
        char const * format;
        bool isNumeric;
    };

    Row const rows[] = {
        {"%s", false},   {"%20s", false},  {"%-20s", false}, {"%ls", false},
        {"%.2s", false}, {"%I16s", false}, {"s", false}, // without a "%" the first character is looked at
        {"", true},      {"V", true},      {"%d", true},     {"%5.1f s", true},
        {"%H", true},    {"%T", true},     {"%x", true},     {"%b", true},
        {"%c", true},    {"V %s", true},   {"%", true},
    };
    for (Row const & row : rows) {
        CObjectDef def;
        def.setFormat(latin1(row.format));
        EXPECT_EQ(def.isNumeric(), row.isNumeric) << row.format;
    }
}

TEST(Decimals, ReadsTheDigitsBehindTheLastPoint)
{
    struct Row {
        char const * format;
        int decimals;
    };

    Row const rows[] = {
        {"", 0},
        {"%d", 0},
        {"%6.2d", 2},
        {"%5.1f dB", 1},
        {"%.2f", 2}, // no format to print by
        {"%6.12f", 12},
        {"%6.f", 0},
        {"%6.", 0},
        {".", 0},
        {"%6.2d m.s", 0}, // hidden by the unit
        {"%6.2d 1.5x", 5},
        {"%6.007d", 7},
        {"1.2.3", 3},
        {"%6.-1d", 0},
        {"%6.99999999999d", 0},
        {"%6.2147483647d", 2147483647},
        {"%6.2147483648d", 0},
    };
    for (Row const & row : rows)
        EXPECT_EQ(CObjectDef::decimals(latin1(row.format)), row.decimals) << row.format;
}

TEST(Decimals, ReadsTheWholeTextAlsoBehindAZero)
{
    EXPECT_EQ(CObjectDef::decimals(QString::fromLatin1("%6.2d\0.4", 8)), 4);
}

TEST(Decimals, TakesNoOtherDigitsThanAscii)
{
    EXPECT_EQ(CObjectDef::decimals(QString(QStringLiteral("%6.1") + QChar(0x0663))), 1);
    EXPECT_EQ(CObjectDef::decimals(QString(QStringLiteral("%6.") + QChar(0x00B2))), 0);
}

TEST(Unit, IsWhatFollowsTheConversion)
{
    struct Row {
        char const * format;
        char const * unit;
    };

    Row const rows[] = {
        {"%5.1f dB", " dB"},
        {"%5.1fdB", "dB"},
        {"%5.1f%%", "%"},
        {"%5.1f%% per s", "% per s"},
        {"%5.1f%", ""},
        {"%5.1f\x81", "Ohm"},
        {"%5.1f\x81/m", "Ohm"},
        {"%5.1f \x81", " \xC2\x81"},
        {"%3d \xB0"
         "C",
         " \xC2\xB0"
         "C"},
        {"%3d", ""},
        {"", ""},
        {"V", ""},
        {"kHz", "Hz"},
        {"V %d", " %d"},
        {"%.2f s", " s"},
        {"%6", ""},
        {"%6.2I16d V", " V"},
        {"%s", ""},
        {"%-6d V", " V"},
        {"%6 d V", " V"},
    };
    for (Row const & row : rows)
        EXPECT_EQ(CObjectDef::unit(latin1(row.format)).toStdString(), row.unit) << row.format;
}

TEST(Unit, HasAQuestionMarkForWhatLatin1DoesNotHave)
{
    EXPECT_EQ(CObjectDef::unit(QStringLiteral("%d k") + QChar(0x03A9)), QStringLiteral(" k?"));
}

TEST(Unit, EndsAtAZero)
{
    EXPECT_EQ(CObjectDef::unit(QString::fromLatin1("%d V\0rest", 9)), QStringLiteral(" V"));
}
