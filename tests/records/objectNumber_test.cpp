#include "records/objectNumber.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

static_assert(sizeof(CObjectNumber) == 2);

TEST(ObjectNumber, StartsAtZero)
{
    EXPECT_EQ(CObjectNumber().fullObject(), 0);
}

TEST(ObjectNumber, IsPackedAsObjectByteBoxAndChannel)
{
    struct Row {
        char const * name;
        CObjectNumber number;
        int full, withoutChannel, objectByte, boxChannel, box, channel;
    };

    Row const rows[] = {
        {"whole", CObjectNumber(0xABCD), 0xABCD, 0x0BCD, 0xCD, 0xAB, 0x0B, 5},
        {"two bytes", CObjectNumber(0x34, 0xFF), 0xFF34, 0x1F34, 0x34, 0xFF, 0x1F, 7},
        {"every part at its largest", CObjectNumber(0x34, 0x1F, DeviceChannel(7)), 0xFF34, 0x1F34, 0x34, 0xFF,
         0x1F, 7},
        {"box and channel too large", CObjectNumber(0x34, 0xFF, DeviceChannel(9)), 0x3F34, 0x1F34, 0x34, 0x3F,
         0x1F, 1},
        {"channel 8", CObjectNumber(0x01, 0x02, DeviceChannel(8)), 0x0201, 0x0201, 0x01, 0x02, 0x02, 0},
        {"channel -1", CObjectNumber(0x01, 0x02, DeviceChannel(-1)), 0xE201, 0x0201, 0x01, 0xE2, 0x02, 7},
        {"box alone", CObjectNumber(0, 1, DeviceChannel(0)), 0x0100, 0x0100, 0, 1, 1, 0},
        {"channel alone", CObjectNumber(0, 0, DeviceChannel(1)), 0x2000, 0x0000, 0, 0x20, 0, 1},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.number.fullObject(), row.full);
        EXPECT_EQ(row.number.objectNumber(), row.withoutChannel);
        EXPECT_EQ(row.number.objectByte(), row.objectByte);
        EXPECT_EQ(row.number.boxChannel(), row.boxChannel);
        EXPECT_EQ(row.number.box(), row.box);
        EXPECT_EQ(row.number.channel(), row.channel);
    }
}

TEST(ObjectNumber, ChangesOnePartAndLeavesTheOthers)
{
    struct Row {
        char const * name;
        void (*change)(CObjectNumber &);
        int before, after;
    };

    Row const rows[] = {
        {"whole", [](CObjectNumber & number) { number.setFullObject(0x1234); }, 0xFFFF, 0x1234},
        {"object byte on ones", [](CObjectNumber & number) { number.setObjectByte(0x12); }, 0xFFFF, 0xFF12},
        {"object byte on zeros", [](CObjectNumber & number) { number.setObjectByte(0x12); }, 0x0000, 0x0012},
        {"box and channel on ones", [](CObjectNumber & number) { number.setBoxChannel(0x12); }, 0xFFFF,
         0x12FF},
        {"box and channel on zeros", [](CObjectNumber & number) { number.setBoxChannel(0xE1); }, 0x0000,
         0xE100},
        {"box on ones", [](CObjectNumber & number) { number.setBox(0x05); }, 0xFFFF, 0xE5FF},
        {"box too large, on channel 3", [](CObjectNumber & number) { number.setBox(0x25); }, 0x6000, 0x6500},
        {"channel on ones", [](CObjectNumber & number) { number.setChannel(DeviceChannel(2)); }, 0xFFFF,
         0x5FFF},
        {"channel on zeros", [](CObjectNumber & number) { number.setChannel(DeviceChannel(7)); }, 0x0000,
         0xE000},
        {"channel too large", [](CObjectNumber & number) { number.setChannel(DeviceChannel(9)); }, 0xFFFF,
         0x3FFF},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        CObjectNumber number(static_cast<unsigned short>(row.before));
        row.change(number);
        EXPECT_EQ(number.fullObject(), row.after);
    }
}

TEST(ObjectNumber, EqualsOnlyWithAllSixteenBits)
{
    EXPECT_EQ(CObjectNumber(0x2105), CObjectNumber(0x2105));
    EXPECT_NE(CObjectNumber(0x2105), CObjectNumber(0x0105)) << "another channel";
    EXPECT_NE(CObjectNumber(0x2105), CObjectNumber(0x2104)) << "another object";
}
