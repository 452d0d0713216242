#include "records/parameterParsing.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

using namespace kestrova::Morvel::Devicelore;

TEST(ParseParameter, SaysWhatIsMissing)
{
    QVariant value;
    int consumed = 77;
    EXPECT_EQ(parseParameter("12", nullptr, value, consumed), -3);
    EXPECT_EQ(consumed, 0);
    EXPECT_EQ(parseParameter("12", "", value, consumed), -3);
    EXPECT_EQ(parseParameter(nullptr, "%d", value, consumed), -8);
    EXPECT_EQ(parseParameter(nullptr, nullptr, value, consumed), -3) << "the format first";
    EXPECT_FALSE(value.isValid());
}

TEST(ParseParameter, CountsTheBytesOfTheValue)
{
    struct Row {
        char const * text;
        char const * format;
        int result, consumed;
    };

    Row const rows[] = {
        {"12", "%d", 0, 2},      {"12", "%U", 0, 1},        {"12", "%lx", 0, 4},
        {"12", "%I24u", 0, 3},   {"12", "%I64d", 0, 8},     {"", "%d", -11, EOF},
        {"  ", "%d", -11, EOF},  {"abc", "%d", -11, 0},     {".5", "%d", -11, 0},
        {"12.5", "%f", 0, 4},    {"12.5", "%lf", 0, 4},     {"abc", "%f", -11, 0},
        {"Hello", "%s", 0, 6},   {"", "%s", 0, 1},          {"Hello", "%lsab", 0, 8},
        {"A", "%c", 0, 1},       {"0101 0011", "%b", 0, 1}, {"101010101", "%b", 0, 2},
        {"", "%b", 0, 0},        {"01 02", "%2H", 0, 2},    {"01 02", "%8H", 0, 8},
        {"01 02", "%9H", -6, 0}, {"12", "%T", -10, 0},      {"12", "d", -10, 0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(testing::Message() << row.text << " by " << row.format);
        QVariant value;
        int consumed = 77;
        EXPECT_EQ(parseParameter(row.text, row.format, value, consumed), row.result);
        EXPECT_EQ(consumed, row.consumed);
    }
}

// Numbers are scanned without sscanf, which says nothing about numbers too large; what it does here is the
// rule.
TEST(ParseParameter, ScansIntegersAsSscanfDoes)
{
    std::mt19937_64 random(20240611);
    std::string const alphabet = "0123456789 +-xXaFgG.,\t";
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        for (auto length = random() % 24; length > 0; --length)
            text += random() % 4 != 0 ? alphabet[random() % 10] : alphabet[random() % alphabet.size()];

        struct Row {
            char const * format;
            char const * pattern;
        };

        for (Row const & row : {Row{"%ld", "%d"}, {"%lu", "%u"}, {"%lx", "%x"}}) {
            int scanned = 0;
            int const result = std::sscanf(text.c_str(), row.pattern, &scanned);
            QVariant value;
            int consumed = 0;
            EXPECT_EQ(parseParameter(text.c_str(), row.format, value, consumed), result == 1 ? 0 : -11)
                << text;
            if (result == 1) {
                ASSERT_EQ(value, QVariant(scanned)) << text << " by " << row.format;
            }
        }
    }
}
