#include "records/record.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

static_assert(sizeof(CRecord) == 4);

TEST(Record, StartsAtZero)
{
    EXPECT_EQ(CRecord().recordKey(), 0U);
}

TEST(Record, IsPackedAsObjectNumberAndRecordNumber)
{
    using Byte = unsigned char;
    using Short = unsigned short;

    struct Row {
        char const * name;
        CRecord record;
        unsigned key;
        int recordNumber, objectNumber, objectByte, boxChannel, box, channel;
    };

    Row const rows[] = {
        {"whole", CRecord(0x1234ABCDU), 0x1234ABCD, 0x1234, 0xABCD, 0xCD, 0xAB, 0x0B, 5},
        {"object number", CRecord(7, CObjectNumber(0x2105)), 0x00072105, 7, 0x2105, 0x05, 0x21, 0x01, 1},
        {"plain object number", CRecord(7, Short(0x2105)), 0x00072105, 7, 0x2105, 0x05, 0x21, 0x01, 1},
        {"raw bytes", CRecord(0xFFFF, Byte(0x34), Byte(0xFF)), 0xFFFFFF34, 0xFFFF, 0xFF34, 0x34, 0xFF, 0x1F,
         7},
        {"box and channel too large", CRecord(1, Byte(0x34), Byte(0xFF), DeviceChannel(9)), 0x00013F34, 1,
         0x3F34, 0x34, 0x3F, 0x1F, 1},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.record.recordKey(), row.key);
        EXPECT_EQ(row.record.recordNumber(), row.recordNumber);
        EXPECT_EQ(row.record.objectNumber(), row.objectNumber);
        EXPECT_EQ(row.record.objectByte(), row.objectByte);
        EXPECT_EQ(row.record.boxChannel(), row.boxChannel);
        EXPECT_EQ(row.record.box(), row.box);
        EXPECT_EQ(row.record.channel(), row.channel);
    }
}

TEST(Record, ChangesOnePartAndLeavesTheOthers)
{
    struct Row {
        char const * name;
        void (*change)(CRecord &);
        unsigned before, after;
    };

    Row const rows[] = {
        {"whole", [](CRecord & record) { record.setRecordKey(0x12345678); }, 0xFFFFFFFF, 0x12345678},
        {"record number", [](CRecord & record) { record.setRecordNumber(0x1234); }, 0xFFFFFFFF, 0x1234FFFF},
        {"object number", [](CRecord & record) { record.setObjectNumber(0xE123); }, 0xFFFFFFFF, 0xFFFFE123},
        {"object byte", [](CRecord & record) { record.setObjectByte(0x12); }, 0xFFFFFFFF, 0xFFFFFF12},
        {"box and channel", [](CRecord & record) { record.setBoxChannel(0x12); }, 0xFFFFFFFF, 0xFFFF12FF},
        {"box too large", [](CRecord & record) { record.setBox(0x25); }, 0xFFFFFFFF, 0xFFFFE5FF},
        {"channel too large", [](CRecord & record) { record.setChannel(DeviceChannel(9)); }, 0xFFFFFFFF,
         0xFFFF3FFF},
        {"channel on zeros", [](CRecord & record) { record.setChannel(DeviceChannel(7)); }, 0x00000000,
         0x0000E000},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        CRecord record(row.before);
        row.change(record);
        EXPECT_EQ(record.recordKey(), row.after);
    }
}

TEST(Record, KeepsTheChannelInTheObjectNumberWhereTheObjectNumberItselfDropsIt)
{
    EXPECT_EQ(CRecord(0, CObjectNumber(0xE105)).objectNumber(), 0xE105);
    EXPECT_EQ(CObjectNumber(0xE105).objectNumber(), 0x0105);
}

TEST(Record, GivesTheChannelAsAByte)
{
    static_assert(std::is_same_v<decltype(CRecord().channel()), unsigned char>);
    static_assert(std::is_same_v<decltype(CObjectNumber().channel()), DeviceChannel>);
}

TEST(Record, EqualsOnlyWithAllThirtyTwoBits)
{
    EXPECT_EQ(CRecord(0x00072105U), CRecord(0x00072105U));
    EXPECT_NE(CRecord(0x00072105U), CRecord(0x00082105U)) << "another record";
    EXPECT_NE(CRecord(0x00072105U), CRecord(0x00070105U)) << "another channel";
}
