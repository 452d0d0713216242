#include "exposedCache.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace kestrova::test::propertyFilters {

namespace {

QString const names = QStringLiteral("CREATE TABLE Names (Name);");
QString const table = QStringLiteral("CREATE TABLE DevicePropertyFilter (FilterName, Expression, Access);");

struct PropertyFilters : ::testing::Test {
    void open() { ASSERT_GT(cache.openDatabases(folder.dir()), 0); }

    QStringList filters()
    {
        QStringList all = cache.enumDevicePropertyFilter();
        all.sort();
        return all;
    }

    DatabaseFolder folder;
    ExposedCache cache;
    MessageRecorder recorder;
};

class ExposedStore : public CDriverCachePropertyFilter {
public:
    using CDriverCachePropertyFilter::filters;
};

} // namespace

static_assert(std::is_same_v<decltype(ExposedStore::filters), QHash<QString, CDevicePropertyFilterItem *> *>);

TEST_F(PropertyFilters, GiveWhatTheirStatementsGive)
{
    folder.add(
        QStringLiteral("a.db3"),
        names + table +
            QStringLiteral("INSERT INTO Names VALUES ('Eq_Fg'), ('Eq_Q'), ('Eq_Fg');"
                           "INSERT INTO DevicePropertyFilter VALUES ('Eq', 'SELECT Name, 1 FROM Names', 0),"
                           "('None', 'SELECT Name FROM Names WHERE 0', 0);"));
    open();
    EXPECT_EQ(filters(), (QStringList{QStringLiteral("Eq"), QStringLiteral("None")}));
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("Eq")),
              (QStringList{QStringLiteral("Eq_Fg"), QStringLiteral("Eq_Q"), QStringLiteral("Eq_Fg")}))
        << "with its own duplicates";
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("None")), QStringList());
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("eq")), QStringList()) << "case matters";
    EXPECT_EQ(cache.propertyFilter->devicePropertyFilterExpression(QStringLiteral("Eq"), 0, {}),
              QStringLiteral("SELECT Name, 1 FROM Names"));
    EXPECT_TRUE(cache.propertyFilter->devicePropertyFilterExpression(QStringLiteral("Eq2"), 0, {}).isNull());
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(PropertyFilters, OfSeveralDatabasesAreMerged)
{
    folder.add(
        QStringLiteral("a.db3"),
        names + table +
            QStringLiteral("INSERT INTO Names VALUES ('a'), ('b'), ('a');"
                           "INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT Name FROM Names', 1);"));
    folder.add(
        QStringLiteral("b.db3"),
        names + table +
            QStringLiteral("INSERT INTO Names VALUES ('b'), ('c'), ('c');"
                           "INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT Name FROM Names ', 0), "
                           "('G', 'SELECT Name FROM Names', 0);"));
    cache.setDevicePropertyFilterAccessLevel(1);
    open();
    EXPECT_EQ(
        cache.devicePropertyFilter(QStringLiteral("F")),
        (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("c")}));
    EXPECT_EQ(cache.propertyFilter->devicePropertyFilterExpression(QStringLiteral("F"), 1, {}),
              QStringLiteral("SELECT Name FROM Names"))
        << "the first database's";
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("G")),
              (QStringList{QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("c")}));
}

TEST_F(PropertyFilters, OfOneNameInOneDatabaseAreMergedToo)
{
    folder.add(QStringLiteral("a.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES "
                                      "('F', 'SELECT ''a'' UNION ALL SELECT ''b''', 0), "
                                      "('F', 'SELECT ''b'' UNION ALL SELECT ''c''', 0);"));
    open();
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("F")),
              (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
    EXPECT_EQ(cache.propertyFilter->devicePropertyFilterExpression(QStringLiteral("F"), 0, {}),
              QStringLiteral("SELECT 'a' UNION ALL SELECT 'b'"))
        << "the first row's";
}

TEST_F(PropertyFilters, AreThoseOfTheFirstRowThatTheLevelShows)
{
    folder.add(QStringLiteral("a.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('Row', 'SELECT 1', 2), "
                                      "('Row', 'SELECT 2', 0), ('Database', 'SELECT 1', 2);"));
    folder.add(QStringLiteral("b.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('Row', 'SELECT 3', 0), "
                                      "('Database', 'SELECT 4', 0);"));
    open();
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("Row")),
              (QStringList{QStringLiteral("2"), QStringLiteral("3")}));
    EXPECT_EQ(cache.propertyFilter->devicePropertyFilterExpression(QStringLiteral("Row"), 0, {}),
              QStringLiteral("SELECT 2"));
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("Database")), QStringList{QStringLiteral("4")});
    EXPECT_EQ(cache.propertyFilter->devicePropertyFilterExpression(QStringLiteral("Database"), 0, {}),
              QStringLiteral("SELECT 4"));
}

TEST_F(PropertyFilters, AreVisibleFromTheirLevelOn)
{
    folder.add(QStringLiteral("a.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('Zero', 'SELECT 0', 0), "
                                      "('Three', 'SELECT 3', 3), ('256', 'SELECT 1', 256), "
                                      "('-1', 'SELECT 1', -1), ('Null', 'SELECT 1', NULL);"));
    open();
    EXPECT_EQ(filters(), (QStringList{QStringLiteral("256"), QStringLiteral("Null"), QStringLiteral("Zero")}))
        << "levels are cut to their low byte";
    cache.setDevicePropertyFilterAccessLevel(2);
    EXPECT_FALSE(filters().contains(QStringLiteral("Three")));
    cache.setDevicePropertyFilterAccessLevel(3);
    EXPECT_TRUE(filters().contains(QStringLiteral("Three")));
    cache.setDevicePropertyFilterAccessLevel(254);
    EXPECT_FALSE(filters().contains(QStringLiteral("-1")));
    cache.setDevicePropertyFilterAccessLevel(255);
    EXPECT_TRUE(filters().contains(QStringLiteral("-1")));
}

TEST_F(PropertyFilters, WithoutAColumnForTheLevelAreVisibleAtEveryLevel)
{
    folder.add(QStringLiteral("a.db3"),
               QStringLiteral("CREATE TABLE DevicePropertyFilter (FilterName, Expression);"
                              "INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT 1');"));
    open();
    EXPECT_EQ(filters(), QStringList{QStringLiteral("F")});
}

TEST_F(PropertyFilters, FindTheColumnForTheLevelInAnyCase)
{
    folder.add(QStringLiteral("a.db3"),
               QStringLiteral("CREATE TABLE devicepropertyfilter (filtername, expression, ACCESS);"
                              "INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT 1', 3);"));
    open();
    EXPECT_EQ(filters(), QStringList());
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(PropertyFilters, WithFaultyStatementsHaveNoProperties)
{
    folder.add(QStringLiteral("a.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('Faulty', 'SELECT', 0), "
                                      "('Empty', '', 0), ('Null', NULL, 0), ('Blank', ' ', 0), "
                                      "('NoTable', 'SELECT Name FROM Nowhere', 0), "
                                      "('Two', 'SELECT 1; SELECT 2', 0), "
                                      "('Writing', 'CREATE TABLE T (A)', 0), ('Comment', '-- nothing', 0), "
                                      "('Bytes', x'53454c454354ff00', 0);"));
    folder.add(QStringLiteral("b.db3"),
               table +
                   QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('Faulty', 'SELECT ''x''', 0);"));
    open();
    EXPECT_EQ(filters().size(), 9);
    for (QString const & filter : filters()) {
        QStringList const expected =
            filter == QStringLiteral("Faulty") ? QStringList{QStringLiteral("x")} : QStringList();
        EXPECT_EQ(cache.devicePropertyFilter(filter), expected) << qPrintable(filter);
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

struct ExecutedStatement {
    char const * name;
    char const * sql;
    QStringList properties;
};

TEST_F(PropertyFilters, ExecuteTheirStatementsAsTheyStand)
{
    QStringList const both{QStringLiteral("Eq_Fg"), QStringLiteral("Eq_Q")};
    ExecutedStatement const rows[] = {
        {"WordInAComment", "SELECT Name FROM Names /* doc:x */", both},
        {"WordInAHead", "/* see :manual, $1 and @2? */ SELECT Name FROM Names", both},
        {"WordAtTheEndOfALine", "SELECT Name -- :all\nFROM Names", both},
        {"WordInAName", R"sql(SELECT Name AS ":x" FROM Names)sql", both},
        {"WordInAText", "SELECT ':x?'", {QStringLiteral(":x?")}},
        {"Semicolon", "SELECT Name FROM Names ; ", both},
        {"NamedPlace", "SELECT coalesce(:x, 'n')", {}},
        {"PlaceOfAnotherKind", "SELECT coalesce($x, @y, 'n')", {}},
        {"Place", "SELECT coalesce(?, 'n')", {}},
        {"NumberedPlace", "SELECT coalesce(?2, 'n')", {}},
        {"PlaceThatDecidesNothing", "SELECT Name FROM Names WHERE 1 OR Name = :x", {}},
    };
    QString sql = names + table + QStringLiteral("INSERT INTO Names VALUES ('Eq_Fg'), ('Eq_Q');");
    for (ExecutedStatement const & row : rows)
        sql += QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('%1', '%2', 0);")
                   .arg(QLatin1String(row.name),
                        QString::fromLatin1(row.sql).replace(QStringLiteral("'"), QStringLiteral("''")));
    folder.add(QStringLiteral("a.db3"), sql);
    open();
    for (ExecutedStatement const & row : rows) {
        EXPECT_EQ(cache.devicePropertyFilter(QLatin1String(row.name)), row.properties) << row.name;
        EXPECT_EQ(cache.devicePropertyFilterByExpression(QLatin1String(row.sql)), row.properties) << row.name;
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(PropertyFilters, ThatCannotBeReadAreReportedAndSkipped)
{
    folder.add(QStringLiteral("a.db3"),
               QStringLiteral("CREATE TABLE DevicePropertyFilter (FilterName, Statement, Access);"
                              "INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT 1', 0);"));
    folder.add(QStringLiteral("b.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('G', 'SELECT 1', 0);"));
    open();
    EXPECT_EQ(filters(), QStringList{QStringLiteral("G")});
    ASSERT_EQ(recorder.messages().size(), 1);
    QString const message = recorder.messages().first();
    QString const expected =
        QStringLiteral("critical: Error No query Unable to fetch row (type: 1) accessing "
                       "project database in src/cache/driverCachePropertyFilter.cpp ");
    EXPECT_EQ(message.left(expected.size()), expected);
    EXPECT_GT(message.mid(expected.size()).toInt(), 0) << "the line";
    EXPECT_EQ(recorder.sources(), QStringList{QString()}) << "no other place is given";
    filters();
    EXPECT_EQ(recorder.messages().size(), 1) << "the store is filled by now";
}

TEST_F(PropertyFilters, AreReadOnceWhenThereAreAny)
{
    folder.add(QStringLiteral("a.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT 1', 0);"));
    open();
    EXPECT_EQ(filters(), QStringList{QStringLiteral("F")});
    cache.closeDatabases();
    EXPECT_EQ(cache.devicePropertyFilter(QStringLiteral("F")), QStringList{QStringLiteral("1")});
    cache.clear();
    EXPECT_EQ(filters(), QStringList());
}

TEST_F(PropertyFilters, AreReadAtEveryQuestionWhileThereAreNone)
{
    CDriverCachePropertyFilter store;
    folder.add(QStringLiteral("a.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT 1', 2);"));
    open();
    QStringList const connections{QStringLiteral("a.db3")};
    EXPECT_EQ(store.enumDevicePropertyFilter(1, connections), QStringList());
    EXPECT_EQ(store.devicePropertyFilter(QStringLiteral("F"), 1, connections), QStringList());
    EXPECT_EQ(store.devicePropertyFilter(QStringLiteral("F"), 2, connections),
              QStringList{QStringLiteral("1")});
    EXPECT_EQ(store.devicePropertyFilter(QStringLiteral("F"), 0, connections),
              QStringList{QStringLiteral("1")})
        << "the level of the first answer stays";
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(PropertyFilters, OfConnectionsThatAreNoneAreNone)
{
    EXPECT_EQ(filters(), QStringList());
    CDriverCachePropertyFilter store;
    EXPECT_EQ(store.enumDevicePropertyFilter(9, {QString(), QStringLiteral("none.db3")}), QStringList());
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(PropertyFilters, CopiedShareTheStore)
{
    auto * const original = new CDriverCachePropertyFilter;
    folder.add(QStringLiteral("a.db3"),
               table + QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('F', 'SELECT 1', 0);"));
    open();
    CDriverCachePropertyFilter const copy(*original);
    original->readFiltersFromDatabase(0, {QStringLiteral("a.db3")});
    EXPECT_EQ(const_cast<CDriverCachePropertyFilter &>(copy).enumDevicePropertyFilter(0, {}),
              QStringList{QStringLiteral("F")});
    // The copy, going out of scope, takes the store with it; its source must not be destroyed as well.
    ::operator delete(original);
}

TEST_F(PropertyFilters, ByAnExpressionComeFromAllDatabases)
{
    folder.add(QStringLiteral("a.db3"),
               names + QStringLiteral("INSERT INTO Names VALUES ('x'), ('y'), ('x');"));
    folder.add(QStringLiteral("b.db3"), QStringLiteral("CREATE TABLE Other (A);"));
    folder.add(QStringLiteral("c.db3"),
               names + QStringLiteral("INSERT INTO Names VALUES ('y'), ('z'), (NULL), (5);"));
    open();
    EXPECT_EQ(cache.devicePropertyFilterByExpression(QStringLiteral("SELECT Name FROM Names")),
              (QStringList{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QString(),
                           QStringLiteral("5")}));
    EXPECT_EQ(cache.devicePropertyFilterByExpression(QStringLiteral("SELECT 'a%' UNION ALL SELECT '*'")),
              (QStringList{QStringLiteral("a%"), QStringLiteral("*")}));
    for (char const * faulty : {"", " ", ";", "SELECT", "Names", "SELECT Name FROM Nowhere",
                                "DROP TABLE Names", "SELECT 1; SELECT 2", "ATTACH 'x' AS y"})
        EXPECT_EQ(cache.devicePropertyFilterByExpression(QString::fromLatin1(faulty)), QStringList())
            << faulty;
    EXPECT_EQ(filters(), QStringList()) << "nothing is stored";
    EXPECT_EQ(recorder.messages(), QStringList());
    cache.closeDatabases();
    EXPECT_EQ(cache.devicePropertyFilterByExpression(QStringLiteral("SELECT 1")), QStringList());
    EXPECT_EQ(recorder.messages(), QStringList());
}

} // namespace kestrova::test::propertyFilters
