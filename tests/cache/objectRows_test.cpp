#include "exposedCache.h"
#include "records/objectDef.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <limits>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace kestrova::test::objectRows {

namespace {

QString const guidText = QStringLiteral("C7000005");

QString const guids = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER, OnoType INTEGER);"
    "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 0, 7);"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);");

QString const newerObjects = QStringLiteral("CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, "
                                            "BoxNumber INTEGER, ObjectNumber INTEGER, ChannelCount "
                                            "INTEGER, RecordCount INTEGER, Min REAL, Max REAL, Step REAL, "
                                            "Format TEXT, Flags INTEGER, Access INTEGER, "
                                            "DefaultValue TEXT, Size INTEGER, TextOffset INTEGER, "
                                            "Description TEXT, Comment TEXT, ClassId INTEGER, WaitTime "
                                            "INTEGER, WaitStates INTEGER);");

/// An object with a value of its own in each column.
QString const wholeObject =
    QStringLiteral("INSERT INTO Objects VALUES (1, 'Gain', 1, 5, 4, 3, -60, 12, 0.5, '%6.1d dB', 35, 21, "
                   "'-12', 2, 40, 'Gain of the "
                   "channel', 'a comment', 9, 250, 6); INSERT INTO guidsandobjects VALUES (1, 'C7000005');");

struct OneDatabase {
    explicit OneDatabase(QString const & sql)
    {
        folder.add(QStringLiteral("a.db3"), sql);
        EXPECT_EQ(cache.openDatabases(folder.dir()), 1);
    }

    CObjectDef read(char const * name, quint32 mask = 0xFFFFFFFF)
    {
        CObjectDef object;
        object.setMask(QFlags<ObjectDefMask>(QFlag(mask)));
        EXPECT_EQ(cache.objectFromDb(QString::fromUtf8(name), guidText, object), TharnNoError);
        return object;
    }

    DatabaseFolder folder;
    ExposedCache cache;
};

} // namespace

TEST(ObjectRow, FillsEveryMember)
{
    OneDatabase database(
        guids + newerObjects + wholeObject +
        QStringLiteral("CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);"
                       "INSERT INTO ObjectClasses VALUES (9, '1.2.3', 'a class');"));
    CObjectDef const object = database.read("Gain");
    EXPECT_EQ(object.name(), QStringLiteral("Gain"));
    EXPECT_EQ(object.BoxNumber(), 1);
    EXPECT_EQ(object.ObjectNumber(), 5);
    EXPECT_EQ(object.channelCount(), 4);
    EXPECT_EQ(object.recordCount(), 3);
    EXPECT_EQ(object.minValue(), -60.0);
    EXPECT_EQ(object.maxValue(), 12.0);
    EXPECT_EQ(object.step(), 0.5);
    EXPECT_EQ(object.format(), QStringLiteral("%6.1d dB"));
    EXPECT_EQ(object.flags(), 35);
    EXPECT_EQ(object.access(), 21);
    EXPECT_EQ(object.defaultValue(), QVariant(-12.0));
    EXPECT_EQ(object.defaultValue().userType(), int(QMetaType::Double));
    EXPECT_EQ(object.size(), 2);
    EXPECT_EQ(object.textOffset(), 40U);
    EXPECT_EQ(object.displayName(), QStringLiteral("Gain of the channel"));
    EXPECT_EQ(object.comment(), QStringLiteral("a comment"));
    EXPECT_EQ(object.classId(), 9);
    EXPECT_EQ(object.ocaClassIdSize(), 3);
    EXPECT_EQ(object.ocaClassId()[2], 3);
    EXPECT_EQ(object.waitTime(), 250);
    EXPECT_EQ(object.waitStates(), 6);
    EXPECT_EQ(object.unit(), QStringLiteral(" dB"));
    EXPECT_EQ(object.objectType(), CObjectDef::ObjectTypeNumber);
    EXPECT_EQ(object.GetOnoType(), 7);
    EXPECT_EQ(object.propertyHash(), 0x4D7FEU) << "the hash of Gain";
}

TEST(ObjectRow, FillsOnlyWhatTheMaskNames)
{
    struct Row {
        char const * member;
        quint32 mask;
        bool (*isFilled)(CObjectDef const &);
    };

    Row const rows[] = {
        {"name", 0x1, [](CObjectDef const & o) { return !o.name().isEmpty(); }},
        {"object number", 0x2, [](CObjectDef const & o) { return o.ObjectNumber() != 0; }},
        {"channel count", 0x4, [](CObjectDef const & o) { return o.channelCount() != 0; }},
        {"record count", 0x8, [](CObjectDef const & o) { return o.recordCount() != 0; }},
        {"minimum", 0x10, [](CObjectDef const & o) { return o.minValue() != 0.0; }},
        {"maximum", 0x20, [](CObjectDef const & o) { return o.maxValue() != 0.0; }},
        {"step", 0x40, [](CObjectDef const & o) { return o.step() != 1.0; }},
        {"format", 0x80, [](CObjectDef const & o) { return !o.format().isEmpty(); }},
        {"flags", 0x100, [](CObjectDef const & o) { return o.flags() != 0; }},
        {"access", 0x400, [](CObjectDef const & o) { return o.access() != 0; }},
        {"default value", 0x800, [](CObjectDef const & o) { return o.defaultValue().isValid(); }},
        {"size", 0x1000, [](CObjectDef const & o) { return o.size() != 0; }},
        {"text offset", 0x2000, [](CObjectDef const & o) { return o.textOffset() != 0; }},
        {"display name", 0x4000, [](CObjectDef const & o) { return !o.displayName().isEmpty(); }},
        {"comment", 0x8000, [](CObjectDef const & o) { return !o.comment().isEmpty(); }},
        {"wait time", 0x20000, [](CObjectDef const & o) { return o.waitTime() != 0; }},
        {"wait states", 0x40000, [](CObjectDef const & o) { return o.waitStates() != 0; }},
        {"OCA class id", 0x400000, [](CObjectDef const & o) { return o.ocaClassIdSize() != 0; }},
        {"class id", 0x800000, [](CObjectDef const & o) { return o.classId() != 0; }},
        {"property hash", 0x1000000, [](CObjectDef const & o) { return o.propertyHash() != 0; }},
        {"box number", 0x4000000, [](CObjectDef const & o) { return o.BoxNumber() != 0; }},
    };
    OneDatabase database(
        guids + newerObjects + wholeObject +
        QStringLiteral("CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);"
                       "INSERT INTO ObjectClasses VALUES (9, '1.2.3', 'a class');"));
    for (Row const & asked : rows) {
        CObjectDef const object = database.read("Gain", asked.mask);
        for (Row const & member : rows)
            EXPECT_EQ(member.isFilled(object), &member == &asked)
                << "asked for " << asked.member << ", " << member.member;
    }
}

TEST(ObjectRow, WithoutTheOnoTypeBitKeepsTheDefaultAsText)
{
    OneDatabase database(guids + newerObjects + wholeObject);
    CObjectDef const object = database.read("Gain", 0xFFFFFFFF & ~0x2000000U);
    EXPECT_EQ(object.defaultValue(), QVariant(QStringLiteral("-12")));
    EXPECT_EQ(object.defaultValue().userType(), int(QMetaType::QString));
    EXPECT_EQ(object.objectType(), CObjectDef::ObjectTypeUnknown);
    EXPECT_EQ(object.unit(), QString());
    EXPECT_EQ(object.GetOnoType(), 0);
}

TEST(ObjectRow, MakesANumberOfTheDefaultValue)
{
    struct Row {
        char const * name;
        char const * value;
        double minimum;
        double maximum;
        double result;
    };

    Row const rows[] = {
        {"a number", "'1.5'", -10, 10, 1.5},
        {"a number out of range", "'99'", -10, 10, 99.0},
        {"nothing, zero in range", "''", -10, 10, 0.0},
        {"nothing, zero below", "''", 2, 10, 2.0},
        {"nothing, zero above", "''", -10, -2, -10.0},
        {"nothing, zero at the bottom", "''", 0, 10, 0.0},
        {"nothing, zero at the top", "''", -10, 0, 0.0},
        {"null", "NULL", 2, 10, 2.0},
        {"no number", "'loud'", 2, 10, 2.0},
        {"a decimal comma is no number", "'1,5'", 2, 10, 2.0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        OneDatabase database(
            guids + newerObjects +
            QStringLiteral(
                "INSERT INTO Objects VALUES (1, 'Gain', 1, 5, 1, 1, %1, %2, 1, '%d', 3, 11, %3, 2, 0, '', "
                "'', 0, 0, 0); INSERT INTO guidsandobjects VALUES (1, 'C7000005');")
                .arg(row.minimum)
                .arg(row.maximum)
                .arg(QString::fromUtf8(row.value)));
        CObjectDef const object = database.read("Gain");
        EXPECT_EQ(object.defaultValue(), QVariant(row.result));
        EXPECT_EQ(object.defaultValue().userType(), int(QMetaType::Double));
    }
}

TEST(ObjectRow, KeepsTheDefaultOfATextObject)
{
    OneDatabase database(
        guids + newerObjects +
        QStringLiteral("INSERT INTO Objects VALUES (1, 'Label', 1, 5, 1, 1, 0, 16, 1, '%s', 3, 11, "
                       "'12', 16, 0, '', '', 0, 0, 0);"
                       "INSERT INTO guidsandobjects VALUES (1, 'C7000005');"));
    CObjectDef const object = database.read("Label");
    EXPECT_EQ(object.defaultValue(), QVariant(QStringLiteral("12")));
    EXPECT_EQ(object.defaultValue().userType(), int(QMetaType::QString));
}

TEST(ObjectRow, IsFoundByNumberWithoutItsChannel)
{
    QString const olderObjects =
        QStringLiteral("CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, ObjectNumber INTEGER);"
                       "INSERT INTO Objects VALUES (1, 'Gain', 261);"
                       "INSERT INTO guidsandobjects VALUES (1, 'C7000005');");

    struct Row {
        char const * schema;
        QString sql;
    };

    for (Row const & row :
         {Row{"with BoxNumber", newerObjects + wholeObject}, Row{"without", olderObjects}}) {
        SCOPED_TRACE(row.schema);
        OneDatabase database(guids + row.sql);
        for (unsigned short const number : {quint16(0x0105), quint16(0x2105), quint16(0xE105)}) {
            CObjectDef object;
            object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
            EXPECT_EQ(database.cache.objectFromDb(number, guidText, object), TharnNoError);
            EXPECT_EQ(object.name(), QStringLiteral("Gain"));
            EXPECT_EQ(object.BoxNumber(), 1);
            EXPECT_EQ(object.ObjectNumber(), 5);
        }
        CObjectDef object;
        EXPECT_EQ(database.cache.objectFromDb(quint16(0x0106), guidText, object), TharnNotFound);
        EXPECT_EQ(database.cache.objectFromDb(quint16(0x1105), guidText, object), TharnNotFound)
            << "another box";
    }
}

TEST(ObjectRow, IsLookedForByTheFormOfNumberThatIsSetForTheConnection)
{
    QString const olderObjects =
        QStringLiteral("CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, ObjectNumber INTEGER);"
                       "INSERT INTO Objects VALUES (1, 'Gain', 261);"
                       "INSERT INTO guidsandobjects VALUES (1, 'C7000005');");
    auto const find = [](ExposedCache & cache) {
        CObjectDef object;
        return cache.objectFromDb(quint16(0x0105), guidText, object);
    };

    OneDatabase older(guids + olderObjects);
    older.cache.connectionHasBoxNumber.clear();
    EXPECT_EQ(find(older.cache), TharnNoError) << "a connection without an entry has one number for both";

    OneDatabase newer(guids + newerObjects + wholeObject);
    QString const connection = QStringLiteral("a.db3");
    EXPECT_EQ(find(newer.cache), TharnNoError);
    newer.cache.connectionHasBoxNumber.insert(connection, false);
    EXPECT_EQ(find(newer.cache), TharnNotFound) << "no row has the number 0x0105 for both";
    newer.cache.connectionHasBoxNumber.insert(connection, true);
    EXPECT_EQ(find(newer.cache), TharnNoError);
}

TEST(ObjectRow, NeedsTheGuidInUpperCaseWhereObjectsAreAssigned)
{
    struct Row {
        char const * assigned;
        TharnError result;
    };

    for (Row const & row : {Row{"c7000005", TharnNotFound}, Row{"C7000005", TharnNoError}}) {
        SCOPED_TRACE(row.assigned);
        OneDatabase database(
            QStringLiteral("CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
                           "INSERT INTO Guids VALUES ('c7000005', 'Talvo', '', 0);"
                           "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT);"
                           "INSERT INTO Objects VALUES (1, 'Gain');"
                           "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
                           "INSERT INTO guidsandobjects VALUES (1, '%1');")
                .arg(QLatin1String(row.assigned)));
        CObjectDef object;
        EXPECT_EQ(database.cache.objectFromDb(QStringLiteral("Gain"), guidText, object), row.result);
    }
}

TEST(ObjectRow, MakesANumberOfTheDefaultValueThatTheRecordBrought)
{
    OneDatabase database(
        guids + newerObjects +
        QStringLiteral("INSERT INTO Objects VALUES (1, 'Gain', 1, 5, 1, 1, 2, 10, 1, '%d', 3, 11, '7', 2, 0, "
                       "'', '', 0, 0, 0); INSERT INTO guidsandobjects VALUES (1, 'C7000005');"));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QVariant const nullInt(QVariant::Int);
    QVariant const nullDouble(QVariant::Double);
#else
    QVariant const nullInt(QMetaType::fromType<int>());
    QVariant const nullDouble(QMetaType::fromType<double>());
#endif
    ASSERT_EQ(nullInt.userType(), int(QMetaType::Int));
    ASSERT_TRUE(nullInt.isNull());
    ASSERT_EQ(nullDouble.userType(), int(QMetaType::Double));
    ASSERT_TRUE(nullDouble.isNull());

    struct Row {
        char const * name;
        QVariant brought;
        double result;
    };

    Row const rows[] = {
        {"a text", QStringLiteral("5.5"), 5.5},
        {"an int", 3, 3.0},
        {"a null double is 0, though it lies outside the range", nullDouble, 0.0},
        {"a null int is no number", nullInt, 2.0},
        {"nothing", QVariant(), 2.0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        CObjectDef object;
        object.setDefaultValue(row.brought);
        object.setMask(QFlags<ObjectDefMask>(ObjectDefOnoType) | ObjectDefMinValue | ObjectDefMaxValue);
        ASSERT_EQ(database.cache.objectFromDb(QStringLiteral("Gain"), guidText, object), TharnNoError);
        EXPECT_EQ(object.defaultValue(), QVariant(row.result));
        EXPECT_EQ(object.defaultValue().userType(), int(QMetaType::Double));
    }
}

TEST(ObjectRow, ConvertsOddValuesAlikeWithEveryQt)
{
    OneDatabase database(
        guids + newerObjects +
        QStringLiteral("INSERT INTO Objects VALUES (1, 'Gain', 1, 5, 4, 3, x'3165343030', '1e400', 0.5, "
                       "x'25730061', -2.5, "
                       "char(160) || '21', 100000.0, 2, -0.5, char(65, 0, 66), x'', 9, 250, 6);"
                       "INSERT INTO guidsandobjects VALUES (1, 'C7000005');"));
    CObjectDef const object = database.read("Gain");
    EXPECT_EQ(object.minValue(), std::numeric_limits<double>::infinity()) << "from bytes";
    EXPECT_EQ(object.maxValue(), std::numeric_limits<double>::infinity()) << "from a text";
    EXPECT_EQ(object.format(), QStringLiteral("%s")) << "bytes end at the first NUL";
    EXPECT_EQ(object.flags(), 65534) << "a half is rounded up: -2";
    EXPECT_EQ(object.access(), 21) << "behind a no-break space";
    EXPECT_EQ(object.textOffset(), 0U) << "a half is rounded up";
    EXPECT_EQ(object.displayName().size(), 3) << "a text keeps its U+0000";
    EXPECT_FALSE(object.comment().isNull()) << "no bytes are an empty text";
    EXPECT_EQ(object.defaultValue(), QVariant(QStringLiteral("100000.0")))
        << "a text object's stays what it is";
}

TEST(ObjectRow, IsTakenFromAnyQueryInTheOrderOfTheColumnsGiven)
{
    OneDatabase database(guids);
    QSqlQuery query(QSqlDatabase::database(QStringLiteral("a.db3"), false));
    ASSERT_TRUE(query.exec(QStringLiteral("SELECT 'first' AS Step, 12.5 AS Name, 77 AS Other, 200")));
    ASSERT_TRUE(query.next());
    QStringList const columns{QStringLiteral("Name"), QStringLiteral("Step"), QStringLiteral("ClassId"),
                              QStringLiteral("Size")};
    unsigned short const before[] = {4, 5};
    CObjectDef object;
    object.setName(QStringLiteral("before"));
    object.setOcaClassId(before, 2);

    database.cache.takeQuery(query, {}, columns, object);
    EXPECT_EQ(object.name(), QStringLiteral("before")) << "nothing was asked for";
    EXPECT_EQ(object.classId(), 0);

    database.cache.takeQuery(query, QFlags<ObjectDefMask>(QFlag(~0U)), columns, object);
    EXPECT_EQ(object.name(), QStringLiteral("first")) << "whatever the query calls its columns";
    EXPECT_EQ(object.step(), 12.5);
    EXPECT_EQ(object.classId(), 77);
    EXPECT_EQ(object.size(), 200);
    EXPECT_EQ(object.ocaClassIdSize(), 2) << "there is no class 77";
    EXPECT_EQ(object.ocaClassId()[1], 5);
}

TEST(ObjectRow, ReadsMissingColumnsAsEmptyWithoutAWord)
{
    MessageRecorder recorder;
    OneDatabase database(
        guids + QStringLiteral("CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, format TEXT);"
                               "INSERT INTO Objects VALUES (1, 'Gain', '%d');"
                               "INSERT INTO guidsandobjects VALUES (1, 'C7000005');"));
    CObjectDef const object = database.read("Gain");
    EXPECT_EQ(object.name(), QStringLiteral("Gain"));
    EXPECT_EQ(object.format(), QString()) << "a column is found by its exact name";
    EXPECT_EQ(object.step(), 0.0);
    EXPECT_EQ(object.waitStates(), 0);
    EXPECT_EQ(object.comment(), QString());
    EXPECT_EQ(object.defaultValue(), QVariant(0.0));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(ObjectRow, ThatIsMissingLeavesTheRecord)
{
    MessageRecorder recorder;
    OneDatabase database(guids + newerObjects + wholeObject);
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    object.setName(QStringLiteral("before"));
    EXPECT_EQ(database.cache.objectFromDb(QStringLiteral("Other"), guidText, object), TharnNotFound);
    EXPECT_EQ(database.cache.objectFromDb(QStringLiteral("gain"), guidText, object), TharnNotFound)
        << "case matters";
    EXPECT_EQ(database.cache.objectFromDb(QStringLiteral("Gain"), QStringLiteral("C7000006"), object),
              TharnFailed);
    database.cache.closeDatabases();
    EXPECT_EQ(database.cache.objectFromDb(QStringLiteral("Gain"), guidText, object), TharnFailed);
    EXPECT_EQ(object.name(), QStringLiteral("before"));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(ObjectRow, IsNotFoundWhereTheStatementFails)
{
    MessageRecorder recorder;
    OneDatabase database(guids);
    CObjectDef object;
    EXPECT_EQ(database.cache.objectFromDb(QStringLiteral("Gain"), guidText, object), TharnNotFound);
    EXPECT_EQ(database.cache.objectFromDb(quint16(1), guidText, object), TharnNotFound);
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(ObjectRow, IsStillReadWhenAnotherCacheHasOpenedTheDatabaseAnew)
{
    OneDatabase database(guids + newerObjects + wholeObject);
    EXPECT_EQ(database.read("Gain").step(), 0.5);
    ExposedCache other;
    ASSERT_EQ(other.openDatabases(database.folder.dir()), 1);
    MessageRecorder recorder;
    EXPECT_EQ(database.read("Gain").step(), 0.5);
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(ObjectRow, IsReadAgainWhenItsConnectionWasLostAndIsBack)
{
    OneDatabase database(guids + newerObjects + wholeObject);
    EXPECT_EQ(database.read("Gain").step(), 0.5);
    QString const connection = QStringLiteral("a.db3");
    QString const path = database.folder.path(connection);
    MessageRecorder recorder;

    QSqlDatabase::database(connection, false).close();
    ASSERT_TRUE(QFile::rename(path, path + QStringLiteral(".away")));
    CObjectDef object;
    EXPECT_EQ(database.cache.objectFromDb(QStringLiteral("Gain"), guidText, object), TharnFailed);
    EXPECT_FALSE(QSqlDatabase::contains(connection));

    ASSERT_TRUE(QFile::rename(path + QStringLiteral(".away"), path));
    ExposedCache other;
    ASSERT_EQ(other.openDatabases(database.folder.dir()), 1);
    EXPECT_EQ(database.read("Gain").step(), 0.5);
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(ObjectRow, TheFirstRowOfSeveralCounts)
{
    OneDatabase database(guids + newerObjects + wholeObject +
                         QStringLiteral("INSERT INTO Objects (id, Name, Step) VALUES (2, 'Gain', 9);"
                                        "INSERT INTO guidsandobjects VALUES (2, 'C7000005');"));
    EXPECT_EQ(database.read("Gain").step(), 0.5);
}

TEST(ObjectClasses, AreReadOnceForAnId)
{
    DatabaseFolder folder;
    QString const table =
        QStringLiteral("CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);"
                       "INSERT INTO ObjectClasses VALUES ");
    folder
        .add(QStringLiteral("a.db3"),
             table + QStringLiteral(
                         "(1, '1.2.3', 'first'), (0, '9', 'none'), (1, '4', 'again'), (300, '5', 'wide');"))
        .add(QStringLiteral("b.db3"), table + QStringLiteral("(1, '7', 'later'), (2, '', 'empty');"));
    ExposedCache cache;
    cache.openDatabases(folder.dir());
    auto const * const first = cache.objectClassItems->itemByClassId(1);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->description(), QStringLiteral("first"));
    EXPECT_EQ(first->fieldCount(), 3);
    EXPECT_EQ(cache.objectClassItems->itemByClassId(0), nullptr);
    EXPECT_EQ(cache.objectClassItems->itemByClassId(300), nullptr);
    ASSERT_NE(cache.objectClassItems->itemByClassId(300 & 0xFF), nullptr) << "cut to its low byte";
    ASSERT_NE(cache.objectClassItems->itemByClassId(2), nullptr);
    EXPECT_EQ(cache.objectClassItems->itemByClassId(2)->fieldCount(), 1);
    EXPECT_EQ(cache.objectClassItems->itemByClassId(2)->fields()[0], 0);
}

TEST(ObjectClasses, WithIdsAboveAByteTakeThePlaceOfOthersAndLeaveNothingBehind)
{
    DatabaseFolder folder;
    folder.add(
        QStringLiteral("a.db3"),
        QStringLiteral("CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);"
                       "INSERT INTO ObjectClasses VALUES (1, '1', ''), (257, '2', ''), (513, '3', ''), "
                       "(256, '4', ''), (512, '5', '');")); // the last two become 0, which finds nothing
    ExposedCache cache;
    ASSERT_EQ(cache.openDatabases(folder.dir()), 1);
    ASSERT_NE(cache.objectClassItems->itemByClassId(1), nullptr);
    EXPECT_EQ(cache.objectClassItems->itemByClassId(1)->fields()[0], 3);
    EXPECT_EQ(cache.objectClassItems->itemByClassId(257), nullptr);
}

TEST(ObjectClasses, AreNotReadWithoutAPlaceForThem)
{
    OneDatabase database(
        guids + QStringLiteral("CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);"
                               "INSERT INTO ObjectClasses VALUES (9, '1.2.3', '');"));
    delete database.cache.objectClassItems;
    database.cache.objectClassItems = nullptr;
    database.cache.fillOcaCLassIdList();
    EXPECT_EQ(database.cache.objectClassItems, nullptr);
}

TEST(ObjectClasses, ParseTheirFields)
{
    struct Row {
        char const * text;
        int count;
        unsigned short first;
        unsigned short second;
    };

    Row const rows[] = {
        {"1.2.3", 3, 1, 2},   {"", 1, 0, 0},
        {"7", 1, 7, 0},       {"1..2", 3, 1, 0},
        {"x.4", 2, 0, 4},     {"65535.65536", 2, 65535, 0},
        {"-1.0x10", 2, 0, 0}, {"1.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16.17.18.19.20", 16, 1, 2},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.text);
        CDriverCacheObjectClassItem const item(5, QString::fromUtf8(row.text), QStringLiteral("text"));
        EXPECT_EQ(item.classId(), 5);
        EXPECT_EQ(item.fieldCount(), row.count);
        EXPECT_EQ(item.fields()[0], row.first);
        EXPECT_EQ(item.fields()[1], row.second);
    }
}

} // namespace kestrova::test::objectRows
