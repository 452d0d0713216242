#include "records/deviceChannel.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace kestrova::Morvel::Devicelore;

static_assert(sizeof(DeviceChannel) == 4 && DeviceChannel(-1) < 0);
static_assert(sizeof(DeviceChannelType) == 4 && DeviceChannelType(-1) < 0);

// Stepping is a statement, no expression.
static_assert(std::is_void_v<decltype(++std::declval<DeviceChannel &>())>);
static_assert(std::is_void_v<decltype(--std::declval<DeviceChannel &>())>);
static_assert(std::is_void_v<decltype(++std::declval<DeviceChannelType &>())>);
static_assert(std::is_void_v<decltype(--std::declval<DeviceChannelType &>())>);

TEST(DeviceChannel, HasItsNumbers)
{
    EXPECT_EQ(ChannelZero, 0);
    EXPECT_EQ(ChannelFirst, 1);
    EXPECT_EQ(ChannelLast, 7);
}

TEST(DeviceChannelType, HasItsNumbers)
{
    EXPECT_EQ(ChannelTypeNone, 0);
    EXPECT_EQ(ChannelTypeSpeaker, 1);
    EXPECT_EQ(ChannelTypeInput, 2);
    EXPECT_EQ(ChannelTypeOutput, 3);
    EXPECT_EQ(ChannelTypeEnd, 4);
}

TEST(DeviceChannel, StepsUpToSevenAndDownToOne)
{
    struct Row {
        int from, up, down;
    };

    Row const rows[] = {{-1, 0, -1}, {0, 1, 0}, {1, 2, 1}, {2, 3, 1}, {6, 7, 5}, {7, 7, 6}, {8, 8, 7}};
    for (Row const & row : rows) {
        SCOPED_TRACE(row.from);
        auto up = DeviceChannel(row.from);
        ++up;
        EXPECT_EQ(up, row.up);
        auto down = DeviceChannel(row.from);
        --down;
        EXPECT_EQ(down, row.down);
    }
}

TEST(DeviceChannelType, StepsUpToFourAndDownToOne)
{
    struct Row {
        int from, up, down;
    };

    Row const rows[] = {{-1, 0, -1}, {0, 1, 0}, {1, 2, 1}, {2, 3, 1}, {3, 4, 2}, {4, 4, 3}, {5, 5, 4}};
    for (Row const & row : rows) {
        SCOPED_TRACE(row.from);
        auto up = DeviceChannelType(row.from);
        ++up;
        EXPECT_EQ(up, row.up);
        auto down = DeviceChannelType(row.from);
        --down;
        EXPECT_EQ(down, row.down);
    }
}
