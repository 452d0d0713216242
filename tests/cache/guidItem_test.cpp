#include "cache/driverCacheGuidItem.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

TEST(GuidItem, StartsWithoutGuidAndWithOnoTypeOne)
{
    CDriverCacheGuidItem const item;
    EXPECT_EQ(item.guid(), CDeviceGuid(0));
    EXPECT_EQ(item.onoType(), 1);
    EXPECT_EQ(item.deviceType(), QString());
    EXPECT_EQ(item.firmwareFrom(), QString());
    EXPECT_EQ(item.firmwareTo(), QString());
}

TEST(GuidItem, TakesItsFieldsAndKeepsOnoTypeOne)
{
    CDriverCacheGuidItem const item(0xC7010205, QStringLiteral("Talvo"), QStringLiteral("1.2.0"),
                                    QStringLiteral("1.9.9"), CDriverCacheGuidItem::GuidAccess(3));
    EXPECT_EQ(item.guid(), CDeviceGuid(0xC7010205));
    EXPECT_EQ(item.deviceType(), QStringLiteral("Talvo"));
    EXPECT_EQ(item.firmwareFrom(), QStringLiteral("1.2.0"));
    EXPECT_EQ(item.firmwareTo(), QStringLiteral("1.9.9"));
    EXPECT_EQ(item.access(), 3);
    EXPECT_EQ(item.onoType(), 1);
}

TEST(GuidItem, SettersChangeWhatTheyName)
{
    CDriverCacheGuidItem item;
    item.setGuid(0xC7000004);
    item.setDeviceType(QStringLiteral("Hesko"));
    item.setFirmwareFrom(QStringLiteral("2"));
    item.setFirmwareTo(QStringLiteral("3"));
    item.setAccess(CDriverCacheGuidItem::GuidAccess(2));
    item.setOnoType(7);

    CDriverCacheGuidItem const copy(item);
    EXPECT_EQ(copy.guid(), CDeviceGuid(0xC7000004));
    EXPECT_EQ(copy.deviceType(), QStringLiteral("Hesko"));
    EXPECT_EQ(copy.firmwareFrom(), QStringLiteral("2"));
    EXPECT_EQ(copy.firmwareTo(), QStringLiteral("3"));
    EXPECT_EQ(copy.access(), 2);
    EXPECT_EQ(copy.onoType(), 7);
}

TEST(GuidItem, UnknownAccessIsNine)
{
    EXPECT_EQ(CDriverCacheGuidItem::GuidAccessUnknown, 9);
}
