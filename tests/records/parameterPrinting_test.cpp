#include "records/parameterPrinting.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

namespace {

unsigned char const twelve[] = {0x0C, 0x00};
int const two = 2;

} // namespace

TEST(FormatParameter, SaysWhatIsMissing)
{
    int const one = 1;
    FieldText text;
    EXPECT_EQ(formatParameter("%d", twelve, nullptr, &text, nullptr, false), -12);
    EXPECT_EQ(formatParameter(nullptr, twelve, &two, &text, nullptr, false), -2);
    EXPECT_EQ(formatParameter("d", twelve, &two, &text, nullptr, false), -3);
    EXPECT_EQ(formatParameter("%d", twelve, &two, nullptr, nullptr, false), -8);
    EXPECT_EQ(formatParameter(nullptr, twelve, nullptr, nullptr, nullptr, false), -12) << "the length first";
    EXPECT_EQ(formatParameter(nullptr, twelve, &two, nullptr, nullptr, false), -2) << "then the format";
    EXPECT_EQ(formatParameter("%d", twelve, &one, nullptr, nullptr, false), -13)
        << "the place for the text last";
    EXPECT_EQ(text.length(), 0);
}

TEST(FormatParameter, GivesFieldAndUnit)
{
    FieldText text;
    int fieldLength = -1;
    EXPECT_EQ(formatParameter("%4d V", twelve, &two, &text, &fieldLength, true), 0);
    EXPECT_EQ(std::string(text.begin(), text.end()), "  12 V");
    EXPECT_EQ(fieldLength, 4);
}

TEST(FieldText, DropsWhatDoesNotFit)
{
    FieldText text;
    text.append(-5, 'x');
    EXPECT_EQ(text.length(), 0);
    text.append(250, 'a');
    text.append("bcdefg", 6);
    EXPECT_EQ(std::string(text.begin(), text.end()), std::string(250, 'a') + "bcdef");
    text.append('h');
    text.append(9999999999, 'i');
    EXPECT_EQ(text.length(), 255);
}

TEST(FieldText, PadsToAWidth)
{
    FieldText text;
    text.appendPadded(4, '0', "12", 2);
    text.appendPadded(1, '0', "34", 2);
    EXPECT_EQ(std::string(text.begin(), text.end()), "001234");
}
