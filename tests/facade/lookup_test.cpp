#include "cache/driverCacheKey.h"
#include "cache/driverCacheObjectItem.h"
#include "facade/devicelore.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::MessageRecorder;

namespace kestrova::test::lookup {

namespace {

CDeviceGuid const device(0xC7000005);

QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 1), ('C7000305', 'Talvo', '', 1), ('C7000006', "
    "'Hesko', '', 2),"
    " ('C7000106', 'Hesko', '', 1);"
    "CREATE TABLE Hardwaretypes (Type INTEGER, DeviceType TEXT);"
    "INSERT INTO Hardwaretypes VALUES (1, 'Talvo'), (3, 'Unheard'), (4, 'Hesko');"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER, "
    "ChannelCount "
    "INTEGER, RecordCount INTEGER, Min REAL, Max REAL, Step REAL, Format TEXT, Flags INTEGER, Access "
    "INTEGER, "
    "DefaultValue TEXT, Size INTEGER, TextOffset INTEGER, Description TEXT, Comment TEXT, ClassId INTEGER, "
    "WaitTime "
    "INTEGER, WaitStates INTEGER);"
    "INSERT INTO Objects VALUES (1, 'Gain', 1, 5, 4, 3, -60, 12, 0.5, '%6.1d dB', 35, 11, '-12', 2, 40, "
    "'Gain shown', "
    "'a comment', 9, 250, 6), (2, 'ChStatus_MsDelay', 1, 6, 4, 1, 1, 500, 0.1, '%5.1d ms', 3, 11, '', 2, 0, "
    "'', '', 0, "
    "0, 0);"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
    "INSERT INTO guidsandobjects SELECT id, 'C7000005' FROM Objects;"
    "CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);"
    "INSERT INTO ObjectClasses VALUES (9, '1.2.3', '');"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder "
    "INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (12, 'Wave', 0, 0, 'W', 1, 0, 1), (13, 'Plain', 0, 0, 'P', 2, 0, 0);");

class Facade : public CDevicelore {
public:
    using CDevicelore::CDevicelore;
    using CDevicelore::CheckChannelInfo;
    using CDevicelore::CorrectDelayValueForWFSpeaker;
    using CDevicelore::FillObjectDef;
    using CDevicelore::GetObjectItem;
};

CDeviceChannelInfo speaker(unsigned short id)
{
    CDeviceChannelInfo channel;
    channel.SetSpeakerId(id);
    return channel;
}

CObjectDef asking(quint32 mask)
{
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(mask)));
    return object;
}

CDriverCache * openCache(DatabaseFolder & folder)
{
    folder.add(QStringLiteral("a.db3"), world);
    auto * const cache = new CDriverCache;
    EXPECT_EQ(cache->openDatabases(folder.dir()), 1);
    return cache;
}

struct Lookup : ::testing::Test {
    Lookup()
        : facade(QPointer<CDriverCache>(openCache(folder)), nullptr)
    {
        facade.setDeviceAccessLevel(1);
    }

    DatabaseFolder folder;
    Facade facade;
};

/// Answers every lookup with one result, and with an item of its own or none, and has speakers from 5 to 9.
/// Notes what it is asked.
class AnsweringCache : public CDriverCache {
public:
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key) override
    {
        keys.append(key->key());
        item = given;
        return result;
    }

    unsigned short minSpeakerId() const override { return 5; }

    unsigned short maxSpeakerId() const override { return 9; }

    TharnError speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                          QFlags<SpeakerDefMask> mask) override
    {
        speakerQuestions.append(QStringLiteral("%1, mask %2").arg(speakerId).arg(int(mask), 0, 16));
        definitions += givenSpeakers;
        return TharnNoError;
    }

    CDriverCacheObjectItem * given = nullptr;
    GetItemReturnValue result = GetItemNotCached;
    QList<CSpeakerDef> givenSpeakers;
    QStringList keys;
    QStringList speakerQuestions;
};

/// A facade on such a cache.
struct Answers : ::testing::Test {
    Answers()
        : cache(new AnsweringCache)
        , facade(QPointer<CDriverCache>(cache), nullptr)
    {}

    AnsweringCache * cache;
    Facade facade;
};

} // namespace

TEST_F(Lookup, FillsWhatTheMaskNamesAndNothingElse)
{
    struct Row {
        quint32 mask;
        bool (*isFilled)(CObjectDef const &);
    };

    Row const rows[] = {
        {0x400, [](CObjectDef const & o) { return o.access() == 11; }},
        {0x4, [](CObjectDef const & o) { return o.channelCount() == 4; }},
        {0x800000, [](CObjectDef const & o) { return o.classId() == 9; }},
        {0x8000, [](CObjectDef const & o) { return o.comment() == QLatin1String("a comment"); }},
        {0x800, [](CObjectDef const & o) { return o.defaultValue() == QVariant(-12.0); }},
        {0x4000, [](CObjectDef const & o) { return o.displayName() == QLatin1String("Gain shown"); }},
        {0x100, [](CObjectDef const & o) { return o.flags() == 35; }},
        {0x80, [](CObjectDef const & o) { return o.format() == QLatin1String("%6.1d dB"); }},
        {0x20, [](CObjectDef const & o) { return o.maxValue() == 12.0; }},
        {0x10, [](CObjectDef const & o) { return o.minValue() == -60.0; }},
        {0x1, [](CObjectDef const & o) { return o.name() == QLatin1String("Gain"); }},
        {0x2, [](CObjectDef const & o) { return o.ObjectNumber() == 5; }},
        {0x4000000, [](CObjectDef const & o) { return o.BoxNumber() == 1; }},
        {0x80000, [](CObjectDef const & o) { return o.objectType() == CObjectDef::ObjectTypeNumber; }},
        {0x400000, [](CObjectDef const & o) { return o.ocaClassIdSize() == 3 && o.ocaClassId()[1] == 2; }},
        {0x8, [](CObjectDef const & o) { return o.recordCount() == 3; }},
        {0x1000, [](CObjectDef const & o) { return o.size() == 2; }},
        {0x40, [](CObjectDef const & o) { return o.step() == 0.5; }},
        {0x2000, [](CObjectDef const & o) { return o.textOffset() == 40; }},
        {0x100000, [](CObjectDef const & o) { return o.unit() == QLatin1String(" dB"); }},
        {0x40000, [](CObjectDef const & o) { return o.waitStates() == 6; }},
        {0x20000, [](CObjectDef const & o) { return o.waitTime() == 250; }},
        {0x2000000, [](CObjectDef const & o) { return o.GetOnoType() == 1; }},
        {0x1000000, [](CObjectDef const & o) { return o.propertyHash() == 0x4D7FE; }},
    };
    for (Row const & asked : rows) {
        CObjectDef target = asking(asked.mask);
        ASSERT_EQ(facade.GetObjectDef(device, QStringLiteral("Gain"), target, nullptr), TharnNoError);
        for (Row const & member : rows)
            EXPECT_EQ(member.isFilled(target), &member == &asked)
                << std::hex << "asked for " << asked.mask << ", looked at " << member.mask;
        EXPECT_EQ(quint32(target.mask()), asked.mask);
    }
}

TEST(FreshFacade, FindsNoObjectsUntilALevelIsSet)
{
    DatabaseFolder folder;
    CDevicelore facade(QPointer<CDriverCache>(openCache(folder)), nullptr);
    CObjectDef object = asking(0x1);
    EXPECT_EQ(facade.deviceAccessLevel(), 1);
    EXPECT_EQ(facade.GetObjectDef(device, QStringLiteral("Gain"), object, nullptr), TharnNotAvailable);
    facade.setDeviceAccessLevel(1);
    EXPECT_EQ(facade.GetObjectDef(device, QStringLiteral("Gain"), object, nullptr), TharnNoError);
    EXPECT_EQ(object.name(), QStringLiteral("Gain"));
}

TEST_F(Lookup, CopiesTheSubName)
{
    CDriverCacheObjectItem item;
    item.setDisplaySubName(QStringLiteral("Shelf"));
    CObjectDef target = asking(0x200000);
    facade.FillObjectDef(target, &item);
    EXPECT_EQ(target.displaySubName(), QStringLiteral("Shelf"));
    CObjectDef other = asking(~0x200000U);
    facade.FillObjectDef(other, &item);
    EXPECT_EQ(other.displaySubName(), QString());
}

TEST_F(Lookup, TwinsDifferInTheErrorOfAMissingObject)
{
    CObjectDef target = asking(~0U);
    target.setName(QStringLiteral("before"));
    EXPECT_EQ(facade.GetObjectDef(device, QStringLiteral("Missing"), target, nullptr), TharnNotAvailable);
    EXPECT_EQ(facade.GetObjectDef(device, quint16(0x0109), target, nullptr), TharnFailed);
    EXPECT_EQ(facade.GetObjectDef(0xC7000105, QStringLiteral("Gain"), target, nullptr), TharnNotAvailable)
        << "the GUID is used as it is";
    EXPECT_EQ(target.name(), QStringLiteral("before"));
}

TEST_F(Lookup, ByNumberThatFailsLeavesTheMask)
{
    CObjectDef target = asking(0x10);
    target.setName(QStringLiteral("before"));
    EXPECT_EQ(facade.GetObjectDef(device, quint16(0x0109), target, nullptr), TharnFailed);
    EXPECT_EQ(quint32(target.mask()), 0x10U);
    EXPECT_EQ(target.name(), QStringLiteral("before"));
}

TEST_F(Answers, AreMappedByEachTwinInItsOwnWay)
{
    struct Row {
        GetItemReturnValue result;
        bool withItem;
        TharnError byName;
        TharnError byNumber;
    };

    CDriverCacheObjectItem item;
    Row const rows[] = {
        {GetItemFound, true, TharnNoError, TharnNoError},
        {GetItemFound, false, TharnFailed, TharnFailed},
        {GetItemNotCached, false, TharnNotFound, TharnNotFound},
        {GetItemNotCached, true, TharnNotFound, TharnNotFound},
        {GetItemNotAvailable, false, TharnNotAvailable, TharnFailed},
        {GetItemNotAvailable, true, TharnNotAvailable, TharnFailed},
        {GetItemReturnValue(7), true, TharnFailed, TharnFailed},
    };
    for (Row const & row : rows) {
        cache->result = row.result;
        cache->given = row.withItem ? &item : nullptr;
        CObjectDef target;
        EXPECT_EQ(facade.GetObjectDef(device, QString(), target, nullptr), row.byName) << row.result;
        EXPECT_EQ(facade.GetObjectDef(device, quint16(1), target, nullptr), row.byNumber) << row.result;
    }
}

TEST_F(Lookup, TwinsDifferInTheChannelBits)
{
    CObjectDef target = asking(0x1);
    EXPECT_EQ(facade.GetObjectDef(device, quint16(0x2105), target, nullptr), TharnNoError);
    EXPECT_EQ(target.name(), QStringLiteral("Gain"));

    CDriverCacheObjectItem * plain = nullptr;
    ASSERT_EQ(facade.GetObjectItem(plain, device, quint16(0x0105), nullptr), GetItemFound);
    CDriverCacheObjectItem * withBits = nullptr;
    ASSERT_EQ(facade.GetObjectItem(withBits, device, quint16(0x2105), nullptr), GetItemFound);
    EXPECT_NE(plain, withBits) << "two keys";
    delete plain; // the other one took its place by name, and nothing owns it any more
}

TEST_F(Lookup, RaisesTheDelayOfAWavefoldSpeaker)
{
    CDeviceChannelInfo const wave = speaker(12);
    CDeviceChannelInfo const plain = speaker(13);
    CDeviceChannelInfo const unknown = speaker(99);
    CDeviceChannelInfo const output(ChannelTypeOutput);

    struct Row {
        char const * name;
        char const * object;
        quint16 number;
        CDeviceChannelInfo const * channel;
        quint32 mask;
        double minimum;
    };

    Row const rows[] = {
        {"a Wavefold speaker", "ChStatus_MsDelay", 0x0106, &wave, 0x11, 6.2},
        {"without the name", "ChStatus_MsDelay", 0x0106, &wave, 0x10, 6.2},
        {"another speaker", "ChStatus_MsDelay", 0x0106, &plain, 0x11, 1.0},
        {"an unknown speaker", "ChStatus_MsDelay", 0x0106, &unknown, 0x11, 1.0},
        {"another sort of channel", "ChStatus_MsDelay", 0x0106, &output, 0x11, 1.0},
        {"no channel", "ChStatus_MsDelay", 0x0106, nullptr, 0x11, 1.0},
        {"the minimum not asked for", "ChStatus_MsDelay", 0x0106, &wave, 0x1, 0.0},
        {"another object", "Gain", 0x0105, &wave, 0x11, -60.0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        CObjectDef byName = asking(row.mask);
        EXPECT_EQ(facade.GetObjectDef(device, QString::fromUtf8(row.object), byName, row.channel),
                  TharnNoError);
        EXPECT_EQ(byName.minValue(), row.minimum);
        CObjectDef byNumber = asking(row.mask);
        EXPECT_EQ(facade.GetObjectDef(device, row.number, byNumber, row.channel), TharnNoError);
        EXPECT_EQ(byNumber.minValue(), row.minimum);
        EXPECT_EQ(quint32(byNumber.mask()), row.mask);
        if (row.mask == 0x10) {
            EXPECT_EQ(byName.name(), QString()) << "by name, the name need not be filled";
            EXPECT_EQ(byNumber.name(), QStringLiteral("ChStatus_MsDelay")) << "by number, it stays filled";
        }
    }
}

TEST_F(Lookup, ReplacesTheDelayWithoutComparing)
{
    QVariant value(400);
    EXPECT_TRUE(facade.CorrectDelayValueForWFSpeaker(12, value));
    EXPECT_EQ(value, QVariant(6.2));
    EXPECT_EQ(value.userType(), int(QMetaType::Double));
    value = 400;
    EXPECT_FALSE(facade.CorrectDelayValueForWFSpeaker(13, value));
    EXPECT_FALSE(facade.CorrectDelayValueForWFSpeaker(99, value));
    EXPECT_EQ(value, QVariant(400));
}

TEST_F(Answers, AboutTheSpeakerAreAskedForOnlyWhenTheMinimumIsWanted)
{
    CDriverCacheObjectItem delay;
    delay.setName(QStringLiteral("ChStatus_MsDelay"));
    CSpeakerDef wave;
    wave.setIsWFSetup(true);
    cache->given = &delay;
    cache->result = GetItemFound;
    cache->givenSpeakers.append(wave);
    CDeviceChannelInfo const channel = speaker(7);

    CObjectDef allButTheMinimum = asking(~0x10U);
    EXPECT_EQ(facade.GetObjectDef(device, delay.name(), allButTheMinimum, &channel), TharnNoError);
    EXPECT_EQ(facade.GetObjectDef(device, quint16(1), allButTheMinimum, &channel), TharnNoError);
    EXPECT_EQ(cache->speakerQuestions, QStringList());

    CObjectDef minimum = asking(0x10);
    EXPECT_EQ(facade.GetObjectDef(device, delay.name(), minimum, &channel), TharnNoError);
    EXPECT_EQ(minimum.minValue(), 6.2);
    EXPECT_EQ(facade.GetObjectDef(device, quint16(1), minimum, &channel), TharnNoError);
    EXPECT_EQ(cache->speakerQuestions,
              (QStringList{QStringLiteral("7, mask 200"), QStringLiteral("7, mask 200")}));
}

TEST_F(Answers, WithoutADefinitionMakeNoWavefoldSpeaker)
{
    QVariant value(400);
    EXPECT_FALSE(facade.CorrectDelayValueForWFSpeaker(12, value));
    EXPECT_EQ(value, QVariant(400));
    EXPECT_EQ(cache->speakerQuestions, QStringList{QStringLiteral("12, mask 200")});
}

TEST_F(Answers, SetTheBoundsOfSpeakers)
{
    struct Row {
        unsigned short id;
        bool isPossible;
    };

    for (Row const & row : {Row{4, false}, Row{5, true}, Row{9, true}, Row{10, false}}) {
        CDeviceChannelInfo const channel = speaker(row.id);
        EXPECT_EQ(facade.CheckChannelInfo(&channel, "here"), row.isPossible) << row.id;
    }
    EXPECT_EQ(cache->speakerQuestions, QStringList()) << "whoever they are";
}

TEST_F(Lookup, ChecksAChannel)
{
    MessageRecorder recorder;
    CDeviceChannelInfo const cleared;
    CDeviceChannelInfo const output(ChannelTypeOutput);
    CDeviceChannelInfo const known = speaker(12);
    CDeviceChannelInfo const atTheTop = speaker(13);
    CDeviceChannelInfo const above = speaker(14);
    CDeviceChannelInfo const zero = speaker(0);
    EXPECT_FALSE(facade.CheckChannelInfo(nullptr, "here"));
    EXPECT_FALSE(facade.CheckChannelInfo(&cleared, "here"));
    EXPECT_TRUE(facade.CheckChannelInfo(&output, nullptr));
    EXPECT_TRUE(facade.CheckChannelInfo(&known, "here"));
    EXPECT_TRUE(facade.CheckChannelInfo(&atTheTop, "here"));
    EXPECT_FALSE(facade.CheckChannelInfo(&above, "here"));
    EXPECT_FALSE(facade.CheckChannelInfo(&zero, "here"));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(Lookup, TellsNamesAndNumbersOfObjects)
{
    EXPECT_EQ(facade.objectName(device, 0x0105), QStringLiteral("Gain"));
    EXPECT_TRUE(facade.objectName(device, 0x0109).isNull());
    EXPECT_EQ(facade.objectNumber(device, QStringLiteral("Gain")), 0x0105);
    EXPECT_EQ(facade.objectNumber(device, QStringLiteral("Missing")), 65535);
}

TEST_F(Answers, AreAskedForByNumbersAsTheyAre)
{
    facade.objectName(device, 0x2105);
    facade.objectName(device, 0x0105);
    EXPECT_EQ(cache->keys, (QStringList{QStringLiteral("C7000005_2105"), QStringLiteral("C7000005_0105")}));
}

TEST_F(Lookup, TellsTheGuidsOfADeviceType)
{
    EXPECT_EQ(facade.guidOnDeviceType(QStringLiteral("Talvo")), CDeviceGuid(0xC7000005));
    EXPECT_EQ(facade.guidOnDeviceType(QStringLiteral("talvo")), CDeviceGuid(0));
    EXPECT_EQ(facade.latestGuidOnDeviceType(QStringLiteral("Talvo")), CDeviceGuid(0xC7000305));
    EXPECT_EQ(facade.latestGuidOnDeviceType(QStringLiteral("Lumbo")), CDeviceGuid(0));
    EXPECT_EQ(facade.latestGuidOnDeviceType(DeviceType(0xC7000005)), CDeviceGuid(0xC7000305));
    EXPECT_EQ(facade.latestGuidOnDeviceType(DeviceType(0xC7000009)), CDeviceGuid(0));
    EXPECT_EQ(facade.latestGuidOnDeviceType(DeviceType(0)), CDeviceGuid(0));
}

TEST_F(Lookup, TellsTheTypeAndModelOfAGuid)
{
    EXPECT_EQ(facade.deviceTypeOnGuid(0xC7120905), DeviceType(0xC7000005));
    EXPECT_EQ(facade.deviceModelOnGuid(0xC7120905), QStringLiteral("Talvo"));
    EXPECT_EQ(facade.deviceTypeOnGuid(0xC7000009), DeviceTypeNone);
    EXPECT_TRUE(facade.deviceModelOnGuid(0xC7000009).isNull());
    EXPECT_EQ(facade.deviceTypeOnGuid(0xC7000006), DeviceTypeNone) << "that version is above the level";
    EXPECT_TRUE(facade.deviceModelOnGuid(0xC7000006).isNull());
    EXPECT_EQ(facade.deviceModelOnGuid(0xC7000106), QStringLiteral("Hesko"));
    EXPECT_EQ(facade.deviceTypeOnGuid(0xC6000005), DeviceTypeNone)
        << "a GUID that cannot be placed needs level 9";
}

TEST_F(Lookup, TellsTheDeviceTypeOfAHardwareType)
{
    QString text = QStringLiteral("before");
    auto type = DeviceType(1);
    EXPECT_EQ(facade.deviceTypeOnHardwaretype(1, text), TharnNoError);
    EXPECT_EQ(text, QStringLiteral("Talvo"));
    EXPECT_EQ(facade.deviceTypeOnHardwaretype(1, type), TharnNoError);
    EXPECT_EQ(type, DeviceType(0xC7000005));

    type = DeviceType(1);
    EXPECT_EQ(facade.deviceTypeOnHardwaretype(2, text), TharnNotFound);
    EXPECT_EQ(text, QString()) << "the text is always overwritten";
    EXPECT_EQ(facade.deviceTypeOnHardwaretype(2, type), TharnNotFound);
    EXPECT_EQ(type, DeviceType(1)) << "the type is not";

    EXPECT_EQ(facade.deviceTypeOnHardwaretype(3, text), TharnNoError);
    EXPECT_EQ(facade.deviceTypeOnHardwaretype(3, type), TharnNotFound) << "a model that no device has";
    EXPECT_EQ(facade.deviceTypeOnHardwaretype(4, type), TharnNoError) << "the access level is not looked at";
}

} // namespace kestrova::test::lookup
