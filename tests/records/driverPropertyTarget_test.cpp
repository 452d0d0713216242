#include "records/driverPropertyTarget.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::test::driverPropertyTarget {

namespace {

QString const name = QStringLiteral("Eq_Fg");

CDriverPropertyTarget target(CDeviceChannelInfo const * info)
{
    return CDriverPropertyTarget(CDeviceGuid(0xC7010205), name, DeviceChannel(3), 9, info);
}

CDriverPropertyTarget targetOfSpeaker(unsigned short speakerId)
{
    return CDriverPropertyTarget(CDeviceGuid(0xC7010205), name, DeviceChannel(3), 9, speakerId);
}

} // namespace

TEST(DriverPropertyTarget, StartsAtChannelOneWithAClearedQualifier)
{
    CDriverPropertyTarget const empty;
    EXPECT_EQ(empty.deviceChannel(), 1);
    EXPECT_EQ(empty.guid().value(), 0U);
    EXPECT_EQ(empty.propertyName(), QString());
    EXPECT_EQ(empty.recordNumber(), 0);
    EXPECT_EQ(empty.speakerId(), 0);
    EXPECT_TRUE(*empty.GetDeviceChannelInfo() == CDeviceChannelInfo());

    CDriverPropertyTarget const named(CDeviceGuid(0xC7010205), name);
    EXPECT_EQ(named.deviceChannel(), 1);
    EXPECT_EQ(named.guid().value(), 0xC7010205U);
    EXPECT_EQ(named.propertyName(), name);
    EXPECT_EQ(named.recordNumber(), 0);
    EXPECT_TRUE(*named.GetDeviceChannelInfo() == CDeviceChannelInfo());
}

TEST(DriverPropertyTarget, TakesASpeakerButNotSpeakerZero)
{
    CDriverPropertyTarget const withSpeaker = targetOfSpeaker(37);
    EXPECT_EQ(withSpeaker.deviceChannel(), 3);
    EXPECT_EQ(withSpeaker.guid().value(), 0xC7010205U);
    EXPECT_EQ(withSpeaker.propertyName(), name);
    EXPECT_EQ(withSpeaker.recordNumber(), 9);
    EXPECT_EQ(withSpeaker.speakerId(), 37);
    EXPECT_EQ(withSpeaker.GetDeviceChannelInfo()->GetChannelType(), ChannelTypeSpeaker);

    CDriverPropertyTarget const without = targetOfSpeaker(0);
    EXPECT_EQ(without.GetDeviceChannelInfo()->GetChannelType(), ChannelTypeNone);
}

TEST(DriverPropertyTarget, CopiesTheQualifierPointedTo)
{
    CDeviceChannelInfo const output(ChannelTypeOutput);
    CDriverPropertyTarget const withOutput = target(&output);
    EXPECT_EQ(withOutput.GetDeviceChannelInfo()->GetChannelType(), ChannelTypeOutput);
    EXPECT_NE(withOutput.GetDeviceChannelInfo(), &output);
    EXPECT_EQ(withOutput.guid().value(), 0xC7010205U);
    EXPECT_EQ(withOutput.propertyName(), name);
    EXPECT_EQ(withOutput.deviceChannel(), 3);
    EXPECT_EQ(withOutput.recordNumber(), 9);

    CDriverPropertyTarget const without = target(nullptr);
    ASSERT_NE(without.GetDeviceChannelInfo(), nullptr);
    EXPECT_EQ(without.GetDeviceChannelInfo()->GetChannelType(), ChannelTypeNone);
}

TEST(DriverPropertyTarget, KeepsItsQualifierWhenNoneIsSet)
{
    CDriverPropertyTarget changed = targetOfSpeaker(37);
    changed.SetDeviceChannelInfo(nullptr);
    EXPECT_EQ(changed.speakerId(), 37);

    CDeviceChannelInfo input(ChannelTypeInput);
    changed.SetDeviceChannelInfo(&input);
    EXPECT_EQ(changed.GetDeviceChannelInfo()->GetChannelType(), ChannelTypeInput);
}

TEST(DriverPropertyTarget, HasNoSpeakerOnAnotherSide)
{
    CDeviceChannelInfo output;
    output.SetSpeakerId(37);
    output.SetDeviceChannelType(ChannelTypeOutput);
    EXPECT_EQ(target(&output).speakerId(), 0) << "though the qualifier still holds the id";
}

TEST(DriverPropertyTarget, SetsEachField)
{
    CDriverPropertyTarget changed;
    changed.setDeviceChannel(DeviceChannel(4));
    changed.setGuid(CDeviceGuid(0xC7000011));
    changed.setPropertyName(QStringLiteral("Gain"));
    changed.setRecordNumber(65535);
    changed.setSpeakerId(0);
    EXPECT_EQ(changed.deviceChannel(), 4);
    EXPECT_EQ(changed.guid().value(), 0xC7000011U);
    EXPECT_EQ(changed.propertyName(), QStringLiteral("Gain"));
    EXPECT_EQ(changed.recordNumber(), 65535);
    EXPECT_EQ(changed.GetDeviceChannelInfo()->GetChannelType(), ChannelTypeSpeaker)
        << "set, although it is 0";
}

TEST(DriverPropertyTarget, IsCopiedWhole)
{
    CDriverPropertyTarget const original = targetOfSpeaker(37);
    CDriverPropertyTarget assigned;
    assigned = original;
    for (CDriverPropertyTarget const & each : {CDriverPropertyTarget(original), assigned}) {
        EXPECT_EQ(each.deviceChannel(), 3);
        EXPECT_EQ(each.guid().value(), 0xC7010205U);
        EXPECT_EQ(each.propertyName(), name);
        EXPECT_EQ(each.recordNumber(), 9);
        EXPECT_EQ(each.speakerId(), 37);
        EXPECT_NE(each.GetDeviceChannelInfo(), original.GetDeviceChannelInfo());
    }
}

} // namespace kestrova::test::driverPropertyTarget
