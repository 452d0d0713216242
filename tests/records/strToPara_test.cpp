#include "records/objectDef.h"
#include "support/processLocale.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::ProcessLocale;

namespace kestrova::test::strToPara {

namespace {

/// What a value is before the call, to see whether it is touched.
QVariant const untouched(QByteArrayLiteral("untouched"));

struct Parsed {
    int result;
    QVariant value;

    bool operator==(Parsed const & other) const
    {
        return result == other.result && value.userType() == other.value.userType() && value == other.value;
    }
};

std::ostream & operator<<(std::ostream & out, Parsed const & parsed)
{
    return out << parsed.result << ' ' << (parsed.value.isValid() ? parsed.value.typeName() : "invalid")
               << ' ' << parsed.value.toString().toStdString();
}

Parsed parse(QString const & text, QString const & format)
{
    Parsed parsed{0, untouched};
    parsed.result = CObjectDef::strToPara(text, format, parsed.value);
    return parsed;
}

Parsed parse(char const * text, char const * format)
{
    return parse(QString::fromLatin1(text), QString::fromLatin1(format));
}

Parsed const unparsable{-11, untouched};

class StrToPara : public testing::Test {
protected:
    struct IntegerRow {
        char const * text;
        char const * format;
        int value;
    };

    static void expectIntegers(std::vector<IntegerRow> const & rows)
    {
        for (IntegerRow const & row : rows)
            EXPECT_EQ(parse(row.text, row.format), (Parsed{0, QVariant(row.value)}))
                << row.text << " by " << row.format;
    }

private:
    ProcessLocale locale{"C"};
};

} // namespace

TEST_F(StrToPara, ParsesIntegersOfEachConversion)
{
    expectIntegers({
        {"12", "%d", 12},
        {"-12", "%d", -12},
        {"+12", "%d", 12},
        {"  12", "%d", 12},
        {"12 dB", "%d", 12},
        {"12.9", "%d", 12}, // without a precision the decimals are not looked at
        {"12", "%D", 12},
        {"12", "%u", 12},
        {"12", "%U", 12},
        {"ff", "%x", 255},
        {"FF", "%X", 255},
        {"0x1F", "%x", 31},
        {"0x", "%x", 0},
        {"12xyz", "%x", 0x12},
        {"010", "%d", 10},  // not octal
        {"12", "V %d", 12}, // text before the format is no matter
        {"12", "%-+06d V", 12},
        {"12", "%ldab", 12}, // the long mark's two characters are no matter to
                             // numbers
        {"12", "%.0d", 12},  // a size of 0 is no matter either
        {"12", "%I16 !d", 12},
    });
}

TEST_F(StrToPara, CutsIntegersToTheirSizeAsSignedNumbers)
{
    expectIntegers({
        {"200", "%U", -56},
        {"200", "%D", -56},
        {"127", "%U", 127},
        {"256", "%U", 0},
        {"-129", "%D", 127},
        {"40000", "%u", -25536},
        {"40000", "%d", -25536},
        {"65536", "%d", 0},
        {"FFFF", "%x", -1},
        {"40000", "%I24u", 40000},
        {"4294967295", "%lu", -1},
        {"4294967295", "%I64u", -1},
        {"2147483648", "%ld", std::numeric_limits<int>::min()},
        {"4294967296", "%ld", 0},
        {"99999999999999999999", "%ld", -1}, // the largest, cut to 32 bits
        {"-99999999999999999999", "%ld", 0},
        {"99999999999999999999", "%lu", -1},
        {"-1", "%lu", -1},
        {"DEADBEEF", "%lx", -559038737},
        {"200", "%I8d", -56},
    });
}

TEST_F(StrToPara, ShiftsTheDecimalsIntoAnInteger)
{
    expectIntegers({
        {"12.345", "%6.2d", 1234},
        {"12.34", "%6.2d", 1234},
        {"12.5", "%6.2d", 1250},
        {"12", "%6.2d", 1200},
        {"12.", "%6.2d", 120}, // one missing decimal is made up, and not two
        {"12.5", "%6.3d", 1250},
        {"12", "%6.3d", 1200},
        {"12.5", "%6.5d", 1250},
        {"12", "%6.1d", 120},
        {"12.5", "%6.1d", 125},
        {"12,5", "%5.1d", 125},
        {"1,2.5", "%5.1d", 12}, // the first separator
        {"-12.5", "%6.1d", -125},
        {"-0.5", "%6.1d", -5},
        {".5", "%6.1d", 5},
        {".", "%6.1d", 0},
        {"", "%6.2d", 0},
        {"12.5 dB", "%6.1d dB", 125},
        {"12.5 dB", "%6.2d dB", 1250}, // what is no digit counts as 0
        {"12. 5", "%6.2d", 1205},
        {"12.3456", "%6.1U", 123},
        {"1.5", "%6.1x", 0x15},
        {"1.2345", "%1.4D", 57}, // 12345, cut to a byte
        {"12.5", "%6.99999999999d", 1250},
    });
}

TEST_F(StrToPara, ReadsTheUnitBetweenNumberAndMadeUpDecimals)
{
    // The separator goes to the end of the text, behind the unit, so that the number itself is not shifted.
    expectIntegers({{"12 dB", "%6.2d", 12}, {"12%", "%6.2d", 12}});
}

TEST_F(StrToPara, MakesUpDecimalsOnlyWhereFourBytesOfTheBufferRemain)
{
    QString const zeros(246, QLatin1Char('0'));
    QString const format = QStringLiteral("%6.2ld");
    EXPECT_EQ(parse(zeros + QStringLiteral("     1"), format), (Parsed{0, QVariant(0)}));
    EXPECT_EQ(parse(zeros + QStringLiteral("123456"), format), (Parsed{0, QVariant(12345600)}))
        << "252 characters";
    EXPECT_EQ(parse(zeros + QStringLiteral("1234567"), format), (Parsed{0, QVariant(1234567)}))
        << "253 characters";
}

TEST_F(StrToPara, LooksAtTheFirst255CharactersOnly)
{
    QString const zeros(254, QLatin1Char('0'));
    EXPECT_EQ(parse(zeros + QStringLiteral("123"), QStringLiteral("%ld")), (Parsed{0, QVariant(1)}));
    EXPECT_EQ(parse(zeros + QStringLiteral("1.5"), QStringLiteral("%6.1ld")), (Parsed{0, QVariant(1)}));
    EXPECT_EQ(parse(QString(300, QLatin1Char('x')), QStringLiteral("%s")),
              (Parsed{0, QVariant(QString(255, QLatin1Char('x')))}));
    EXPECT_EQ(parse(QString(100000, QLatin1Char('1')), QStringLiteral("%d")), (Parsed{0, QVariant(-1)}));
}

TEST_F(StrToPara, FindsNoIntegerInATextThatDoesNotStartWithOne)
{
    for (char const * text : {"", " ", "abc", "-", "+", "- 5", "dB 12", "--5"}) {
        for (char const * format : {"%d", "%U", "%ld"})
            EXPECT_EQ(parse(text, format), unparsable) << text << " by " << format;
    }
    EXPECT_EQ(parse("", "%x"), unparsable);
    EXPECT_EQ(parse("xyz", "%X"), unparsable);
    EXPECT_EQ(parse(".5", "%d"), unparsable) << "without a precision";
    EXPECT_EQ(parse("abc", "%6.2d"), unparsable) << "also with decimals made up behind it";
}

TEST_F(StrToPara, ParsesReals)
{
    struct RealRow {
        char const * text;
        char const * format;
        int result;
        float value;
    };

    RealRow const rows[] = {
        {"12.5", "%f", 0, 12.5F},  {"-12.5", "%6.1f", 0, -12.5F},
        {"1e3", "%f", 0, 1000.0F}, {"12.345", "%6.1f", 0, 12.345F}, // the precision is no matter
        {"12.5", "%lf", 0, 12.5F},                                  // a float also for a double
        {"12,5", "%f", -11, 0.0F}, {"12.5 dB", "%f dB", -11, 0.0F},
        {"", "%f", -11, 0.0F},     {"abc", "%f", -11, 0.0F},
    };
    for (RealRow const & row : rows)
        EXPECT_EQ(parse(row.text, row.format), (Parsed{row.result, QVariant(row.value)})) << row.text;
}

TEST_F(StrToPara, ReadsARealToItsEnd)
{
    EXPECT_EQ(parse(QString(255, QLatin1Char('0')) + QStringLiteral("1"), QStringLiteral("%f")),
              (Parsed{0, QVariant(1.0F)}));
}

TEST_F(StrToPara, TakesATextAsItIs)
{
    struct TextRow {
        char const * text;
        char const * format;
        char const * value;
    };

    TextRow const rows[] = {
        {"Hello", "%s", "Hello"},
        {"Hello", "%3s", "Hello"}, // the width is no matter
        {"Hello", "%-20s", "Hello"},
        {"", "%s", ""},
        {" 5% ", "%s", " 5% "},
        {"M\xFCller", "%s", "M\xC3\xBCller"}, // Latin-1
        {"Hello", "%sab", "Hello"},
        // With the long mark the two characters behind the conversion are printed too.
        {"Hello", "%ls", "Hello"},
        {"Hello", "%lsa", "Helloa"},
        {"Hello", "%lsabc", "Helloab"},
        {"Hello", "%ls%%", "Hello%"},
        {"Hello", "%ls%d", "Hello%d"}, // there is no value for it to print
    };
    for (TextRow const & row : rows)
        EXPECT_EQ(parse(row.text, row.format), (Parsed{0, QVariant(QString::fromUtf8(row.value))}))
            << row.format;
}

TEST_F(StrToPara, ReadsATextAsLatin1UpToAZero)
{
    EXPECT_EQ(parse(QString(QChar(0x03A9)), QStringLiteral("%s")),
              (Parsed{0, QVariant(QStringLiteral("?"))}));
    EXPECT_EQ(parse(QString::fromLatin1("ab\0cd", 5), QStringLiteral("%s")),
              (Parsed{0, QVariant(QStringLiteral("ab"))}));
}

TEST_F(StrToPara, TakesNoCharacter)
{
    EXPECT_EQ(parse("A", "%c"), (Parsed{0, untouched}));
    EXPECT_EQ(parse("", "%c"), (Parsed{0, untouched}));
}

TEST_F(StrToPara, ParsesBitPatternsFromTheirEnd)
{
    QVariant const fourBytes(quint32(0x80000001));
    QVariant const eightBytes(quint64(0x8000000000000001));
    QByteArray const zeros(62, '0');

    struct BitRow {
        char const * name;
        QByteArray text;
        QVariant value;
    };

    BitRow const rows[] = {
        {"eight bits", "01010011", 0x53},
        {"with blanks", " 0101 0011 ", 0x53},
        {"one bit", "1", 1},
        {"three bits", "101", 5},
        {"unsigned byte", "11111111", 255},
        {"nine bits", "1 0000 0001", 257},
        {"sixteen bits", "1111111111111111", 65535},
        {"anything else is a one", "a0-", 5},
        {"a tab is a one too", "\t0", 2},
        {"seventeen bits make three bytes", "10000000000000001", untouched},
        {"twenty-five bits make four bytes", "1" + zeros.left(23) + "1", quint32(0x1000001)},
        {"thirty-two bits", "1" + zeros.left(30) + "1", fourBytes},
        {"thirty-three bits", "1" + zeros.left(31) + "1", untouched},
        {"fifty-six bits", "1" + zeros.left(54) + "1", untouched},
        {"fifty-seven bits", "1" + zeros.left(55) + "1", quint64(0x100000000000001)},
        {"sixty-four bits", "1" + zeros + "1", eightBytes},
        {"sixty-five bits", "11" + zeros + "1", untouched},
        {"two hundred and fifty-five bits", QByteArray(255, '1'), untouched},
        {"none", "", untouched},
        {"blanks only", "   ", untouched},
    };
    for (BitRow const & row : rows)
        EXPECT_EQ(parse(row.text.constData(), "%b"), (Parsed{0, row.value})) << row.name;
    EXPECT_EQ(parse("1111111111111111", "%I8b"), (Parsed{0, QVariant(65535)}))
        << "the format's size is no matter";
}

TEST_F(StrToPara, ParsesDumps)
{
    struct DumpRow {
        char const * name;
        char const * text;
        char const * format;
        QVariant value;
    };

    DumpRow const rows[] = {
        {"one byte", "AB", "%1H", quint32(0xAB)},
        {"the first byte is the lowest", "01 02 03", "%H", quint32(0x030201)},
        {"four bytes", "01 02 03 FF", "%4H", quint32(0xFF030201)},
        {"five bytes", "01 02 03 04 05", "%5H", quint64(0x0504030201)},
        {"eight bytes", "01 02 03 04 05 06 07 FF", "%8H", quint64(0xFF07060504030201)},
        {"missing bytes are 0", "01 02", "%4H", quint32(0x0201)},
        {"no byte at all", "", "%2H", quint32(0)},
        {"surplus bytes are not read", "01 02 03", "%2H", quint32(0x0201)},
        {"low bytes count", "1234 5678", "%2H", quint32(0x7834)},
        {"any character separates", "01-02:03", "%3H", quint32(0x030201)},
        {"signs and prefixes are read", "-1 0x10", "%2H", quint32(0x10FF)},
        {"what is no number counts as 0 and is skipped", "G1", "%2H", quint32(0x0100)},
        {"further blanks are skipped", "01   02", "%2H", quint32(0x0201)},
    };
    for (DumpRow const & row : rows)
        EXPECT_EQ(parse(row.text, row.format), (Parsed{0, row.value})) << row.name;
}

TEST_F(StrToPara, DumpsNothingFromBehindTheText)
{
    QString const longest(255, QLatin1Char('1'));
    EXPECT_EQ(parse(longest, QStringLiteral("%8H")), (Parsed{0, QVariant(quint64(0xFF))}));
}

TEST_F(StrToPara, RefusesADumpOfMoreThanEightBytes)
{
    EXPECT_EQ(parse("01 02", "%9H"), (Parsed{-6, untouched}));
    EXPECT_EQ(parse("01 02", "%99999999999H"), (Parsed{-6, untouched}));
}

TEST_F(StrToPara, RefusesFormatsThatItCannotRead)
{
    struct FailureRow {
        char const * format;
        int result;
    };

    FailureRow const rows[] = {
        {"", -3},    {"d", -10},     {"V", -10},  {"%", -10},    {"%T", -10}, {"%e", -10},
        {"%i", -10}, {"%5.1F", -10}, {"%B", -10}, {"%I16", -10}, {"%S", -10}, {"%hd", -10},
    };
    for (FailureRow const & row : rows)
        EXPECT_EQ(parse("12", row.format), (Parsed{row.result, untouched})) << row.format;
}

TEST_F(StrToPara, GoesByTheCharacterAndNotByTheSize)
{
    EXPECT_EQ(parse("12.5", "%.2f"), (Parsed{0, QVariant(12.5F)})) << "although nothing can be printed by it";
    EXPECT_EQ(parse("12", "%I72d"), (Parsed{0, QVariant(12)}));
    EXPECT_EQ(parse("12", "%I16 x"), (Parsed{0, QVariant(0x12)}))
        << "the character at the position, a blank further";
}

TEST(StrToParaLocale, TakesCommaAndPointInEveryLocale)
{
    ProcessLocale const german("C", QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(parse("12,5", "%5.1d"), (Parsed{0, QVariant(125)}));
    EXPECT_EQ(parse("12.5", "%5.1d"), (Parsed{0, QVariant(125)}));
    EXPECT_EQ(parse("12", "%6.2d"), (Parsed{0, QVariant(1200)})) << "the comma that is written is read again";
    EXPECT_EQ(parse("12,5", "%f"), (Parsed{-11, QVariant(0.0F)})) << "but a real has a point";
}

TEST(StrToParaLocale, DoesNotScaleWhereTheDecimalPointIsBeyondLatin1)
{
    QLocale const persian(QLocale::Persian, QLocale::Iran);
    ASSERT_GT(QString(persian.decimalPoint()).at(0).unicode(), 0xFF);
    ProcessLocale const locale("C", persian);
    EXPECT_EQ(parse("12", "%6.2d"), (Parsed{0, QVariant(12)}));
    EXPECT_EQ(parse("", "%6.2d"), unparsable);
    EXPECT_EQ(parse("12.5", "%6.2d"), (Parsed{0, QVariant(1250)})) << "a separator that is there is used";
}

} // namespace kestrova::test::strToPara
