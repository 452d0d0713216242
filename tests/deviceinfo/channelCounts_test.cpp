#include "modelWorld.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::ModelWorld;

namespace {

int channels(CDriverCache const & cache, quint32 guid, int type)
{
    return cache.DeviceChannelCount(CDeviceGuid(guid), DeviceChannelType(type));
}

} // namespace

TEST(ChannelCounts, OfEveryModelAndType)
{
    struct Row {
        char const * model;
        quint32 guid;
        int speakers;
        int inputs;
        int outputs;
    };

    Row const rows[] = {
        {"Talvo", 0xC7000005, 2, 2, 0},   {"Hesko", 0xC7000012, 4, 8, 0}, {"Zerin", 0xC7000006, 2, 2, 0},
        {"Yolsa", 0xC7000007, 1, 1, 0},   {"Murel", 0xC7000011, 4, 8, 0}, {"Vesni", 0xC7000013, 4, 8, 0},
        {"Kalom", 0xC7000014, 4, 8, 0},   {"Nurix", 0xC7000015, 4, 8, 0}, {"Orvan", 0xC7000016, 4, 8, 0},
        {"Tovian", 0xC7000030, 0, 0, 0},  {"Quimo", 0xC7000031, 0, 0, 0}, {"Fenra", 0xC7000020, 4, 8, 0},
        {"Rabel", 0xC7000040, 0, 64, 64}, {"Sarni", 0xC7000010, 4, 8, 0}, {"Lumbo", 0xC7000017, 4, 8, 0},
    };
    ModelWorld const world;
    for (Row const & row : rows) {
        EXPECT_EQ(channels(world.cache, row.guid, 1), row.speakers) << row.model;
        EXPECT_EQ(channels(world.cache, row.guid, 2), row.inputs) << row.model;
        EXPECT_EQ(channels(world.cache, row.guid, 3), row.outputs) << row.model;
        for (int const type : {0, 4, 5, 16, 127, 128, 255, -1})
            EXPECT_EQ(channels(world.cache, row.guid, type), 0) << row.model << ", type " << type;
    }
}

TEST(ChannelCounts, OfAnyVersionOfADevice)
{
    ModelWorld const world;
    EXPECT_EQ(channels(world.cache, 0xC7000112, 1), 4);
    EXPECT_EQ(channels(world.cache, 0xC700FF12, 2), 8);
    EXPECT_EQ(channels(world.cache, 0xC7430912, 1), 4);
    EXPECT_EQ(channels(world.cache, 0x00000012, 1), 4) << "only the device type decides";
}

TEST(ChannelCounts, OfAnUnknownDeviceOrModelAreNone)
{
    ModelWorld const world;
    EXPECT_EQ(channels(world.cache, 0xC7000099, 1), -1);
    EXPECT_EQ(channels(world.cache, 0, 1), -1);
    EXPECT_EQ(channels(world.cache, kestrova::test::deviceOfUnknownModel, 1), -1);
    EXPECT_EQ(channels(CDriverCache(), 0xC7000012, 1), -1) << "without databases no device is known";
}
