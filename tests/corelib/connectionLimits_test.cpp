#include "connectionFixture.h"
#include "hardening/statementBudget.h"
#include "sampleDatabase.h"

#include <pthread.h>

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
    char const * name; ///< in docs/database-format.md
    int id;
    int value;
};

constexpr LimitRow limitRows[] = {
    {"bytes of a value, and of a row", SQLITE_LIMIT_LENGTH, 16777216},
    {"bytes of a statement, of a table, of a view", SQLITE_LIMIT_SQL_LENGTH, 65536},
    {"columns of a table, of a result, of an index", SQLITE_LIMIT_COLUMN, 2000},
    {"depth of an expression, such as terms joined by OR", SQLITE_LIMIT_EXPR_DEPTH, 1000},
    {"SELECTs joined by UNION and its like", SQLITE_LIMIT_COMPOUND_SELECT, 500},
    {"instructions of a compiled statement", SQLITE_LIMIT_VDBE_OP, 250000},
    {"arguments of a function", SQLITE_LIMIT_FUNCTION_ARG, 127},
    {"attached databases", SQLITE_LIMIT_ATTACHED, 0},
    {"bytes of a pattern of LIKE or GLOB", SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 50000},
    {"places for values that an application fills", SQLITE_LIMIT_VARIABLE_NUMBER, 32766},
    {"triggers within triggers", SQLITE_LIMIT_TRIGGER_DEPTH, 0},
    {"further threads", SQLITE_LIMIT_WORKER_THREADS, 0},
};

TEST_F(ConnectionLimits, AreSet)
{
    ASSERT_TRUE(openDatabaseOf(sampleSql()));
    for (LimitRow const & row : limitRows)
        EXPECT_EQ(sqlite3_limit(handle(), row.id, -1), row.value) << row.name;
}

TEST_F(ConnectionLimits, StandInTheDocuments)
{
    QString const document =
        QString::fromUtf8(contentOf(QStringLiteral(KESTROVA_ROOT "/docs/database-format.md")));
    auto const expectRow = [&document](char const * name, qint64 here, QString const & sqlite) {
        QString const row =
            QStringLiteral("\n| %1 | %2 | %3 |\n").arg(QLatin1String(name)).arg(here).arg(sqlite);
        EXPECT_TRUE(document.contains(row)) << row.toStdString();
    };
    sqlite3 * plain = nullptr;
    ASSERT_EQ(sqlite3_open(":memory:", &plain), SQLITE_OK);
    for (LimitRow const & row : limitRows)
        expectRow(row.name, row.value, QString::number(sqlite3_limit(plain, row.id, -1)));
    sqlite3_close(plain);
    hardening::StatementBudget const budget;
    expectRow("steps of a run", budget.steps, QStringLiteral("none"));
    expectRow("seconds of a run", budget.time.count() / 1000, QStringLiteral("none"));
    expectRow("bytes that a run takes beyond the page cache, and bytes that its rows hold", budget.memory,
              QStringLiteral("none"));
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
        {"names joined by OR", QStringLiteral("SELECT %1").arg(repeated(998, "1", " OR ")),
         QStringLiteral("SELECT %1").arg(repeated(1002, "1", " OR "))},
        {"columns", QStringLiteral("SELECT %1").arg(repeated(2000, "1", ",")),
         QStringLiteral("SELECT %1").arg(repeated(2001, "1", ","))},
        {"parts of a compound", repeated(500, "SELECT 1", " UNION "), repeated(501, "SELECT 1", " UNION ")},
        {"arguments", QStringLiteral("SELECT max(%1)").arg(repeated(127, "1", ",")),
         QStringLiteral("SELECT max(%1)").arg(repeated(128, "1", ","))},
        {"a pattern",
         QStringLiteral("SELECT name LIKE '%1' FROM Names").arg(QString(50000, QLatin1Char('a'))),
         QStringLiteral("SELECT name LIKE '%1' FROM Names").arg(QString(50001, QLatin1Char('a')))},
    };
    ASSERT_TRUE(openDatabaseOf(sampleSql()));
    for (Bounds const & row : rows) {
        EXPECT_NE(ask(row.largest), "error") << row.name;
        EXPECT_EQ(ask(row.tooLarge), "error") << row.name;
        EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 7")), "name of 7") << row.name;
    }
    EXPECT_EQ(messages(), "");
}

/// What becomes of a statement on a thread with a stack of 1 MiB.
struct SmallThread {
    sqlite3 * database;
    std::string sql;
    int result;

    static void * run(void * self)
    {
        auto & thread = *static_cast<SmallThread *>(self);
        thread.result = sqlite3_exec(thread.database, thread.sql.c_str(), nullptr, nullptr, nullptr);
        return nullptr;
    }
};

TEST_F(ConnectionLimits, FitIntoASmallStack)
{
    QString const rows[] = {
        QStringLiteral("SELECT %1 FROM Names").arg(repeated(998, "id", "+")),
        QStringLiteral("SELECT %1 FROM Names").arg(repeated(998, "name", "||")),
        QStringLiteral("SELECT id FROM Names WHERE %1").arg(repeated(998, "name = 'a'", " OR ")),
        repeated(500, "SELECT id FROM Names", " UNION "),
        repeated(500, "SELECT id FROM Names", " UNION ALL ") + QStringLiteral(" ORDER BY 1 LIMIT 1"),
        QStringLiteral("SELECT count(*) FROM Names WHERE name LIKE '%1'")
            .arg(QStringLiteral("%a").repeated(25000)),
    };
    ASSERT_TRUE(openDatabaseOf(sampleSql()));
    for (QString const & sql : rows) {
        SmallThread thread{handle(), sql.toStdString(), SQLITE_ERROR};
        pthread_attr_t attributes;
        ASSERT_EQ(pthread_attr_init(&attributes), 0);
        ASSERT_EQ(pthread_attr_setstacksize(&attributes, std::size_t(1024) * 1024), 0);
        pthread_t handleOfThread{};
        ASSERT_EQ(pthread_create(&handleOfThread, &attributes, SmallThread::run, &thread), 0);
        pthread_join(handleOfThread, nullptr);
        pthread_attr_destroy(&attributes);
        EXPECT_EQ(thread.result, SQLITE_OK) << sql.left(60).toStdString();
    }
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
    for (int i = 1; i <= 2000; ++i)
        columns += QStringLiteral("c%1").arg(i);
    ASSERT_TRUE(openDatabaseOf(QStringLiteral("CREATE TABLE T (%1); INSERT INTO T (c2000) VALUES (5);")
                                   .arg(columns.join(QLatin1Char(',')))));
    EXPECT_EQ(ask(QStringLiteral("SELECT c2000 FROM T")), "5");
}

TEST_F(ConnectionLimits, LeaveOutVirtualTablesButThoseOfValues)
{
    ASSERT_TRUE(openDatabaseOf(QStringLiteral("CREATE VIRTUAL TABLE Words USING fts5 (word);"
                                              "INSERT INTO Words VALUES ('one');"
                                              "CREATE VIRTUAL TABLE Boxes USING rtree (id, a, b);"
                                              "CREATE TABLE T (a); INSERT INTO T VALUES (5);")));
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM pragma_table_info('T')")), "a");
    EXPECT_EQ(ask(QStringLiteral("SELECT value FROM json_each('[4,5]')")), "4\n5");
    EXPECT_EQ(ask(QStringLiteral("SELECT fullkey FROM json_tree('[4]')")), "$\n$[0]");
    sqlite3_set_authorizer(handle(), nullptr, nullptr); // they are not there, whatever the rules say
    for (char const * const sql : {"SELECT word FROM Words", "SELECT id FROM Boxes",
                                   "SELECT name FROM dbstat", "SELECT sql FROM sqlite_stmt"})
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
