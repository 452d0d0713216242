#include "connectionFixture.h"
#include "sampleDatabase.h"

namespace kestrova::test {

namespace {

class ConnectionLimits : public ConnectionFixture {
protected:
    /// An encrypted database made of \a sql.
    bool openDatabaseOf(QString const & sql)
    {
        QString const file = path(QStringLiteral("limits.db3"));
        makeEncryptedDatabase(file, sql);
        return open(file);
    }
};

struct LimitRow {
    char const * name;
    int id;
    int value;
};

TEST_F(ConnectionLimits, AreSet)
{
    static constexpr LimitRow rows[] = {
        {"length", SQLITE_LIMIT_LENGTH, 16777216},
        {"length of statements", SQLITE_LIMIT_SQL_LENGTH, 65536},
        {"columns", SQLITE_LIMIT_COLUMN, 1000},
        {"depth of expressions", SQLITE_LIMIT_EXPR_DEPTH, 500},
        {"parts of a compound", SQLITE_LIMIT_COMPOUND_SELECT, 100},
        {"instructions", SQLITE_LIMIT_VDBE_OP, 250000},
        {"arguments", SQLITE_LIMIT_FUNCTION_ARG, 100},
        {"attached databases", SQLITE_LIMIT_ATTACHED, 0},
        {"length of patterns", SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 200},
        {"bound values", SQLITE_LIMIT_VARIABLE_NUMBER, 100},
        {"depth of triggers", SQLITE_LIMIT_TRIGGER_DEPTH, 0},
        {"threads", SQLITE_LIMIT_WORKER_THREADS, 0},
    };
    ASSERT_TRUE(openDatabaseOf(sampleSql()));
    for (LimitRow const & row : rows)
        EXPECT_EQ(sqlite3_limit(handle(), row.id, -1), row.value) << row.name;
}

TEST_F(ConnectionLimits, ComeWithDistrustOfTheDatabase)
{
    static constexpr LimitRow rows[] = {
        {"defensive", SQLITE_DBCONFIG_DEFENSIVE, 1},
        {"trusted schema", SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
        {"triggers", SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
        {"extensions", SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
        {"tokenizers", SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, 0},
    };
    ASSERT_TRUE(openDatabaseOf(sampleSql()));
    for (LimitRow const & row : rows) {
        int value = -1;
        sqlite3_db_config(handle(), row.id, -1, &value);
        EXPECT_EQ(value, row.value) << row.name;
    }
    sqlite3_set_authorizer(handle(), nullptr, nullptr); // which does not let anybody ask
    EXPECT_EQ(ask(QStringLiteral("PRAGMA cell_size_check")), "1");
}

struct Bounds {
    char const * name;
    QString largest;
    QString tooLarge;
};

QString repeated(int count, char const * part, char const * between)
{
    return QStringList(QVector<QString>(count, QLatin1String(part)).toList()).join(QLatin1String(between));
}

TEST_F(ConnectionLimits, LetThroughWhatIsWithinThemAndFailTheStatementBeyond)
{
    Bounds const rows[] = {
        {"a value", QStringLiteral("SELECT length(zeroblob(16777216))"),
         QStringLiteral("SELECT length(zeroblob(16777217))")},
        {"a text that grows",
         QStringLiteral("WITH t (x, i) AS (SELECT 'a', 0 UNION ALL SELECT x || x, i + 1 FROM t WHERE i < 23) "
                        "SELECT max(length(x)) FROM t"),
         QStringLiteral("WITH t (x, i) AS (SELECT 'a', 0 UNION ALL SELECT x || x, i + 1 FROM t WHERE i < 25) "
                        "SELECT max(length(x)) FROM t")},
        {"a statement", QStringLiteral("SELECT 1") + QString(65528, QLatin1Char(' ')),
         QStringLiteral("SELECT 1") + QString(65529, QLatin1Char(' '))},
        {"names in a list", QStringLiteral("SELECT 1 IN (%1)").arg(repeated(1500, "'ChStatus_Gain'", ",")),
         QStringLiteral("SELECT 1 IN (%1)").arg(repeated(5000, "'ChStatus_Gain'", ","))},
        {"names joined by OR", QStringLiteral("SELECT %1").arg(repeated(498, "1", " OR ")),
         QStringLiteral("SELECT %1").arg(repeated(502, "1", " OR "))},
        {"columns", QStringLiteral("SELECT %1").arg(repeated(1000, "1", ",")),
         QStringLiteral("SELECT %1").arg(repeated(1001, "1", ","))},
        {"parts of a compound", repeated(100, "SELECT 1", " UNION "), repeated(101, "SELECT 1", " UNION ")},
        {"arguments", QStringLiteral("SELECT max(%1)").arg(repeated(100, "1", ",")),
         QStringLiteral("SELECT max(%1)").arg(repeated(101, "1", ","))},
        {"a pattern", QStringLiteral("SELECT name LIKE '%1' FROM Names").arg(QString(200, QLatin1Char('a'))),
         QStringLiteral("SELECT name LIKE '%1' FROM Names").arg(QString(201, QLatin1Char('a')))},
    };
    ASSERT_TRUE(openDatabaseOf(sampleSql()));
    for (Bounds const & row : rows) {
        EXPECT_NE(ask(row.largest), "error") << row.name;
        EXPECT_EQ(ask(row.tooLarge), "error") << row.name;
        EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 7")), "name of 7") << row.name;
    }
    EXPECT_EQ(messages(), "");
}

TEST_F(ConnectionLimits, LetThroughALargeBlobAndFailOnlyTheRowThatIsTooLong)
{
    ASSERT_TRUE(
        openDatabaseOf(QStringLiteral("CREATE TABLE T (id INTEGER PRIMARY KEY, data BLOB);"
                                      "INSERT INTO T VALUES (1, CAST(printf('%.*c', 16000000, 'x') AS BLOB));"
                                      "INSERT INTO T VALUES (2, CAST(printf('%.*c', 17000000, 'x') AS BLOB));"
                                      "INSERT INTO T VALUES (3, x'010203');")));
    EXPECT_EQ(ask(QStringLiteral("SELECT data FROM T WHERE id = 1")).size(), 16000000);
    EXPECT_EQ(ask(QStringLiteral("SELECT data FROM T WHERE id = 2")), "error");
    EXPECT_EQ(ask(QStringLiteral("SELECT length(data) FROM T WHERE id = 3")), "3");
}

TEST_F(ConnectionLimits, LeaveTheDatabaseReadableWhenATableHasManyColumns)
{
    QStringList columns;
    for (int i = 1; i <= 1000; ++i)
        columns += QStringLiteral("c%1").arg(i);
    ASSERT_TRUE(openDatabaseOf(QStringLiteral("CREATE TABLE T (%1); INSERT INTO T (c1000) VALUES (5);")
                                   .arg(columns.join(QLatin1Char(',')))));
    EXPECT_EQ(ask(QStringLiteral("SELECT c1000 FROM T")), "5");
}

TEST_F(ConnectionLimits, LeaveOutVirtualTables)
{
    ASSERT_TRUE(openDatabaseOf(QStringLiteral("CREATE VIRTUAL TABLE Words USING fts5 (word);"
                                              "INSERT INTO Words VALUES ('one');"
                                              "CREATE VIRTUAL TABLE Boxes USING rtree (id, a, b);"
                                              "CREATE TABLE T (a); INSERT INTO T VALUES (5);")));
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM pragma_table_info('T')")), "error");
    sqlite3_set_authorizer(handle(), nullptr, nullptr); // they are not there, whatever the rules say
    for (char const * const sql :
         {"SELECT word FROM Words", "SELECT id FROM Boxes", "SELECT name FROM dbstat",
          "SELECT sql FROM sqlite_stmt", "SELECT value FROM json_each('[4,5]')"})
        EXPECT_EQ(ask(QLatin1String(sql)), "error") << sql;
    EXPECT_EQ(ask(QStringLiteral("SELECT a FROM T")), "5");
    EXPECT_EQ(messages(), "");
}

TEST_F(ConnectionLimits, KeepViewsFromCallingFunctionsOfTheApplication)
{
    QString const view = QStringLiteral("CREATE VIEW V AS SELECT application();");
    ASSERT_TRUE(openDatabaseOf(view + QStringLiteral("CREATE TABLE T (a);")));
    auto const answer = [](sqlite3_context * context, int, sqlite3_value **) {
        sqlite3_result_int(context, 9);
    };
    ASSERT_EQ(
        sqlite3_create_function(handle(), "application", 0, SQLITE_UTF8, nullptr, answer, nullptr, nullptr),
        SQLITE_OK);
    EXPECT_EQ(ask(QStringLiteral("SELECT application()")), "9");
    EXPECT_EQ(ask(QStringLiteral("SELECT * FROM V")), "error");
}

} // namespace

} // namespace kestrova::test
