#include "facade/devicelore.h"
#include "records/driverPropertyTarget.h"
#include "support/databaseFolder.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;

namespace kestrova::test::defaults {

namespace {

CDeviceGuid const hesko(0xC7000012);

QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "INSERT INTO Guids VALUES ('C7000012', 'Hesko', '', 0), ('C7000077', 'Hesko II', '', 0);"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER, "
    "Format TEXT, Access INTEGER, DefaultValue TEXT);"
    "INSERT INTO Objects VALUES (1, 'ChStatus_MsDelay', 1, 1, '%5.1d ms', 0, '1'),"
    " (2, 'ChStatus_Delay', 1, 2, '%5d', 0, '3');"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
    "INSERT INTO guidsandobjects SELECT id, 'C7000012' FROM Objects;"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "INSERT INTO SpeakerClasses VALUES (0, 'Full', '', 1, '');"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (12, 'Wave', 0, 0, 'W', 1, 0, 1), (13, 'Plain', 0, 0, 'P', 2, 0, 0),"
    " (256, 'Nought', 0, 0, 'N', 3, 0, 1);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId INTEGER, Access INTEGER);"
    "INSERT INTO GuidsSpeakersFilters VALUES ('C7000012', 12, 0, 0);");

CDriverCache * openCache(DatabaseFolder & folder)
{
    folder.add(QStringLiteral("a.db3"), world);
    auto * const cache = new CDriverCache;
    cache->setGuidSupportedLevel(1);
    EXPECT_EQ(cache->openDatabases(folder.dir()), 1);
    return cache;
}

struct Defaults : ::testing::Test {
    Defaults()
        : facade(QPointer<CDriverCache>(openCache(folder)), nullptr)
    {}

    /// Of a property of channel 1, with a speaker or, with 0, without.
    QVariant valueOf(char const * property, unsigned short speaker, CDeviceGuid const & guid = hesko) const
    {
        return facade.defaultPropertyValue({guid, QLatin1String(property), ChannelFirst, 0, speaker});
    }

    DatabaseFolder folder;
    CDevicelore facade;
};

} // namespace

TEST_F(Defaults, OfTheDelayOnAWavefoldSpeakerAreItsMinimum)
{
    QVariant const delay = valueOf("ChStatus_MsDelay", 12);
    EXPECT_EQ(delay.userType(), int(QMetaType::Double));
    EXPECT_EQ(delay.toDouble(), 6.2);
    EXPECT_EQ(valueOf("ChStatus_MsDelay", 13), QVariant(1.0)) << "no Wavefold setup";
    EXPECT_EQ(valueOf("ChStatus_MsDelay", 99), QVariant(1.0)) << "no speaker";
    EXPECT_EQ(valueOf("ChStatus_MsDelay", 0), QVariant(1.0)) << "no speaker channel";
    EXPECT_EQ(valueOf("ChStatus_Delay", 12), QVariant(3.0)) << "another property";
    EXPECT_EQ(valueOf("chstatus_msdelay", 12), QVariant()) << "case matters";
}

TEST_F(Defaults, OfTheDelayAreThatMinimumWhateverTheDatabaseSays)
{
    for (quint32 const guid : {0xC7000077U, 0xC7000099U, 0U}) {
        EXPECT_EQ(valueOf("ChStatus_MsDelay", 12, guid), QVariant(6.2));
        EXPECT_EQ(valueOf("ChStatus_MsDelay", 13, guid), QVariant());
    }
}

TEST_F(Defaults, OfTheDelayOnAnotherSideAreThoseOfTheDatabase)
{
    CDeviceChannelInfo channel;
    channel.SetSpeakerId(12);
    channel.SetDeviceChannelType(ChannelTypeInput);
    CDriverPropertyTarget const target(hesko, QStringLiteral("ChStatus_MsDelay"), ChannelFirst, 0, &channel);
    EXPECT_EQ(facade.defaultPropertyValue(target), QVariant(1.0)) << "not even that of speaker 256";
}

TEST_F(Defaults, OfTheCacheStayAsTheyAre)
{
    CDriverPropertyTarget const target(hesko, QStringLiteral("ChStatus_MsDelay"), ChannelFirst, 0, 12);
    CDriverCache cache;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
    EXPECT_EQ(cache.defaultPropertyValue(target), QVariant(1.0)) << "the rule is the facade's";
}

TEST_F(Defaults, OfSpeakersAndChannelsAreThoseOfTheCache)
{
    CDriverPropertyTarget const stored12(hesko, QStringLiteral("Config_SpeakerId"), DeviceChannel(2), 0, 12);
    EXPECT_EQ(facade.defaultSpeakerId(stored12, OutputMode(1)), QVariant(68));
    EXPECT_EQ(facade.validateSpeakerId(stored12, OutputMode(1)), QVariant(68));
    EXPECT_EQ(facade.validateSpeakerId(stored12, OutputMode(0)), QVariant(12));
    EXPECT_EQ(facade.deviceChannelCount(0xC7000912, ChannelTypeInput), 8);
    EXPECT_EQ(facade.deviceChannelCount(0xC7000077, ChannelTypeInput), -1);

    QList<CSpeakerDef> definitions{CSpeakerDef()};
    EXPECT_EQ(facade.speakerDef(12, definitions, SpeakerDefAll), TharnNoError);
    ASSERT_EQ(definitions.size(), 2);
    EXPECT_EQ(definitions.at(1).name(), QStringLiteral("Wave"));
    EXPECT_EQ(facade.speakerDef(99, definitions, SpeakerDefAll), TharnNotFound);
    EXPECT_EQ(definitions.size(), 2);
}

TEST(SpeakerDefinition, IsAskedThroughTheReplaceableOperation)
{
    class AnsweringCache : public CDriverCache {
    public:
        TharnError speakerDef(unsigned short, QList<CSpeakerDef> &, QFlags<SpeakerDefMask>) override
        {
            return TharnFailed;
        }
    };

    CDevicelore const facade(QPointer<CDriverCache>(new AnsweringCache), nullptr);
    QList<CSpeakerDef> definitions;
    EXPECT_EQ(facade.speakerDef(12, definitions, SpeakerDefAll), TharnFailed);
}

} // namespace kestrova::test::defaults
