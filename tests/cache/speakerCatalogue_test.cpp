#include "exposedCache.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QSqlDatabase>

#include <algorithm>
#include <memory>
#include <type_traits>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace kestrova::test::speakerCatalogue {

namespace {

using List = CDriverCacheSpeakerItemList;
using Ids = QList<unsigned short>;

CDeviceGuid const device(0xC7000005);

QString const tables = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder "
    "INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId INTEGER, Access INTEGER);");

QString const world =
    tables +
    QStringLiteral(
        "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 0), ('C7000006', 'Hesko', '', 0);"
        "INSERT INTO SpeakerClasses VALUES (0, 'Full', 'F', 1, 'Main'), (4, 'Two', 'T', 2, 'Low,High'), "
        "(260, 'Wrapped', "
        "'', 9, '');"
        "INSERT INTO Speakers VALUES (9, 'Nine', 0, 3, 'N9', 20, 2, 0), (5, 'Five', 4, 0, 'F5', 10, 0, 0),"
        " (300, 'Big', 77, 0, 'B', 30, 0, 0), (14, 'Wave', 0, 0, 'W', 40, 0, 2);"
        "INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 9, 11, 0), ('C7000005', 5, 11, 0), "
        "('C7000005', 9, 21, 0),"
        " ('C7000005', 300, 11, 2), ('C7000005', 77, 11, 0);");

struct Speakers : ::testing::Test {
    Speakers()
    {
        folder.add(QStringLiteral("a.db3"), world);
        EXPECT_EQ(cache.openDatabases(folder.dir()), 1);
    }

    Ids list(CDeviceGuid const & guid = device)
    {
        Ids ids;
        EXPECT_EQ(cache.listSpeakersForDevice(guid, ids), TharnNoError);
        return ids;
    }

    DatabaseFolder folder;
    ExposedCache cache;
};

/// A definition that the list takes over.
void add(List & list, unsigned short id, unsigned char classNumber, int sortOrder)
{
    auto speaker = std::make_unique<CSpeakerDef>();
    speaker->setSpeakerId(id);
    CSpeakerClass speakerClass;
    speakerClass.classNumber = classNumber;
    speaker->setSpeakerClass(speakerClass);
    speaker->setSortOrder(sortOrder);
    ASSERT_TRUE(list.addSpeakerItem(speaker.get()));
    static_cast<void>(speaker.release());
}

void changeClass(CSpeakerDef & speaker, void (*change)(CSpeakerClass & speakerClass))
{
    CSpeakerClass speakerClass;
    speaker.speakerClass(speakerClass);
    change(speakerClass);
    speaker.setSpeakerClass(speakerClass);
}

Ids fitting(List & list, int types, int mode)
{
    Ids ids;
    EXPECT_EQ(list.listSpeakersForDevice(device, ids, QFlags<SpeakerType>(QFlag(types)), OutputMode(mode)),
              TharnNoError);
    return ids;
}

} // namespace

static_assert(
    std::is_same_v<decltype(SpeakerTypeFirstChannel | SpeakerTypeSecondChannel), QFlags<SpeakerType>>);
static_assert(
    std::is_same_v<decltype(SpeakerDefCablefitMaxCount | SpeakerDefIsWFSetup), QFlags<SpeakerDefMask>>);

TEST_F(Speakers, AreReadWithTheirClasses)
{
    QList<CSpeakerDef> found;
    ASSERT_EQ(cache.speakerDef(9, found, QFlags<SpeakerDefMask>()), TharnNoError);
    ASSERT_EQ(found.size(), 1);
    CSpeakerDef const & nine = found.first();
    CSpeakerClass speakerClass;
    nine.speakerClass(speakerClass);
    EXPECT_EQ(nine.speakerId(), 9);
    EXPECT_EQ(nine.name(), QStringLiteral("Nine"));
    EXPECT_EQ(nine.rib(), 3);
    EXPECT_EQ(nine.displayNameShort(), QStringLiteral("N9"));
    EXPECT_EQ(nine.sortOrder(), 20);
    EXPECT_EQ(nine.cablefitMaxCount(), 2);
    EXPECT_FALSE(nine.isWFSetup());
    EXPECT_EQ(speakerClass.classNumber, 0);
    EXPECT_EQ(speakerClass.ways, 1);
    EXPECT_EQ(speakerClass.wayNames(), QStringLiteral("Main"));

    found.clear();
    cache.speakerDef(300, found, QFlags<SpeakerDefMask>());
    found.first().speakerClass(speakerClass);
    EXPECT_EQ(speakerClass, CSpeakerClass()) << "an unknown class is none";
    ASSERT_NE(cache.speakerClassItem(4), nullptr);
    EXPECT_EQ(cache.speakerClassItem(4)->className(), QStringLiteral("Two"))
        << "the first of a number, 260 is cut to 4";
    EXPECT_EQ(cache.speakerClassItem(4)->classType(), QStringLiteral("T"));
    EXPECT_EQ(cache.speakerClassItem(4)->ways(), 2);
    EXPECT_EQ(cache.speakerClassItem(4)->wayNames(), QStringLiteral("Low,High"));
    EXPECT_EQ(cache.speakerClassItem(4)->displayName(), QString());
    EXPECT_EQ(cache.speakerClassItem(5), nullptr);
}

TEST_F(Speakers, HaveBoundsOfWhichTheLowerStaysZero)
{
    EXPECT_EQ(cache.minSpeakerId(), 0);
    EXPECT_EQ(cache.maxSpeakerId(), 300);
    cache.clear();
    EXPECT_EQ(cache.maxSpeakerId(), 0);
}

TEST_F(Speakers, AboveTheLevelAreNotKnownAtAll)
{
    Ids ids = cache.speakerItems->speakerIds();
    EXPECT_FALSE(ids.contains(14));
    cache.setGuidSupportedLevel(1);
    EXPECT_FALSE(cache.speakerItems->speakerIds().contains(14)) << "it needs level 2";
    cache.setGuidSupportedLevel(2);
    ids = cache.speakerItems->speakerIds();
    EXPECT_TRUE(ids.contains(14));
    QList<CSpeakerDef> found;
    cache.speakerDef(14, found, QFlags<SpeakerDefMask>());
    EXPECT_TRUE(found.first().isWFSetup());
}

TEST_F(Speakers, OfADeviceComeInDisplayOrder)
{
    EXPECT_EQ(list(), (Ids{5, 9})) << "300 needs level 2, and 77 is not defined";
    cache.setGuidSupportedLevel(1);
    EXPECT_EQ(list(), (Ids{5, 9}));
    cache.setGuidSupportedLevel(2);
    EXPECT_EQ(list(), (Ids{5, 9, 300}));
}

TEST_F(Speakers, ListsReplaceOrAppend)
{
    Ids ids{1};
    EXPECT_EQ(cache.listSpeakersForDevice(device, ids), TharnNoError);
    EXPECT_EQ(ids, (Ids{5, 9}));

    QList<QPair<unsigned short, QString>> pairs{{1, QStringLiteral("mine")}};
    EXPECT_EQ(cache.listSpeakersForDevice(device, pairs), TharnNoError);
    ASSERT_EQ(pairs.size(), 3);
    EXPECT_EQ(pairs.at(0).second, QStringLiteral("mine"));
    EXPECT_EQ(pairs.at(1), qMakePair(static_cast<unsigned short>(5), QStringLiteral("F5")));

    ids = {1};
    EXPECT_EQ(cache.listSpeakersForDevice(device, ids, SpeakerTypeTwoWay, OutputMode(2)), TharnNoError);
    EXPECT_EQ(ids, (Ids{1, 5}));
}

TEST_F(Speakers, OfADeviceWithoutAnyAreNotFound)
{
    Ids ids{1};
    QList<QPair<unsigned short, QString>> pairs;
    for (CDeviceGuid const & guid : {CDeviceGuid(0xC7000006), CDeviceGuid(0xC7000007), CDeviceGuid(0)}) {
        EXPECT_EQ(cache.listSpeakersForDevice(guid, ids), TharnNotFound);
        EXPECT_EQ(cache.listSpeakersForDevice(guid, pairs), TharnNotFound);
        EXPECT_EQ(cache.listSpeakersForDevice(guid, ids, SpeakerTypeTwoWay, OutputMode(2)), TharnNotFound);
    }
    EXPECT_EQ(ids, Ids{1});
    EXPECT_TRUE(pairs.isEmpty());
}

TEST_F(Speakers, SupportIsAskedByTheWholeId)
{
    EXPECT_TRUE(cache.isSpeakerSupportedByDevice(9, device));
    EXPECT_FALSE(cache.isSpeakerSupportedByDevice(300, device));
    EXPECT_FALSE(cache.isSpeakerSupportedByDevice(9 + 256, device));
    EXPECT_TRUE(cache.isSpeakerSupportedByDevice(77, device)) << "listed though not defined";
    EXPECT_FALSE(cache.isSpeakerSupportedByDevice(9, 0xC7000006));

    EXPECT_EQ(cache.speakerItems->isSpeakerSupportedByDevice(9, device), List::SpeakerIsSupported);
    EXPECT_EQ(cache.speakerItems->isSpeakerSupportedByDevice(300, device), List::SpeakerNotSupported);
    EXPECT_EQ(cache.speakerItems->isSpeakerSupportedByDevice(1000, device), List::SpeakerSupportedUnknown);
}

TEST_F(Speakers, AreAskedFromMemoryOnceTheyWereRead)
{
    EXPECT_EQ(list(), (Ids{5, 9}));
    MessageRecorder recorder;
    cache.closeDatabases();
    EXPECT_EQ(list(), (Ids{5, 9}));
    EXPECT_FALSE(cache.isSpeakerSupportedByDevice(300, device));
    EXPECT_FALSE(cache.isSpeakerSupportedByDevice(9, 0xC7000006))
        << "not read before the databases were closed";
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(Speakers, AreReadThroughAConnectionThatWasClosedFromOutside)
{
    MessageRecorder recorder;
    QSqlDatabase::database(QStringLiteral("a.db3"), false).close();
    EXPECT_EQ(list(), (Ids{5, 9}));
    EXPECT_TRUE(QSqlDatabase::database(QStringLiteral("a.db3"), false).isOpen());
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(Speakers, ThatAreUnknownHaveNoDefinition)
{
    QList<CSpeakerDef> found{CSpeakerDef()};
    EXPECT_EQ(cache.speakerDef(1, found, SpeakerDefAll), TharnNotFound);
    EXPECT_EQ(found.size(), 1);
    EXPECT_EQ(cache.speakerDef(9, found, SpeakerDefAll), TharnNoError);
    EXPECT_EQ(found.size(), 2) << "appended";
}

TEST(SpeakerSets, KeepDifferentDefinitionsOfOneIdAndIdenticalOnesOnce)
{
    QString const speaker = QStringLiteral("INSERT INTO Speakers VALUES (9, '%1', 0, 0, '%1', %2, 0, 0);");
    DatabaseFolder folder;
    folder
        .add(QStringLiteral("a.db3"),
             tables + speaker.arg(QStringLiteral("First")).arg(1) +
                 QStringLiteral("INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 0);"
                                "INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 9, 1, 0);"))
        .add(QStringLiteral("b.db3"), tables + speaker.arg(QStringLiteral("First")).arg(1))
        .add(QStringLiteral("c.db3"),
             tables + speaker.arg(QStringLiteral("Later")).arg(2) +
                 QStringLiteral("INSERT INTO SpeakerClasses VALUES (0, 'Full', '', 1, '');"));
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 3);
    QList<CSpeakerDef> found;
    ASSERT_EQ(cache.speakerDef(9, found, SpeakerDefAll), TharnNoError);
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found.at(0).name(), QStringLiteral("Later"));
    EXPECT_EQ(found.at(1).name(), QStringLiteral("First"));
    CSpeakerClass speakerClass;
    found.at(1).speakerClass(speakerClass);
    EXPECT_EQ(speakerClass.classNumber, 255) << "its class came with a later database";
    EXPECT_EQ(cache.speakerItems->speakerIds(), (Ids{9, 9}));
    EXPECT_TRUE(cache.isSpeakerSupportedByDevice(9, device)) << "in both lists, and the supported one counts";
}

TEST(SpeakerSets, AreReadInLinearTimeThoughAllIdsShareTheirLowByte)
{
    // Each of them twice. So many that comparing each with all before it would take minutes, not a second.
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"),
               tables + QStringLiteral("DROP TABLE Speakers;"
                                       "CREATE VIEW Speakers AS WITH RECURSIVE Numbers (Number) AS "
                                       "(SELECT 0 UNION ALL SELECT Number + 1 FROM Numbers "
                                       "WHERE Number < 119999) "
                                       "SELECT 5 AS SpeakerId, 'S' || (Number % 60000) AS Name, 0 AS Class, "
                                       "0 AS Rib, '' AS DisplayNameShort, 0 AS SortOrder, "
                                       "0 AS CablefitMaxCount, 0 AS WfActive FROM Numbers;"));
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
    QList<CSpeakerDef> found;
    ASSERT_EQ(cache.speakerDef(261, found, SpeakerDefAll), TharnNoError);
    ASSERT_EQ(found.size(), 60000);
    EXPECT_EQ(found.first().name(), QStringLiteral("S59999")) << "the one read last stands in front";
    EXPECT_EQ(found.last().name(), QStringLiteral("S0"));
}

TEST(SpeakerSets, HaveIdsOf16Bits)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"),
               tables + QStringLiteral("INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 0);"
                                       "INSERT INTO Speakers VALUES (5, 'First', 0, 0, '', 1, 0, 0), "
                                       "(65541, 'Second', 0, 0, '', 2, 0, 0);"
                                       "INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 5, 1, 0), "
                                       "('C7000005', 65541, 1, 0);"));
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
    EXPECT_EQ(cache.speakerItems->speakerIds(), (Ids{5, 5}));
    Ids ids;
    EXPECT_EQ(cache.listSpeakersForDevice(device, ids), TharnNoError);
    EXPECT_EQ(ids, Ids{5}) << "the device supports it once";
    EXPECT_TRUE(cache.isSpeakerSupportedByDevice(5, device));
    EXPECT_EQ(cache.maxSpeakerId(), 5);
}

TEST(SpeakerList, LeavesOutIdsWithoutADefinition)
{
    List list;
    list.addToSupportedList(device, 5);
    list.addToSupportedList(device, 9);
    Ids ids{1};
    QList<QPair<unsigned short, QString>> pairs;
    EXPECT_EQ(list.listSpeakersForDevice(device, ids), TharnNoError);
    EXPECT_EQ(ids, Ids()) << "replaced, though by nothing";
    EXPECT_EQ(list.listSpeakersForDevice(device, pairs), TharnNoError);
    EXPECT_TRUE(pairs.isEmpty());
    EXPECT_EQ(fitting(list, 7, 0), Ids());
}

TEST(SpeakerList, KeepsDefinitionsByTheLowByte)
{
    List list;
    add(list, 5, 0, 1);
    add(list, 261, 0, 2);
    QList<CSpeakerDef> found;
    EXPECT_EQ(list.speakerDef(261, found, SpeakerDefAll), TharnNoError);
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found.at(0).speakerId(), 261) << "the one added last stands in front";
    EXPECT_EQ(found.at(1).speakerId(), 5);

    list.addToSupportedList(device, 5);
    list.addToSupportedList(device, 261);
    Ids ids;
    EXPECT_EQ(list.listSpeakersForDevice(device, ids), TharnNoError);
    EXPECT_EQ(ids, (Ids{261, 261}));
}

TEST(SpeakerList, RefusesAnEqualDefinition)
{
    List list;
    add(list, 5, 0, 1);
    CSpeakerDef equal;
    equal.setSpeakerId(5);
    CSpeakerClass speakerClass;
    speakerClass.classNumber = 0;
    equal.setSpeakerClass(speakerClass);
    equal.setSortOrder(1);
    EXPECT_FALSE(list.addSpeakerItem(&equal));
    EXPECT_EQ(list.speakerIds(), Ids{5});
}

TEST(SpeakerList, AddsCopiesOfThoseThatItHasNotGot)
{
    List list;
    add(list, 5, 0, 1);
    QList<CSpeakerDef> there;
    list.speakerDef(5, there, SpeakerDefAll);
    CSpeakerDef other = there.first();
    other.setSpeakerId(261);
    list.addSpeakerItems({there.first(), other, other});
    EXPECT_EQ(list.speakerIds(), (Ids{261, 5}));
    EXPECT_EQ(list.maxSpeakerId(), 261);
    list.clear();
    list.addSpeakerItems({other, there.first()});
    EXPECT_EQ(list.speakerIds(), (Ids{5, 261})) << "nothing is remembered that was cleared";
}

TEST(SpeakerList, AddsThoseThatDifferInOneMember)
{
    CSpeakerDef first;
    first.setSpeakerId(5);
    first.setName(QStringLiteral("Name"));
    first.setDisplayNameShort(QString());

    struct Row {
        char const * what;
        void (*change)(CSpeakerDef & speaker);
        int count;
    };

    Row const rows[] = {
        {"nothing", [](CSpeakerDef &) {}, 1},
        {"an empty text for none", [](CSpeakerDef & s) { s.setDisplayNameShort(QStringLiteral("")); }, 1},
        {"id", [](CSpeakerDef & s) { s.setSpeakerId(261); }, 2},
        {"name", [](CSpeakerDef & s) { s.setName(QStringLiteral("name")); }, 2},
        {"class", [](CSpeakerDef & s) { changeClass(s, [](CSpeakerClass & c) { c.classNumber = 4; }); }, 2},
        {"ways", [](CSpeakerDef & s) { changeClass(s, [](CSpeakerClass & c) { c.ways = 2; }); }, 2},
        {"names of the ways",
         [](CSpeakerDef & s) { changeClass(s, [](CSpeakerClass & c) { c.names = QStringLiteral("Low"); }); },
         2},
        {"rib", [](CSpeakerDef & s) { s.setRib(-2); }, 2},
        {"short name", [](CSpeakerDef & s) { s.setDisplayNameShort(QStringLiteral("N")); }, 2},
        {"sort order", [](CSpeakerDef & s) { s.setSortOrder(-2); }, 2},
        {"Cablefit count", [](CSpeakerDef & s) { s.setCablefitMaxCount(-2); }, 2},
        {"Wavefold", [](CSpeakerDef & s) { s.setIsWFSetup(true); }, 2},
        {"other flags", [](CSpeakerDef & s) { s.setFlags(0x80); }, 2},
    };
    for (Row const & row : rows) {
        CSpeakerDef second = first;
        row.change(second);
        List list;
        list.addSpeakerItems({first, second});
        EXPECT_EQ(list.speakerIds().size(), row.count) << row.what;
        list.addSpeakerItems({second});
        EXPECT_EQ(list.speakerIds().size(), row.count) << row.what << ", once more";
    }
}

TEST(SpeakerList, FiltersByClassTypeAndMode)
{
    List list;
    Ids const ids{100, 101, 102, 103, 108, 109, 110, 111, 155};
    for (unsigned short const id : ids) {
        auto const classNumber = static_cast<unsigned char>(id == 155 ? 255 : id - 100);
        add(list, id, classNumber, id);
        list.addToSupportedList(device, id);
    }

    struct Row {
        int types;
        int mode;
        Ids fit;
    };

    Row const rows[] = {
        {1, 0, {100, 101, 109, 110}},
        {2, 0, {102}},
        {3, 0, {100, 101, 102, 109, 110}},
        {4, 0, {}},
        {1, 1, {100, 101, 110}},
        {2, 1, {102}},
        {7, 1, {100, 101, 102, 110}},
        {4, 2, {103, 108, 111, 155}},
        {3, 2, {}},
        {7, 2, {103, 108, 111, 155}},
        {7, 3, {}},
        {7, 8, {}},
        {7, -1, {}},
        {0, 0, {}},
        {0, 2, {}},
    };
    for (Row const & row : rows)
        EXPECT_EQ(fitting(list, row.types, row.mode), row.fit)
            << "types " << row.types << ", mode " << row.mode;
}

TEST(SpeakerList, ComparesBySortOrder)
{
    CSpeakerDef left;
    CSpeakerDef right;
    left.setSortOrder(-1);
    right.setSortOrder(1);
    EXPECT_TRUE(List::sortOrderLessThan(&left, &right));
    EXPECT_FALSE(List::sortOrderLessThan(&right, &left));
    EXPECT_FALSE(List::sortOrderLessThan(&left, &left));
}

TEST(SpeakerList, WidensTheLowerBoundOnlyWhenItWasSet)
{
    List list;
    list.setMinSpeakerId(7);
    add(list, 5, 0, 1);
    EXPECT_EQ(list.minSpeakerId(), 5);
    EXPECT_EQ(list.maxSpeakerId(), 0) << "an id widens one bound at most";
}

TEST(SpeakerList, WidensTheUpperBoundThatWasSet)
{
    List list;
    list.setMaxSpeakerId(7);
    EXPECT_EQ(list.maxSpeakerId(), 7);
    add(list, 5, 0, 1);
    EXPECT_EQ(list.maxSpeakerId(), 7);
    add(list, 8, 0, 2);
    EXPECT_EQ(list.maxSpeakerId(), 8);
    EXPECT_EQ(list.minSpeakerId(), 0);
}

TEST(SpeakerList, ClearForgetsAll)
{
    List list;
    add(list, 300, 0, 1);
    list.addSpeakerClassItem(new CDriverCacheSpeakerClassItem);
    list.addToSupportedList(device, 300);
    list.addToNotSupportedList(device, 5);
    list.setMinSpeakerId(7);
    list.clear();
    EXPECT_TRUE(list.speakerIds().isEmpty());
    EXPECT_EQ(list.speakerClassItem(255), nullptr);
    EXPECT_EQ(list.isSpeakerSupportedByDevice(300, device), List::SpeakerSupportedUnknown);
    EXPECT_EQ(list.isSpeakerSupportedByDevice(5, device), List::SpeakerSupportedUnknown);
    EXPECT_EQ(list.minSpeakerId(), 0);
    EXPECT_EQ(list.maxSpeakerId(), 0);
}

TEST(SpeakerItems, TheCacheHandsADefinitionOnToItsCatalogue)
{
    ExposedCache cache;
    auto speaker = std::make_unique<CSpeakerDef>();
    speaker->setSpeakerId(12);
    CSpeakerDef equal(*speaker);
    ASSERT_TRUE(cache.addSpeakerItem(speaker.get()));
    static_cast<void>(speaker.release());
    EXPECT_FALSE(cache.addSpeakerItem(&equal));
    EXPECT_EQ(cache.speakerItems->maxSpeakerId(), 12);
}

TEST(SpeakerClassItem, StartsAsNoClassAndFillsASpeakerClass)
{
    CDriverCacheSpeakerClassItem item;
    EXPECT_EQ(item.speakerClass(), 255);
    EXPECT_EQ(item.ways(), 0);
    item.setSpeakerClass(3);
    item.setWays(2);
    item.setWayNames(QStringLiteral("Low,High"));
    item.setClassName(QStringLiteral("name"));
    item.setClassType(QStringLiteral("type"));
    item.setDisplayName(QStringLiteral("shown"));
    CDriverCacheSpeakerClassItem const copy(item);
    EXPECT_EQ(copy.className(), QStringLiteral("name"));
    EXPECT_EQ(copy.classType(), QStringLiteral("type"));
    EXPECT_EQ(copy.displayName(), QStringLiteral("shown"));
    CSpeakerClass speakerClass;
    copy.toSpeakerClass(speakerClass);
    EXPECT_EQ(speakerClass.classNumber, 3);
    EXPECT_EQ(speakerClass.ways, 2);
    EXPECT_EQ(speakerClass.names, QStringLiteral("Low,High"));
}

} // namespace kestrova::test::speakerCatalogue
