#include "connectionFixture.h"
#include "folderSnapshot.h"
#include "sampleDatabase.h"
#include "unfinishedChange.h"

#include "support/sqlFile.h"

#include <QFile>
#include <QSqlDatabase>

namespace kestrova::test {

namespace {

class PlainDatabaseAccepted : public ConnectionFixture {
protected:
    QString const file = path(QStringLiteral("plain.db3"));

    void openOrdinarily()
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("ordinary"));
        database.setDatabaseName(file);
        ASSERT_TRUE(database.open());
    }
};

TEST_F(PlainDatabaseAccepted, AnswersQueriesAndIsLeftAlone)
{
    makePlainSample(file);
    std::string const before = snapshotOf(folder.path());
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
    EXPECT_EQ(ask(QStringLiteral("SELECT length(data), hex(substr(data, 19999)) FROM Blobs")), "20000|4142");
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(ask(QStringLiteral("DELETE FROM Names")), "error");
    EXPECT_EQ(QSqlDatabase::database(QStringLiteral("test")).databaseName().toStdString(),
              file.toStdString());
    EXPECT_EQ(snapshotOf(folder.path()), before);
    EXPECT_EQ(messages(), "");
}

TEST_F(PlainDatabaseAccepted, OpensWithAnyPageSize)
{
    for (int const pageSize : {512, 1024, 8192, 65536}) {
        SCOPED_TRACE(pageSize);
        QFile::remove(file);
        makeSqlFile(file, QStringLiteral("PRAGMA page_size = %1; VACUUM;").arg(pageSize) + sampleSql());
        ASSERT_TRUE(open(file));
        EXPECT_EQ(ask(QStringLiteral("PRAGMA page_size")), std::to_string(pageSize));
        EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    }
}

TEST_F(PlainDatabaseAccepted, IsReadAsItStandsBesideAHotJournal)
{
    makePlainSample(file);
    writeContent(file + QStringLiteral("-journal"), changeWithHotJournal(path(QStringLiteral("work"))).log);
    std::string const before = snapshotOf(folder.path());
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names WHERE name = 'name of ' || id")), "3000");
    QSqlDatabase::removeDatabase(QStringLiteral("test"));
    EXPECT_EQ(snapshotOf(folder.path()), before);
    EXPECT_EQ(messages(), "");

    openOrdinarily();
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names"), QStringLiteral("ordinary")), "3000");
    EXPECT_FALSE(QFile::exists(file + QStringLiteral("-journal"))); // so it was a hot one
}

TEST_F(PlainDatabaseAccepted, IsReadAsItStandsBesideAWriteAheadLog)
{
    UnfinishedChange const change = changeInWriteAheadLog(path(QStringLiteral("work")));
    writeContent(file, change.database);
    writeContent(file + QStringLiteral("-wal"), change.log);
    std::string const before = snapshotOf(folder.path());
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names")), "3000");
    QSqlDatabase::removeDatabase(QStringLiteral("test"));
    EXPECT_EQ(snapshotOf(folder.path()), before);
    EXPECT_EQ(messages(), "");

    openOrdinarily();
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names"), QStringLiteral("ordinary")), "3001");
}

TEST_F(PlainDatabaseAccepted, IsRefusedWhenCutShort)
{
    makePlainSample(file);
    QByteArray const content = contentOf(file);
    int const whole = static_cast<int>(content.size());
    for (int const size : {99, 100, 2000, 4096, 5000, 8192, whole - 4096, whole - 1}) {
        SCOPED_TRACE(size);
        writeContent(file, content.left(size));
        EXPECT_FALSE(open(file));
        EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("test")));
    }
    EXPECT_EQ(messages(), "");
}

TEST_F(PlainDatabaseAccepted, IsRefusedWithAHeaderThatSqliteDoesNotKnow)
{
    makePlainSample(file);
    QByteArray content = contentOf(file);
    content.replace(21, 3,
                    QByteArray(3, '\0')); // the payload fractions, which are 64, 32 and 32 in every database
    writeContent(file, content);
    EXPECT_FALSE(open(file));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("test")));
    EXPECT_EQ(messages(), "");
}

TEST_F(PlainDatabaseAccepted, OpensWithoutAStatedPageCountWhenItsPagesAreWhole)
{
    makePlainSample(file);
    QByteArray content = contentOf(file);
    content.replace(28, 4, QByteArray(4, '\0')); // as SQLite before 3.7.0 left it
    writeContent(file, content);
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names")), "3000");
    writeContent(file, content.left(content.size() - 1));
    EXPECT_FALSE(open(file));
}

TEST_F(PlainDatabaseAccepted, FailsWhenTheFileIsCutWhileItIsOpen)
{
    makePlainSample(file);
    ASSERT_TRUE(open(file));
    ASSERT_TRUE(QFile::resize(file, QFile(file).size() - 4096)); // the end of the blob
    EXPECT_EQ(ask(QStringLiteral("SELECT hex(data) FROM Blobs")), "error");
}

TEST_F(PlainDatabaseAccepted, LeavesEncryptedOnesAccepted)
{
    makeEncryptedSample(file);
    EXPECT_TRUE(open(file));
}

} // namespace

} // namespace kestrova::test
