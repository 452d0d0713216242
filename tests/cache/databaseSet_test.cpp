#include "exposedCache.h"
#include "sqlcipher/databaseFile.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QSqlDatabase>

#include <type_traits>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace {

QString const oneDevice =
    QStringLiteral("CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
                   "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '1.0', 1);");

QString versionTable(QString const & rows)
{
    return QStringLiteral("CREATE TABLE Version (Major INTEGER, Minor INTEGER, Bugfix INTEGER);") + rows;
}

QList<CDriverDatabaseInfo> infosOf(CDriverCache const & cache)
{
    QList<CDriverDatabaseInfo> list;
    cache.databaseInfos(list);
    return list;
}

QStringList namesOf(QList<CDriverDatabaseInfo> const & infos)
{
    QStringList names;
    for (CDriverDatabaseInfo const & info : infos)
        names.append(info.name());
    return names;
}

} // namespace

// A subclass of an application takes the catalogues as what they are.
static_assert(std::is_same_v<decltype(ExposedCache::filterItems), CDriverCacheFilterItemList *>);
static_assert(std::is_same_v<decltype(ExposedCache::guidItems), CDriverCacheGuidItemList *>);
static_assert(std::is_same_v<decltype(ExposedCache::hardwareTypes), QVector<QString> *>);
static_assert(std::is_same_v<decltype(ExposedCache::objectItems), CDriverCacheObjectItemList *>);
static_assert(std::is_same_v<decltype(ExposedCache::propertyFilter), CDriverCachePropertyFilter *>);
static_assert(std::is_same_v<decltype(ExposedCache::speakerItems), CDriverCacheSpeakerItemList *>);
static_assert(std::is_same_v<decltype(ExposedCache::textItems), CDriverCacheTextItemList *>);
static_assert(std::is_same_v<decltype(ExposedCache::objectClassItems), CDriverCacheObjectClassItemList *>);

TEST(DatabaseSet, StartsEmpty)
{
    ExposedCache cache;
    EXPECT_TRUE(cache.connectionNames.isEmpty());
    EXPECT_TRUE(cache.guidConnections.isEmpty());
    EXPECT_TRUE(cache.connectionHasBoxNumber.isEmpty());
    EXPECT_TRUE(cache.deviceModels().isEmpty());
    EXPECT_EQ(cache.guidSupportedLevel(), 0);
    EXPECT_EQ(cache.devicePropertyFilterAccessLevel(), 0);
    EXPECT_EQ(cache.guidItems->currentAccessLevel(), 1) << "one above the cache's own level, on purpose";
    EXPECT_TRUE(infosOf(cache).isEmpty());
}

TEST(DatabaseSet, OpensEveryFileUnderItsName)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), oneDevice).add(QStringLiteral("b.db3"), QString());
    ExposedCache cache;
    EXPECT_EQ(cache.openDatabases(folder.dir()), 2);
    EXPECT_EQ(cache.connectionNames, (QStringList{QStringLiteral("a.db3"), QStringLiteral("b.db3")}));
    EXPECT_TRUE(QSqlDatabase::database(QStringLiteral("a.db3"), false).isOpen());
    EXPECT_EQ(QSqlDatabase::database(QStringLiteral("a.db3"), false).databaseName(),
              folder.path(QStringLiteral("a.db3")));
    EXPECT_EQ(cache.deviceModels(), QStringList{QStringLiteral("Talvo")});
}

TEST(DatabaseSet, OrdersFilesByNameIgnoringCase)
{
    DatabaseFolder folder;
    for (char const * name : {"c.db3", "B.db3", "a.db3", "D.db3"})
        folder.add(QLatin1String(name), QString());
    ExposedCache cache;
    EXPECT_EQ(cache.openDatabases(folder.dir()), 4);
    EXPECT_EQ(cache.connectionNames.join(QLatin1Char(' ')), QStringLiteral("a.db3 B.db3 c.db3 D.db3"));
}

TEST(DatabaseSet, LetsTheDirectoryDecideWhichFilesAndInWhichOrder)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.data"), QString()).add(QStringLiteral("b.data"), QString());
    QDir dir = folder.dir();
    dir.setNameFilters({QStringLiteral("*.data")});
    dir.setSorting(QDir::Name | QDir::Reversed);
    ExposedCache cache;
    EXPECT_EQ(cache.openDatabases(dir), 2);
    EXPECT_EQ(cache.connectionNames.join(QLatin1Char(' ')), QStringLiteral("b.data a.data"));
}

TEST(DatabaseSet, KnowsFilesByTheirAbsolutePath)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), QString());
    QDir relative(QDir::current().relativeFilePath(folder.dir().path()));
    ASSERT_TRUE(relative.isRelative());
    relative.setNameFilters({QStringLiteral("*.db3")});
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(relative), 1);
    QString const path = QSqlDatabase::database(QStringLiteral("a.db3"), false).databaseName();
    EXPECT_TRUE(QDir::isAbsolutePath(path)) << qPrintable(path);
}

TEST(DatabaseSet, AnEmptyDirectoryChangesNothing)
{
    DatabaseFolder full;
    full.add(QStringLiteral("a.db3"), oneDevice);
    DatabaseFolder empty;
    ExposedCache cache;
    EXPECT_EQ(cache.openDatabases(empty.dir()), 0);
    EXPECT_TRUE(cache.deviceModels().isEmpty());

    cache.openDatabases(full.dir());
    cache.setHardwareType(3, QStringLiteral("kept"));
    EXPECT_EQ(cache.openDatabases(empty.dir()), 0);
    EXPECT_EQ(cache.hardwareTypeString(3), QStringLiteral("kept")) << "the catalogues must not be read again";
}

TEST(DatabaseSet, OneFileThatDoesNotOpenClosesAll)
{
    DatabaseFolder folder;
    folder
        .add(QStringLiteral("a.db3"), QStringLiteral("CREATE TABLE Objects (id INTEGER, BoxNumber INTEGER);"))
        .addFile(QStringLiteral("b.db3"), "no database")
        .add(QStringLiteral("c.db3"), QString());
    MessageRecorder recorder;
    ExposedCache cache;
    EXPECT_EQ(cache.openDatabases(folder.dir()), -1);
    EXPECT_TRUE(cache.connectionNames.isEmpty());
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("a.db3")));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("b.db3")));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("c.db3"))) << "the files behind are not tried";
    EXPECT_EQ(cache.connectionHasBoxNumber.keys(), QStringList{QStringLiteral("a.db3")});
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DatabaseSet, AFailureClosesEarlierCallsToo_AndLeavesTheCatalogues)
{
    DatabaseFolder good;
    good.add(QStringLiteral("good.db3"), oneDevice);
    DatabaseFolder bad;
    bad.addFile(QStringLiteral("bad.db3"), "no database");
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(good.dir()), 1);
    EXPECT_EQ(cache.openDatabases(bad.dir()), -1);
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("good.db3")));
    EXPECT_EQ(cache.deviceModels(), QStringList{QStringLiteral("Talvo")});
    EXPECT_EQ(cache.connectionName(0xC7000005), QStringLiteral("good.db3"));
}

TEST(DatabaseSet, ASecondCallAppends)
{
    DatabaseFolder first;
    first.add(QStringLiteral("z.db3"), oneDevice);
    DatabaseFolder second;
    second.add(QStringLiteral("a.db3"), QString());
    ExposedCache cache;
    EXPECT_EQ(cache.openDatabases(first.dir()), 1);
    EXPECT_EQ(cache.openDatabases(second.dir()), 1);
    EXPECT_EQ(cache.connectionNames.join(QLatin1Char(' ')), QStringLiteral("z.db3 a.db3"));
    EXPECT_EQ(cache.deviceModels(), QStringList{QStringLiteral("Talvo")});
}

TEST(DatabaseSet, ADatabaseOpenedTwiceStandsTwiceAndStaysReadable)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), oneDevice);
    MessageRecorder recorder;
    {
        ExposedCache cache;
        cache.openDatabases(folder.dir());
        EXPECT_EQ(cache.openDatabases(folder.dir()), 1);
        EXPECT_EQ(cache.connectionNames.join(QLatin1Char(' ')), QStringLiteral("a.db3 a.db3"));
        EXPECT_EQ(cache.guidItems->count(), 1);
        EXPECT_EQ(infosOf(cache).size(), 2);
    }
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("a.db3")));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DatabaseSet, ProbesForBoxNumberByItsExactName)
{
    DatabaseFolder folder;
    folder
        .add(QStringLiteral("exact.db3"),
             QStringLiteral("CREATE TABLE Objects (id INTEGER, BoxNumber INTEGER);"))
        .add(QStringLiteral("othercase.db3"),
             QStringLiteral("CREATE TABLE Objects (id INTEGER, boxnumber INTEGER);"))
        .add(QStringLiteral("older.db3"), QStringLiteral("CREATE TABLE Objects (id INTEGER);"))
        .add(QStringLiteral("without.db3"), QString());
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 4);
    EXPECT_EQ(cache.connectionHasBoxNumber.value(QStringLiteral("exact.db3"), false), true);
    EXPECT_EQ(cache.connectionHasBoxNumber.value(QStringLiteral("othercase.db3"), true), false);
    EXPECT_EQ(cache.connectionHasBoxNumber.value(QStringLiteral("older.db3"), true), false);
    EXPECT_EQ(cache.connectionHasBoxNumber.value(QStringLiteral("without.db3"), true), false);
}

TEST(DatabaseSet, ADatabaseWithoutAnyTableCountsAndContributesNothing)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("other.db3"), QStringLiteral("CREATE TABLE Unrelated (x);"));
    MessageRecorder recorder;
    ExposedCache cache;
    EXPECT_EQ(cache.openDatabases(folder.dir()), 1);
    EXPECT_EQ(cache.guidItems->count(), 0);
    EXPECT_EQ(cache.hardwareTypes->size(), 0);
    EXPECT_EQ(infosOf(cache).size(), 1);
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DatabaseSet, ClosingKeepsWhatWasRead)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), oneDevice);
    MessageRecorder recorder;
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    cache.closeDatabases();
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("a.db3")));
    EXPECT_TRUE(infosOf(cache).isEmpty());
    EXPECT_EQ(cache.deviceModels(), QStringList{QStringLiteral("Talvo")});
    EXPECT_EQ(cache.connectionName(0xC7000005), QStringLiteral("a.db3"));
    EXPECT_TRUE(cache.connectionHasBoxNumber.contains(QStringLiteral("a.db3")));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DatabaseSet, ClearingKeepsTheSetAndTheLevels)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"),
               oneDevice + QStringLiteral("CREATE TABLE ObjectClasses (Id, OcaClassId, Description);"
                                          "INSERT INTO ObjectClasses VALUES (9, '1.2', '');"));
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    ASSERT_NE(cache.objectClassItems->itemByClassId(9), nullptr);
    cache.setGuidSupportedLevel(2);
    cache.setDevicePropertyFilterAccessLevel(3);
    cache.setHardwareType(4, QStringLiteral("Talvo"));
    cache.clear();
    EXPECT_EQ(cache.guidItems->count(), 0);
    EXPECT_TRUE(cache.guidConnections.isEmpty());
    EXPECT_EQ(cache.hardwareTypes->size(), 0);
    EXPECT_EQ(cache.objectClassItems->itemByClassId(9), nullptr);
    EXPECT_EQ(cache.connectionNames, QStringList{QStringLiteral("a.db3")});
    EXPECT_TRUE(cache.connectionHasBoxNumber.contains(QStringLiteral("a.db3")));
    EXPECT_EQ(cache.guidSupportedLevel(), 2);
    EXPECT_EQ(cache.devicePropertyFilterAccessLevel(), 3);
    EXPECT_EQ(cache.guidItems->currentAccessLevel(), 2);
}

TEST(DatabaseSet, TheDestructorRemovesTheConnections)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), oneDevice);
    {
        CDriverCache cache;
        cache.openDatabases(folder.dir());
        EXPECT_TRUE(QSqlDatabase::contains(QStringLiteral("a.db3")));
    }
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("a.db3")));
}

TEST(DatabaseSet, AConnectionThatWasClosedFromOutsideIsOpenedAgain)
{
    DatabaseFolder plain;
    plain.add(QStringLiteral("a.db3"), oneDevice);
    DatabaseFolder encrypted;
    encrypted.addFile(QStringLiteral("a.db3"), QByteArray());
    kestrova::sqlcipher::encryptDatabase(plain.path(QStringLiteral("a.db3")),
                                         encrypted.path(QStringLiteral("a.db3")));
    for (DatabaseFolder const * const folder : {&plain, &encrypted}) {
        SCOPED_TRACE(folder == &plain ? "plain" : "encrypted");
        MessageRecorder recorder;
        ExposedCache cache;
        ASSERT_EQ(cache.openDatabases(folder->dir()), 1);
        QSqlDatabase::database(QStringLiteral("a.db3"), false).close();
        cache.init();
        EXPECT_EQ(cache.deviceModels(), QStringList{QStringLiteral("Talvo")});
        EXPECT_EQ(infosOf(cache).first().filePath(), folder->path(QStringLiteral("a.db3")));
        EXPECT_EQ(recorder.messages(), QStringList());
    }
}

TEST(DatabaseSet, AConnectionThatCannotBeOpenedAgainIsGone)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), oneDevice);
    MessageRecorder recorder;
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
    QSqlDatabase::database(QStringLiteral("a.db3"), false).close();
    folder.addFile(QStringLiteral("a.db3"), "no database");
    cache.init();
    EXPECT_TRUE(cache.deviceModels().isEmpty());
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("a.db3")));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DatabaseSet, ReadsTheVersionByPosition)
{
    struct Row {
        char const * name;
        char const * sql;
        CVersionNumber version;
    };

    Row const rows[] = {
        {"as it stands",
         "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES (1, 2, 300);",
         {1, 2, 300}},
        {"numbers as texts",
         "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES ('3', '4', '5');",
         {3, 4, 5}},
        {"the first row only",
         "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES (1, 2, 3), (9, 9, 9);",
         {1, 2, 3}},
        {"cut to their bytes",
         "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES (257, 258, 65539);",
         {1, 2, 3}},
        {"whatever the columns are called",
         "CREATE TABLE Version (Bugfix, Minor, Major, More); INSERT INTO Version VALUES (1, 2, 3, 4);",
         {1, 2, 3}},
        {"fewer columns", "CREATE TABLE Version (a); INSERT INTO Version VALUES (7);", {7, 0, 0}},
        {"no row", "CREATE TABLE Version (a, b, c);", {0, 0, 0}},
        {"no table", "", {0, 0, 0}},
        {"no numbers",
         "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES ('x', NULL, x'00ff');",
         {0, 0, 0}},
        {"negative numbers are no unsigned ones",
         "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES (1, 2, '-3');",
         {1, 2, 0}},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        DatabaseFolder folder;
        folder.add(QStringLiteral("a.db3"), QLatin1String(row.sql));
        MessageRecorder recorder;
        CDriverCache cache;
        ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
        QList<CDriverDatabaseInfo> const infos = infosOf(cache);
        ASSERT_EQ(infos.size(), 1);
        EXPECT_EQ(infos.first().versionNumber(), row.version);
        EXPECT_EQ(infos.first().name(), QStringLiteral("a.db3"));
        EXPECT_EQ(infos.first().filePath(), folder.path(QStringLiteral("a.db3")));
        EXPECT_EQ(recorder.messages(), QStringList());
    }
}

TEST(DatabaseSet, DatabaseInfosAppends)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), versionTable(QStringLiteral("INSERT INTO Version VALUES (1, 0, 0);")))
        .add(QStringLiteral("b.db3"), QString());
    CDriverCache cache;
    cache.openDatabases(folder.dir());

    CDriverDatabaseInfo mine;
    mine.setName(QStringLiteral("mine"));
    QList<CDriverDatabaseInfo> list{mine};
    cache.databaseInfos(list);
    cache.databaseInfos(list);
    EXPECT_EQ(namesOf(list).join(QLatin1Char(' ')), QStringLiteral("mine a.db3 b.db3 a.db3 b.db3"));
}

TEST(DatabaseSet, FindsAColumnByItsExactName)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), QStringLiteral("CREATE TABLE Things (One, Two, [Thr ee]);"));
    MessageRecorder recorder;
    CDriverCache cache;
    cache.openDatabases(folder.dir());
    QSqlDatabase db = QSqlDatabase::database(QStringLiteral("a.db3"), false);

    struct Row {
        char const * column;
        char const * table;
        int position;
    };

    Row const rows[] = {
        {"One", "Things", 0},   {"Two", "Things", 1},    {"Thr ee", "Things", 2},  {"two", "Things", -1},
        {"Four", "Things", -1}, {"", "Things", -1},      {"One", "things", 0},     {"One", "Missing", -1},
        {"One", "", -1},        {"One", "Things)--", 0}, {"One", "no (table", -1},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(std::string(row.table) + "." + row.column);
        EXPECT_EQ(cache.GetIndexOfColumn(QLatin1String(row.column), QLatin1String(row.table), db),
                  row.position);
    }
    db.close();
    EXPECT_EQ(cache.GetIndexOfColumn(QStringLiteral("One"), QStringLiteral("Things"), db), -1) << "closed";
    EXPECT_EQ(cache.GetIndexOfColumn(QStringLiteral("One"), QStringLiteral("Things"), QSqlDatabase()), -1)
        << "invalid";
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DatabaseSet, AnotherSupportedLevelReadsAnew)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"),
               QStringLiteral(
                   "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
                   "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 1), ('C7000305', 'Talvo', '', 3);"));
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    EXPECT_EQ(cache.determineDriverGuid(0xC7000905), CDeviceGuid(0xC7000005));

    cache.setHardwareType(9, QStringLiteral("forgotten"));
    cache.setGuidSupportedLevel(3);
    EXPECT_EQ(cache.guidSupportedLevel(), 3);
    EXPECT_EQ(cache.determineDriverGuid(0xC7000905), CDeviceGuid(0xC7000305));
    EXPECT_EQ(cache.connectionName(0xC7000305), QStringLiteral("a.db3"));
    EXPECT_EQ(cache.hardwareTypeString(9), QString());
}

TEST(DatabaseSet, TheSameLevelsChangeNothing)
{
    ExposedCache cache;
    cache.setHardwareType(9, QStringLiteral("kept"));
    cache.setGuidSupportedLevel(0);
    EXPECT_EQ(cache.guidItems->currentAccessLevel(), 1) << "level 0 is the cache's own, so nothing happens";
    cache.setDevicePropertyFilterAccessLevel(0);
    EXPECT_EQ(cache.hardwareTypeString(9), QStringLiteral("kept"));
}

TEST(DatabaseSet, LevelOneReloadsWithTheListUnchanged)
{
    ExposedCache cache;
    cache.setHardwareType(9, QStringLiteral("forgotten"));
    cache.setGuidSupportedLevel(1);
    EXPECT_EQ(cache.guidItems->currentAccessLevel(), 1);
    EXPECT_EQ(cache.hardwareTypeString(9), QString());
}

TEST(DatabaseSet, AnotherFilterLevelReadsAnewToo)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), oneDevice);
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    cache.setHardwareType(9, QStringLiteral("forgotten"));
    cache.setDevicePropertyFilterAccessLevel(2);
    EXPECT_EQ(cache.devicePropertyFilterAccessLevel(), 2);
    EXPECT_EQ(cache.hardwareTypeString(9), QString());
    EXPECT_EQ(cache.deviceModels(), QStringList{QStringLiteral("Talvo")});
    EXPECT_EQ(cache.guidSupportedLevel(), 0);
}
