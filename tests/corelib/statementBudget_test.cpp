#include "hardening/statementBudget.h"

#include "connectionFixture.h"
#include "hardening/boundedFunctions.h"
#include "repeatedPages.h"
#include "sampleDatabase.h"
#include "support/sqlFile.h"

#include <QSqlDatabase>

#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <thread>

namespace kestrova::test {

namespace {

using hardening::StatementBudget;

constexpr sqlite3_int64 noEnd = std::numeric_limits<sqlite3_int64>::max() / 2;
constexpr std::chrono::hours anHour{1};

constexpr char endlessRows[] =
    "WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c) SELECT i FROM c";
constexpr char endlessCount[] =
    "WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c) SELECT count(*) FROM c";

std::string countTo(int number)
{
    return "WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < " +
           std::to_string(number) + ") SELECT count(*) FROM c";
}

/// A connection of SQLite's own to a database, in memory unless told otherwise.
class Database {
public:
    explicit Database(StatementBudget const & budget, QString const & path = QStringLiteral(":memory:"),
                      void (*prepareFile)(sqlite3 *) = nullptr)
    {
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &handle), SQLITE_OK);
        if (prepareFile)
            prepareFile(handle);
        EXPECT_TRUE(hardening::holdToBudget(handle, budget));
    }

    ~Database() { sqlite3_close(handle); }

    Database(Database const &) = delete;
    Database & operator=(Database const &) = delete;

    int run(std::string const & sql) const
    {
        return sqlite3_exec(handle, sql.c_str(), nullptr, nullptr, nullptr);
    }

    sqlite3_stmt * prepare(char const * sql) const
    {
        sqlite3_stmt * statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(handle, sql, -1, &statement, nullptr), SQLITE_OK);
        return statement;
    }

    sqlite3 * handle = nullptr;
};

TEST(StatementBudget, EndsWhatRunsForEver)
{
    Database const database({1'000'000, anHour, noEnd});
    EXPECT_EQ(database.run(endlessCount), SQLITE_INTERRUPT);
    EXPECT_EQ(database.run(endlessRows), SQLITE_INTERRUPT);
    EXPECT_EQ(database.run("SELECT 1"), SQLITE_OK);
}

TEST(StatementBudget, StartsAnewWithEachStatement)
{
    Database const database({1'000'000, anHour, noEnd});
    std::string const mostOfIt = countTo(50'000);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(database.run(mostOfIt), SQLITE_OK) << i;
    EXPECT_EQ(database.run(countTo(100'000)), SQLITE_INTERRUPT);
    EXPECT_EQ(database.run(mostOfIt), SQLITE_OK);
}

TEST(StatementBudget, StartsAnewWithEachRunOfAPreparedStatement)
{
    Database const database({1'000'000, anHour, noEnd});
    sqlite3_stmt * const statement = database.prepare(countTo(50'000).c_str());
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW) << i;
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
}

TEST(StatementBudget, StartsAnewThoughAnotherStatementIsUnfinished)
{
    Database const database({1'000'000, anHour, noEnd});
    sqlite3_stmt * const unfinished = database.prepare(endlessRows);
    EXPECT_EQ(sqlite3_step(unfinished), SQLITE_ROW);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(database.run(countTo(50'000)), SQLITE_OK) << i;
    EXPECT_EQ(sqlite3_step(unfinished), SQLITE_ROW);
    sqlite3_finalize(unfinished);
}

TEST(StatementBudget, DoesNotStartAnewWithAStatementWithinAnother)
{
    Database const database({1'000'000, anHour, noEnd});
    ASSERT_EQ(database.run("CREATE TABLE T (a)"), SQLITE_OK);
    EXPECT_EQ(database.run("WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c) "
                           "SELECT count(*) FROM c CROSS JOIN pragma_table_info('T')"),
              SQLITE_INTERRUPT);
}

TEST(StatementBudget, HoldsForAStatementThatBeginsWithAComment)
{
    Database const database({1'000'000, anHour, noEnd});
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(database.run("-- a comment\n" + countTo(50'000)), SQLITE_OK) << i;
    EXPECT_EQ(database.run(std::string("-- a comment\n") + endlessCount), SQLITE_INTERRUPT);
}

/// Adds a function tick() to SQL that does \a tick.
void addTick(Database const & database, std::function<void()> & tick)
{
    auto const call = [](sqlite3_context * context, int, sqlite3_value **) {
        (*static_cast<std::function<void()> *>(sqlite3_user_data(context)))();
        sqlite3_result_int(context, 1);
    };
    EXPECT_EQ(sqlite3_create_function(database.handle, "tick", 0, SQLITE_UTF8, &tick, call, nullptr, nullptr),
              SQLITE_OK);
}

constexpr char endlessTicks[] =
    "WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c) SELECT sum(tick()) FROM c";

TEST(StatementBudget, EndsFewStepsThatTakeLong)
{
    Database const database({noEnd, std::chrono::milliseconds(20), noEnd});
    int ticks = 0;
    std::function<void()> slow = [&ticks] {
        ++ticks;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    };
    addTick(database, slow);
    EXPECT_EQ(database.run(endlessTicks), SQLITE_INTERRUPT);
    EXPECT_LT(ticks, 50);
    EXPECT_EQ(database.run("SELECT 1"), SQLITE_OK);
}

TEST(StatementBudget, ShrinksAfterThreeStatementsWithoutAnEnd)
{
    Database const database({10'000'000, anHour, noEnd});
    int ticks = 0;
    std::function<void()> count = [&ticks] { ++ticks; };
    addTick(database, count);
    auto const ticksToTheEnd = [&] {
        ticks = 0;
        EXPECT_EQ(database.run(endlessTicks), SQLITE_INTERRUPT);
        return ticks;
    };
    for (int i = 0; i < 3; ++i)
        EXPECT_GT(ticksToTheEnd(), 200'000) << i;
    for (int i = 0; i < 3; ++i)
        EXPECT_LT(ticksToTheEnd(), 200'000) << i;
    EXPECT_EQ(database.run(countTo(50'000)), SQLITE_OK);
}

TEST(StatementBudget, EndsWhatTakesAllMemory)
{
    Database const database({noEnd, anHour, 67'108'864});
    auto const sortOf = [](int rows) {
        return "WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < " +
               std::to_string(rows) + ") SELECT i, zeroblob(100000) FROM c ORDER BY i % 7";
    };
    ASSERT_EQ(database.run("PRAGMA temp_store = MEMORY"), SQLITE_OK);
    sqlite3_memory_highwater(1);
    EXPECT_EQ(database.run(sortOf(100'000)), SQLITE_INTERRUPT); // 10 GB
    EXPECT_LT(sqlite3_memory_highwater(0), 128 * 1024 * 1024);
    EXPECT_EQ(database.run(sortOf(100)), SQLITE_OK);
}

/// Memory of SQLite's that another thread has taken and written to, as for a database of its own.
class MemoryOfAnotherThread {
public:
    explicit MemoryOfAnotherThread(int bytes)
    {
        std::thread([this, bytes] {
            memory = sqlite3_malloc(bytes);
            std::memset(memory, 1, static_cast<std::size_t>(bytes));
        }).join();
    }

    ~MemoryOfAnotherThread() { sqlite3_free(memory); }

    MemoryOfAnotherThread(MemoryOfAnotherThread const &) = delete;
    MemoryOfAnotherThread & operator=(MemoryOfAnotherThread const &) = delete;

private:
    void * memory = nullptr;
};

/// What becomes of a statement during which another thread takes so many bytes.
int resultBeside(int bytesOfAnotherThread)
{
    Database const database({noEnd, anHour, 67'108'864});
    std::unique_ptr<MemoryOfAnotherThread> memory;
    int ticks = 0;
    std::function<void()> takeInTheMiddle = [&] {
        if (++ticks == 1000)
            memory = std::make_unique<MemoryOfAnotherThread>(bytesOfAnotherThread);
    };
    addTick(database, takeInTheMiddle);
    return database.run("WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < 10000) "
                        "SELECT sum(tick()) FROM c");
}

TEST(StatementBudget, DoesNotCountTheMemoryThatAnotherThreadTakes)
{
    EXPECT_EQ(resultBeside(100'000'000), SQLITE_OK);
    EXPECT_EQ(resultBeside(500'000'000), SQLITE_OK);
}

TEST(StatementBudget, EndsAStatementBesideWhichTheProcessTakesEightTimesAsMuch)
{
    EXPECT_EQ(resultBeside(620'000'000), SQLITE_INTERRUPT);
}

TEST(StatementBudget, EndsWhatTakesMemoryInEveryOtherWay)
{
    static constexpr char counter[] =
        "WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < 100000) ";

    struct Taking {
        char const * name;
        std::string sql;
    };

    Taking const rows[] = {
        {"distinct rows", std::string(counter) + "SELECT DISTINCT randomblob(100000) FROM c"},
        {"distinct values", std::string(counter) + "SELECT count(DISTINCT randomblob(100000)) FROM c"},
        {"recursion", "WITH RECURSIVE c (i, b) AS (SELECT 1, randomblob(100000) UNION "
                      "SELECT i + 1, randomblob(100000) FROM c) SELECT count(i) FROM c"},
        {"a table of its own", std::string(counter) +
                                   ", m AS MATERIALIZED (SELECT randomblob(100000) AS b FROM c) "
                                   "SELECT count(x.b) FROM m x, m y"},
        {"an array", std::string(counter) + "SELECT json_group_array(printf('%.*c', 100000, 'x')) FROM c"},
        {"a text", std::string(counter) + "SELECT group_concat(printf('%.*c', 100000, 'x')) FROM c"},
    };
    for (Taking const & row : rows) {
        Database const database({noEnd, anHour, 67'108'864});
        ASSERT_EQ(database.run("PRAGMA temp_store = MEMORY"), SQLITE_OK);
        sqlite3_memory_highwater(1);
        EXPECT_EQ(database.run(row.sql), SQLITE_INTERRUPT) << row.name;
        EXPECT_LT(sqlite3_memory_highwater(0), 400'000'000) << row.name;
        EXPECT_EQ(database.run("SELECT 1"), SQLITE_OK) << row.name;
    }
}

TEST(StatementBudget, EndsWhatGivesMoreThanMemoryHolds)
{
    Database const database({noEnd, anHour, 64'000'000});
    for (char const * const value : {"zeroblob(1000000)", "printf('%.*c', 500000, 'x')"}) {
        std::string const sql =
            std::string("WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c) SELECT ") + value +
            " FROM c";
        sqlite3_stmt * const endless = database.prepare(sql.c_str());
        int rows = 0;
        while (sqlite3_step(endless) == SQLITE_ROW)
            ++rows;
        EXPECT_EQ(rows, 64) << value;
        EXPECT_EQ(sqlite3_finalize(endless), SQLITE_INTERRUPT);
        EXPECT_EQ(database.run("SELECT 1"), SQLITE_OK);
    }
}

TEST(StatementBudget, OutlivesAnAttemptToCloseThatSqliteRefuses)
{
    Database const database({1'000'000, anHour, noEnd});
    sqlite3_stmt * const unfinished = database.prepare(endlessRows);
    EXPECT_EQ(sqlite3_step(unfinished), SQLITE_ROW);
    EXPECT_EQ(sqlite3_close(database.handle), SQLITE_BUSY);
    for (int i = 0; i < 10'000; ++i)
        ASSERT_EQ(sqlite3_step(unfinished), SQLITE_ROW);
    sqlite3_finalize(unfinished);
}

/// Lets the file of \a database say that it has 100 GiB, for which a test has no room.
void pretendALargeFile(sqlite3 * database)
{
    sqlite3_file * file = nullptr;
    ASSERT_EQ(sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file), SQLITE_OK);
    static sqlite3_io_methods methods = *file->pMethods;
    methods.xFileSize = [](sqlite3_file *, sqlite3_int64 * bytes) {
        *bytes = sqlite3_int64(100) * 1024 * 1024 * 1024;
        return SQLITE_OK;
    };
    file->pMethods = &methods;
}

TEST(StatementBudget, CountsALargeFileOnlyInPart)
{
    QTemporaryDir const folder;
    QString const file = folder.filePath(QStringLiteral("large.sqlite"));
    makeSqlFile(file, QStringLiteral("CREATE TABLE T (a);"));
    Database const database({noEnd, anHour, 67'108'864}, file, pretendALargeFile);
    char const sort[] = "PRAGMA temp_store = MEMORY;" // 1 GB
                        "WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < 10000)"
                        " SELECT count(b) FROM (SELECT zeroblob(100000) AS b FROM c ORDER BY i % 7"
                        " LIMIT -1 OFFSET 1)";
    EXPECT_EQ(database.run(sort), SQLITE_INTERRUPT);
}

TEST(StatementBudget, EndsACountOfARepeatedPage)
{
    QTemporaryDir const folder;
    QString const file = folder.filePath(QStringLiteral("endless.sqlite"));
    makeEndlessTable(file);
    Database const database({1'000'000, anHour, noEnd}, file);
    ASSERT_TRUE(hardening::boundFunctions(database.handle));
    EXPECT_EQ(database.run("SELECT max(a) FROM T"), SQLITE_INTERRUPT);
    EXPECT_EQ(database.run("SELECT count(*) FROM T"), SQLITE_INTERRUPT);
}

class BudgetOfAConnection : public ConnectionFixture {
protected:
    QString const file = path(QStringLiteral("sample.db3"));

    BudgetOfAConnection() { makeEncryptedSample(file); }

    static void expectHeld(QString const & name)
    {
        EXPECT_EQ(ask(QLatin1String(endlessCount), name), "error");
        EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 7"), name), "name of 7");
    }
};

TEST_F(BudgetOfAConnection, IsEnoughForAMillionRows)
{
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), count(DISTINCT a.name) FROM Names a, Names b "
                                 "WHERE b.id <= 334 AND a.name || b.name LIKE '%name of%'")),
              "1002000|3000");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM (SELECT a.id, b.name FROM Names a, Names b "
                                 "WHERE b.id <= 334 ORDER BY b.name, a.id LIMIT -1 OFFSET 1)")),
              "1001999");
    EXPECT_EQ(messages(), "");
}

TEST_F(BudgetOfAConnection, HoldsForPlainConnectionsAndForThoseThatTakeAName)
{
    ASSERT_TRUE(open(file));
    expectHeld(QStringLiteral("test"));
    ASSERT_TRUE(open(file)); // takes the place of the first
    expectHeld(QStringLiteral("test"));
    QSqlDatabase::removeDatabase(QStringLiteral("test"));
    ASSERT_TRUE(open(file));
    expectHeld(QStringLiteral("test"));
    EXPECT_EQ(messages(), "");
}

} // namespace

} // namespace kestrova::test
