#include "cache/driverCacheChannelKeyName.h"
#include "cache/driverCacheChannelKeyObject.h"
#include "exposedCache.h"
#include "records/deviceChannelInfo.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <memory>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace kestrova::test::objectCache {

namespace {

CDeviceGuid const device(0xC7000005);
CDeviceGuid const level2Device(0xC7000006);

QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 1), ('C7000006', 'Hesko', '', 2);"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER, Min "
    "REAL, Max "
    "REAL, Step REAL, Format TEXT, Flags INTEGER, Access INTEGER);"
    "INSERT INTO Objects VALUES (1, 'Gain', 1, 5, 0, 10, 0.5, '%d', 3, 11),"
    " (2, 'Secret', 1, 6, 0, 10, 1, '%d', 3, 20), (3, 'Open', 1, 7, 0, 10, 1, '%d', 3, 19),"
    " (4, 'Config_Filter1', 2, 1, 0, 1, 1, '%d', 3, 11), (5, 'Config_Filter2', 2, 2, 0, 9, 1, '%d', 3, 11),"
    " (6, 'Config_Filter10', 2, 3, 0, 1, 1, '%d', 3, 11), (7, 'Config_FilterX', 2, 4, 0, 1, 1, '%d', 3, 11),"
    " (8, 'Config_CablefitSpeakerCount', 2, 5, 1, 9, 1, '%d', 3, 11),"
    " (9, 'Stepped', 2, 6, 0, 10, 2.5, '%d', 35, 11), (10, 'FineStepped', 2, 7, 0, 10, 0.5, '%d', 35, 11);"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
    "INSERT INTO guidsandobjects SELECT id, 'C7000005' FROM Objects;"
    "INSERT INTO guidsandobjects SELECT id, 'C7000006' FROM Objects;"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder "
    "INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (12, 'A', 0, 0, 'A', 1, 6, 0), (13, 'B', 0, 0, 'B', 2, 0, 0),"
    " (14, 'C', 0, 0, 'C', 3, 0, 0), (15, 'D', 0, 0, 'D', 4, 0, 0);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId INTEGER, Access INTEGER);"
    "INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, 11, 1), ('C7000005', 12, 21, 1), ('C7000005', "
    "13, 12, 1),"
    " ('C7000005', 12, 1, 1), ('C7000005', 14, 13, 1), ('C7000005', 14, 22, 1), ('C7000005', 15, 14, 1);"
    "CREATE TABLE Filters (Id INTEGER, Number INTEGER, Type INTEGER, Min REAL, Max REAL, DisplayNameShort "
    "TEXT, "
    "TextOffset INTEGER, StateTexts TEXT);"
    "INSERT INTO Filters VALUES (11, 1, 0, 0, 5, 'Shelf', 0, ''), (21, 2, 0, 0, 1, 'Switch', 0, ''),"
    " (12, 1, 0, 0, 1, 'On', 0, ''), (1, 0, 0, 2, 4, 'Zero', 0, ''),"
    " (13, 1, 0, 5, 0, 'Falling', 0, ''), (22, 2, 0, 1, 0, 'Inverse', 0, ''), (14, 1, 0, 2, 3, 'Raised', 0, "
    "'');");

struct ObjectCache : ::testing::Test {
    ObjectCache()
    {
        folder.add(QStringLiteral("a.db3"), world);
        EXPECT_EQ(cache.openDatabases(folder.dir()), 1);
        cache.setGuidSupportedLevel(1);
        speaker12.SetSpeakerId(12);
        speaker13.SetSpeakerId(13);
        speaker14.SetSpeakerId(14);
        speaker15.SetSpeakerId(15);
    }

    CDriverCacheObjectItem * find(char const * name, CDeviceChannelInfo * channel = nullptr)
    {
        CDriverCacheObjectItem * item = nullptr;
        GetItemReturnValue const result =
            cache.GetDriverObject(item, device, QString::fromUtf8(name), channel);
        return result == GetItemFound ? item : nullptr;
    }

    CDriverCacheObjectItem * find(unsigned short number, CDeviceChannelInfo * channel = nullptr)
    {
        CDriverCacheObjectItem * item = nullptr;
        return cache.GetDriverObject(item, device, number, channel) == GetItemFound ? item : nullptr;
    }

    DatabaseFolder folder;
    ExposedCache cache;
    CDeviceChannelInfo speaker12;
    CDeviceChannelInfo speaker13;
    CDeviceChannelInfo speaker14;
    CDeviceChannelInfo speaker15;
};

} // namespace

TEST_F(ObjectCache, GivesOneItemByNameAndByNumber)
{
    CDriverCacheObjectItem * const item = find("Gain");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->name(), QStringLiteral("Gain"));
    EXPECT_EQ(find("Gain"), item);
    EXPECT_EQ(find(0x0105), item);
}

TEST_F(ObjectCache, GivesOneItemByNumberAndByName)
{
    CDriverCacheObjectItem * const item = find(0x0105, &speaker12);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(find("Gain", &speaker12), item);
    EXPECT_NE(find("Gain"), item) << "without the qualifier there is another item";
    EXPECT_NE(find("Gain", &speaker13), item);
}

TEST_F(ObjectCache, AnswersFromMemoryWithoutADatabase)
{
    CDriverCacheObjectItem * const item = find("Gain");
    EXPECT_EQ(find("Missing"), nullptr);
    MessageRecorder recorder;
    cache.closeDatabases();
    EXPECT_EQ(find("Gain"), item);
    EXPECT_EQ(find(0x0105), item);
    EXPECT_EQ(find("Missing"), nullptr);
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ObjectCache, RemembersAMissUnderTheTextThatWasAskedFor)
{
    CDriverCacheKeyName key(device, QStringLiteral("Missing"));
    CDriverCacheObjectItem * item = nullptr;
    EXPECT_EQ(cache.objectItems->GetDriverObject(item, &key), GetItemNotCached);
    EXPECT_EQ(cache.GetDriverObject(item, &key), GetItemNotAvailable);
    EXPECT_EQ(item, nullptr);
    EXPECT_EQ(cache.objectItems->GetDriverObject(item, &key), GetItemNotAvailable);
    cache.clear();
    EXPECT_EQ(cache.objectItems->GetDriverObject(item, &key), GetItemNotCached);
}

TEST_F(ObjectCache, AMissStandsUntilACloseIsUndoneByAClear)
{
    cache.closeDatabases();
    EXPECT_EQ(find("Gain"), nullptr);
    cache.openDatabases(folder.dir()); // clears
    EXPECT_NE(find("Gain"), nullptr);
}

TEST_F(ObjectCache, ShowsAChangeOfTheDatabaseOnlyAfterAReload)
{
    auto const readAll = [&] {
        CDriverCacheObjectItem * const gain = find("Gain");
        QStringList models = cache.deviceModels();
        models.sort();
        return QStringLiteral("%1 %2 %3 %4")
            .arg(gain ? gain->maxValue() : -1)
            .arg(find("Late") != nullptr)
            .arg(cache.filterName(device, &speaker12, 1), models.join(QLatin1Char(' ')));
    };
    QString const before = QStringLiteral("10 0 Shelf Talvo");
    EXPECT_EQ(readAll(), before);
    folder.add(QStringLiteral("a.db3"),
               QStringLiteral("UPDATE Objects SET Max = 99 WHERE Name = 'Gain';"
                              "INSERT INTO Objects VALUES (20, 'Late', 3, 1, 0, 1, 1, '%d', 3, 11);"
                              "INSERT INTO guidsandobjects VALUES (20, 'C7000005');"
                              "UPDATE Filters SET DisplayNameShort = 'Peak';"
                              "INSERT INTO Guids VALUES ('C7000007', 'Zorin', '', 1);"));
    EXPECT_EQ(readAll(), before);
    cache.setGuidSupportedLevel(2);
    EXPECT_EQ(readAll(), QStringLiteral("99 1 Peak Hesko Talvo Zorin"));
}

TEST_F(ObjectCache, TakesTheGuidAsATextToo)
{
    CDriverCacheObjectItem * item = nullptr;
    EXPECT_EQ(cache.GetDriverObject(item, QStringLiteral("c7000005"), QStringLiteral("Gain"), nullptr),
              GetItemFound);
    EXPECT_EQ(item, find("Gain"));
    EXPECT_EQ(cache.GetDriverObject(item, QStringLiteral("C7000005"), quint16(0x0105), &speaker12),
              GetItemFound);
    EXPECT_EQ(item, find("Gain", &speaker12));
    EXPECT_EQ(cache.GetDriverObject(item, QStringLiteral("C7000005"), QStringLiteral("Gain"), &speaker12),
              GetItemFound);
    EXPECT_EQ(cache.GetDriverObject(item, QStringLiteral("C7000005"), quint16(0x0105), nullptr),
              GetItemFound);
}

TEST_F(ObjectCache, ChannelBitsMakeAnotherItem)
{
    // Nothing owns the first item any more when the second takes its place by name; the test deletes it.
    std::unique_ptr<CDriverCacheObjectItem> const first(find(0x2105));
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->name(), QStringLiteral("Gain"));
    EXPECT_EQ(find("Gain"), first.get());
    CDriverCacheObjectItem * const second = find(0x0105);
    EXPECT_NE(second, first.get());
    EXPECT_EQ(find("Gain"), second);
    EXPECT_EQ(find(0x2105), first.get());
}

TEST_F(ObjectCache, RefusesWhatTheLevelIsTooLowFor)
{
    struct Row {
        char const * name;
        CDeviceGuid guid;
        char const * object;
        unsigned char level;
        GetItemReturnValue result;
    };

    Row const rows[] = {
        {"access 11 at level 1", device, "Gain", 1, GetItemFound},
        {"access 20 at level 1", device, "Secret", 1, GetItemNotAvailable},
        {"access 19 at level 1, the units play no part", device, "Open", 1, GetItemFound},
        {"access 20 at level 2", device, "Secret", 2, GetItemFound},
        {"a device of level 1 at level 0", device, "Gain", 0, GetItemNotAvailable},
        {"a device of level 2 at level 1", level2Device, "Gain", 1, GetItemNotAvailable},
        {"a device of level 2 at level 2", level2Device, "Gain", 2, GetItemFound},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        cache.setGuidSupportedLevel(row.level);
        CDriverCacheObjectItem * item = nullptr;
        EXPECT_EQ(cache.GetDriverObject(item, row.guid, QString::fromUtf8(row.object), nullptr), row.result);
        if (row.result == GetItemNotAvailable) {
            // The refused item is alive in the out-parameter, this once, and nobody else's.
            std::unique_ptr<CDriverCacheObjectItem> const refused(item);
            EXPECT_NE(refused, nullptr);
            EXPECT_EQ(cache.GetDriverObject(item, row.guid, QString::fromUtf8(row.object), nullptr),
                      row.result);
            EXPECT_EQ(item, nullptr);
        }
    }
}

TEST_F(ObjectCache, AdjustsFiltersToTheSpeaker)
{
    CDeviceChannelInfo output(ChannelTypeOutput);
    CDeviceChannelInfo unknownSpeaker;
    unknownSpeaker.SetSpeakerId(99);

    struct Row {
        char const * name;
        char const * object;
        CDeviceChannelInfo * channel;
        char const * subName;
        double minimum;
        double maximum;
        CObjectDef::ObjectType type;
    };

    Row const rows[] = {
        {"a toggle becomes a number", "Config_Filter1", &speaker12, "Shelf", 0, 5,
         CObjectDef::ObjectTypeNumber},
        {"a toggle stays one", "Config_Filter1", &speaker13, "On", 0, 1, CObjectDef::ObjectTypeToggle},
        {"a number becomes a toggle", "Config_Filter2", &speaker12, "Switch", 0, 1,
         CObjectDef::ObjectTypeToggle},
        {"a toggle with falling limits becomes a number", "Config_Filter1", &speaker14, "Falling", 5, 0,
         CObjectDef::ObjectTypeNumber},
        {"a number with falling limits becomes a toggle", "Config_Filter2", &speaker14, "Inverse", 1, 0,
         CObjectDef::ObjectTypeToggle},
        {"a toggle of two other states stays one", "Config_Filter1", &speaker15, "Raised", 2, 3,
         CObjectDef::ObjectTypeToggle},
        {"no filter in the slot", "Config_Filter2", &speaker13, "", 0, 9, CObjectDef::ObjectTypeNumber},
        {"another sort of channel", "Config_Filter1", &output, "", 0, 1, CObjectDef::ObjectTypeToggle},
        {"no channel", "Config_Filter1", nullptr, "", 0, 1, CObjectDef::ObjectTypeToggle},
        {"an unknown speaker", "Config_Filter1", &unknownSpeaker, "", 0, 1, CObjectDef::ObjectTypeToggle},
        {"fifteen characters", "Config_Filter10", &speaker12, "", 0, 1, CObjectDef::ObjectTypeToggle},
        {"no digit counts as 0", "Config_FilterX", &speaker12, "Zero", 2, 4, CObjectDef::ObjectTypeNumber},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        CDriverCacheObjectItem const * const item = find(row.object, row.channel);
        ASSERT_NE(item, nullptr);
        EXPECT_EQ(item->displaySubName(), QString::fromUtf8(row.subName));
        EXPECT_EQ(item->minValue(), row.minimum);
        EXPECT_EQ(item->maxValue(), row.maximum);
        EXPECT_EQ(item->objectType(), row.type);
    }
}

TEST_F(ObjectCache, AdjustsTheCablefitCountToTheSpeaker)
{
    CDriverCacheObjectItem const * const six = find("Config_CablefitSpeakerCount", &speaker12);
    ASSERT_NE(six, nullptr);
    EXPECT_EQ(six->minValue(), 1.0);
    EXPECT_EQ(six->maxValue(), 6.0);

    CDriverCacheObjectItem const * const none = find("Config_CablefitSpeakerCount", &speaker13);
    ASSERT_NE(none, nullptr);
    EXPECT_EQ(none->minValue(), 0.0);
    EXPECT_EQ(none->maxValue(), 0.0);

    CDeviceChannelInfo unknown;
    unknown.SetSpeakerId(99);
    EXPECT_EQ(find("Config_CablefitSpeakerCount", &unknown)->maxValue(), 9.0);
    EXPECT_EQ(find("Config_CablefitSpeakerCount")->maxValue(), 9.0);
}

TEST_F(ObjectCache, LimitsTheStepOfFlaggedObjects)
{
    EXPECT_EQ(find("Stepped")->step(), 1.0);
    EXPECT_EQ(find("FineStepped")->step(), 0.5);
    EXPECT_EQ(find("Stepped", &speaker12)->step(), 1.0);
}

TEST_F(ObjectCache, MakesNoItemOfAnObjectThatIsMissing)
{
    CDriverCacheObjectItem sentinel;
    CDriverCacheObjectItem * item = &sentinel;
    CDriverCacheKeyName missing(device, QStringLiteral("Missing"));
    EXPECT_FALSE(cache.createDriverCacheObjectItem(item, &missing));
    EXPECT_EQ(item, &sentinel);
}

TEST_F(ObjectCache, WarnsOfANullKey)
{
    MessageRecorder recorder;
    CDriverCacheObjectItem sentinel;
    CDriverCacheObjectItem * item = &sentinel;
    EXPECT_FALSE(cache.createDriverCacheObjectItem(item, nullptr));
    EXPECT_EQ(item, &sentinel);
    EXPECT_EQ(recorder.messages(),
              QStringList{
                  QStringLiteral("warning: Invalid param 'key' (nullptr) in "
                                 "kestrova::Morvel::Devicelore::CDriverCache::createDriverCacheObjectItem")});
    EXPECT_EQ(recorder.sources(), QStringList{QString()}) << "no place is given";
}

TEST_F(ObjectCache, KeepsTheFirstItemOfAKey)
{
    CDriverCacheObjectItem * const item = find("Gain");
    CDriverCacheObjectItem other(*item);
    CDriverCacheKeyName name(device, QStringLiteral("Gain"));
    CDriverCacheKeyObject number(device, 0x0105);
    EXPECT_TRUE(cache.addObjectItem(&name, &other));
    EXPECT_TRUE(cache.addObjectItem(&number, &other));
    EXPECT_TRUE(cache.addObjectItem(&name, nullptr));
    EXPECT_EQ(find("Gain"), item);
    EXPECT_EQ(find(0x0105), item);
}

TEST(ObjectItemList, PutsTheItemOfANumberInThePlaceOfItsName)
{
    CDriverCacheObjectItemList list;
    CDriverCacheKeyName byName(device, QStringLiteral("Gain"));
    CDriverCacheKeyObject byNumber(device, 0x2105);
    auto const first = std::make_unique<CDriverCacheObjectItem>(); // in nobody's hands once it is replaced
    first->setName(QStringLiteral("Gain"));
    first->SetBoxNumber(1);
    first->SetObjectNumber(5);
    auto * const second = new CDriverCacheObjectItem(*first);
    CDriverCacheObjectItem * found = nullptr;

    EXPECT_TRUE(list.AddObjectItem(&byName, first.get()));
    EXPECT_EQ(list.GetDriverObject(found, &byName), GetItemFound);
    EXPECT_EQ(found, first.get());
    EXPECT_TRUE(list.AddObjectItem(&byNumber, second));
    EXPECT_EQ(list.GetDriverObject(found, &byName), GetItemFound);
    EXPECT_EQ(found, second);
    CDriverCacheKeyObject firstNumber(device, 0x0105);
    EXPECT_EQ(list.GetDriverObject(found, &firstNumber), GetItemFound);
    EXPECT_EQ(found, first.get());
}

TEST(ObjectItemList, FindsANameThatWasMissingOnceItsNumberIsThere)
{
    CDriverCacheObjectItemList list;
    CDriverCacheKeyName byName(device, QStringLiteral("Gain"));
    CDriverCacheKeyObject byNumber(device, 0x0105);
    CDriverCacheObjectItem * found = nullptr;
    EXPECT_TRUE(list.AddObjectItem(&byName, nullptr));
    EXPECT_EQ(list.GetDriverObject(found, &byName), GetItemNotAvailable);

    auto * const item = new CDriverCacheObjectItem;
    item->setName(QStringLiteral("Gain"));
    EXPECT_TRUE(list.AddObjectItem(&byNumber, item));
    EXPECT_EQ(list.GetDriverObject(found, &byName), GetItemFound);
    EXPECT_EQ(found, item);
}

TEST(ObjectItem, IsEqualInWhatTheDatabaseSays)
{
    CDriverCacheObjectItem const plain;
    CDriverCacheObjectItem other;
    other.setMask(QFlags<ObjectDefMask>(QFlag(1)));
    other.setObjectType(CObjectDef::ObjectTypeToggle);
    other.SetOnoType(5);
    EXPECT_TRUE(plain == other) << "mask, type and ONO type take no part";

    unsigned short const ids[] = {1, 2};

    struct Row {
        char const * member;
        void (*change)(CDriverCacheObjectItem &);
    };

    Row const rows[] = {
        {"box", [](CDriverCacheObjectItem & o) { o.SetBoxNumber(1); }},
        {"number", [](CDriverCacheObjectItem & o) { o.SetObjectNumber(1); }},
        {"minimum", [](CDriverCacheObjectItem & o) { o.setMin(1); }},
        {"maximum", [](CDriverCacheObjectItem & o) { o.setMax(1); }},
        {"step", [](CDriverCacheObjectItem & o) { o.setStep(2); }},
        {"name", [](CDriverCacheObjectItem & o) { o.setName(QStringLiteral("x")); }},
        {"display name", [](CDriverCacheObjectItem & o) { o.setDisplayName(QStringLiteral("x")); }},
        {"channel count", [](CDriverCacheObjectItem & o) { o.setChannelCount(1); }},
        {"record count", [](CDriverCacheObjectItem & o) { o.setRecordCount(1); }},
        {"format", [](CDriverCacheObjectItem & o) { o.setFormat(QStringLiteral("x")); }},
        {"flags", [](CDriverCacheObjectItem & o) { o.setFlags(1); }},
        {"access", [](CDriverCacheObjectItem & o) { o.setAccess(1); }},
        {"default value", [](CDriverCacheObjectItem & o) { o.setDefaultValue(1.0); }},
        {"size", [](CDriverCacheObjectItem & o) { o.setSize(1); }},
        {"text offset", [](CDriverCacheObjectItem & o) { o.setTextOffset(1); }},
        {"comment", [](CDriverCacheObjectItem & o) { o.setComment(QStringLiteral("x")); }},
        {"wait time", [](CDriverCacheObjectItem & o) { o.setWaitTime(1); }},
        {"wait states", [](CDriverCacheObjectItem & o) { o.setWaitStates(1); }},
        {"class id", [](CDriverCacheObjectItem & o) { o.setClassId(1); }},
        {"unit", [](CDriverCacheObjectItem & o) { o.setUnit(QStringLiteral("x")); }},
        {"sub name", [](CDriverCacheObjectItem & o) { o.setDisplaySubName(QStringLiteral("x")); }},
        {"hash", [](CDriverCacheObjectItem & o) { o.setPropertyHash(1); }},
    };
    for (Row const & row : rows) {
        CDriverCacheObjectItem changed;
        row.change(changed);
        EXPECT_FALSE(plain == changed) << row.member;
        CDriverCacheObjectItem const copy(static_cast<CObjectDef const &>(changed));
        EXPECT_TRUE(copy == changed) << row.member;
    }
    CDriverCacheObjectItem changed;
    changed.setOcaClassId(ids, 2);
    EXPECT_FALSE(plain == changed) << "OCA class id";
    unsigned short sixteen[16] = {};
    changed.setOcaClassId(sixteen, 16);
    EXPECT_TRUE(plain == changed) << "the number of its fields takes no part";
    sixteen[15] = 1;
    changed.setOcaClassId(sixteen, 16);
    EXPECT_FALSE(plain == changed) << "the last field of the OCA class id";
}

} // namespace kestrova::test::objectCache
