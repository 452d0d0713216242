#include "cache/driverCacheChannelKeyFilter.h"
#include "cache/driverCacheChannelKeyName.h"
#include "cache/driverCacheChannelKeyObject.h"
#include "cache/driverCacheFilterItem.h"
#include "cache/driverCacheGuidItem.h"
#include "cache/driverCacheObjectClassItem.h"
#include "cache/driverCacheObjectItem.h"
#include "cache/driverCacheSpeakerClassItem.h"
#include "exposedCache.h"

#include <gtest/gtest.h>

#include <utility>

using namespace kestrova::Morvel::Devicelore;

// What becomes of the items, keys and catalogues of the cache when they are copied, moved and assigned.

namespace kestrova::test::copies {

namespace {

CDeviceGuid const device(0xC7010205);
QString const gain = QStringLiteral("Gain");

CDeviceChannelInfo speakerChannel()
{
    CDeviceChannelInfo channel;
    channel.SetSpeakerId(12);
    return channel;
}

/// A catalogue that can leave its items to another one that shares them.
template <typename List>
struct Sharing;

template <>
struct Sharing<CDriverCacheFilterItemList> : CDriverCacheFilterItemList {
    void giveUp() { items.clear(); }
};

template <>
struct Sharing<CDriverCacheGuidItemList> : CDriverCacheGuidItemList {
    void giveUp() { itemsByGuid.clear(); }
};

template <>
struct Sharing<CDriverCacheObjectClassItemList> : CDriverCacheObjectClassItemList {
    void giveUp() { itemsByClassId.clear(); }
};

template <>
struct Sharing<CDriverCacheObjectItemList> : CDriverCacheObjectItemList {
    void giveUp() { itemsByName.clear(); }
};

template <>
struct Sharing<CDriverCacheSpeakerItemList> : CDriverCacheSpeakerItemList {
    void giveUp()
    {
        classItems.clear();
        speakerItems.clear();
    }
};

/// Whether \a find gives the same for a catalogue, its copy, and one that it was assigned to, and not null.
template <typename List, typename Find>
void expectCopiesToShareWith(Sharing<List> & original, Find find)
{
    auto * const item = find(original);
    EXPECT_NE(item, nullptr);
    Sharing<List> copy(original);
    EXPECT_EQ(find(copy), item);
    Sharing<List> assigned;
    assigned = original;
    EXPECT_EQ(find(assigned), item);
    copy.giveUp();
    assigned.giveUp();
}

} // namespace

TEST(CopiedFilterItem, HasEveryField)
{
    CDriverCacheFilterItem item(1, 2, 3, QStringLiteral("name"), QStringLiteral("states"), -1.5, 2.5);
    item.setTextOffset(70);
    CDriverCacheFilterItem assigned;
    assigned = item;
    CDriverCacheFilterItem moved(std::move(item));
    CDriverCacheFilterItem movedInto;
    movedInto = CDriverCacheFilterItem(moved);
    for (CDriverCacheFilterItem const * const other : {&assigned, &moved, &movedInto}) {
        EXPECT_EQ(other->filterId(), 1);
        EXPECT_EQ(other->filterNumber(), 2);
        EXPECT_EQ(other->filterType(), 3);
        EXPECT_EQ(other->filterName(), QStringLiteral("name"));
        EXPECT_EQ(other->stateText(), QStringLiteral("states"));
        EXPECT_EQ(other->minValue(), -1.5);
        EXPECT_EQ(other->maxValue(), 2.5);
        EXPECT_EQ(other->textOffset(), 70U);
    }
}

TEST(CopiedSpeakerClassItem, HasEveryField)
{
    CDriverCacheSpeakerClassItem item(7, QStringLiteral("Two"), QStringLiteral("Sub"), 2,
                                      QStringLiteral("low;high"));
    item.setDisplayName(QStringLiteral("shown"));
    CDriverCacheSpeakerClassItem assigned;
    assigned = item;
    CDriverCacheSpeakerClassItem moved(std::move(item));
    CDriverCacheSpeakerClassItem movedInto;
    movedInto = CDriverCacheSpeakerClassItem(moved);
    for (CDriverCacheSpeakerClassItem const * const other : {&assigned, &moved, &movedInto}) {
        EXPECT_EQ(other->speakerClass(), 7);
        EXPECT_EQ(other->className(), QStringLiteral("Two"));
        EXPECT_EQ(other->classType(), QStringLiteral("Sub"));
        EXPECT_EQ(other->displayName(), QStringLiteral("shown"));
        EXPECT_EQ(other->ways(), 2);
        EXPECT_EQ(other->wayNames(), QStringLiteral("low;high"));
    }
}

TEST(CopiedObjectClassItem, HasEveryField)
{
    CDriverCacheObjectClassItem const item(7, QStringLiteral("1.2.3"), QStringLiteral("switch"));
    CDriverCacheObjectClassItem assigned(1, QString(), QString());
    assigned = item;
    CDriverCacheObjectClassItem movedInto(1, QString(), QString());
    movedInto = CDriverCacheObjectClassItem(item);
    for (CDriverCacheObjectClassItem const * const other : {&assigned, &movedInto}) {
        EXPECT_EQ(other->classId(), 7);
        EXPECT_EQ(other->description(), QStringLiteral("switch"));
        EXPECT_EQ(other->fieldCount(), 3);
        EXPECT_EQ(other->fields()[0], 1);
        EXPECT_EQ(other->fields()[1], 2);
        EXPECT_EQ(other->fields()[2], 3);
        EXPECT_EQ(other->fields()[3], 0);
    }
}

TEST(CopiedGuidItem, IsAssignedWhole)
{
    CDriverCacheGuidItem const item(device, QStringLiteral("Talvo"), QStringLiteral("1.2.0"),
                                    QStringLiteral("1.9.9"), CDriverCacheGuidItem::GuidAccess(3));
    CDriverCacheGuidItem assigned;
    assigned = item;
    EXPECT_EQ(assigned.guid(), device);
    EXPECT_EQ(assigned.deviceType(), QStringLiteral("Talvo"));
    EXPECT_EQ(assigned.firmwareFrom(), QStringLiteral("1.2.0"));
    EXPECT_EQ(assigned.firmwareTo(), QStringLiteral("1.9.9"));
    EXPECT_EQ(assigned.access(), 3);
    EXPECT_EQ(assigned.onoType(), 1);
}

TEST(CopiedObjectItem, EqualsItsSourceAndLeavesItWhole)
{
    CDriverCacheObjectItem item;
    item.setName(gain);
    item.setFormat(QStringLiteral("%5.1f dB"));
    item.setMin(-12.0);
    CDriverCacheObjectItem const original(item);
    EXPECT_FALSE(original == CDriverCacheObjectItem());

    CDriverCacheObjectItem assigned;
    assigned = item;
    EXPECT_TRUE(assigned == original);
    CDriverCacheObjectItem movedInto;
    movedInto = std::move(item);
    EXPECT_TRUE(movedInto == original);
    CDriverCacheObjectItem const moved(std::move(item)); // a moved item is a copied one
    EXPECT_TRUE(moved == original);
    EXPECT_TRUE(item == original);
}

TEST(CopiedKey, IsAssignedWhole)
{
    CDeviceChannelInfo const speaker = speakerChannel();
    CDriverCacheKeyName const plainName(device, gain);
    CDriverCacheKeyName assignedPlainName;
    assignedPlainName = plainName;
    EXPECT_EQ(assignedPlainName.key(), QStringLiteral("C7010205_Gain"));
    EXPECT_EQ(assignedPlainName.objectName(), gain);

    CDriverCacheChannelKeyName const name(device, &speaker, gain);
    CDriverCacheChannelKeyName assignedName;
    assignedName = name;
    EXPECT_EQ(assignedName.key(), QStringLiteral("C7010205_001_0012_Gain"));
    EXPECT_EQ(*assignedName.channelInfo(), speaker);

    CDriverCacheChannelKeyObject const number(device, &speaker, 0x0123);
    CDriverCacheChannelKeyObject assignedNumber;
    assignedNumber = number;
    EXPECT_EQ(assignedNumber.key(), QStringLiteral("C7010205_001_0012_0123"));
    EXPECT_EQ(*assignedNumber.channelInfo(), speaker);

    CDriverCacheChannelKeyFilter const filter(device, &speaker, 3);
    CDriverCacheChannelKeyFilter assignedFilter;
    assignedFilter = filter;
    EXPECT_EQ(assignedFilter.key(), QStringLiteral("C7010205_001_0012_03"));
    EXPECT_EQ(assignedFilter.filterNumberString(), QStringLiteral("03"));
}

TEST(MovedKey, LosesTheTextOfItsOwnPartOnly)
{
    CDeviceChannelInfo const speaker = speakerChannel();
    CDriverCacheChannelKeyName name(device, &speaker, gain);
    CDriverCacheChannelKeyName movedName;
    movedName = std::move(name);
    EXPECT_EQ(movedName.objectName(), gain);
    EXPECT_EQ(movedName.key(), QStringLiteral("C7010205_001_0012_Gain"));
    EXPECT_EQ(name.objectName(), QString());
    EXPECT_EQ(name.key(), movedName.key());
    EXPECT_EQ(*name.channelInfo(), speaker);

    CDriverCacheKeyObject plainNumber(device, 0x0123);
    CDriverCacheKeyObject const copiedPlainNumber(plainNumber);
    EXPECT_EQ(copiedPlainNumber.objectNumberString(), QStringLiteral("0123"));
    CDriverCacheKeyObject const movedPlainNumber(std::move(plainNumber));
    EXPECT_EQ(movedPlainNumber.objectNumberString(), QStringLiteral("0123"));
    EXPECT_EQ(plainNumber.objectNumberString(), QString());
    EXPECT_EQ(plainNumber.objectNumber(), 0x0123);

    CDriverCacheChannelKeyObject number(device, &speaker, 0x0123);
    CDriverCacheChannelKeyObject const copiedNumber(number);
    EXPECT_EQ(copiedNumber.objectNumberString(), QStringLiteral("0123"));
    CDriverCacheChannelKeyObject const movedNumber(std::move(number));
    EXPECT_EQ(movedNumber.key(), QStringLiteral("C7010205_001_0012_0123"));
    EXPECT_EQ(movedNumber.objectNumberString(), QStringLiteral("0123"));
    EXPECT_EQ(number.objectNumberString(), QString());
    EXPECT_EQ(number.key(), movedNumber.key());

    CDriverCacheChannelKeyFilter filter(device, &speaker, 3);
    CDriverCacheChannelKeyFilter movedFilter;
    movedFilter = std::move(filter);
    EXPECT_EQ(movedFilter.filterNumberString(), QStringLiteral("03"));
    EXPECT_EQ(filter.filterNumberString(), QString());
    EXPECT_EQ(filter.filterNumber(), 3);
    EXPECT_EQ(filter.key(), movedFilter.key());
}

TEST(CopiedCatalogue, SharesItsFilters)
{
    Sharing<CDriverCacheFilterItemList> original;
    CDeviceChannelInfo const speaker = speakerChannel();
    CDriverCacheChannelKeyFilter const key(device, &speaker, 3);
    original.addFilterItem(&key, new CDriverCacheFilterItem(1, 3, 0, gain, QString(), 0, 1));
    expectCopiesToShareWith(original, [&key](auto const & list) { return list.item(key); });
    QString name;
    EXPECT_EQ(original.filterName(device, &speaker, 3, name), GetItemFound);
    EXPECT_EQ(name, gain);
    EXPECT_EQ(original.filterName(device.toString(), &speaker, 4, name), GetItemNotCached);
}

TEST(CopiedCatalogue, SharesItsDevices)
{
    Sharing<CDriverCacheGuidItemList> original;
    original.addItem(new CDriverCacheGuidItem(device, QStringLiteral("Talvo"), QString(), QString(),
                                              CDriverCacheGuidItem::GuidAccess(0)));
    Sharing<CDriverCacheGuidItemList> copy(original);
    Sharing<CDriverCacheGuidItemList> assigned;
    assigned = original;
    for (CDriverCacheGuidItemList const * const list : {&original, &copy, &assigned}) {
        EXPECT_EQ(list->count(), 1);
        EXPECT_EQ(list->determineDriverGuid(0xC7000905), device);
    }
    copy.giveUp();
    assigned.giveUp();
}

TEST(CopiedCatalogue, SharesItsObjectClasses)
{
    Sharing<CDriverCacheObjectClassItemList> original;
    original.append(new CDriverCacheObjectClassItem(7, QStringLiteral("1.2"), QString()));
    expectCopiesToShareWith(original, [](auto const & list) { return list.itemByClassId(7); });
}

TEST(CopiedCatalogue, SharesItsObjects)
{
    Sharing<CDriverCacheObjectItemList> original;
    CDriverCacheKeyName key(device, gain);
    original.AddObjectItem(&key, new CDriverCacheObjectItem);
    expectCopiesToShareWith(original, [&key](auto & list) {
        CDriverCacheObjectItem * item = nullptr;
        list.GetDriverObject(item, &key);
        return item;
    });
}

TEST(CopiedCatalogue, SharesItsSpeakers)
{
    Sharing<CDriverCacheSpeakerItemList> original;
    original.addSpeakerClassItem(
        new CDriverCacheSpeakerClassItem(7, QString(), QString(), 2, QStringLiteral("low;high")));
    auto * const speaker = new CSpeakerDef;
    speaker->setSpeakerId(12);
    original.addSpeakerItem(speaker);
    expectCopiesToShareWith(original, [](auto const & list) { return list.speakerClassItem(7); });
    Sharing<CDriverCacheSpeakerItemList> copy(original);
    EXPECT_EQ(copy.speakerIds(), QList<unsigned short>{12});
    EXPECT_EQ(copy.maxSpeakerId(), 12);
    copy.giveUp();
}

TEST(DefaultKey, HasNothing)
{
    struct Key : CDriverCacheKey {
        CDeviceChannelInfo * channelInfo() const override { return nullptr; }

        void initKeyString() override {}
    };

    Key const key;
    EXPECT_EQ(key.type(), CDriverCacheKey::KeyTypeNone);
    EXPECT_EQ(key.guid(), CDeviceGuid(0));
    EXPECT_EQ(key.guidString(), QString());
    EXPECT_EQ(key.key(), QString());
}

} // namespace kestrova::test::copies
