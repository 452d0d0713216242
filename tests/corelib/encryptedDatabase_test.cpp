#include "connectionFixture.h"
#include "sampleDatabase.h"

#include "sqlcipher/databaseFile.h"
#include "support/sqlFile.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace kestrova::test {

namespace {

struct EncryptedVersion {
    char const * name;
    sqlcipher::PageFormat const & format;
};

class EncryptedDatabaseOfAnyVersion : public ConnectionFixture,
                                      public ::testing::WithParamInterface<EncryptedVersion> {
protected:
    EncryptedDatabaseOfAnyVersion() { makeEncryptedSample(file, GetParam().format); }

    QString const file = path(QStringLiteral("sample.db3"));
};

TEST_P(EncryptedDatabaseOfAnyVersion, AnswersQueries)
{
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 2718")), "name of 2718");
    EXPECT_EQ(ask(QStringLiteral("SELECT id FROM Names WHERE name = 'name of 314'")), "314");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id), min(id), max(id) FROM Names")),
              "3000|4501500|1|3000");
    EXPECT_EQ(ask(QStringLiteral("SELECT length(data), hex(substr(data, 19999)) FROM Blobs")), "20000|4142");
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(messages(), "");
}

TEST_P(EncryptedDatabaseOfAnyVersion, IsAnOpenConnectionOfTheGivenNameAndPath)
{
    ASSERT_TRUE(open(file, QStringLiteral("given")));
    QSqlDatabase const connection = QSqlDatabase::database(QStringLiteral("given"), false);
    EXPECT_TRUE(connection.isOpen());
    EXPECT_EQ(connection.databaseName().toStdString(), file.toStdString());
    EXPECT_EQ(connection.connectOptions().toStdString(), "QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI");
}

TEST_P(EncryptedDatabaseOfAnyVersion, IsCachedWholeAndSortsInMemory)
{
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("PRAGMA cache_size")), ask(QStringLiteral("PRAGMA page_count")));
    EXPECT_EQ(ask(QStringLiteral("PRAGMA cache_size")),
              std::to_string(QFile(file).size() / GetParam().format.pageSize));
    EXPECT_EQ(ask(QStringLiteral("PRAGMA temp_store")), "2");
}

INSTANTIATE_TEST_SUITE_P(Versions, EncryptedDatabaseOfAnyVersion,
                         ::testing::Values(EncryptedVersion{"Version4", sqlcipher::version4},
                                           EncryptedVersion{"Version3", sqlcipher::version3}),
                         [](auto const & row) { return row.param.name; });

class EncryptedDatabase : public ConnectionFixture {
protected:
    QString sample(QString const & fileName = QStringLiteral("sample.db3"))
    {
        makeEncryptedSample(path(fileName));
        return path(fileName);
    }

    /// An encrypted database with the one table Mark, that holds the one value \a mark.
    QString marked(QString const & mark)
    {
        QString const encrypted = path(mark + QStringLiteral(".db3"));
        makeEncryptedDatabase(
            encrypted,
            QStringLiteral("CREATE TABLE Mark (mark TEXT); INSERT INTO Mark VALUES ('%1')").arg(mark));
        return encrypted;
    }
};

TEST_F(EncryptedDatabase, WithoutTablesOpens)
{
    QString const plain = path(QStringLiteral("plain"));
    makeSqlFile(plain, QStringLiteral("CREATE TABLE T (a); DROP TABLE T"));
    sqlcipher::encryptDatabase(plain, path(QStringLiteral("bare.db3")));
    ASSERT_TRUE(open(path(QStringLiteral("bare.db3"))));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names")), "error");
    EXPECT_EQ(ask(QStringLiteral("SELECT 1")), "1");
}

TEST_F(EncryptedDatabase, OfVersion3ThatReservesMoreThanItsFormatNeedsOpens)
{
    QString const file = path(QStringLiteral("compatible.db3"));
    makeSampleOfCompatibilityMode(file);
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
    EXPECT_EQ(ask(QStringLiteral("SELECT length(data), hex(substr(data, 19999)) FROM Blobs")), "20000|4142");
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(messages(), "");
}

TEST_F(EncryptedDatabase, OfVersion3ThatReservesMoreThanItsFormatNeedsDecrypts)
{
    QString const file = path(QStringLiteral("compatible.db3"));
    QString const plain = path(QStringLiteral("plain.db3"));
    makeSampleOfCompatibilityMode(file);
    sqlcipher::decryptDatabase(file, plain);
    EXPECT_EQ(contentOf(plain).mid(16, 5).toHex().toStdString(), "0400010150") << "1024 bytes, 80 reserved";
    ASSERT_TRUE(open(plain));
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
}

TEST_F(EncryptedDatabase, InUtf16Opens)
{
    QString const plain = path(QStringLiteral("plain"));
    makeSqlFile(plain, QString::fromUtf8("PRAGMA encoding = 'UTF-16be'; CREATE TABLE T (a);"
                                         "INSERT INTO T VALUES ('Gr\xC3\xB6\xC3\x9F"
                                         "e')"));
    sqlcipher::encryptDatabase(plain, path(QStringLiteral("wide.db3")));
    ASSERT_TRUE(open(path(QStringLiteral("wide.db3"))));
    EXPECT_EQ(ask(QStringLiteral("PRAGMA encoding")), "UTF-16be");
    EXPECT_EQ(ask(QStringLiteral("SELECT a FROM T")), "Gr\xC3\xB6\xC3\x9F"
                                                      "e");
}

TEST_F(EncryptedDatabase, OpensTwiceAtATime)
{
    QString const file = sample();
    ASSERT_TRUE(open(file, QStringLiteral("first")));
    ASSERT_TRUE(open(file, QStringLiteral("second")));
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 1"), QStringLiteral("first")),
              "name of 1");
    QSqlDatabase::database(QStringLiteral("first")).close();
    EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 2"), QStringLiteral("second")),
              "name of 2");
}

TEST_F(EncryptedDatabase, OpensByAnyFileName)
{
    for (char const * const name :
         {"with space.db3", "100%.db3", "%41.db3", "a%00b.db3", "%1 %2.db3", "what?.db3", "a#b.db3",
          "Gr\xC3\xB6\xC3\x9F"
          "e.db3",
          "\xF0\x9F\x98\x80.db3", "it's \"quoted\".db3", "a;b&c=d+e.db3", "file:x.db3", "?vfs=unix",
          ":memory:", "back\\slash.db3", "line\nbreak.db3", "x.db3?immutable=0&mode=rwc"}) {
        SCOPED_TRACE(name);
        QString const file = path(QString::fromUtf8(name));
        QFile::copy(sample(), file);
        ASSERT_TRUE(open(file));
        EXPECT_EQ(ask(QStringLiteral("SELECT name FROM Names WHERE id = 9")), "name of 9");
        EXPECT_EQ(QSqlDatabase::database(QStringLiteral("test")).databaseName().toStdString(),
                  file.toStdString());
    }
    EXPECT_EQ(messages(), "");
}

TEST_F(EncryptedDatabase, OpensByAPathWithDoubledSlashes)
{
    EXPECT_TRUE(open(QStringLiteral("/") + sample()));
}

TEST_F(EncryptedDatabase, ReplacesAConnectionOfItsNameSilently)
{
    ASSERT_TRUE(open(marked(QStringLiteral("first"))));
    QSqlDatabase const held = QSqlDatabase::database(QStringLiteral("test"));
    QSqlQuery pending(QStringLiteral("SELECT mark FROM Mark"), held);
    ASSERT_TRUE(pending.next());

    QString const second = marked(QStringLiteral("second"));
    ASSERT_TRUE(open(second));
    EXPECT_EQ(ask(QStringLiteral("SELECT mark FROM Mark")), "second");
    EXPECT_EQ(QSqlDatabase::database(QStringLiteral("test")).databaseName().toStdString(),
              second.toStdString());
    EXPECT_EQ(QSqlDatabase::connectionNames().size(), 1);
    EXPECT_EQ(messages(), "");
}

TEST_F(EncryptedDatabase, ReplacesAnOrdinaryConnectionOfItsNameSilently)
{
    QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"))
        .setDatabaseName(QStringLiteral(":memory:"));
    ASSERT_EQ(ask(QStringLiteral("CREATE TABLE T (a)")), "");
    ASSERT_TRUE(open(marked(QStringLiteral("encrypted"))));
    EXPECT_EQ(ask(QStringLiteral("SELECT mark FROM Mark")), "encrypted");
    EXPECT_EQ(ask(QStringLiteral("SELECT a FROM T")), "error");
    EXPECT_EQ(messages(), "");
}

TEST_F(EncryptedDatabase, TakesAnOpenConnectionOfItsNameAwayWhenItFails)
{
    ASSERT_TRUE(open(marked(QStringLiteral("first"))));
    EXPECT_FALSE(open(path(QStringLiteral("missing.db3"))));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("test")));
    EXPECT_EQ(messages(), "");
}

TEST_F(EncryptedDatabase, OpensAfterAFailureUnderTheSameName)
{
    EXPECT_FALSE(open(path(QStringLiteral("missing.db3"))));
    ASSERT_TRUE(open(marked(QStringLiteral("there"))));
    EXPECT_EQ(ask(QStringLiteral("SELECT mark FROM Mark")), "there");
}

TEST_F(EncryptedDatabase, LeavesOtherFilesToTheOrdinaryConnections)
{
    ASSERT_TRUE(open(sample()));
    makePlainSample(path(QStringLiteral("plain.sqlite")));
    QSqlDatabase ordinary = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("ordinary"));
    ordinary.setDatabaseName(path(QStringLiteral("plain.sqlite")));
    ASSERT_TRUE(ordinary.open());
    EXPECT_EQ(ask(QStringLiteral("DELETE FROM Names WHERE id > 1"), QStringLiteral("ordinary")), "");
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names"), QStringLiteral("ordinary")), "1");

    ordinary.close();
    ordinary.setDatabaseName(path(QStringLiteral("sample.db3")));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names"), QStringLiteral("ordinary")), "error");
}

} // namespace

} // namespace kestrova::test
