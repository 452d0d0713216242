#include "cache/driverCacheObjectItem.h"
#include "facade/devicelore.h"
#include "records/deviceProperty.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::MessageRecorder;

namespace kestrova::test::propertyDescription {

namespace {

CDeviceGuid const device(0xC7000112);
CDeviceGuid const laterDevice(0xC7000F12); // a version that only the newest description stands for

QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "INSERT INTO Guids VALUES ('C7000012', 'Hesko', '', 1), ('C7000112', 'Hesko', '', 1);"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER, "
    "ChannelCount INTEGER, RecordCount INTEGER, Min REAL, Max REAL, Step REAL, Format TEXT, Flags INTEGER, "
    "Access INTEGER, DefaultValue TEXT, Size INTEGER, TextOffset INTEGER, Description TEXT, Comment TEXT, "
    "ClassId INTEGER, WaitTime INTEGER, WaitStates INTEGER);"
    "INSERT INTO Objects VALUES"
    " (1, 'Gain', 1, 5, 4, 3, -60, 12, 0.5, '%6.1f dB', 8195, 11, '-12', 4, 0, 'Gain shown', '', 0, 0, 0),"
    " (2, 'ChStatus_MsDelay', 1, 6, 4, 1, 0.3, 500, 0.1, '%5.1f ms', 3, 11, '', 4, 0, '', '', 0, 0, 0),"
    " (3, 'Config_Filter3', 1, 7, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, 'Filter', '', 0, 0, 0),"
    " (4, 'Config_Filter33', 1, 8, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (5, 'Config_Filter', 1, 9, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (6, 'Config_CablefitOn', 1, 10, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (7, 'ChStatus_CablefitLoad', 1, 11, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (8, 'Wavefold_Width', 1, 12, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (9, 'config_filter1', 1, 13, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (10, 'Text', 1, 14, 1, 1, 0, 0, 1, '%5s', 3, 11, '', 6, 0, '', '', 0, 0, 0),"
    " (11, 'Wavefold', 1, 15, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (12, 'Config_Filter5', 1, 16, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (13, '', 1, 17, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (14, 'Config_FilterX', 1, 18, 4, 1, 0, 1, 1, '%I8d', 3, 11, '', 1, 0, '', '', 0, 0, 0),"
    " (15, 'Scaled', 1, 19, 4, 1, 0, 10, 0.5, '%5.1d V', 3, 12, '', 2, 0, '', '', 0, 0, 0);"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
    "INSERT INTO guidsandobjects SELECT id, 'C7000112' FROM Objects;"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "INSERT INTO SpeakerClasses VALUES (0, 'Full', '', 1, '');"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (12, 'Wave', 0, 0, 'W', 1, 0, 1), (13, 'Cable', 0, 0, 'C', 2, 6, 0), "
    "(20, 'Last', 0, 0, 'L', 3, 0, 0);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId, Access INTEGER);"
    "INSERT INTO GuidsSpeakersFilters VALUES ('C7000112', 12, 30, 0), ('C7000112', 12, 50, 0), "
    "('C7000112', 13, '---', 0), ('C7000112', 12, 5, 0);"
    "CREATE TABLE Filters (Id, Number INTEGER, Type INTEGER, Min INTEGER, Max INTEGER, DisplayNameShort "
    "TEXT, "
    "TextOffset INTEGER, StateTexts TEXT);"
    "INSERT INTO Filters VALUES (30, 3, 0, 0, 5, 'Stack trim', 0, ''), (50, 5, 0, 0, 1, '---', 0, ''), "
    "(5, 0, 0, 0, 1, 'Zero', 0, '');");

class CountingCache : public CDriverCache {
public:
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key) override
    {
        ++lookups;
        return CDriverCache::GetDriverObject(item, key);
    }

    int lookups = 0;
};

CDeviceChannelInfo speaker(unsigned short id)
{
    CDeviceChannelInfo channel;
    channel.SetSpeakerId(id);
    return channel;
}

CDeviceProperty propertyNamed(char const * name)
{
    CDeviceProperty property;
    property.setPropertyName(QString::fromLatin1(name), QString());
    return property;
}

struct Description : ::testing::Test {
    Description()
        : cache(new CountingCache)
    {
        folder.add(QStringLiteral("a.db3"), world);
        EXPECT_EQ(cache->openDatabases(folder.dir()), 1);
        facade = std::make_unique<CDevicelore>(QPointer<CDriverCache>(cache), nullptr);
        facade->setDeviceAccessLevel(1);
    }

    DatabaseFolder folder;
    CountingCache * cache;
    std::unique_ptr<CDevicelore> facade;
};

/// Answers every lookup with one item, and every question about a filter or a speaker in one way. Its
/// speakers go from 5 to 9. Notes what it is asked.
class OneItemCache : public CDriverCache {
public:
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey *) override
    {
        ++lookups;
        item = &given;
        return GetItemFound;
    }

    QString filterName(CDeviceGuid const &, CDeviceChannelInfo const * channel, unsigned char number) override
    {
        questions.append(QStringLiteral("filter %1").arg(number));
        filterChannel = channel;
        return QStringLiteral("Shelf");
    }

    unsigned short minSpeakerId() const override { return 5; }

    unsigned short maxSpeakerId() const override { return 9; }

    TharnError speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                          QFlags<SpeakerDefMask> mask) override
    {
        questions.append(QStringLiteral("speaker %1, mask %2").arg(speakerId).arg(int(mask), 0, 16));
        definitions.append(givenSpeaker);
        return TharnNoError;
    }

    CDriverCacheObjectItem given;
    CSpeakerDef givenSpeaker;
    int lookups = 0;
    QStringList questions;
    CDeviceChannelInfo const * filterChannel = nullptr;
};

struct Control : ::testing::Test {
    Control()
        : cache(new OneItemCache)
        , facade(QPointer<CDriverCache>(cache), nullptr)
    {
        cache->given.setFlags(0x3);
        cache->given.setAccess(11);
    }

    BasicControlType control()
    {
        return facade.DetermineSimpleControlType(device, QString(), writable, nullptr);
    }

    OneItemCache * cache;
    CDevicelore facade;
    bool writable = false;
};

struct OnASpeaker : Control {
    OnASpeaker()
    {
        cache->given.setObjectType(CObjectDef::ObjectTypeNumber);
        cache->given.setMax(500.0);
        cache->given.setStep(0.1);
        cache->givenSpeaker.setCablefitMaxCount(3);
        cache->givenSpeaker.setIsWFSetup(true);
    }

    bool isSupported(char const * name, CDeviceChannelInfo const & channel)
    {
        return facade.IsObjectSupported(device, QLatin1String(name), &channel);
    }
};

} // namespace

// --- The description of a property ---

TEST_F(Description, FillsTheRecord)
{
    CDeviceProperty property = propertyNamed("Gain");
    property.setDeviceChannel(-1);
    property.setUnit(QStringLiteral("old"));
    property.setSubName(QStringLiteral("old"));
    ASSERT_TRUE(facade->devicePropertyInfo(device, property, nullptr));
    EXPECT_EQ(property.minValue(), QVariant(-60.0));
    EXPECT_EQ(property.maxValue(), QVariant(12.0));
    EXPECT_EQ(property.value(), QVariant(-60.0)) << "the lowest value, until there is another";
    EXPECT_EQ(property.step(), QVariant(0.5));
    EXPECT_EQ(property.step().userType(), int(QMetaType::Double));
    EXPECT_EQ(property.uniquePropertyName(), QStringLiteral("Gain"));
    EXPECT_EQ(property.displayName(), QStringLiteral("Gain shown"));
    EXPECT_EQ(property.propertyType(), 1);
    EXPECT_EQ(property.unit(), QStringLiteral(" dB"));
    EXPECT_TRUE(property.subName().isEmpty());
    EXPECT_EQ(property.deviceChannel(), 4) << "the number of channels, where none was chosen";
    EXPECT_EQ(property.record(), 3);
    EXPECT_EQ(property.flags(), 0x22003) << "as in the database, and editable";
    EXPECT_EQ(property.simpleControlType(), 4);
    EXPECT_EQ(property.decimals(), 1);
    EXPECT_EQ(property.validMembers(), 0x7FEF) << "all but the device";
}

TEST_F(Description, KeepsAChannelThatTheCallerHasSet)
{
    for (int const channel : {0, 2, -2, 77}) {
        CDeviceProperty property = propertyNamed("Gain");
        property.setDeviceChannel(channel);
        ASSERT_TRUE(facade->devicePropertyInfo(device, property, nullptr));
        EXPECT_EQ(property.deviceChannel(), channel);
    }
}

TEST_F(Description, IsOfTheDescriptionThatStandsForTheVersion)
{
    CDeviceProperty property = propertyNamed("Gain");
    EXPECT_TRUE(facade->devicePropertyInfo(laterDevice, property, nullptr));
    EXPECT_EQ(property.maxValue(), QVariant(12.0));
}

TEST_F(Description, SetsAndClearsTheFlagsOfADescription)
{
    CDeviceProperty property = propertyNamed("Gain");
    facade->setDeviceAccessLevel(1);
    ASSERT_TRUE(facade->devicePropertyInfo(device, property, nullptr));
    EXPECT_EQ(property.flags() & 0x30000, 0x20000);

    CDeviceProperty higher = propertyNamed("Scaled"); // to be written from level 2 on
    ASSERT_TRUE(facade->devicePropertyInfo(device, higher, nullptr));
    EXPECT_EQ(higher.flags() & 0x30000, 0);
    EXPECT_EQ(higher.simpleControlType(), int(ControlReadout));
    facade->setDeviceAccessLevel(2);
    ASSERT_TRUE(facade->devicePropertyInfo(device, higher, nullptr));
    EXPECT_EQ(higher.flags() & 0x30000, 0x20000);
    EXPECT_EQ(higher.simpleControlType(), int(ControlValue));
}

TEST_F(Description, ReplacesTheFlagsOfAnEarlierOne)
{
    CDeviceProperty property = propertyNamed("Scaled");
    property.setFlags(QFlags<CDeviceProperty::PropertyFlag>(QFlag(0x7FFFF)));
    ASSERT_TRUE(facade->devicePropertyInfo(device, property, nullptr));
    EXPECT_EQ(property.flags(), 0x3);
}

TEST_F(Description, MarksTheSlotsOfFilters)
{
    struct Row {
        char const * name;
        bool isSlot;
    };

    for (Row const & row :
         {Row{"Config_Filter3", true}, Row{"Config_FilterX", true}, Row{"Config_Filter33", false},
          Row{"Config_Filter", false}, Row{"config_filter1", false}, Row{"Gain", false}}) {
        CDeviceProperty property = propertyNamed(row.name);
        ASSERT_TRUE(facade->devicePropertyInfo(device, property, nullptr)) << row.name;
        EXPECT_EQ((property.flags() & 0x40000) != 0, row.isSlot) << row.name;
    }
}

TEST_F(Description, OnASpeakerSaysWhatTheSpeakerMakesOfIt)
{
    CDeviceChannelInfo const wave = speaker(12);
    CDeviceProperty delay = propertyNamed("ChStatus_MsDelay");
    ASSERT_TRUE(facade->devicePropertyInfo(device, delay, &wave));
    EXPECT_EQ(delay.minValue(), QVariant(6.2));
    EXPECT_EQ(delay.value(), QVariant(6.2));

    CDeviceProperty filter = propertyNamed("Config_Filter3");
    ASSERT_TRUE(facade->devicePropertyInfo(device, filter, &wave));
    EXPECT_EQ(filter.subName(), QStringLiteral("Stack trim"));
    EXPECT_EQ(filter.maxValue(), QVariant(5.0));
    EXPECT_EQ(filter.propertyType(), 1);

    CDeviceProperty missing = propertyNamed("Config_Filter5");
    ASSERT_TRUE(facade->devicePropertyInfo(device, missing, &wave));
    EXPECT_EQ(missing.subName(), QStringLiteral("---"));
    EXPECT_EQ(missing.simpleControlType(), int(ControlToggle));
    EXPECT_EQ(missing.flags() & 0x20000, 0) << "though the object may be written";
}

TEST_F(Description, ThatFailsLeavesTheRecordAlone)
{
    CDeviceChannelInfo const cleared;
    CDeviceChannelInfo const belowBounds = speaker(0);
    CDeviceChannelInfo const aboveBounds = speaker(21);

    struct Row {
        char const * name;
        CDeviceGuid guid;
        char const * property;
        CDeviceChannelInfo const * channel;
    };

    Row const rows[] = {
        {"no device", CDeviceGuid(), "Gain", nullptr},
        {"an unknown device", CDeviceGuid(0xC7000077), "Gain", nullptr},
        {"an unknown property", device, "Gian", nullptr},
        {"no property", device, "Nothing", nullptr},
        {"a channel that is none", device, "Gain", &cleared},
        {"speaker 0", device, "Gain", &belowBounds},
        {"a speaker above the bounds", device, "Gain", &aboveBounds},
    };
    MessageRecorder const recorder;
    for (Row const & row : rows) {
        CDeviceProperty const before = propertyNamed(row.property);
        CDeviceProperty property = before;
        QVariant min(1);
        QVariant max(2);
        QVariant step(3);
        EXPECT_FALSE(facade->devicePropertyInfo(row.guid, property, row.channel)) << row.name;
        EXPECT_TRUE(property == before) << row.name;
        EXPECT_FALSE(facade->GetDevicePropertyRange(row.guid, property, min, max, step, row.channel))
            << row.name;
        EXPECT_EQ(min, QVariant(1)) << row.name;
        EXPECT_EQ(max, QVariant(2)) << row.name;
        EXPECT_EQ(step, QVariant(3)) << row.name;
        EXPECT_FALSE(facade->IsObjectSupported(row.guid, QLatin1String(row.property), row.channel))
            << row.name;
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

// --- The range alone ---

TEST_F(Description, OfTheRangeIsThreeDoubles)
{
    QVariant min;
    QVariant max;
    QVariant step;
    CDeviceChannelInfo const wave = speaker(12);
    ASSERT_TRUE(
        facade->GetDevicePropertyRange(device, propertyNamed("ChStatus_MsDelay"), min, max, step, &wave));
    EXPECT_EQ(min, QVariant(6.2));
    EXPECT_EQ(max, QVariant(500.0));
    EXPECT_EQ(step, QVariant(0.1));
    ASSERT_TRUE(
        facade->GetDevicePropertyRange(device, propertyNamed("ChStatus_MsDelay"), min, max, step, nullptr));
    EXPECT_EQ(min, QVariant(0.3));
}

TEST_F(Description, OfTheRangeIsInRawNumbers)
{
    CDeviceProperty property = propertyNamed("Scaled");
    ASSERT_TRUE(facade->devicePropertyInfo(device, property, nullptr));
    EXPECT_EQ(property.minValue(), QVariant(0.0));
    EXPECT_EQ(property.maxValue(), QVariant(10.0)) << "1.0 V";
    EXPECT_EQ(property.step(), QVariant(0.5));
    QVariant min;
    QVariant max;
    QVariant step;
    ASSERT_TRUE(facade->GetDevicePropertyRange(device, property, min, max, step, nullptr));
    EXPECT_EQ(max, QVariant(10.0));
    EXPECT_EQ(step, QVariant(0.5));
}

TEST_F(Description, OfTheRangeIsOfThatVeryGuid)
{
    QVariant min;
    QVariant max;
    QVariant step;
    EXPECT_FALSE(facade->GetDevicePropertyRange(laterDevice, propertyNamed("Gain"), min, max, step, nullptr))
        << "unlike devicePropertyInfo()";
}

TEST_F(Description, OfNoDeviceAsksNobody)
{
    QVariant min;
    QVariant max;
    QVariant step;
    cache->lookups = 0;
    EXPECT_FALSE(
        facade->GetDevicePropertyRange(CDeviceGuid(), propertyNamed("Gain"), min, max, step, nullptr));
    EXPECT_EQ(cache->lookups, 0);
}

// --- The kind of control ---

TEST_F(Control, FollowsTypeTextsAndRights)
{
    struct Row {
        int type;
        quint32 textOffset;
        BasicControlType toSet;
        BasicControlType toShow;
    };

    Row const rows[] = {
        {0, 0, ControlToggle, ControlIndicator}, {0, 1, ControlToggle, ControlIndicator},
        {0, 2, ControlChoice, ControlReadout},   {0, 4294967295U, ControlChoice, ControlReadout},
        {1, 0, ControlValue, ControlReadout},    {1, 1, ControlValue, ControlReadout},
        {1, 2, ControlChoice, ControlReadout},   {3, 0, ControlValue, ControlReadout},
        {3, 1, ControlValue, ControlReadout},    {3, 2, ControlChoice, ControlReadout},
        {2, 0, ControlText, ControlReadout},     {2, 1, ControlText, ControlReadout},
        {2, 2, ControlText, ControlReadout},     {4, 0, ControlNone, ControlNone},
        {4, 2, ControlNone, ControlNone},        {255, 0, ControlNone, ControlNone},
        {255, 2, ControlNone, ControlNone},      {5, 0, ControlNone, ControlNone},
    };
    for (Row const & row : rows) {
        cache->given.setObjectType(CObjectDef::ObjectType(row.type));
        cache->given.setTextOffset(row.textOffset);
        cache->given.setFlags(0x2);
        writable = false;
        EXPECT_EQ(control(), row.toSet) << row.type << ", " << row.textOffset;
        EXPECT_TRUE(writable) << row.type << ", " << row.textOffset;
        cache->given.setFlags(0xFFFD);
        writable = true;
        EXPECT_EQ(control(), row.toShow) << row.type << ", " << row.textOffset;
        EXPECT_FALSE(writable) << row.type << ", " << row.textOffset;
    }
}

TEST_F(Control, CanBeSetFromTheUnitsDigitOfTheAccessOn)
{
    struct Row {
        unsigned char access;
        unsigned char level;
        bool writable;
    };

    Row const rows[] = {
        {21, 1, true},  {22, 1, false}, {22, 2, true},   {90, 1, true},
        {19, 8, false}, {19, 9, true},  {255, 4, false}, {255, 5, true},
    };
    for (Row const & row : rows) {
        cache->given.setAccess(row.access);
        facade.setDeviceAccessLevel(row.level);
        control();
        EXPECT_EQ(writable, row.writable) << int(row.access) << " at level " << int(row.level);
    }
}

TEST_F(Control, OfAFilterThatTheSpeakerLacksIsADeadToggle)
{
    struct Row {
        quint32 hash;
        char const * subName;
        bool isDead;
    };

    Row const rows[] = {
        {10110128, "---", false}, {10110129, "---", true}, {10110130, "---", true},
        {10110131, "---", true},  {10110132, "---", true}, {10110133, "---", true},
        {10110134, "---", true},  {10110135, "---", true}, {10110136, "---", false},
        {10110130, "", false},    {10110130, "--", false}, {10110130, "Shelf", false},
    };
    for (int const type : {0, 1, 2, 4}) {
        cache->given.setObjectType(CObjectDef::ObjectType(type));
        cache->given.setPropertyHash(0);
        BasicControlType const ordinary = control();
        for (Row const & row : rows) {
            cache->given.setPropertyHash(row.hash);
            cache->given.setDisplaySubName(QLatin1String(row.subName));
            EXPECT_EQ(control(), row.isDead ? ControlToggle : ordinary) << row.hash << row.subName;
            EXPECT_EQ(writable, !row.isDead) << row.hash << row.subName;
        }
    }
}

TEST_F(Control, OfTwoObjectsIsTheirOwn)
{
    struct Row {
        quint32 hash;
        unsigned short flags;
        BasicControlType control;
    };

    for (Row const & row : {Row{44682004, 0x2, ControlSpecialEdit}, Row{44682004, 0x1, ControlReadout},
                            Row{261647397, 0x2, ControlFixed}, Row{261647397, 0x1, ControlFixed}}) {
        for (int const type : {0, 1, 4}) {
            cache->given.setObjectType(CObjectDef::ObjectType(type));
            cache->given.setPropertyHash(row.hash);
            cache->given.setFlags(row.flags);
            EXPECT_EQ(control(), row.control) << row.hash;
            EXPECT_EQ(writable, row.flags == 0x2) << row.hash;
        }
    }
}

TEST_F(Description, OfTheControlOfNoObjectIsNone)
{
    for (bool const before : {true, false}) {
        bool writable = before;
        EXPECT_EQ(facade->DetermineSimpleControlType(device, QStringLiteral("Gian"), writable, nullptr),
                  ControlNone);
        EXPECT_EQ(facade->DetermineSimpleControlType(laterDevice, QStringLiteral("Gain"), writable, nullptr),
                  ControlNone)
            << "the GUID is used as it is";
        EXPECT_EQ(writable, before);
    }
}

// --- What is supported ---

TEST_F(Description, SaysWhatASpeakerSupports)
{
    struct Row {
        char const * name;
        bool onWave;
        bool onCable;
    };

    Row const rows[] = {
        {"Gain", true, true},
        {"ChStatus_MsDelay", true, true},
        {"Config_Filter3", true, false},
        {"Config_Filter5", false, false},
        {"Config_Filter33", true, false},
        {"Config_Filter", true, false},
        {"Config_FilterX", true, false},
        {"config_filter1", true, true},
        {"Config_CablefitOn", false, true},
        {"ChStatus_CablefitLoad", false, true},
        {"Wavefold_Width", true, false},
        {"Wavefold", true, true},
        {"", true, true},
        {"Nothing", false, false},
    };
    CDeviceChannelInfo const wave = speaker(12);
    CDeviceChannelInfo const cable = speaker(13);
    CDeviceChannelInfo const unknown = speaker(14);
    CDeviceChannelInfo const input(ChannelTypeInput);
    for (Row const & row : rows) {
        QString const name = QLatin1String(row.name);
        bool const exists = name != QLatin1String("Nothing");
        EXPECT_EQ(facade->IsObjectSupported(device, name, &wave), row.onWave) << row.name;
        EXPECT_EQ(facade->IsObjectSupported(device, name, &cable), row.onCable) << row.name;
        EXPECT_EQ(facade->IsObjectSupported(device, name, nullptr), exists) << row.name;
        EXPECT_EQ(facade->IsObjectSupported(device, name, &input), exists) << row.name;
    }
    EXPECT_TRUE(facade->IsObjectSupported(device, QStringLiteral("Gain"), &unknown)) << "within the bounds";
    EXPECT_FALSE(facade->IsObjectSupported(device, QStringLiteral("Config_CablefitOn"), &unknown));
    EXPECT_FALSE(facade->IsObjectSupported(device, QStringLiteral("Wavefold_Width"), &unknown));
    EXPECT_FALSE(facade->IsObjectSupported(laterDevice, QStringLiteral("Gain"), nullptr))
        << "the GUID as it is";
}

TEST_F(OnASpeaker, OutsideTheBoundsOfTheCachePropertiesAreNotEvenLookedFor)
{
    struct Row {
        unsigned short id;
        bool isPossible;
    };

    for (Row const & row : {Row{4, false}, Row{5, true}, Row{9, true}, Row{10, false}}) {
        SCOPED_TRACE(row.id);
        CDeviceChannelInfo const channel = speaker(row.id);
        CDeviceProperty property = propertyNamed("Gain");
        QVariant min;
        QVariant max;
        QVariant step;
        cache->lookups = 0;
        EXPECT_EQ(facade.devicePropertyInfo(device, property, &channel), row.isPossible);
        EXPECT_EQ(facade.GetDevicePropertyRange(device, property, min, max, step, &channel), row.isPossible);
        EXPECT_EQ(isSupported("Gain", channel), row.isPossible);
        EXPECT_EQ(cache->lookups, row.isPossible ? 4 : 0);
    }
}

TEST_F(OnASpeaker, SupportIsAskedThroughTheReplaceableOperations)
{
    CDeviceChannelInfo const channel = speaker(7);
    EXPECT_TRUE(isSupported("Config_CablefitOn", channel));
    EXPECT_TRUE(isSupported("ChStatus_CablefitLoad", channel));
    EXPECT_TRUE(isSupported("Wavefold_Width", channel));
    EXPECT_TRUE(isSupported("Config_Filter23", channel));
    EXPECT_EQ(cache->questions,
              (QStringList{QStringLiteral("speaker 7, mask 80"), QStringLiteral("speaker 7, mask 80"),
                           QStringLiteral("speaker 7, mask 200"), QStringLiteral("filter 3")}));
    EXPECT_EQ(cache->filterChannel, &channel);
}

TEST_F(OnASpeaker, ControlAndAdjustmentKnowNoBounds)
{
    CDeviceChannelInfo const cleared;
    CDeviceChannelInfo const above = speaker(10);
    for (CDeviceChannelInfo const * const channel : {&cleared, &above}) {
        EXPECT_EQ(facade.DetermineSimpleControlType(device, QStringLiteral("Gain"), writable, channel),
                  ControlValue);
        QVariant value(600);
        EXPECT_EQ(facade.AdjustDeviceProperty(device, QStringLiteral("Gain"), value, channel),
                  CDevicelore::AdjustedToMax);
        EXPECT_EQ(value, QVariant(500.0));
    }
}

TEST_F(OnASpeaker, AnAdjustedDelayHasTheMinimumOfAWavefoldSpeaker)
{
    CDeviceChannelInfo const wave = speaker(7);
    CDeviceChannelInfo const input(ChannelTypeInput);
    CDeviceChannelInfo const output(ChannelTypeOutput);

    struct Row {
        char const * name;
        CDeviceChannelInfo const * channel;
        CDevicelore::ValidationState state;
        double after;
    };

    for (Row const & row :
         {Row{"input", &input, CDevicelore::Valid, 1.0}, Row{"output", &output, CDevicelore::Valid, 1.0},
          Row{"speaker", &wave, CDevicelore::AdjustedToMin, 6.2}}) {
        QVariant value(1.0);
        EXPECT_EQ(facade.AdjustDeviceProperty(device, QStringLiteral("ChStatus_MsDelay"), value, row.channel),
                  row.state)
            << row.name;
        EXPECT_EQ(value, QVariant(row.after)) << row.name;
    }
    EXPECT_EQ(cache->questions, QStringList{QStringLiteral("speaker 7, mask 200")});
}

// --- Adjusting by name ---

TEST_F(Description, AdjustsAValueByNameAndOnAnyVersion)
{
    CDeviceChannelInfo const wave = speaker(12);
    CDeviceChannelInfo const cable = speaker(13);

    struct Row {
        char const * name;
        CDeviceGuid guid;
        char const * property;
        CDeviceChannelInfo const * channel;
        QVariant value;
        CDevicelore::ValidationState state;
        QVariant after;
    };

    Row const rows[] = {
        {"rounds", device, "Gain", nullptr, 3.3, CDevicelore::RoundedUp, 3.5},
        {"limits", device, "Gain", nullptr, 100, CDevicelore::AdjustedToMax, 12.0},
        {"any version", laterDevice, "Gain", nullptr, -100, CDevicelore::AdjustedToMin, -60.0},
        {"compares raw numbers", device, "Scaled", nullptr, 9.9, CDevicelore::RoundedUp, 10.0},
        {"cuts", device, "Text", nullptr, QStringLiteral("abcdef"), CDevicelore::Truncated,
         QStringLiteral("abcde")},
        {"delay", device, "ChStatus_MsDelay", nullptr, 1.0, CDevicelore::Valid, 1.0},
        {"delay of a plain speaker", device, "ChStatus_MsDelay", &cable, 1.0, CDevicelore::Valid, 1.0},
        {"delay of a Wavefold", device, "ChStatus_MsDelay", &wave, 1.0, CDevicelore::AdjustedToMin, 6.2},
        {"unknown property", device, "Gian", nullptr, 1, CDevicelore::Invalid, 1},
        {"unknown device", CDeviceGuid(0xC7000077), "Gain", nullptr, 1, CDevicelore::Invalid, 1},
        {"no device", CDeviceGuid(), "Gain", nullptr, 1, CDevicelore::Invalid, 1},
    };
    MessageRecorder const recorder;
    for (Row const & row : rows) {
        QVariant value = row.value;
        EXPECT_EQ(facade->AdjustDeviceProperty(row.guid, QLatin1String(row.property), value, row.channel),
                  row.state)
            << row.name;
        EXPECT_EQ(value, row.after) << row.name;
        EXPECT_EQ(value.userType(), row.after.userType()) << row.name;
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

namespace {

class AgreeingFacade : public CDevicelore {
public:
    using CDevicelore::CDevicelore;

    ValidationState validateValue(QVariant & value, CObjectDef const & object,
                                  bool roundToStep) const override
    {
        value = QVariant(QStringLiteral("seen"));
        EXPECT_TRUE(roundToStep);
        EXPECT_EQ(object.mask(), 0x40810F2);
        EXPECT_EQ(object.maxValue(), 12.0);
        return Truncated;
    }
};

} // namespace

TEST(DescriptionInASubclass, AdjustsThroughItsOwnValidation)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), world);
    auto * const cache = new CDriverCache;
    ASSERT_EQ(cache->openDatabases(folder.dir()), 1);
    AgreeingFacade facade(QPointer<CDriverCache>(cache), nullptr);
    facade.setDeviceAccessLevel(1);
    QVariant value(5);
    EXPECT_EQ(facade.AdjustDeviceProperty(device, QStringLiteral("Gain"), value, nullptr),
              CDevicelore::Truncated);
    EXPECT_EQ(value, QVariant(QStringLiteral("seen")));
}

} // namespace kestrova::test::propertyDescription
