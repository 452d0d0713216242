#include "connectionFixture.h"
#include "folderSnapshot.h"
#include "sampleDatabase.h"

#include <QSqlDatabase>
#include <QSqlIndex>
#include <QSqlRecord>

namespace kestrova::test {

namespace {

/// The sample with a view, a trigger, and a view for each way out of it that a database might try.
class StatementRules : public ConnectionFixture {
protected:
    void openSample()
    {
        QString const file = path(QStringLiteral("sample.db3"));
        makeEncryptedDatabase(
            file,
            sampleSql() + QStringLiteral("CREATE VIEW FirstNames AS SELECT name FROM Names WHERE id < 3;"
                                         "CREATE TABLE Log (text);"
                                         "CREATE TRIGGER Logging AFTER INSERT ON Names BEGIN"
                                         "  INSERT INTO Log VALUES (new.name); END;"));
        ASSERT_TRUE(open(file));
    }
};

class RefusedStatement : public StatementRules, public ::testing::WithParamInterface<char const *> {};

TEST_P(RefusedStatement, FailsBeforeItRunsAndLeavesNoTrace)
{
    openSample();
    std::string const before = snapshotOf(folder.path());
    QString const sql = QString::fromLatin1(GetParam()).replace(QStringLiteral("FOLDER"), folder.path());
    EXPECT_EQ(refusalOf(sql).substr(0, 14), "not authorized");
    EXPECT_EQ(ask(sql), "error");
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 7")), "name of 7");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM sqlite_temp_master")), "0");
    EXPECT_EQ(snapshotOf(folder.path()), before);
    EXPECT_EQ(messages(), "");
}

INSTANTIATE_TEST_SUITE_P(Writing, RefusedStatement,
                         ::testing::Values("INSERT INTO Names VALUES (3001, 'new')",
                                           "REPLACE INTO Names VALUES (1, 'new')",
                                           "UPDATE Names SET name = 'new'", "DELETE FROM Names",
                                           "WITH n AS (SELECT 1) INSERT INTO Log SELECT * FROM n",
                                           "INSERT INTO Log VALUES (1) RETURNING text",
                                           "EXPLAIN DELETE FROM Names"));

INSTANTIATE_TEST_SUITE_P(
    Schema, RefusedStatement,
    ::testing::Values("CREATE TABLE T (a)", "CREATE TABLE T AS SELECT 1", "CREATE INDEX I ON Names (id)",
                      "CREATE VIEW V AS SELECT 1",
                      "CREATE TRIGGER G AFTER DELETE ON Names BEGIN SELECT 1; END", "CREATE TEMP TABLE T (a)",
                      "CREATE TEMP TABLE T AS SELECT 1", "CREATE TEMP VIEW V AS SELECT 1",
                      "CREATE TEMP TRIGGER G AFTER DELETE ON Names BEGIN SELECT 1; END",
                      "CREATE VIRTUAL TABLE T USING json_each", "DROP TABLE Log", "DROP INDEX NamesByName",
                      "DROP VIEW FirstNames", "DROP TRIGGER Logging", "ALTER TABLE Names RENAME TO Other",
                      "ALTER TABLE Names ADD COLUMN other", "ALTER TABLE Names DROP COLUMN name", "ANALYZE",
                      "ANALYZE Names", "REINDEX", "REINDEX NamesByName"));

INSTANTIATE_TEST_SUITE_P(OtherFiles, RefusedStatement,
                         ::testing::Values("ATTACH 'FOLDER/new.db3' AS other", "ATTACH ':memory:' AS other",
                                           "ATTACH '' AS other",
                                           "ATTACH 'file:FOLDER/new.db3?mode=rwc&vfs=unix' AS other",
                                           "DETACH main"));

INSTANTIATE_TEST_SUITE_P(Transactions, RefusedStatement,
                         ::testing::Values("BEGIN", "BEGIN IMMEDIATE", "COMMIT", "ROLLBACK", "SAVEPOINT a",
                                           "RELEASE a", "ROLLBACK TO a"));

INSTANTIATE_TEST_SUITE_P(Code, RefusedStatement,
                         ::testing::Values("SELECT load_extension('FOLDER/sample.db3')",
                                           "SELECT Load_Extension('x', 'y')",
                                           "SELECT fts3_tokenizer('simple')",
                                           "SELECT fts3_tokenizer('simple', x'0000000000000000')"));

INSTANTIATE_TEST_SUITE_P(
    Settings, RefusedStatement,
    ::testing::Values("PRAGMA temp_store = FILE", "PRAGMA cache_size = 1", "PRAGMA user_version = 7",
                      "PRAGMA schema_version = 7", "PRAGMA encoding = 'UTF-16'", "PRAGMA page_size = 512",
                      "PRAGMA page_size(512)", "PRAGMA Temp_Store = FILE",
                      "PRAGMA temp_store_directory = '/'", "PRAGMA writable_schema = ON",
                      "PRAGMA trusted_schema = ON", "PRAGMA journal_mode = WAL",
                      "PRAGMA locking_mode = EXCLUSIVE", "PRAGMA mmap_size = 1000", "PRAGMA wal_checkpoint",
                      "PRAGMA optimize", "PRAGMA incremental_vacuum", "PRAGMA case_sensitive_like = ON",
                      "PRAGMA soft_heap_limit = 1", "PRAGMA hard_heap_limit = 1", "PRAGMA shrink_memory",
                      "PRAGMA threads = 8", "PRAGMA main.cache_size = 1",
                      "PRAGMA reverse_unordered_selects = ON", "PRAGMA foreign_keys = ON",
                      "PRAGMA foreign_keys(1)", "PRAGMA foreign_keys = ''", "PRAGMA busy_timeout = 1",
                      "PRAGMA query_only = OFF", "PRAGMA case_sensitive_like",
                      "PRAGMA integrity_check(1000000000)"));

/// VACUUM is refused when it runs, for it works by way of other statements.
TEST_F(StatementRules, RefuseToVacuum)
{
    openSample();
    std::string const before = snapshotOf(folder.path());
    EXPECT_EQ(ask(QStringLiteral("VACUUM")), "error");
    EXPECT_EQ(ask(QStringLiteral("VACUUM INTO '%1/copy.db3'").arg(folder.path())), "error");
    EXPECT_EQ(snapshotOf(folder.path()), before);
}

TEST_F(StatementRules, RefuseToActOrToCheckTheFileForEachRowOfAnotherTable)
{
    static constexpr char const * rows[] = {
        "SELECT * FROM pragma_optimize",
        "SELECT * FROM pragma_wal_checkpoint",
        "SELECT integrity_check FROM pragma_integrity_check",
        "SELECT count(*) FROM Names, pragma_integrity_check",
        "SELECT count(*) FROM pragma_quick_check('Names')",
        "SELECT 1 FROM Names, PRAGMA_Foreign_Key_Check(name)",
        "UPDATE sqlite_master SET sql = ''",
        "UPDATE sqlite_schema SET rootpage = 2",
    };
    openSample();
    std::string const before = snapshotOf(folder.path());
    for (char const * const sql : rows)
        EXPECT_EQ(ask(QLatin1String(sql)), "error") << sql;
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 7")), "name of 7");
    EXPECT_EQ(snapshotOf(folder.path()), before);
    EXPECT_EQ(messages(), "");
}

TEST_F(StatementRules, RefuseQtsTransactions)
{
    openSample();
    EXPECT_FALSE(QSqlDatabase::database(QStringLiteral("test")).transaction());
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names")), "3000");
    EXPECT_EQ(messages(), "");
}

struct AllowedStatement {
    char const * sql;
    char const * answer;
};

TEST_F(StatementRules, AllowWhateverReads)
{
    static constexpr AllowedStatement rows[] = {
        {"SELECT name FROM FirstNames", "name of 1\nname of 2"},
        {"SELECT DISTINCT n.name FROM Names n, Names m WHERE m.id = n.id AND n.name LIKE 'name of 299_'"
         " ORDER BY n.id DESC LIMIT 2",
         "name of 2999\nname of 2998"},
        {"WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < 4) SELECT sum(i) FROM c",
         "10"},
        {"SELECT id, row_number() OVER (ORDER BY id DESC) FROM Names WHERE id < 3 ORDER BY id", "1|2\n2|1"},
        {"SELECT instr(name, 'of'), replace(name, 'name', 'N'), trim(name, 'n1'), upper(name)"
         " FROM Names WHERE id = 1",
         "6|N of 1|ame of |NAME OF 1"},
        {"SELECT group_concat(name, ';') FROM FirstNames", "name of 1;name of 2"},
        {"SELECT name FROM sqlite_master WHERE type = 'view'", "FirstNames"},
        {"SELECT json_extract('[4,5]', '$[1]')", "5"},
        {"pragma table_info(Names)", "0|id|INTEGER|0||1\n1|name|TEXT|0||0"},
        {"PRAGMA main.index_list(Names)", "0|NamesByName|0|c|0"},
        {"PRAGMA index_info(NamesByName)", "0|1|name"},
        {"PRAGMA encoding", "UTF-8"},
        {"PRAGMA integrity_check", "ok"},
        {"PRAGMA quick_check", "ok"},
        {"PRAGMA foreign_keys", "0"},
        {"PRAGMA main.foreign_keys", "0"},
        {"PRAGMA Journal_Mode", "delete"},
        {"PRAGMA locking_mode", "normal"},
        {"PRAGMA auto_vacuum", "0"},
        {"PRAGMA application_id", "0"},
        {"PRAGMA freelist_count", "0"},
        {"PRAGMA synchronous", "2"},
        {"PRAGMA trusted_schema", "0"},
        {"PRAGMA writable_schema", "0"},
        {"PRAGMA collation_list", "0|RTRIM\n1|NOCASE\n2|BINARY"},
        {"PRAGMA foreign_key_check", ""},
        {"PRAGMA foreign_key_check(Names)", ""},
        {"PRAGMA foreign_key_list(Names)", ""},
        {"PRAGMA index_xinfo(NamesByName)", "0|1|name|0|BINARY|1\n1|-1||0|BINARY|0"},
        {"PRAGMA table_list(Names)", "main|Names|table|2|0|0"},
        {"SELECT name FROM pragma_table_info('Names')", "id\nname"},
        {"SELECT m.name, i.name FROM sqlite_master m, pragma_table_info(m.name) i WHERE m.type = 'view'",
         "FirstNames|name"},
        {"SELECT foreign_keys FROM pragma_foreign_keys", "0"},
        {"SELECT value FROM json_each('[4,5]')", "4\n5"},
        {"SELECT count(*) FROM json_tree('[4,[5]]')", "4"},
        {"EXPLAIN QUERY PLAN SELECT 1", "1|0|0|SCAN CONSTANT ROW"},
    };
    openSample();
    for (AllowedStatement const & row : rows)
        EXPECT_EQ(ask(QString::fromLatin1(row.sql)).substr(0, 60), row.answer) << row.sql;
    EXPECT_EQ(messages(), "");
}

TEST_F(StatementRules, LetQtDescribeTables)
{
    openSample();
    QSqlDatabase const connection = QSqlDatabase::database(QStringLiteral("test"));
    EXPECT_EQ(connection.tables().join(QLatin1Char(' ')).toStdString(), "Names Blobs Log sqlite_stat1");
    EXPECT_EQ(connection.record(QStringLiteral("Names")).count(), 2);
    EXPECT_EQ(connection.primaryIndex(QStringLiteral("Names")).fieldName(0).toStdString(), "id");
}

} // namespace

} // namespace kestrova::test
