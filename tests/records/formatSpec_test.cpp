#include "records/formatSpec.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

namespace {

struct Expected {
    char const * format;
    int width, precision, flags;
    char conversion;
    bool isLong;
    int size;
    char const * rest; // from the conversion's position on
};

void expectParsed(Expected const & expected)
{
    SCOPED_TRACE(expected.format);
    FormatSpec spec;
    EXPECT_STREQ(parseFormatSpec(expected.format, spec), expected.rest);
    EXPECT_EQ(spec.width, expected.width);
    EXPECT_EQ(spec.precision, expected.precision);
    EXPECT_EQ(spec.flags, expected.flags);
    EXPECT_EQ(spec.conversion, expected.conversion);
    EXPECT_EQ(spec.isLong, expected.isLong);
    EXPECT_EQ(spec.size, expected.size);
}

} // namespace

TEST(FormatSpec, GivesEachConversionItsSizeAndDefaultWidth)
{
    Expected const rows[] = {
        {"%H", 3, 0, 0, 'H', false, 1, "H"}, {"%T", 32, 0, 0, 'T', false, 2, "T"},
        {"%U", 5, 0, 0, 'u', false, 1, "U"}, {"%u", 5, 0, 0, 'u', false, 2, "u"},
        {"%X", 4, 0, 0, 'x', false, 2, "X"}, {"%x", 4, 0, 0, 'x', false, 2, "x"},
        {"%b", 8, 0, 0, 'b', false, 2, "b"}, {"%c", 1, 0, 0, 'c', false, 1, "c"},
        {"%f", 8, 0, 0, 'f', false, 4, "f"}, {"%s", 15, 0, 0, 's', false, 1, "s"},
        {"%d", 5, 0, 0, 'd', false, 2, "d"}, {"%D", 5, 0, 0, 'd', false, 1, "D"},
    };
    for (Expected const & row : rows)
        expectParsed(row);
}

TEST(FormatSpec, KnowsNoSizeForOtherCharacters)
{
    Expected const rows[] = {
        {"%e", 5, 0, 0, 'd', false, 0, "e"},   {"%g", 5, 0, 0, 'd', false, 0, "g"},
        {"%i", 5, 0, 0, 'd', false, 0, ""},    {"%B", 5, 0, 0, 'd', false, 0, "B"},
        {"%F", 5, 0, 0, 'd', false, 0, "F"},   {"%S", 5, 0, 0, 'd', false, 0, "S"},
        {"%h", 5, 0, 0, 'd', false, 0, "h"},   {"%t", 5, 0, 0, 'd', false, 0, "t"},
        {"%%", 5, 0, 0, 'd', false, 0, ""},    {"%", 5, 0, 0, 'd', false, 0, ""},
        {"%*d", 5, 0, 0, 'd', false, 0, "d"},  {"% d", 5, 0, 0, 'd', false, 0, "d"},
        {"%Ld", 10, 0, 0, 'd', true, 4, "d"},  {"%LLd", 5, 0, 0, 'd', true, 0, "Ld"},
        {"%hd", 5, 0, 0, 'd', false, 0, "hd"},
    };
    for (Expected const & row : rows)
        expectParsed(row);
}

TEST(FormatSpec, ReadsMarksWidthAndPrecisionInTheirOrder)
{
    Expected const rows[] = {
        {"%6d", 6, 0, 0, 'd', false, 2, "d"},
        {"%6.2d", 6, 2, 0, 'd', false, 2, "d"},
        {"%12.10f", 12, 10, 0, 'f', false, 4, "f"},
        {"%6.d", 6, 0, 0, 'd', false, 2, "d"},
        {"%-6d", 6, 0, 0, 'd', false, 2, "d"},
        {"%+6d", 6, 0, 1, 'd', false, 2, "d"},
        {"%06d", 6, 0, 2, 'd', false, 2, "d"},
        {"%+06d", 6, 0, 3, 'd', false, 2, "d"},
        {"%-+06.1d", 6, 1, 3, 'd', false, 2, "d"},
        {"%-d", 5, 0, 0, 'd', false, 2, "d"},
        {"%0d", 5, 0, 2, 'd', false, 2, "d"},
        {"%00d", 5, 0, 2, 'd', false, 2, "d"},    // a width of 0 is no width
        {"%00.2f", 8, 2, 2, 'f', false, 4, "f"},  // and lets the precision follow
        {"%.2f", 5, 0, 0, 'd', false, 0, "f"},    // no width, so no precision and no size
        {"%0.2f", 5, 0, 2, 'd', false, 0, "f"},   // the 0 is a mark
        {"%6.2.1f", 6, 2, 0, 'd', false, 0, "f"}, // one point only
        {"%+-6d", 5, 0, 1, 'd', false, 0, "d"},   // the order is fixed
        {"%--6d", 5, 0, 0, 'd', false, 0, "d"},
        {"%0+6d", 5, 0, 2, 'd', false, 0, "d"},
        {"%++6d", 5, 0, 1, 'd', false, 0, "d"},
    };
    for (Expected const & row : rows)
        expectParsed(row);
}

TEST(FormatSpec, ReadsSizePrefixes)
{
    Expected const rows[] = {
        {"%ld", 10, 0, 0, 'd', true, 4, "d"},
        {"%Ld", 10, 0, 0, 'd', true, 4, "d"},
        {"%lU", 5, 0, 0, 'u', true, 2, "U"},
        {"%lf", 8, 0, 0, 'f', true, 8, "f"},
        {"%Lf", 8, 0, 0, 'f', true, 8, "f"},
        {"%I8d", 5, 0, 0, 'd', false, 1, "d"},
        {"%I16d", 5, 0, 0, 'd', false, 2, "d"},
        {"%I24u", 8, 0, 0, 'u', false, 3, "u"},
        {"%I32d", 10, 0, 0, 'd', false, 4, "d"},
        {"%I64u", 20, 0, 0, 'u', false, 8, "u"},
        {"%i32d", 10, 0, 0, 'd', false, 4, "d"},
        {"%I64f", 8, 0, 0, 'f', false, 8, "f"},
        {"%I16f", 8, 0, 0, 'f', false, 2, "f"},
        {"%I8b", 8, 0, 0, 'b', false, 1, "b"},
        {"%I64x", 4, 0, 0, 'x', false, 8, "x"},
        {"%I9d", 5, 0, 0, 'd', false, 1, "d"},
        {"%I15d", 5, 0, 0, 'd', false, 1, "d"},
        {"%I48d", 5, 0, 0, 'd', false, 6, "d"},
        {"%lI16d", 10, 0, 0, 'd', true, 4, "d"},
        {"%lI32d", 20, 0, 0, 'd', true, 8, "d"},
        {"%I2048s", 15, 0, 0, 's', false, 256, "s"},
        {"%6.2I32d", 6, 2, 0, 'd', false, 4, "d"},
        // A prefix below 8 counts for nothing, and the next character decides.
        {"%I4d", 5, 0, 0, 'd', false, 2, "d"},
        {"%I0d", 5, 0, 0, 'd', false, 2, "d"},
        {"%Id", 5, 0, 0, 'd', false, 2, "d"},
        {"%I7f", 8, 0, 0, 'f', false, 4, "f"},
        {"%I4I16d", 5, 0, 0, 'd', false, 2, "d"},
        {"%IIId", 5, 0, 0, 'd', false, 2, "d"},
        {"%I4q", 5, 0, 0, 'd', false, 0, "q"},
        // strtol reads a blank and a sign.
        {"%I-16d", 5, 0, 0, 'd', false, -2, "d"},
        {"%I+16d", 5, 0, 0, 'd', false, 2, "d"},
        {"%I 32d", 10, 0, 0, 'd', false, 4, "d"},
        {"%I-7d", 5, 0, 0, 'd', false, 2, "d"},
        // The long mark belongs in front of the prefix.
        {"%I16ld", 5, 0, 0, 'd', false, 2, "ld"},
        {"%Ild", 5, 0, 0, 'd', false, 0, "ld"},
        // A format may end behind its prefix.
        {"%I16", 5, 0, 0, 'd', false, 2, ""},
        {"%I32 x", 10, 0, 0, 'd', false, 4, "x"},
    };
    for (Expected const & row : rows)
        expectParsed(row);
}

TEST(FormatSpec, ReturnsTheFirstCharacterFromTheAtSignOn)
{
    Expected const rows[] = {
        {"%.2f Hz", 5, 0, 0, 'd', false, 0, "f Hz"},
        {"%6@x", 6, 0, 0, 'd', false, 0, "@x"},       // 0x40 is the first
        {"%6?x", 6, 0, 0, 'd', false, 0, "x"},        // 0x3F is passed over
        {"%6\x81\xFFx", 6, 0, 0, 'd', false, 0, "x"}, // and so is everything above 0x7F
        {"%6\x7Fx", 6, 0, 0, 'd', false, 0, "\x7Fx"},
        {"%6 123 %", 6, 0, 0, 'd', false, 0, ""},
    };
    for (Expected const & row : rows)
        expectParsed(row);
}

TEST(FormatSpec, KeepsNumbersTooLargeAtTheLargest)
{
    Expected const rows[] = {
        {"%2147483647d", 2147483647, 0, 0, 'd', false, 2, "d"},
        {"%2147483648d", 2147483647, 0, 0, 'd', false, 2, "d"},
        {"%99999999999999999999999d", 2147483647, 0, 0, 'd', false, 2, "d"},
        {"%1.99999999999d", 1, 2147483647, 0, 'd', false, 2, "d"},
        {"%I99999999999999999999999d", 5, 0, 0, 'd', false, 2147483647, "d"},
        {"%lI99999999999999999999999d", 5, 0, 0, 'd', true, 2147483647, "d"},
        {"%I-99999999999999999999999d", 5, 0, 0, 'd', false, -2147483647 - 1, "d"},
    };
    for (Expected const & row : rows)
        expectParsed(row);
}

TEST(FormatSpec, LeavesATextWithoutAPercentSignAlone)
{
    for (char const * text : {"", "d", "V %d", "-5d"}) {
        SCOPED_TRACE(text);
        FormatSpec spec;
        spec.width = spec.precision = spec.flags = spec.size = 77;
        spec.conversion = 'x';
        EXPECT_EQ(parseFormatSpec(text, spec), text);
        EXPECT_EQ(spec.width, 0);
        EXPECT_EQ(spec.precision, 0);
        EXPECT_EQ(spec.flags, 0);
        EXPECT_EQ(spec.conversion, 0);
        EXPECT_EQ(spec.size, 77) << "the caller's";
    }
}

TEST(FormatSpec, ParsesANullPointerAsAnEmptyText)
{
    FormatSpec spec;
    EXPECT_STREQ(parseFormatSpec(nullptr, spec), "");
    EXPECT_EQ(spec.conversion, 0);
}

TEST(FormatSpec, GivesTheUnitBehindTheConversion)
{
    EXPECT_STREQ(unitBehind("f dB"), " dB");
    EXPECT_STREQ(unitBehind("f"), "");
    EXPECT_STREQ(unitBehind(""), "");
}
