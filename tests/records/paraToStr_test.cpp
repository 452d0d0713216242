#include "printedParameter.h"

#include "support/processLocale.h"

#include <gtest/gtest.h>

#include <vector>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::failed;
using kestrova::test::print;
using kestrova::test::Printed;
using kestrova::test::printWithUnit;
using kestrova::test::ProcessLocale;

namespace kestrova::test::paraToStr {

namespace {

struct Row {
    char const * format;
    char const * bytes;
    char const * text;
};

/// Everything here prints by the plain locale, whatever the surroundings have.
class ParaToStr : public testing::Test {
protected:
    static void expectTexts(std::vector<Row> const & rows)
    {
        for (Row const & row : rows) {
            int const length = static_cast<int>(QString::fromUtf8(row.text).size());
            EXPECT_EQ(print(row.format, row.bytes), (Printed{0, row.text, length}))
                << row.format << " of " << row.bytes;
        }
    }

    static std::string blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

private:
    ProcessLocale locale{"C"};
};

} // namespace

TEST_F(ParaToStr, PrintsSignedNumbers)
{
    expectTexts({
        {"%d", "0C 00", "   12"},
        {"%d", "FF FF", "   -1"},
        {"%d", "00 80", "-32768"},
        {"%d", "FF 7F", "32767"},
        {"%D", "80", " -128"},
        {"%D", "7F", "  127"},
        {"%I8d", "FF", "   -1"},
        {"%I24d", "FF FF FF", "      -1"},
        {"%I24d", "FF FF 7F", " 8388607"},
        {"%ld", "FF FF FF FF", "        -1"},
        {"%I32d", "00 00 00 80", "-2147483648"},
        {"%I40d", "00 00 00 00 80", "-549755813888"},
        {"%I48d", "FF FF FF FF FF FF", "   -1"},
        {"%I64d", "FF FF FF FF FF FF FF FF", "                  -1"},
        {"%I64d", "00 00 00 00 00 00 00 80", "-9223372036854775808"},
        {"%3d", "00 00", "  0"},
        {"%1d", "D2 04", "1234"},
    });
}

TEST_F(ParaToStr, PrintsUnsignedNumbers)
{
    expectTexts({
        {"%u", "FF FF", "65535"},
        {"%U", "FF", "  255"},
        {"%I8u", "80", "  128"},
        {"%I24u", "FF FF FF", "16777215"},
        {"%lu", "FF FF FF FF", "4294967295"},
        {"%I56u", "FF FF FF FF FF FF FF", "72057594037927936"}, // beyond a double's digits
        {"%I64u", "FF FF FF FF FF FF FF 7F", " 9223372036854775808"},
        {"%I64u", "FF FF FF FF FF FF FF FF", "                  -1"}, // scaled as a signed number
    });
}

TEST_F(ParaToStr, ShiftsTheDecimalPointOfIntegers)
{
    expectTexts({
        {"%6.2d", "D2 04", " 12.34"},
        {"%6.2d", "2E FB", "-12.34"},
        {"%6.2d", "05 00", "  0.05"},
        {"%6.2d", "FB FF", " -0.05"},
        {"%6.2d", "00 00", "  0.00"},
        {"%6.1U", "FF", "  25.5"},
        {"%1.4d", "01 00", "0.0001"},
        {"%1.6d", "D2 04", "0.001234"},
        {"%1.7ld", "01 00 00 00", "0.0000001"},
        {"%1.7ld", "FF FF FF FF", "-0.0000001"},
        {"%1.7ld", "15 CD 5B 07", "12.3456789"},
        // From 8 decimals on the divisor starts again at 1, while the decimals are printed.
        {"%1.8d", "D2 04", "1234.00000000"},
        {"%1.9d", "D2 04", "123.400000000"},
        {"%1.10d", "D2 04", "12.3400000000"},
        {"%1.15d", "D2 04", "0.000123400000000"},
        {"%1.16d", "D2 04", "1234.0000000000000000"},
        // Past 2^52 the quotient is what a double can hold.
        {"%1.1I64d", "FF FF FF FF FF FF 0F 00", "450359962737049.5"},
        {"%1.1I64d", "33 33 33 33 33 33 13 00", "540431955284459.5"},
    });
}

TEST_F(ParaToStr, PutsSignsAndZerosInFrontOfNumbers)
{
    expectTexts({
        {"%+6d", "0C 00", "   +12"},
        {"%+6d", "F4 FF", "   -12"},
        {"%+6d", "00 00", "    +0"},
        {"%06d", "0C 00", "000012"},
        {"%06d", "F4 FF", "-00012"},
        {"%+06d", "0C 00", "+00012"},
        {"%+06d", "F4 FF", "-00012"},
        {"%06.1d", "0C 00", "0001.2"},
        {"%+07.1d", "F4 FF", "-0001.2"},
        {"%+1d", "0C 00", "+12"},
        {"%02d", "D2 04", "1234"},
        {"%0d", "0C 00", "00012"},
        {"%+U", "FF", " +255"},
    });
}

TEST_F(ParaToStr, PrintsReals)
{
    expectTexts({
        {"%f", "00 00 40 41", "      12"},
        {"%6.2f", "00 00 C0 3F", "  1.50"},
        {"%6.2f", "00 00 C0 BF", " -1.50"},
        {"%+6.2f", "00 00 C0 3F", " +1.50"},
        {"%06.2f", "00 00 C0 3F", "001.50"},
        {"%+06.2f", "00 00 C0 3F", "+01.50"},
        {"%8.5f", "CD CC CC 3D", " 0.10000"},
        {"%12.10f", "CD CC CC 3D", "0.1000000015"}, // a float, widened
        {"%12.10lf", "9A 99 99 99 99 99 B9 3F", "0.1000000000"},
        {"%lf", "00 00 00 00 00 00 F8 BF", "      -2"},
        {"%Lf", "00 00 00 00 00 00 F0 3F", "       1"},
        {"%4.1I64f", "00 00 00 00 00 00 F0 3F", " 1.0"},
        {"%4.1I32f", "00 00 80 3F", " 1.0"},
        {"%4.1I16f", "FF FF", " 0.0"}, // neither a float nor a double
        {"%4.1I24f", "FF FF FF", " 0.0"},
        {"%f", "00 00 80 7F", "     inf"},
        {"%08f", "00 00 80 FF", "    -inf"},
        {"%4.1f", "00 00 00 80", "-0.0"},
    });
}

TEST_F(ParaToStr, PrintsHexadecimalNumbers)
{
    expectTexts({
        {"%x", "AB 00", "  AB"},
        {"%X", "AB 00", "  AB"},
        {"%04x", "AB 00", "00AB"},
        {"%+04x", "AB 00", "  AB"}, // the "+" takes the zeros away
        {"%+4x", "AB 00", "  AB"},
        {"%1x", "00 00", "0"},
        {"%x", "EF BE", "BEEF"},
        {"%1lx", "EF BE AD DE", "DEADBEEF"},
        {"%I24x", "01 02 03", "30201"},
        {"%1I64x", "FF FF FF FF FF FF FF FF", "FFFFFFFFFFFFFFFF"},
        {"%020I64x", "EF CD AB 90 78 56 34 12", "00001234567890ABCDEF"},
    });
}

TEST_F(ParaToStr, PrintsBitPatterns)
{
    expectTexts({
        {"%I8b", "53", "01010011"},
        {"%+I8b", "53", "0101 0011"},
        {"%12I8b", "53", "    01010011"},
        {"%+12I8b", "53", "   0101 0011"},
        {"%012I8b", "53", "    01010011"}, // no zeros
        {"%b", "53 80", "1000000001010011"},
        {"%+b", "53 80", "1000 0000 0101 0011"},
        {"%I24b", "01 00 80", "100000000000000000000001"},
        {"%+I64b", "00 00 00 00 00 00 00 80",
         "1000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000"},
    });
}

TEST_F(ParaToStr, PrintsCharacters)
{
    expectTexts({
        {"%c", "41", "A"},
        {"%3c", "41", "  A"},
        {"%03c", "41", "  A"},
        {"%2c", "0A", " \n"}, // as it is
        {"%lc", "41 42", "A"},
        {"%c", "C4", "\xEF\xBF\xBD"}, // no UTF-8
    });
}

TEST_F(ParaToStr, EndsACharacterFieldBeforeAZero)
{
    EXPECT_EQ(print("%c", "00"), (Printed{0, "", 0}));
    EXPECT_EQ(print("%3c", "00"), (Printed{0, "  ", 2}));
    EXPECT_EQ(printWithUnit("%3c V", "00"), (Printed{0, "   V", 2}));
}

TEST_F(ParaToStr, PrintsTexts)
{
    expectTexts({
        {"%s", "48 69 00", "             Hi"},
        {"%2s", "48 69 00", "Hi"},
        {"%1s", "48 69 00", "Hi"}, // a width never cuts
        {"%4s", "48 69 00", "  Hi"},
        {"%04s", "48 69 00", "  Hi"},
        {"%1s", "48 00 69 00", "H"},
        {"%3s", "00", "   "},
        {"%1s", "41 0A 42 7F 43 1F 44 A0 45 00", "A.B.C.D.E"},
        {"%1s", "C3 A4 00", ".."}, // no UTF-8 letter survives
    });
}

TEST_F(ParaToStr, LetsEightLettersOfTheDevicesThroughATextUnchanged)
{
    // Each alone is no UTF-8 and so becomes a replacement character, where any other such byte becomes a dot.
    for (char const * letter : {"83", "F7", "8B", "89", "88", "B8", "DF", "B5"})
        EXPECT_EQ(print("%1s", (std::string(letter) + "00").c_str()), (Printed{0, "\xEF\xBF\xBD", 1}))
            << letter;
    for (char const * other : {"82", "84", "8A", "8C", "B4", "B9", "DE", "E0", "F6", "F8", "81"})
        EXPECT_EQ(print("%1s", (std::string(other) + "00").c_str()), (Printed{0, ".", 1})) << other;
    // Two of them may make up a letter.
    EXPECT_EQ(print("%1s", "DF B5 00"), (Printed{0, "\xDF\xB5", 2})) << "the length counts bytes";
}

TEST_F(ParaToStr, ReadsATextBeyondTheLengthGiven)
{
    EXPECT_EQ(print(QStringLiteral("%1s"), "Hello", 1), (Printed{0, "Hello", 5}));
}

TEST_F(ParaToStr, DumpsBytes)
{
    expectTexts({
        {"%H", "AA BB CC", "AA BB CC"},
        {"%1H", "0F", "0F"},
        {"%5H", "00 01 7F 80 FF", "00 01 7F 80 FF"},
        {"%+02H", "AA BB", "AA BB"},
    });
}

TEST_F(ParaToStr, DumpsByItsWidthAndNotByTheLengthGiven)
{
    EXPECT_EQ(print(QStringLiteral("%3H"), "ABC", 1), (Printed{0, "41 42 43", 8}));
    EXPECT_EQ(print(QStringLiteral("%2H"), "ABC", 3), (Printed{0, "41 42", 5}));
}

TEST_F(ParaToStr, DumpsEightyFiveBytesAndNotOneMore)
{
    QByteArray const bytes(86, '\xAB');
    std::string dump = "AB";
    for (int i = 1; i < 85; ++i)
        dump += " AB";
    EXPECT_EQ(print(QStringLiteral("%85H"), bytes.constData(), 86), (Printed{0, dump, 254}));
    EXPECT_EQ(print(QStringLiteral("%86H"), bytes.constData(), 86), (Printed{0, "", 0}));
    EXPECT_EQ(print(QStringLiteral("%99999999999H"), bytes.constData(), 86), (Printed{0, "", 0}));
    EXPECT_EQ(print(QStringLiteral("%86H V"), bytes.constData(), 86, true), (Printed{0, " V", 0}));
}

TEST_F(ParaToStr, PrintsNothingForT)
{
    EXPECT_EQ(print("%T", "01 02"), (Printed{0, "", 0}));
    EXPECT_EQ(printWithUnit("%T V", "01 02"), (Printed{0, " V", 0}));
    EXPECT_EQ(printWithUnit("%-T V", "01 02"), (Printed{0, " V", 0})) << "nothing to move";
}

TEST_F(ParaToStr, PrintsHyphensWithoutAUnitWhenThereIsNoValue)
{
    Printed const hyphens{0, "---------------", 15};
    for (char const * format :
         {"%d", "%u V", "%6.2d", "%-6d", "%f dB", "%x", "%b", "%c", "%s", "%H", "%T", "%I128d"}) {
        for (bool const withUnit : {false, true})
            EXPECT_EQ(print(QString::fromLatin1(format), nullptr, 256, withUnit), hyphens) << format;
    }
}

TEST_F(ParaToStr, AppendsTheUnitAsItStands)
{
    struct UnitRow {
        char const * name;
        char const * format;
        char const * text;
        int fieldLength;
    };

    UnitRow const rows[] = {
        {"with its blank", "%6.2d V", " 12.34 V", 6},
        {"without a blank", "%6.2dV", " 12.34V", 6},
        {"a double percent sign stays double", "%6.2d%%", " 12.34%%", 6},
        {"a byte above 0x7F is no UTF-8", "%6.2d\x81", " 12.34\xEF\xBF\xBD", 6},
        {"no unit", "%6.2d", " 12.34", 6},
        {"text in front of the format is dropped", "x: %6.2d V", " 12.34 V", 6},
        {"the first percent sign counts", "%6.2d %d", " 12.34 %d", 6},
        {"what stands behind a prefix ends at the first letter", "%6.2I16 !V", " 12.34", 6},
    };
    for (UnitRow const & row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(printWithUnit(row.format, "D2 04"), (Printed{0, row.text, row.fieldLength}));
        std::string const field(" 12.34");
        EXPECT_EQ(print(row.format, "D2 04"), (Printed{0, field, 6})) << "not asked for";
    }
}

TEST_F(ParaToStr, ReadsTheFormatAsLatin1UpToAZero)
{
    unsigned char const bytes[] = {0x0C, 0x00};
    EXPECT_EQ(print(QStringLiteral("%d ") + QChar(0x03A9), bytes, 2, true), (Printed{0, "   12 ?", 5}));
    EXPECT_EQ(print(QString::fromLatin1("%d V\0rest", 9), bytes, 2, true), (Printed{0, "   12 V", 5}));
    EXPECT_EQ(print(QString::fromLatin1("\0%d", 3), bytes, 2), failed(-3));
}

TEST_F(ParaToStr, LeftJustifiesTheFieldInFrontOfTheUnit)
{
    struct JustifiedRow {
        char const * format;
        char const * bytes;
        char const * text;
        int fieldLength;
    };

    JustifiedRow const rows[] = {
        {"%-6d V", "0C 00", "12     V", 6},
        {"%-6.1d V", "0C 00", "1.2    V", 6},
        {"%-+6d", "0C 00", "+12   ", 6},
        {"%-06d", "0C 00", "000012", 6}, // no blank in front
        {"%-2d V", "D2 04", "1234 V", 4},
        {"%-f", "00 00 40 41", "12      ", 8},
        {"%-x", "AB 00", "AB  ", 4},
        {"%-12I8b", "53", "01010011    ", 12},
        {"%-3c", "41", "A  ", 3},
        {"%-3c", "20", "   ", 3}, // blanks only: there is nothing to bring to the front
        {"%-4s V", "48 69 00", "Hi   V", 4},
        {"%-8s", "20 48 20 69 00", "H i     ", 8}, // its own leading blanks move too, those inside stay
        {"%-3s V", "00", "    V", 3},
        {"%-3s", "20 20 20 20 00", "    ", 4},
    };
    for (JustifiedRow const & row : rows)
        EXPECT_EQ(printWithUnit(row.format, row.bytes), (Printed{0, row.text, row.fieldLength}))
            << row.format;
}

TEST_F(ParaToStr, CutsAFieldAt255Bytes)
{
    QByteArray const letters(300, 'x');
    char const * const text = letters.constData();
    unsigned char const twelve[] = {0x0C, 0x00};
    EXPECT_EQ(print(QStringLiteral("%1s"), text, 1), (Printed{0, std::string(255, 'x'), 255}));
    EXPECT_EQ(print(QStringLiteral("%310s"), text, 1), (Printed{0, blanks(10) + std::string(245, 'x'), 255}));
    EXPECT_EQ(print(QStringLiteral("%1s unit"), text, 1, true), (Printed{0, std::string(255, 'x'), 255}));
    EXPECT_EQ(print(QStringLiteral("%255d"), twelve, 2), (Printed{0, blanks(253) + "12", 255}));
    EXPECT_EQ(print(QStringLiteral("%256d"), twelve, 2), (Printed{0, blanks(253) + " 1", 255}));
    EXPECT_EQ(print(QStringLiteral("%1000d"), twelve, 2), (Printed{0, blanks(255), 255}));
    EXPECT_EQ(print(QStringLiteral("%253d unit"), twelve, 2, true), (Printed{0, blanks(251) + "12 u", 253}));
    EXPECT_EQ(print(QStringLiteral("%-256d"), twelve, 2), (Printed{0, "1" + blanks(254), 255}));
}

TEST_F(ParaToStr, SurvivesWidthsAndPrecisionsBeyondAnyField)
{
    unsigned char const twelve[] = {0x0C, 0x00, 0x00, 0x00};
    Printed const blank{0, blanks(255), 255};
    Printed const zeros{0, std::string(255, '0'), 255};
    EXPECT_EQ(print(QStringLiteral("%99999999999d"), twelve, 4), blank);
    EXPECT_EQ(print(QStringLiteral("%099999999999d"), twelve, 4), zeros);
    EXPECT_EQ(print(QStringLiteral("%99999999999f"), twelve, 4), blank);
    EXPECT_EQ(print(QStringLiteral("%99999999999x"), twelve, 4), blank);
    EXPECT_EQ(print(QStringLiteral("%99999999999b"), twelve, 4), blank);
    EXPECT_EQ(print(QStringLiteral("%99999999999c"), twelve, 4), blank);
    EXPECT_EQ(print(QStringLiteral("%99999999999s"), twelve, 4), blank);
    unsigned char const tenMillion[] = {0x80, 0x96, 0x98, 0x00};
    EXPECT_EQ(
        print(QStringLiteral("%1.99999999992ld"), tenMillion, 4), // 2147483647 decimals, so divided by 10^7
        (Printed{0, "1." + std::string(253, '0'), 255}));
    EXPECT_EQ(print(QStringLiteral("%1.2000d"), twelve, 4), (Printed{0, "12." + std::string(252, '0'), 255}));
    EXPECT_EQ(print(QStringLiteral("%2000.2000d"), twelve, 4),
              (Printed{0, "12." + std::string(252, '0'), 255}));
    EXPECT_EQ(print(QStringLiteral("%2704.2504d"), twelve, 4),
              (Printed{0, blanks(2704 - 2507) + "12." + std::string(255 - 200, '0'), 255}));
    EXPECT_EQ(print(QStringLiteral("%3000.2504d"), twelve, 4), blank);
}

TEST_F(ParaToStr, FailsWithTheTextLeftAlone)
{
    struct FailureRow {
        char const * name;
        char const * format;
        int length;
        int result;
    };

    FailureRow const rows[] = {
        {"no format", "", 256, -3},
        {"no percent sign", "6.2d V", 256, -3},
        {"percent sign alone", "%", 256, -4},
        {"two percent signs", "%%", 256, -4},
        {"precision without a width", "%.2f", 256, -4},
        {"no size for e", "%e", 256, -4},
        {"no size for i", "%i", 256, -4},
        {"no size for g", "%g", 256, -4},
        {"negative size", "%I-16d", 256, -4},
        {"size 256 is not too large for a text", "%I2048s", 256, 0},
        {"size 257", "%I2056s", 257, -5},
        {"size 512 by the long mark", "%lI2048s", 512, -5},
        {"size far too large", "%I99999999999d", 256, -5},
        {"one byte for two", "%d", 1, -13},
        {"three bytes for two", "%d", 3, 0},
        {"no byte", "%D", 0, -13},
        {"a negative number of bytes", "%D", -1, -13},
        {"seven bytes for a double", "%lf", 7, -13},
        {"no terminator, no byte", "%s", 0, -13},
        {"nine bytes, signed", "%I72d", 9, -6},
        {"nine bytes, unsigned", "%I72u", 9, -6},
        {"nine bytes, hexadecimal", "%I72x", 9, -6},
        {"nine bytes, bits", "%I72b", 9, -6},
        {"eight bytes, signed", "%I64d", 8, 0},
        {"eight bytes, unsigned", "%I64u", 8, 0},
        {"eight bytes, hexadecimal", "%I64x", 8, 0},
        {"eight bytes, bits", "%I64b", 8, 0},
        {"nine bytes are no matter for a character", "%I72c", 9, 0},
        {"nine bytes are no matter for a real", "%I72f", 9, 0},
        {"too few bytes come before too large a number", "%I72d", 8, -13},
        {"too large a size comes before too few bytes", "%I9999d", 8, -5},
    };
    QByteArray const bytes(600, '\0');
    for (FailureRow const & row : rows) {
        SCOPED_TRACE(row.name);
        Printed const printed = print(QString::fromLatin1(row.format), bytes.constData(), row.length, true);
        EXPECT_EQ(printed.result, row.result);
        if (row.result != 0) {
            EXPECT_EQ(printed, failed(row.result));
        }
    }
}

TEST_F(ParaToStr, ChecksTheFormatAlsoWhenThereIsNoValue)
{
    EXPECT_EQ(print(QStringLiteral("%.2f"), nullptr, 256), failed(-4));
    EXPECT_EQ(print(QStringLiteral("%d"), nullptr, 1), failed(-13));
    EXPECT_EQ(print(QString(), nullptr, 256), failed(-3));
}

TEST_F(ParaToStr, NeedsNoPlaceForTheLength)
{
    unsigned char const twelve[] = {0x0C, 0x00};
    QString text;
    EXPECT_EQ(CObjectDef::paraToStr(QStringLiteral("%d"), twelve, 2, text, nullptr, false), 0);
    EXPECT_EQ(text, QStringLiteral("   12"));
}

TEST_F(ParaToStr, PrintsIntoAnyText)
{
    unsigned char const twelve[] = {0x0C, 0x00};
    QString format = QStringLiteral("%d");
    QString longer(100, QLatin1Char('x'));
    QString const shared = longer;
    for (QString * text : {&longer, &format}) {
        EXPECT_EQ(CObjectDef::paraToStr(format, twelve, 2, *text, nullptr, false), 0);
        EXPECT_EQ(*text, QStringLiteral("   12"));
    }
    EXPECT_EQ(shared, QString(100, QLatin1Char('x')));

    QString empty;
    EXPECT_EQ(CObjectDef::paraToStr(QStringLiteral("%T"), twelve, 2, empty, nullptr, false), 0);
    EXPECT_FALSE(empty.isNull()) << "empty, as an answer";
}

TEST_F(ParaToStr, ReadsNoMoreThanTheSize)
{
    EXPECT_EQ(print("%d", "0C 00 FF"), (Printed{0, "   12", 5}));
}

TEST(ParaToStrLocale, UsesTheDecimalPointOfTheProcess)
{
    ProcessLocale const german("de_DE.UTF-8");
    if (!german.isAvailable())
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    EXPECT_EQ(print("%6.2d", "D2 04"), (Printed{0, " 12,34", 6}));
    EXPECT_EQ(print("%1.9d", "D2 04"), (Printed{0, "123,400000000", 13}));
    EXPECT_EQ(print("%6.2f", "00 00 C0 3F"), (Printed{0, "  1,50", 6}));
    EXPECT_EQ(print("%d", "FF 7F"), (Printed{0, "32767", 5})) << "no thousands separator";
}

} // namespace kestrova::test::paraToStr
