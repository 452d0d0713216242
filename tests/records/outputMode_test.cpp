#include "records/outputMode.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

TEST(OutputMode, IsASignedNumber)
{
    EXPECT_EQ(OutputMode(-1), -1);
    EXPECT_LT(OutputMode(-1), OutputMode(0));
    EXPECT_EQ(OutputMode(8), 8);
}
