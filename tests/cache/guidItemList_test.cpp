#include "cache/driverCacheGuidItemList.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QSet>

#include <algorithm>
#include <memory>

using namespace kestrova::Morvel::Devicelore;

namespace {

using List = CDriverCacheGuidItemList;

std::unique_ptr<CDriverCacheGuidItem> makeItem(quint32 guid, int access = 1,
                                               char const * deviceType = "Talvo", unsigned char onoType = 1)
{
    auto item = std::make_unique<CDriverCacheGuidItem>(guid, QLatin1String(deviceType), QString(), QString(),
                                                       CDriverCacheGuidItem::GuidAccess(access));
    item->setOnoType(onoType);
    return item;
}

/// Adds an item that the list is expected to take over.
void add(List & list, quint32 guid, int access = 1, char const * deviceType = "Talvo",
         unsigned char onoType = 1)
{
    auto item = makeItem(guid, access, deviceType, onoType);
    ASSERT_EQ(list.addItem(item.get()), List::AddItemOk);
    item.release();
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

} // namespace

TEST(GuidItemList, StartsEmptyAtLevelOne)
{
    List list;
    CDeviceGuid guid(0xC7000005);
    QString deviceType = QStringLiteral("before");
    EXPECT_EQ(list.currentAccessLevel(), 1);
    EXPECT_EQ(list.count(), 0);
    EXPECT_TRUE(list.guids().isEmpty());
    EXPECT_TRUE(list.knownTypes().isEmpty());
    EXPECT_TRUE(list.deviceTypes().isEmpty());
    EXPECT_EQ(list.determineDriverGuid(0xC7000005), CDeviceGuid(0));
    EXPECT_EQ(list.accessLevelDriverGuid(0xC7000005), 9);
    EXPECT_FALSE(list.isKnownGuid(0xC7000005));
    EXPECT_EQ(list.OnoType(0xC7000005), 0);
    EXPECT_EQ(list.maxVersion(static_cast<unsigned char>(5)), 0);
    EXPECT_FALSE(list.deviceTypeOnGuid(guid, deviceType));
    EXPECT_EQ(deviceType, QStringLiteral("before"));
    EXPECT_FALSE(list.guidOnDeviceType(QStringLiteral("Talvo"), guid));
    EXPECT_EQ(guid, CDeviceGuid(0));
}

TEST(GuidItemList, RefusesWhatIsNoDescription)
{
    struct Row {
        char const * name;
        quint32 guid;
        List::AddItemReturnValue result;
        int number;
    };

    Row const rows[] = {
        {"another prefix", 0xC6000005, List::AddItemInvalidPrefix, 4},
        {"no prefix", 0x00000005, List::AddItemInvalidPrefix, 4},
        {"another prefix and a low type", 0xC8000003, List::AddItemInvalidPrefix, 4},
        {"type 0", 0xC7000000, List::AddItemInvalidType, 3},
        {"type 3", 0xC70102FF & 0xFFFFFF03, List::AddItemInvalidType, 3},
        {"type 4", 0xC7000004, List::AddItemOk, 0},
        {"type 160, which only the reading from a database skips", 0xC70000A0, List::AddItemOk, 0},
        {"type 255", 0xC7FFFFFF, List::AddItemOk, 0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        List list;
        auto item = makeItem(row.guid);
        EXPECT_EQ(list.addItem(item.get()), row.result);
        EXPECT_EQ(int(row.result), row.number);
        EXPECT_EQ(list.count(), row.number == 0 ? 1 : 0);
        if (row.result == List::AddItemOk)
            item.release();
    }
}

TEST(GuidItemList, RefusesNoItemAtAll)
{
    List list;
    EXPECT_EQ(list.addItem(nullptr), List::AddItemNoItem);
    EXPECT_EQ(int(List::AddItemNoItem), 2);
}

TEST(GuidItemList, KeepsTheFirstItemOfAGuid)
{
    List list;
    add(list, 0xC7000005, 1, "Talvo", 7);
    auto second = makeItem(0xC7000005, 1, "Hesko", 8);
    EXPECT_EQ(list.addItem(second.get()), List::AddItemKnownGuid);
    EXPECT_EQ(int(List::AddItemKnownGuid), 1);
    EXPECT_EQ(list.OnoType(0xC7000005), 7);
}

TEST(GuidItemList, MapsAVersionToItsDescription)
{
    List list;
    add(list, 0xC7000105);
    add(list, 0xC7000305);

    struct Row {
        char const * name;
        quint32 asked;
        quint32 found;
    };

    Row const rows[] = {
        {"a described version is itself", 0xC7000105, 0xC7000105},
        {"a version between takes the newest, not the nearest", 0xC7000205, 0xC7000305},
        {"a newer version takes the newest", 0xC7000705, 0xC7000305},
        {"an older version takes the newest too", 0xC7000005, 0xC7000305},
        {"version 255 asks for the newest", 0xC700FF05, 0xC7000305},
        {"bits 16 to 23 are not looked at", 0xC7AB0205, 0xC7000305},
        {"but make another GUID", 0xC7AB0105, 0xC7000305},
        {"the prefix is not looked at", 0x12000105, 0xC7000305},
        {"an unknown type has none", 0xC7000106, 0},
        {"the null GUID has none", 0, 0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(list.determineDriverGuid(row.asked), CDeviceGuid(row.found));
    }
}

TEST(GuidItemList, LendsTheArgumentTheItemOrOneNullGuid)
{
    List list;
    add(list, 0xC7000105);
    CDeviceGuid const exact(0xC7000105);
    CDeviceGuid const other(0xC7000905);
    CDeviceGuid const otherToo(0xC7000805);
    CDeviceGuid const unknown(0xC7000006);
    CDeviceGuid const unknownToo(0xC7000007);
    EXPECT_EQ(&list.determineDriverGuid(exact), &exact);
    EXPECT_EQ(&list.determineDriverGuid(other), &list.determineDriverGuid(otherToo));
    EXPECT_EQ(&list.determineDriverGuid(unknown), &list.determineDriverGuid(unknownToo));
}

TEST(GuidItemList, OfEqualVersionsTheFirstStaysNewest)
{
    List list;
    add(list, 0xC7010205);
    add(list, 0xC7020205);
    EXPECT_EQ(list.determineDriverGuid(0xC7000905), CDeviceGuid(0xC7010205));
    EXPECT_EQ(list.maxVersion(CDeviceGuid(0xC7000005)), 2);
    EXPECT_EQ(list.maxVersion(static_cast<unsigned char>(5)), 2) << "by the type alone";
}

TEST(GuidItemList, ANewestVersionAddedFirstStaysNewest)
{
    List list;
    add(list, 0xC7000305);
    add(list, 0xC7000105);
    EXPECT_EQ(list.determineDriverGuid(0xC7000905), CDeviceGuid(0xC7000305));
}

TEST(GuidItemList, AHiddenVersionIsFoundOnlyByItself)
{
    List list;
    add(list, 0xC7000105, 1, "Talvo", 5);
    add(list, 0xC7000305, 2, "Hidden", 6);

    EXPECT_EQ(list.determineDriverGuid(0xC7000205), CDeviceGuid(0xC7000105));
    EXPECT_EQ(list.determineDriverGuid(0xC7000305), CDeviceGuid(0xC7000305));
    EXPECT_EQ(list.maxVersion(CDeviceGuid(0xC7000005)), 1);
    EXPECT_EQ(list.accessLevelDriverGuid(0xC7000305), 2);
    EXPECT_EQ(list.OnoType(0xC7000305), 6);
    EXPECT_TRUE(list.isKnownGuid(0xC7000305));
    EXPECT_EQ(list.count(), 2);
    CDeviceGuid guid;
    EXPECT_FALSE(list.guidOnDeviceType(QStringLiteral("Hidden"), guid));
}

TEST(GuidItemList, ATypeOfHiddenItemsCountsAsAbsent)
{
    List list;
    add(list, 0xC7000005, 2, "Hidden", 6);

    EXPECT_EQ(list.determineDriverGuid(0xC7000005), CDeviceGuid(0));
    EXPECT_FALSE(list.isKnownGuid(0xC7000005));
    EXPECT_TRUE(list.knownTypes().isEmpty());
    EXPECT_TRUE(list.deviceTypes().isEmpty());
    QString deviceType;
    EXPECT_FALSE(list.deviceTypeOnGuid(0xC7000005, deviceType));
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.guids(), QList<CDeviceGuid>{0xC7000005});
    EXPECT_EQ(list.OnoType(0xC7000005), 6);
    EXPECT_EQ(list.accessLevelDriverGuid(0xC7000005), 2);
    EXPECT_EQ(list.accessLevelDriverGuid(0xC7000105), 9);
}

TEST(GuidItemList, ComparesAccessAsASignedNumber)
{
    List list;
    add(list, 0xC7000005, -1);
    EXPECT_TRUE(list.isKnownGuid(0xC7000005));
}

TEST(GuidItemList, TellsTheAccessLevelThatADescriptionNeeds)
{
    List list;
    add(list, 0xC7000005, 0);
    add(list, 0xC7000205, 1);

    EXPECT_EQ(list.accessLevelDriverGuid(0xC7000005), 0);
    EXPECT_EQ(list.accessLevelDriverGuid(0xC7000905), 1) << "an unknown version needs what the newest needs";
    EXPECT_EQ(list.accessLevelDriverGuid(0xC6000005), 9) << "another prefix cannot be placed";
    EXPECT_EQ(list.accessLevelDriverGuid(0xC7000006), 9) << "an unknown type cannot be placed";
}

TEST(GuidItemList, TheTypeStringIsThatOfVersionZero)
{
    List list;
    add(list, 0xC7000005, 1, "First");
    add(list, 0xC7000205, 1, "Second");

    QString deviceType;
    EXPECT_TRUE(list.deviceTypeOnGuid(0xC7000205, deviceType));
    EXPECT_EQ(deviceType, QStringLiteral("First"));
    EXPECT_TRUE(list.deviceTypeOnGuid(0xC7000905, deviceType)) << "the type alone is asked about";
    EXPECT_EQ(list.deviceTypes(), QStringList{QStringLiteral("First")});
}

TEST(GuidItemList, ATypeWithoutVersionZeroHasNoString)
{
    List list;
    add(list, 0xC7000105);
    add(list, 0xC7000205);

    QString deviceType = QStringLiteral("before");
    EXPECT_FALSE(list.deviceTypeOnGuid(0xC7000105, deviceType));
    EXPECT_EQ(deviceType, QStringLiteral("before"));
    EXPECT_TRUE(list.deviceTypes().isEmpty());
    EXPECT_EQ(list.maxVersion(CDeviceGuid(0xC7000005)), 2);
    EXPECT_EQ(list.knownTypes(), QList<unsigned char>{5});

    CDeviceGuid guid;
    EXPECT_TRUE(list.guidOnDeviceType(QStringLiteral("Talvo"), guid)) << "the other way round, it has a GUID";
    EXPECT_EQ(guid, CDeviceGuid(0xC7000005));
}

TEST(GuidItemList, AHiddenVersionZeroStillGivesItsString)
{
    List list;
    add(list, 0xC7000005, 2, "Hidden");
    add(list, 0xC7000105, 1, "Shown");
    QString deviceType;
    EXPECT_TRUE(list.deviceTypeOnGuid(0xC7000105, deviceType));
    EXPECT_EQ(deviceType, QStringLiteral("Hidden"));
    EXPECT_EQ(list.deviceTypes(), QStringList{QStringLiteral("Hidden")});
}

TEST(GuidItemList, KnowsNoOtherGuidThanThoseOfItsItems)
{
    List list;
    add(list, 0xC7010105);
    EXPECT_TRUE(list.isKnownGuid(0xC7010105));
    EXPECT_FALSE(list.isKnownGuid(0xC7010205)) << "a version that is not described";
    EXPECT_FALSE(list.isKnownGuid(0xC7020105)) << "other bits 16 to 23";
    EXPECT_FALSE(list.isKnownGuid(0xC6010105)) << "another prefix";
}

TEST(GuidItemList, TheLastVisibleItemOfATypeDecidesItsBaseGuid)
{
    List list;
    add(list, 0xC7010005, 1, "First");
    add(list, 0xC7020105, 1, "Second");

    QString deviceType;
    EXPECT_FALSE(list.deviceTypeOnGuid(0xC7010005, deviceType)) << "base GUID C7020005 is no item";
    add(list, 0xC7020005, 1, "Third");
    EXPECT_TRUE(list.deviceTypeOnGuid(0xC7010005, deviceType));
    EXPECT_EQ(deviceType, QStringLiteral("Third"));
}

TEST(GuidItemList, TheFirstVisibleItemOfAStringDecidesItsGuid)
{
    List list;
    add(list, 0xC7010305, 1, "Talvo");
    add(list, 0xC7000006, 1, "Talvo");
    CDeviceGuid guid;
    EXPECT_TRUE(list.guidOnDeviceType(QStringLiteral("Talvo"), guid));
    EXPECT_EQ(guid, CDeviceGuid(0xC7010005));
    EXPECT_FALSE(list.guidOnDeviceType(QStringLiteral("talvo"), guid)) << "case matters";
    EXPECT_EQ(guid, CDeviceGuid(0));
}

TEST(GuidItemList, ListsTypesStringsAndGuids)
{
    List list;
    add(list, 0xC7000005, 1, "Talvo");
    add(list, 0xC7000006, 1, "Hesko");
    add(list, 0xC7000106, 1, "Hesko");

    QList<unsigned char> types = list.knownTypes();
    std::sort(types.begin(), types.end());
    EXPECT_EQ(types, (QList<unsigned char>{5, 6}));
    EXPECT_EQ(sorted(list.deviceTypes()), (QStringList{QStringLiteral("Hesko"), QStringLiteral("Talvo")}));
    QList<CDeviceGuid> guids = list.guids();
    std::sort(guids.begin(), guids.end());
    EXPECT_EQ(guids, (QList<CDeviceGuid>{0xC7000005, 0xC7000006, 0xC7000106}));
    EXPECT_EQ(list.count(), 3);
}

TEST(GuidItemList, OnoTypeNeedsTheExactGuid)
{
    List list;
    add(list, 0xC7000005, 1, "Talvo", 9);
    EXPECT_EQ(list.OnoType(0xC7000005), 9);
    EXPECT_EQ(list.OnoType(0xC7000105), 0);
}

TEST(GuidItemList, AnotherLevelJudgesAllItemsAnew)
{
    List list;
    add(list, 0xC7000105, 1);
    add(list, 0xC7000305, 3);

    list.setCurrentAccessLevel(CDriverCacheGuidItem::GuidAccess(3));
    EXPECT_EQ(list.currentAccessLevel(), 3);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.determineDriverGuid(0xC7000905), CDeviceGuid(0xC7000305));

    list.setCurrentAccessLevel(CDriverCacheGuidItem::GuidAccess(0));
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.determineDriverGuid(0xC7000105), CDeviceGuid(0));
}

TEST(GuidItemList, TheSameLevelChangesNothing)
{
    List list;
    add(list, 0xC7000105, 1);
    CDeviceGuid const asked(0xC7000905);
    CDeviceGuid const * const before = &list.determineDriverGuid(asked);
    list.setCurrentAccessLevel(CDriverCacheGuidItem::GuidAccess(1));
    EXPECT_EQ(&list.determineDriverGuid(asked), before) << "the item itself must still be there";
}

TEST(GuidItemList, ClearEmptiesAllAndKeepsTheLevel)
{
    List list;
    add(list, 0xC7000005);
    list.setCurrentAccessLevel(CDriverCacheGuidItem::GuidAccess(3));
    list.clear();
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.currentAccessLevel(), 3);
    EXPECT_TRUE(list.knownTypes().isEmpty());
    EXPECT_EQ(list.maxVersion(CDeviceGuid(0xC7000005)), 0);
    CDeviceGuid guid;
    EXPECT_FALSE(list.guidOnDeviceType(QStringLiteral("Talvo"), guid));
}
