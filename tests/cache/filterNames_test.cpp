#include "cache/driverCacheChannelKeyFilter.h"
#include "cache/driverCacheKeyName.h"
#include "exposedCache.h"
#include "records/deviceChannelInfo.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace kestrova::test::filterNames {

namespace {

CDeviceGuid const device(0xC7000005);

QString const tables = QStringLiteral(
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId, Access INTEGER);"
    "CREATE TABLE Filters (Id, Number INTEGER, Type INTEGER, Min REAL, Max REAL, DisplayNameShort TEXT, "
    "TextOffset INTEGER, StateTexts TEXT);");

struct FilterNames : ::testing::Test {
    FilterNames() { speaker.SetSpeakerId(12); }

    void open() { ASSERT_GT(cache.openDatabases(folder.dir()), 0); }

    QString name(unsigned char number) { return cache.filterName(device, &speaker, number); }

    GetItemReturnValue remembered(unsigned char number)
    {
        QString ignored;
        return cache.filterItems->filterName(device, &speaker, number, ignored);
    }

    DatabaseFolder folder;
    ExposedCache cache;
    CDeviceChannelInfo speaker;
};

} // namespace

TEST_F(FilterNames, AreFoundByTheTensOfTheFilterId)
{
    folder.add(
        QStringLiteral("a.db3"),
        tables + QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, 27, 9),"
                                " ('C7000005', 12, 20, 1), ('C7000005', 13, 31, 1), ('C7000006', 12, 41, 1);"
                                "INSERT INTO Filters VALUES (27, 258, 259, -2.9, 5.9, 'Shelf', 40, 'a;b'),"
                                " (20, 0, 0, 0, 0, 'Other', 0, ''), (31, 0, 0, 0, 0, 'Another', 0, '');"));
    open();
    EXPECT_EQ(name(2), QStringLiteral("Shelf")) << "the first row, whatever its access";
    EXPECT_TRUE(name(3).isNull()) << "another speaker's";
    EXPECT_TRUE(name(4).isNull()) << "another device's";
    EXPECT_EQ(remembered(2), GetItemFound);
    EXPECT_EQ(remembered(3), GetItemNotAvailable);
    EXPECT_EQ(remembered(5), GetItemNotCached);

    CDriverCacheFilterItem const * const item =
        cache.filterItems->item(CDriverCacheChannelKeyFilter(device, &speaker, 2));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->filterId(), 27);
    EXPECT_EQ(item->filterNumber(), 2) << "cut to its low byte";
    EXPECT_EQ(item->filterType(), 3);
    EXPECT_EQ(item->filterName(), QStringLiteral("Shelf"));
    EXPECT_EQ(item->textOffset(), 40U);
    EXPECT_EQ(item->stateText(), QStringLiteral("a;b"));
    EXPECT_EQ(cache.filterItems->item(CDriverCacheChannelKeyFilter(device, &speaker, 3)), nullptr);
}

TEST_F(FilterNames, AreAskedOfADatabaseOnce)
{
    folder.add(QStringLiteral("a.db3"),
               tables + QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, 11, 1);"
                                       "INSERT INTO Filters VALUES (11, 1, 0, 0, 1, 'Shelf', 0, '');"));
    open();
    EXPECT_EQ(name(1), QStringLiteral("Shelf"));
    EXPECT_TRUE(name(2).isNull());
    MessageRecorder recorder;
    cache.closeDatabases();
    EXPECT_EQ(name(1), QStringLiteral("Shelf"));
    EXPECT_EQ(cache.filterName(QStringLiteral("c7000005"), &speaker, 1), QStringLiteral("Shelf"));
    EXPECT_TRUE(name(2).isNull());
    EXPECT_EQ(recorder.messages(), QStringList());
    cache.clear();
    EXPECT_TRUE(name(1).isNull());
}

TEST_F(FilterNames, TellAnEmptyNameFromNone)
{
    folder.add(QStringLiteral("a.db3"),
               tables + QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, 11, 1),"
                                       " ('C7000005', 12, 21, 1);"
                                       "INSERT INTO Filters VALUES (11, 1, 0, 0, 1, '', 0, ''),"
                                       " (21, 1, 0, 0, 1, '---', 0, '');"));
    open();
    EXPECT_TRUE(name(1).isEmpty());
    EXPECT_FALSE(name(1).isNull());
    EXPECT_EQ(remembered(1), GetItemFound);
    EXPECT_EQ(name(2), QStringLiteral("---")) << "a name like any other here";
    EXPECT_EQ(remembered(2), GetItemFound);
}

TEST_F(FilterNames, GoOnToTheNextDatabase)
{
    folder
        .add(QStringLiteral("a.db3"),
             tables +
                 QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, -5, 1),"
                                " ('C7000005', 12, 1, 1), ('C7000005', 12, 11, 1), ('C7000005', 12, 21, 1);"
                                "INSERT INTO Filters VALUES (1, 0, 0, 0, 1, 'never reached', 0, ''),"
                                " (21, 0, 0, 0, 1, 'first', 0, '');"))
        .add(QStringLiteral("b.db3"), QString())
        .add(QStringLiteral("c.db3"),
             tables +
                 QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, 2, 1),"
                                " ('C7000005', 12, 12, 1), ('C7000005', 12, 22, 1), ('C7000005', 12, 31, 1);"
                                "INSERT INTO Filters VALUES (2, 0, 0, 0, 1, 'zero', 0, ''),"
                                " (12, 0, 0, 0, 1, 'one', 0, ''), (22, 0, 0, 0, 1, 'two', 0, ''),"
                                " (31, 0, 0, 0, 1, 'three', 0, '');"));
    open();
    MessageRecorder recorder;
    EXPECT_EQ(name(0), QStringLiteral("zero")) << "a negative key sends the search on";
    EXPECT_EQ(name(1), QStringLiteral("one")) << "so does a key without a filter";
    EXPECT_EQ(name(2), QStringLiteral("first")) << "the first database that has one decides";
    EXPECT_EQ(name(3), QStringLiteral("three"));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(FilterNames, EndWithARowThatStandsForNone)
{
    folder
        .add(QStringLiteral("a.db3"),
             tables + QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, '---', 1);"
                                     "INSERT INTO Filters VALUES ('---', 0, 0, 0, 1, 'no name', 0, '');"))
        .add(QStringLiteral("b.db3"),
             tables + QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 12, 2, 1);"
                                     "INSERT INTO Filters VALUES (2, 0, 0, 0, 1, 'not asked', 0, '');"));
    open();
    EXPECT_TRUE(name(0).isNull());
    EXPECT_EQ(remembered(0), GetItemNotAvailable);
}

TEST_F(FilterNames, NeedASpeaker)
{
    folder.add(QStringLiteral("a.db3"), tables);
    open();
    CDeviceChannelInfo const output(ChannelTypeOutput);
    CDeviceChannelInfo noSpeaker;
    noSpeaker.SetSpeakerId(0);
    QString ignored;
    for (CDeviceChannelInfo const * channel : {static_cast<CDeviceChannelInfo const *>(nullptr), &output,
                                               static_cast<CDeviceChannelInfo const *>(&noSpeaker)}) {
        EXPECT_TRUE(cache.filterName(device, channel, 1).isNull());
        EXPECT_EQ(cache.filterItems->filterName(device, channel, 1, ignored), GetItemNotCached)
            << "not remembered";
    }
}

TEST(FilterList, IgnoresKeysOfOtherSorts)
{
    CDriverCacheFilterItemList list;
    CDriverCacheFilterItem item;
    CDriverCacheKeyName const name(device, QStringLiteral("x"));
    list.addFilterItem(nullptr, &item);
    list.addFilterItem(&name, &item);
    QString text = QStringLiteral("before");
    EXPECT_EQ(list.filterName(device, nullptr, 1, text), GetItemNotCached);
    EXPECT_EQ(text, QStringLiteral("before"));
}

TEST(FilterList, KeepsTheFirstAnswerOfAKey)
{
    CDriverCacheFilterItemList list;
    CDriverCacheChannelKeyFilter const key(device, nullptr, 1);
    list.addFilterItem(&key, nullptr);
    CDriverCacheFilterItem late;
    list.addFilterItem(&key, &late);
    EXPECT_EQ(list.item(key), nullptr);
    QString text = QStringLiteral("before");
    EXPECT_EQ(list.filterName(key, text), GetItemNotAvailable);
    EXPECT_EQ(text, QStringLiteral("before"));
}

TEST(FilterItem, StartsEmptyAndTakesItsFields)
{
    CDriverCacheFilterItem const empty;
    EXPECT_EQ(empty.filterId(), 0);
    EXPECT_EQ(empty.maxValue(), 0.0);
    EXPECT_EQ(empty.filterName(), QString());
    CDriverCacheFilterItem const item(1, 2, 3, QStringLiteral("name"), QStringLiteral("states"), -1.5, 2.5);
    CDriverCacheFilterItem const copy(item);
    EXPECT_EQ(copy.filterId(), 1);
    EXPECT_EQ(copy.filterNumber(), 2);
    EXPECT_EQ(copy.filterType(), 3);
    EXPECT_EQ(copy.filterName(), QStringLiteral("name"));
    EXPECT_EQ(copy.stateText(), QStringLiteral("states"));
    EXPECT_EQ(copy.minValue(), -1.5);
    EXPECT_EQ(copy.maxValue(), 2.5);
}

} // namespace kestrova::test::filterNames
