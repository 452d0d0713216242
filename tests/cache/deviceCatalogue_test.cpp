#include "exposedCache.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace kestrova::test::deviceCatalogue {

namespace {

QString const olderGuids =
    QStringLiteral("CREATE TABLE Guids (GUID, DeviceType, Version, Access);INSERT INTO Guids VALUES ");
QString const newerGuids = QStringLiteral(
    "CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType);INSERT INTO Guids VALUES ");
QString const hardwareTypes = QStringLiteral("CREATE TABLE Hardwaretypes (Type, DeviceType);"
                                             "INSERT INTO Hardwaretypes VALUES ");

/// A cache on one database of that SQL text.
struct OneDatabase {
    explicit OneDatabase(QString const & sql)
    {
        folder.add(QStringLiteral("a.db3"), sql);
        EXPECT_EQ(cache.openDatabases(folder.dir()), 1);
    }

    DatabaseFolder folder;
    ExposedCache cache;
};

QString typeOf(CDriverCache const & cache, quint32 guid)
{
    QString type = QStringLiteral("(none)");
    cache.deviceTypeOnGuid(guid, type);
    return type;
}

} // namespace

TEST(DeviceCatalogue, ReadsTheOlderTableWithOnoTypeOne)
{
    OneDatabase const database(olderGuids + QStringLiteral("('C7010205', 'Talvo', '1.2.0', 1);"));
    ExposedCache const & cache = database.cache;
    EXPECT_EQ(cache.guidItems->count(), 1);
    EXPECT_EQ(cache.guidItems->OnoType(0xC7010205), 1);
    EXPECT_EQ(cache.deviceGuidAccessLevel(0xC7010205), 1);
    EXPECT_EQ(cache.guidConnections.value(0xC7010205), QStringLiteral("a.db3"));
}

TEST(DeviceCatalogue, ReadsOnoTypeWhereThereIsOne)
{
    OneDatabase const database(newerGuids + QStringLiteral("('C7000005', 'Talvo', '', 1, 3),"
                                                           "('C7000105', 'Talvo', '', 1, 258),"
                                                           "('C7000205', 'Talvo', '', 1, NULL);"));
    EXPECT_EQ(database.cache.guidItems->OnoType(0xC7000005), 3);
    EXPECT_EQ(database.cache.guidItems->OnoType(0xC7000105), 2) << "cut to its low byte";
    EXPECT_EQ(database.cache.guidItems->OnoType(0xC7000205), 0);
}

TEST(DeviceCatalogue, TakesOnoTypeInAnotherCaseForTheOlderTable)
{
    OneDatabase const database(
        QStringLiteral("CREATE TABLE Guids (GUID, DeviceType, Version, Access, onotype);"
                       "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 1, 3);"));
    EXPECT_EQ(database.cache.guidItems->OnoType(0xC7000005), 1);
}

TEST(DeviceCatalogue, LeavesOutRowsThatAreNoDevices)
{
    struct Row {
        char const * name;
        char const * guid;
        int items;
    };

    Row const rows[] = {
        {"a device", "'C7000005'", 1},
        {"lower case passes", "'c7000005'", 1},
        {"another prefix", "'C6000005'", 0},
        {"type 160", "'C70001A0'", 0},
        {"type 3", "'C7000003'", 0},
        {"too short", "'C705'", 0},
        {"too long", "'C700000500'", 0},
        {"no number", "'C7000X05'", 0},
        {"empty", "''", 0},
        {"null", "NULL", 0},
        {"a number", "3338665989", 0},
        {"bytes", "x'433730303030303500FF'", 0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        MessageRecorder recorder;
        OneDatabase const database(olderGuids +
                                   QStringLiteral("(%1, 'Talvo', '', 1);").arg(QLatin1String(row.guid)));
        EXPECT_EQ(database.cache.guidItems->count(), row.items);
        EXPECT_EQ(database.cache.guidConnections.size(), row.items);
        EXPECT_EQ(recorder.messages(), QStringList());
    }
}

TEST(DeviceCatalogue, TheFirstDatabaseWithAGuidWins)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), olderGuids + QStringLiteral("('C7000005', 'First', '', 2);"))
        .add(QStringLiteral("b.db3"), newerGuids + QStringLiteral("('C7000005', 'Second', '', 1, 9),"
                                                                  "('C7000105', 'Second', '', 1, 9);"));
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    EXPECT_EQ(cache.connectionName(0xC7000005), QStringLiteral("a.db3")) << "also though that row is hidden";
    EXPECT_EQ(cache.deviceGuidAccessLevel(0xC7000005), 2);
    EXPECT_EQ(cache.guidItems->OnoType(0xC7000005), 1);
    EXPECT_EQ(cache.connectionName(0xC7000105), QStringLiteral("b.db3"))
        << "each version has the database that describes it";
    EXPECT_EQ(typeOf(cache, 0xC7000105), QStringLiteral("First"));
}

TEST(DeviceCatalogue, AGuidTwiceInOneDatabaseStandsOnce)
{
    OneDatabase const database(
        olderGuids + QStringLiteral("('C7000005', 'First', '', 1), ('C7000005', 'Second', '', 1);"));
    EXPECT_EQ(database.cache.guidItems->count(), 1);
    EXPECT_EQ(typeOf(database.cache, 0xC7000005), QStringLiteral("First"));
}

TEST(DeviceCatalogue, ATypeWithAllRowsHiddenIsNoDeviceThoughItIsCounted)
{
    OneDatabase database(olderGuids + QStringLiteral("('C7000005', 'Talvo', '', 2);"));
    EXPECT_EQ(database.cache.determineDriverGuid(0xC7000005), CDeviceGuid(0));
    EXPECT_EQ(database.cache.guidItems->count(), 1);
    EXPECT_EQ(database.cache.connectionName(0xC7000005), QStringLiteral("a.db3"));
}

TEST(DeviceCatalogue, ConnectionNameNeedsTheExactGuid)
{
    OneDatabase database(olderGuids + QStringLiteral("('C7000005', 'Talvo', '', 1);"));
    EXPECT_EQ(database.cache.connectionName(0xC7000105), QString());
    EXPECT_EQ(database.cache.connectionName(0), QString());
}

TEST(DeviceCatalogue, ForwardsToTheList)
{
    OneDatabase const database(olderGuids + QStringLiteral("('C7000005', 'Talvo', '', 1),"
                                                           "('C7000305', 'Talvo', '', 0);"));
    CDriverCache const & cache = database.cache;
    CDeviceGuid guid;
    EXPECT_EQ(cache.determineDriverGuid(0xC7000905), CDeviceGuid(0xC7000305));
    EXPECT_EQ(cache.deviceGuidAccessLevel(0xC7000905), 0);
    EXPECT_EQ(typeOf(cache, 0xC7000905), QStringLiteral("Talvo"));
    EXPECT_TRUE(cache.guidOnDeviceType(QStringLiteral("Talvo"), guid));
    EXPECT_EQ(guid, CDeviceGuid(0xC7000005));
    EXPECT_EQ(cache.deviceModels(), QStringList{QStringLiteral("Talvo")});
}

TEST(DeviceCatalogue, AddGuidItemTellsWhetherItWasTaken)
{
    ExposedCache cache;
    CDriverCacheGuidItem refused;
    EXPECT_FALSE(cache.addGuidItem(&refused));
    auto * const taken = new CDriverCacheGuidItem(0xC7000005, QString(), QString(), QString(),
                                                  CDriverCacheGuidItem::GuidAccess(1));
    EXPECT_TRUE(cache.addGuidItem(taken));
}

TEST(DeviceCatalogue, ALevelChangeRestoresDatabaseOrder)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), olderGuids + QStringLiteral("('C7010205', 'First', '', 1);"))
        .add(QStringLiteral("b.db3"), olderGuids + QStringLiteral("('C7020205', 'Second', '', 1);"));
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    for (int const level : {1, 2, 3, 2, 1}) {
        cache.setGuidSupportedLevel(static_cast<unsigned char>(level));
        EXPECT_EQ(cache.determineDriverGuid(0xC7000905), CDeviceGuid(0xC7010205)) << "level " << level;
        EXPECT_EQ(cache.guidConnections.size(), 2);
    }
}

TEST(HardwareTypes, TheLastRowOfANumberStands)
{
    DatabaseFolder folder;
    folder
        .add(QStringLiteral("a.db3"),
             hardwareTypes + QStringLiteral("(1, 'Talvo'), (1, 'Hesko'), (4, 'Zerin'), (257, 'Wrapped');"))
        .add(QStringLiteral("b.db3"), hardwareTypes + QStringLiteral("(4, 'Later');"));
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    EXPECT_EQ(cache.hardwareTypeString(1), QStringLiteral("Wrapped")) << "the number is cut to its low byte";
    EXPECT_EQ(cache.hardwareTypeString(4), QStringLiteral("Later"));
    EXPECT_EQ(cache.hardwareTypeString(2), QString()) << "a gap is empty";
    EXPECT_EQ(cache.hardwareTypeString(5), QString()) << "behind the end is empty";
    EXPECT_EQ(cache.hardwareTypes->size(), 5);
}

TEST(HardwareTypes, AreEmptyInAnEmptyCatalogue)
{
    CDriverCache const cache;
    EXPECT_EQ(cache.hardwareTypeString(0), QString());
    EXPECT_EQ(cache.hardwareTypeString(255), QString());
}

TEST(HardwareTypes, CanBeSetAtBothEnds)
{
    ExposedCache cache;
    cache.setHardwareType(255, QStringLiteral("last"));
    cache.setHardwareType(0, QStringLiteral("first"));
    EXPECT_EQ(cache.hardwareTypes->size(), 256);
    EXPECT_EQ(cache.hardwareTypeString(255), QStringLiteral("last"));
    EXPECT_EQ(cache.hardwareTypeString(0), QStringLiteral("first"));
}

TEST(DeviceCatalogue, SurvivesAnyBytesInAnyColumn)
{
    QStringList const values{QStringLiteral("NULL"),
                             QStringLiteral("''"),
                             QStringLiteral("x''"),
                             QStringLiteral("x'00'"),
                             QStringLiteral("x'FFFEFDC3'"),
                             QStringLiteral("9223372036854775807"),
                             QStringLiteral("-1"),
                             QStringLiteral("1e308"),
                             QStringLiteral("-1e999"),
                             QStringLiteral("'text'"),
                             QStringLiteral("cast(x'C328A0' as text)"),
                             QStringLiteral("zeroblob(100000)"),
                             QStringLiteral("hex(zeroblob(50000))")};
    QString sql = QStringLiteral("CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType);"
                                 "CREATE TABLE Hardwaretypes (Type, DeviceType);"
                                 "CREATE TABLE Version (a, b, c);");
    quint32 guid = 0xC7000010;
    for (QString const & value : values) {
        sql += QStringLiteral(
                   "INSERT INTO Guids VALUES ('%1', %2, %2, %2, %2), (%2, %2, %2, %2, %2);"
                   "INSERT INTO Hardwaretypes VALUES (%2, %2); INSERT INTO Version VALUES (%2, %2, %2);")
                   .arg(guid, 8, 16, QLatin1Char('0'))
                   .arg(value);
        ++guid;
    }
    MessageRecorder recorder;
    OneDatabase database(sql);
    EXPECT_EQ(database.cache.guidItems->count(), values.size());
    QList<CDriverDatabaseInfo> infos;
    database.cache.databaseInfos(infos);
    EXPECT_EQ(infos.first().versionNumber(), CVersionNumber(0, 0, 0));
    EXPECT_EQ(database.cache.hardwareTypeString(0), QString(100000, QLatin1Char('0')));
    EXPECT_EQ(recorder.messages(), QStringList());
}

} // namespace kestrova::test::deviceCatalogue
