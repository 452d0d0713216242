#include "connectionFixture.h"
#include "sampleDatabase.h"

#include "sqlcipher/bytes.h"
#include "sqlcipher/pageCodec.h"
#include "support/sqlFile.h"

#include <algorithm>

namespace kestrova::test {

namespace {

// The file changes in its place, under an open connection.

QString const everything = QStringLiteral("SELECT count(*), sum(id), max(name) FROM Names");
QString const newRows =
    QStringLiteral("INSERT INTO Names VALUES (0, 'oldest');"
                   "CREATE TABLE Added AS SELECT * FROM Names;"); // and more pages than there were

class ChangedDatabase : public ConnectionFixture {
protected:
    QString const file = path(QStringLiteral("sample.db3"));

    /// Asks until SQLite has all pages in its memory.
    static void fillTheCache()
    {
        EXPECT_EQ(ask(everything), "3000|4501500|name of 999");
        EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
        EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Added")), "error");
    }

    void expectTheNewRows()
    {
        EXPECT_EQ(ask(everything), "3001|4501500|oldest");
        EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Added")), "3001");
        EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
        EXPECT_EQ(messages(), "");
    }
};

sqlcipher::PageCodec codecOf(QByteArray const & content)
{
    sqlcipher::Salt salt;
    std::copy_n(content.constBegin(), salt.size(), salt.begin());
    return {sqlcipher::version4, sqlcipher::databaseKey, salt};
}

/// The pages of \a content, encrypted as pages of the file \a other.
QByteArray encryptedLike(QByteArray const & other, QByteArray const & content)
{
    sqlcipher::PageCodec source = codecOf(content);
    sqlcipher::PageCodec target = codecOf(other);
    QByteArray plain(sqlcipher::version4.pageSize, '\0');
    QByteArray result(content.size(), '\0');
    quint32 number = 1;
    for (int offset = 0; offset < content.size(); offset += sqlcipher::version4.pageSize) {
        EXPECT_TRUE(source.decrypt(number, sqlcipher::bytesOf(content) + offset,
                                   reinterpret_cast<unsigned char *>(plain.data())));
        EXPECT_TRUE(target.encrypt(number, sqlcipher::bytesOf(plain),
                                   reinterpret_cast<unsigned char *>(result.data()) + offset));
        ++number;
    }
    return result;
}

TEST_F(ChangedDatabase, IsReadAsItIsNow)
{
    makePlainSample(file);
    ASSERT_TRUE(open(file));
    fillTheCache();
    makeSqlFile(file, newRows);
    expectTheNewRows();
}

TEST_F(ChangedDatabase, IsReadAsItIsNowThoughItsHeaderAsksForALog)
{
    makeSqlFile(file, QStringLiteral("PRAGMA journal_mode = WAL;") + sampleSql());
    ASSERT_EQ(contentOf(file).mid(18, 2), QByteArray("\2\2"));
    ASSERT_TRUE(open(file));
    fillTheCache();
    makeSqlFile(file, QStringLiteral("PRAGMA journal_mode = WAL;") + newRows);
    expectTheNewRows();
}

TEST_F(ChangedDatabase, IsReadAsItIsNowWhenEncrypted)
{
    makeEncryptedSample(file);
    QString const changed = path(QStringLiteral("changed.db3"));
    makeEncryptedDatabase(changed, sampleSql() + newRows);

    ASSERT_TRUE(open(file));
    fillTheCache();
    writeContent(file, encryptedLike(contentOf(file), contentOf(changed)));
    expectTheNewRows();
}

TEST_F(ChangedDatabase, AnswersNothingWhenItIsOverwrittenByOneOfAnotherSalt)
{
    makeEncryptedSample(file);
    ASSERT_TRUE(open(file));
    fillTheCache();
    QByteArray const content = contentOf(file);
    QString const other = path(QStringLiteral("other.db3"));
    makeEncryptedSample(other);
    writeContent(file, contentOf(other));
    EXPECT_EQ(ask(everything), "error");
    writeContent(file, content);
    EXPECT_EQ(ask(everything), "3000|4501500|name of 999");
    EXPECT_EQ(messages(), "");
}

TEST_F(ChangedDatabase, KeepsTheRowsOfAStatementThatHasBegun)
{
    makePlainSample(file);
    ASSERT_TRUE(open(file));
    sqlite3_stmt * statement = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(handle(), "SELECT id FROM Names ORDER BY id", -1, &statement, nullptr),
              SQLITE_OK);
    ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);
    EXPECT_EQ(sqlite3_column_int(statement, 0), 1);
    makeSqlFile(file, QStringLiteral("UPDATE Names SET name = 'new'"));
    ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);
    EXPECT_EQ(sqlite3_column_int(statement, 0), 2);
    sqlite3_finalize(statement);
    EXPECT_EQ(ask(QStringLiteral("SELECT DISTINCT name FROM Names")), "new");
}

} // namespace

} // namespace kestrova::test
