#include "records/deviceChannelInfo.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

namespace {

CDeviceChannelInfo speaker(unsigned short id)
{
    CDeviceChannelInfo info;
    info.SetSpeakerId(id);
    return info;
}

/// A speaker id behind a type that hides it.
CDeviceChannelInfo stale(DeviceChannelType type, unsigned short id)
{
    CDeviceChannelInfo info = speaker(id);
    info.SetDeviceChannelType(type);
    return info;
}

} // namespace

TEST(DeviceChannelInfo, TellsTypeSpeakerValidityAndText)
{
    struct Row {
        char const * name;
        CDeviceChannelInfo info;
        int type, speakerId;
        bool isValid;
        char const * idString;
    };

    Row const rows[] = {
        {"cleared", CDeviceChannelInfo(), 0, 0, false, ""},
        {"none", CDeviceChannelInfo(ChannelTypeNone), 0, 0, false, ""},
        {"speaker type alone", CDeviceChannelInfo(ChannelTypeSpeaker), 1, 0, false, "0000"},
        {"input", CDeviceChannelInfo(ChannelTypeInput), 2, 0, true, "IN"},
        {"output", CDeviceChannelInfo(ChannelTypeOutput), 3, 0, true, "OUT"},
        {"end", CDeviceChannelInfo(ChannelTypeEnd), 4, 0, false, ""},
        {"beyond", CDeviceChannelInfo(DeviceChannelType(77)), 77, 0, false, ""},
        {"speaker 0", speaker(0), 1, 0, false, "0000"},
        {"speaker 1", speaker(1), 1, 1, true, "0001"},
        {"speaker 12", speaker(12), 1, 12, true, "0012"},
        {"speaker 345", speaker(345), 1, 345, true, "0345"},
        {"speaker 9999", speaker(9999), 1, 9999, true, "9999"},
        {"speaker 10000", speaker(10000), 1, 10000, true, "10000"},
        {"speaker 12345", speaker(12345), 1, 12345, true, "12345"},
        {"speaker 65535", speaker(65535), 1, 65535, true, "65535"},
        {"output, speaker 5 behind it", stale(ChannelTypeOutput, 5), 3, 0, true, "OUT"},
        {"none, speaker 5 behind it", stale(ChannelTypeNone, 5), 0, 0, false, ""},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.info.GetChannelType(), row.type);
        EXPECT_EQ(row.info.GetSpeakerId(), row.speakerId);
        EXPECT_EQ(row.info.IsValid(), row.isValid);
        EXPECT_EQ(row.info.GetIdString().toStdString(), row.idString);
    }
}

TEST(DeviceChannelInfo, BecomesASpeakersWhenASpeakerIsSet)
{
    CDeviceChannelInfo info(ChannelTypeInput);
    info.SetSpeakerId(0);
    EXPECT_EQ(info.GetChannelType(), ChannelTypeSpeaker);
    EXPECT_FALSE(info.IsValid());
}

TEST(DeviceChannelInfo, ShowsTheSpeakerAgainWhenTheTypeComesBack)
{
    CDeviceChannelInfo info = stale(ChannelTypeOutput, 5);
    info.SetDeviceChannelType(ChannelTypeSpeaker);
    EXPECT_EQ(info.GetSpeakerId(), 5);
}

TEST(DeviceChannelInfo, ComparesTheSpeakerBehindAnotherTypeToo)
{
    EXPECT_TRUE(speaker(5) == speaker(5));
    EXPECT_TRUE(speaker(5) != speaker(6));
    EXPECT_TRUE(CDeviceChannelInfo(ChannelTypeInput) != CDeviceChannelInfo(ChannelTypeOutput));
    EXPECT_TRUE(stale(ChannelTypeOutput, 5) != CDeviceChannelInfo(ChannelTypeOutput));
    EXPECT_TRUE(stale(ChannelTypeOutput, 5) == stale(ChannelTypeOutput, 5));
}

TEST(DeviceChannelInfo, ClearsTypeAndSpeaker)
{
    CDeviceChannelInfo info = stale(ChannelTypeOutput, 5);
    info.Clear();
    EXPECT_TRUE(info == CDeviceChannelInfo());
}

TEST(DeviceChannelInfo, IsCopiedWithoutItsParent)
{
    QObject parent;
    QObject otherParent;
    CDeviceChannelInfo original = stale(ChannelTypeOutput, 5);
    original.setParent(&parent);

    CDeviceChannelInfo const copy(original);
    EXPECT_TRUE(copy == original);
    EXPECT_EQ(copy.parent(), nullptr);

    CDeviceChannelInfo assigned;
    assigned.setParent(&otherParent);
    assigned = original;
    EXPECT_TRUE(assigned == original);
    EXPECT_EQ(assigned.parent(), &otherParent);

    original.setParent(nullptr);
    assigned.setParent(nullptr);
}
