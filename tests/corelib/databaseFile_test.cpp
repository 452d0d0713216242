#include "connectionFixture.h"
#include "folderSnapshot.h"
#include "sampleDatabase.h"
#include "unfinishedChange.h"

#include "sqlcipher/databaseFile.h"
#include "support/sqlFile.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>

#include <functional>

namespace kestrova::test {

namespace {

using sqlcipher::decryptDatabase;
using sqlcipher::encryptDatabase;
using sqlcipher::version3;
using sqlcipher::version4;

/// The text of the DatabaseFileError that \a work throws, with "FOLDER/" for the folder; "no failure" without
/// one.
std::string failureOf(std::function<void()> const & work, QString const & folder)
{
    try {
        work();
    } catch (sqlcipher::DatabaseFileError const & error) {
        return QString::fromUtf8(error.what()).replace(folder, QStringLiteral("FOLDER")).toStdString();
    }
    return "no failure";
}

class DatabaseFile : public ConnectionFixture {
protected:
    QString const plain = path(QStringLiteral("plain.sqlite"));
    QString const encrypted = path(QStringLiteral("encrypted.db3"));
    QString const decrypted = path(QStringLiteral("decrypted.sqlite"));

    std::string filesInFolder() const
    {
        return QDir(folder.path())
            .entryList(QDir::Files | QDir::Hidden, QDir::Name)
            .join(QLatin1Char(' '))
            .toStdString();
    }

    static bool openPlain(QString const & file)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("test"));
        database.setDatabaseName(file);
        return database.open();
    }

    void expectSample() const
    {
        EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
        EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
                  "3000|4501500");
        EXPECT_EQ(ask(QStringLiteral("SELECT length(data), hex(substr(data, 19999)) FROM Blobs")),
                  "20000|4142");
    }

    std::string failure(std::function<void()> const & work) const { return failureOf(work, folder.path()); }
};

struct NamedFormat {
    char const * name;
    sqlcipher::PageFormat const & format;
    char const * reservedByte;
};

class DatabaseFileOfAnyVersion : public DatabaseFile, public ::testing::WithParamInterface<NamedFormat> {};

TEST_P(DatabaseFileOfAnyVersion, ComesBackFromEncryptionAsItWas)
{
    makePlainSample(plain);
    encryptDatabase(plain, encrypted, GetParam().format);
    decryptDatabase(encrypted, decrypted);
    EXPECT_EQ(contentOf(decrypted).mid(20, 1).toHex().toStdString(), GetParam().reservedByte);
    ASSERT_TRUE(openPlain(decrypted));
    expectSample();
}

TEST_P(DatabaseFileOfAnyVersion, IsEncryptedFromAnyPageSize)
{
    for (int const pageSize : {512, 1024, 4096, 65536}) {
        SCOPED_TRACE(pageSize);
        QFile::remove(plain);
        makeSqlFile(plain, QStringLiteral("PRAGMA page_size = %1; VACUUM;").arg(pageSize) + sampleSql());
        ASSERT_EQ(QFile(plain).size() % pageSize, 0);
        encryptDatabase(plain, encrypted, GetParam().format);
        ASSERT_TRUE(open(encrypted));
        expectSample();
    }
}

TEST_P(DatabaseFileOfAnyVersion, ReportsEachPageAsItIsDone)
{
    makePlainSample(plain);
    qint64 expected = 0;
    qint64 total = 0;
    auto const follow = [&](qint64 done, qint64 all) {
        EXPECT_EQ(done, ++expected);
        total = all;
    };
    encryptDatabase(plain, encrypted, GetParam().format, sqlcipher::databaseKey, follow);
    EXPECT_EQ(expected, total);
    EXPECT_EQ(total * GetParam().format.pageSize, QFile(encrypted).size());
    expected = 0;
    decryptDatabase(encrypted, decrypted, sqlcipher::databaseKey, follow);
    EXPECT_EQ(expected, total);
}

INSTANTIATE_TEST_SUITE_P(Versions, DatabaseFileOfAnyVersion,
                         ::testing::Values(NamedFormat{"Version4", version4, "50"},
                                           NamedFormat{"Version3", version3, "30"}),
                         [](auto const & row) { return row.param.name; });

TEST_F(DatabaseFile, IsEncryptedWithStatisticsForThePlanner)
{
    makePlainSample(plain);
    encryptDatabase(plain, encrypted);
    ASSERT_TRUE(open(encrypted));
    EXPECT_EQ(ask(QStringLiteral("SELECT stat FROM sqlite_stat1 WHERE idx = 'NamesByName'")), "3000 1");
}

TEST_F(DatabaseFile, LeavesNothingButTheResult)
{
    makePlainSample(plain);
    std::string const before = snapshotOf(folder.path());
    encryptDatabase(plain, encrypted);
    EXPECT_EQ(filesInFolder(), "encrypted.db3 plain.sqlite");
    QString const elsewhere = folder.path() + QStringLiteral(".moved");
    QFile::rename(encrypted, elsewhere);
    EXPECT_EQ(snapshotOf(folder.path()), before);
    QFile::rename(elsewhere, encrypted);
    decryptDatabase(encrypted, decrypted);
    EXPECT_EQ(filesInFolder(), "decrypted.sqlite encrypted.db3 plain.sqlite");
}

TEST_F(DatabaseFile, InWriteAheadModeIsEncryptedWithoutTouchingIt)
{
    makeSqlFile(plain, QStringLiteral("PRAGMA journal_mode = WAL;") + sampleSql());
    QByteArray const before = contentOf(plain);
    encryptDatabase(plain, encrypted);
    EXPECT_EQ(filesInFolder(), "encrypted.db3 plain.sqlite");
    EXPECT_TRUE(contentOf(plain) == before);
    ASSERT_TRUE(open(encrypted));
    expectSample();
}

TEST_F(DatabaseFile, IsEncryptedUnderAnyFileName)
{
    QString const oddPlain = path(QString::fromUtf8("it's 100% %1 a?b#c \xC3\xB6 \xF0\x9F\x98\x80.sqlite"));
    QString const oddEncrypted = path(QString::fromUtf8("it's 100% %2 a?b#c \xC3\xB6 \xF0\x9F\x98\x80.db3"));
    makePlainSample(oddPlain);
    encryptDatabase(oddPlain, oddEncrypted);
    ASSERT_TRUE(open(oddEncrypted));
    expectSample();
}

TEST_F(DatabaseFile, ReplacesAnExistingFile)
{
    makePlainSample(plain);
    writeContent(encrypted, "old");
    writeContent(decrypted, "old");
    encryptDatabase(plain, encrypted);
    ASSERT_TRUE(open(encrypted));
    decryptDatabase(encrypted, decrypted);
    ASSERT_TRUE(openPlain(decrypted));
    expectSample();
}

TEST_F(DatabaseFile, OpensWithTheKeyItWasEncryptedWithOnly)
{
    makePlainSample(plain);
    encryptDatabase(plain, encrypted, version4, wrongKey());
    EXPECT_EQ(failure([&] { decryptDatabase(encrypted, decrypted); }),
              "FOLDER/encrypted.db3 does not open with the key of this build; encrypt it with that key, or "
              "check that "
              "it is a database at all.");
    decryptDatabase(encrypted, decrypted, wrongKey());
    ASSERT_TRUE(openPlain(decrypted));
    expectSample();
}

TEST_F(DatabaseFile, WithAFinishedJournalBesideItIsEncrypted)
{
    makeSqlFile(plain, QStringLiteral("PRAGMA journal_mode = PERSIST;") + sampleSql());
    ASSERT_GT(QFile(plain + QStringLiteral("-journal")).size(), 0);
    encryptDatabase(plain, encrypted);
    ASSERT_TRUE(open(encrypted));
    expectSample();
}

TEST_F(DatabaseFile, DecryptedFromVersion3IsEncryptedForVersion4)
{
    makeEncryptedSample(encrypted, version3);
    decryptDatabase(encrypted, decrypted);
    encryptDatabase(decrypted, encrypted, version4);
    ASSERT_TRUE(open(encrypted));
    expectSample();
}

/// Each of them throws, leaves the folder as it was, and says what the matter is.
class FailingConversion : public DatabaseFile {
protected:
    std::string encryptionFailure(sqlcipher::PageFormat const & format = version4)
    {
        return untouchedFailure([&] { encryptDatabase(plain, encrypted, format); });
    }

    std::string decryptionFailure()
    {
        return untouchedFailure([&] { decryptDatabase(encrypted, decrypted); });
    }

    std::string untouchedFailure(std::function<void()> const & work)
    {
        std::string const before = snapshotOf(folder.path());
        std::string const text = failure(work);
        EXPECT_EQ(snapshotOf(folder.path()), before);
        return text;
    }
};

TEST_F(FailingConversion, NamesAMissingSource)
{
    EXPECT_EQ(encryptionFailure(), "FOLDER/plain.sqlite does not exist; check the path.");
    EXPECT_EQ(decryptionFailure(), "FOLDER/encrypted.db3 does not exist; check the path.");
}

TEST_F(FailingConversion, NamesASourceThatIsNoDatabase)
{
    writeContent(plain, "no database");
    EXPECT_EQ(encryptionFailure(),
              "FOLDER/plain.sqlite is not a database, neither plain nor encrypted; check the path.");
}

TEST_F(FailingConversion, NamesASourceOfTheWrongKind)
{
    makeEncryptedSample(plain);
    EXPECT_EQ(encryptionFailure(), "FOLDER/plain.sqlite is encrypted already; name a plain database.");
    makePlainSample(encrypted);
    EXPECT_EQ(decryptionFailure(), "FOLDER/encrypted.db3 is a plain database already.");
}

TEST_F(FailingConversion, NamesADamagedPlainSource)
{
    makePlainSample(plain);
    QByteArray content = contentOf(plain);
    content.replace(4096, 8, QByteArray(8, '\xFF'));
    writeContent(plain, content);
    EXPECT_EQ(
        encryptionFailure(),
        "FOLDER/plain.sqlite: database disk image is malformed; check the database with the sqlite3 tool.");
}

TEST_F(FailingConversion, NamesTheDamagedPageOfAnEncryptedSource)
{
    makeEncryptedSample(encrypted);
    QByteArray content = contentOf(encrypted);
    content[5 * 4096 + 7] = static_cast<char>(content.at(5 * 4096 + 7) ^ 1);
    writeContent(encrypted, content);
    writeContent(decrypted, "old");
    EXPECT_EQ(decryptionFailure(), "FOLDER/encrypted.db3 is damaged in page 6; make it anew.");
}

TEST_F(FailingConversion, KeepsAnOldTarget)
{
    writeContent(plain, "no database");
    writeContent(encrypted, "old");
    encryptionFailure();
    EXPECT_EQ(contentOf(encrypted).toStdString(), "old");
}

TEST_F(FailingConversion, NamesASourceThatIsItsOwnTarget)
{
    makePlainSample(plain);
    EXPECT_EQ(untouchedFailure([&] { encryptDatabase(plain, plain); }),
              "FOLDER/plain.sqlite would replace itself; name another file.");
    makeEncryptedSample(encrypted);
    EXPECT_EQ(untouchedFailure([&] { decryptDatabase(encrypted, encrypted); }),
              "FOLDER/encrypted.db3 would replace itself; name another file.");
}

TEST_F(FailingConversion, NamesTheJournalOfAnUnfinishedChange)
{
    UnfinishedChange const change = changeWithHotJournal(path(QStringLiteral("work")));
    writeContent(plain, change.database);
    writeContent(plain + QStringLiteral("-journal"), change.log);
    EXPECT_EQ(encryptionFailure(), "FOLDER/plain.sqlite has changes waiting in FOLDER/plain.sqlite-journal; "
                                   "close the program that works on "
                                   "it, or open and close it once with the sqlite3 tool.");
}

TEST_F(FailingConversion, NamesTheWriteAheadLogOfAnUnfinishedChange)
{
    UnfinishedChange const change = changeInWriteAheadLog(path(QStringLiteral("work")));
    writeContent(plain, change.database);
    writeContent(plain + QStringLiteral("-wal"), change.log);
    EXPECT_EQ(
        encryptionFailure(),
        "FOLDER/plain.sqlite has changes waiting in FOLDER/plain.sqlite-wal; close the program that works on "
        "it, or open and close it once with the sqlite3 tool.");
}

TEST_F(FailingConversion, NamesATargetThatCannotBeWritten)
{
    makePlainSample(plain);
    makeEncryptedSample(encrypted);
    QString const nowhere = path(QStringLiteral("no folder/file"));
    EXPECT_EQ(
        untouchedFailure([&] { encryptDatabase(plain, nowhere); }),
        "FOLDER/no folder/file cannot be written (No such file or directory); check the folder's permissions "
        "and space.");
    EXPECT_EQ(
        untouchedFailure([&] { decryptDatabase(encrypted, nowhere); }),
        "FOLDER/no folder/file cannot be written (No such file or directory); check the folder's permissions "
        "and space.");
}

TEST_F(FailingConversion, NamesASourceThatReservesTooMuch)
{
    makeEncryptedSample(encrypted, version4);
    decryptDatabase(encrypted, plain);
    EXPECT_EQ(encryptionFailure(version3),
              "FOLDER/plain.sqlite cannot take the page layout of version 3; dump it as SQL "
              "and make it anew with the sqlite3 tool.");
}

} // namespace

} // namespace kestrova::test
