#include "facade/devicelore.h"
#include "support/databaseFolder.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;

namespace kestrova::test::forwarders {

namespace {

CDeviceGuid const device(0xC7000112);

QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "INSERT INTO Guids VALUES ('C7000012', 'Hesko', '', 1), ('C7000112', 'Hesko', '', 3);"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "INSERT INTO SpeakerClasses VALUES (0, 'Full', '', 1, ''), (3, 'Two-way', '', 2, 'Low,High');"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (12, 'Wave', 3, 0, 'W', 2, 0, 1), (13, 'Plain', 0, 0, 'P', 1, 0, 0);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId, Access INTEGER);"
    "INSERT INTO GuidsSpeakersFilters VALUES ('C7000112', 12, 0, 0), ('C7000112', 13, 10, 0);"
    "CREATE TABLE Filters (Id, Number INTEGER, Type INTEGER, Min INTEGER, Max INTEGER, DisplayNameShort "
    "TEXT, "
    "TextOffset INTEGER, StateTexts TEXT);"
    "INSERT INTO Filters VALUES (0, 0, 0, 0, 1, 'Zero', 0, ''), (10, 1, 0, 0, 1, 'One', 0, '');"
    "CREATE TABLE TextsObjectValues (TextOffset, Value, TextShort_en_US);"
    "INSERT INTO TextsObjectValues VALUES (30, 0, 'Off'), (30, 1, 'On'), (0, 1, 'Zeroth');"
    "CREATE TABLE DevicePropertyFilter (FilterName, Expression, Access);"
    "INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT ''a''', 3), ('G', 'SELECT ''b''', 4);");

CDriverCache * openCache(DatabaseFolder & folder)
{
    folder.add(QStringLiteral("a.db3"), world);
    auto * const cache = new CDriverCache;
    EXPECT_EQ(cache->openDatabases(folder.dir()), 1);
    return cache;
}

struct Forwarders : ::testing::Test {
    Forwarders()
        : facade(QPointer<CDriverCache>(openCache(folder)), nullptr)
    {
        facade.setDeviceAccessLevel(3);
    }

    DatabaseFolder folder;
    CDevicelore facade;
};

CDeviceChannelInfo speaker(unsigned short id)
{
    CDeviceChannelInfo channel;
    channel.SetSpeakerId(id);
    return channel;
}

} // namespace

TEST_F(Forwarders, AskAboutDevices)
{
    EXPECT_EQ(facade.determineDriverGuid(CDeviceGuid(0xC700FF12)), device);
    EXPECT_EQ(facade.determineDriverGuid(CDeviceGuid(0xC700FF99)), CDeviceGuid());
    EXPECT_EQ(facade.deviceGuidAccessLevel(device), 3);
    EXPECT_EQ(facade.deviceGuidAccessLevel(CDeviceGuid(0xC700FF99)), CDriverCacheGuidItem::GuidAccessUnknown);
    EXPECT_EQ(facade.deviceModels(), QStringList{QStringLiteral("Hesko")});
    EXPECT_EQ(facade.deviceChannelCount(device, ChannelTypeInput), 8);
}

TEST_F(Forwarders, AskAboutSpeakers)
{
    EXPECT_TRUE(facade.isSpeakerSupportedByDevice(12, device));
    EXPECT_FALSE(facade.isSpeakerSupportedByDevice(14, device));
    QList<unsigned short> ids{99};
    EXPECT_EQ(facade.listSpeakersForDevice(device, ids), TharnNoError);
    EXPECT_EQ(ids, (QList<unsigned short>{13, 12}));
    EXPECT_EQ(facade.listSpeakersForDevice(CDeviceGuid(0xC7000099), ids), TharnNotFound);
    EXPECT_EQ(ids.size(), 2);
    QList<QPair<unsigned short, QString>> names;
    EXPECT_EQ(facade.listSpeakersForDevice(device, names), TharnNoError);
    EXPECT_EQ(names,
              (QList<QPair<unsigned short, QString>>{{13, QStringLiteral("P")}, {12, QStringLiteral("W")}}));
    ids.clear();
    EXPECT_EQ(
        facade.listSpeakersForDevice(device, ids, QFlags<SpeakerType>(SpeakerTypeTwoWay), OutputMode(2)),
        TharnNoError);
    EXPECT_EQ(ids, QList<unsigned short>{12});
}

TEST_F(Forwarders, AskAboutFiltersByTheLowByteOfTheNumber)
{
    CDeviceChannelInfo const wave = speaker(12);
    CDeviceChannelInfo const plain = speaker(13);
    EXPECT_EQ(facade.GetFilterName(device, 0, &wave), QStringLiteral("Zero"));
    EXPECT_EQ(facade.GetFilterName(device, 256, &wave), QStringLiteral("Zero"));
    EXPECT_EQ(facade.GetFilterName(device, 1, &plain), QStringLiteral("One"));
    EXPECT_EQ(facade.GetFilterName(device, -255, &plain), QStringLiteral("One"));
    EXPECT_TRUE(facade.GetFilterName(device, 1, &wave).isNull());
    EXPECT_TRUE(facade.GetFilterName(device, 1, nullptr).isNull());
}

TEST_F(Forwarders, AskAboutPropertyFiltersUpToTheFacadesLevel)
{
    EXPECT_EQ(facade.enumDevicePropertyFilter(), QStringList{QStringLiteral("F")});
    EXPECT_EQ(facade.devicePropertyFilter(QStringLiteral("F")), QStringList{QStringLiteral("a")});
    EXPECT_EQ(facade.devicePropertyFilter(QStringLiteral("G")), QStringList());
    EXPECT_EQ(facade.devicePropertyFilterByExpression(QStringLiteral("SELECT 5")),
              QStringList{QStringLiteral("5")});
    facade.setDeviceAccessLevel(4);
    EXPECT_EQ(facade.enumDevicePropertyFilter().size(), 2);
}

TEST_F(Forwarders, AskAboutTextsOfValuesOfAnyKind)
{
    for (QVariant const & on : {QVariant(1), QVariant(1.0), QVariant(QStringLiteral("1")), QVariant(true)})
        EXPECT_EQ(facade.objectValueString(device, 30, on), QStringLiteral("On")) << on.typeName();
    EXPECT_EQ(facade.objectValueString(device, 30, QStringLiteral("abc")), QStringLiteral("Off"))
        << "counts as 0";
    EXPECT_EQ(facade.objectValueString(device, 0, 1), QStringLiteral("Zeroth"));
    EXPECT_TRUE(facade.objectValueString(device, 30, 2).isNull());
    EXPECT_TRUE(facade.objectValueString(device, -1, 1).isNull());
}

TEST_F(Forwarders, ListTextsOfOffsetsAboveZeroOnly)
{
    QList<QPair<int, QString>> const before{{9, QStringLiteral("before")}};
    for (int const offset : {0, -1, -30}) {
        QList<QPair<int, QString>> list = before;
        EXPECT_EQ(facade.listValueStrings(device, offset, list), -1) << offset;
        EXPECT_EQ(list, before) << offset;
    }
    QList<QPair<int, QString>> list = before;
    EXPECT_EQ(facade.listValueStrings(device, 30, list), 2);
    EXPECT_EQ(list, (QList<QPair<int, QString>>{{1, QStringLiteral("On")}, {0, QStringLiteral("Off")}}));
}

} // namespace kestrova::test::forwarders
