#include "connectionFixture.h"
#include "folderSnapshot.h"
#include "repeatedPages.h"
#include "sampleDatabase.h"

#include "support/sqlFile.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace kestrova::test {

namespace {

/// Makes one file that must not open.
struct RefusedFile {
    std::string name;
    std::function<void(QString const & path)> make;
};

class RefusedDatabase : public ConnectionFixture, public ::testing::WithParamInterface<RefusedFile> {};

TEST_P(RefusedDatabase, LeavesNoConnectionNoMessageAndNoTrace)
{
    QString const file = path(QStringLiteral("refused.db3"));
    GetParam().make(file);
    std::string const before = snapshotOf(folder.path());
    EXPECT_FALSE(open(file));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("test")));
    EXPECT_EQ(messages(), "");
    EXPECT_EQ(snapshotOf(folder.path()), before);
}

RefusedFile content(char const * name, QByteArray const & bytes)
{
    return {name, [bytes](QString const & path) { writeContent(path, bytes); }};
}

INSTANTIATE_TEST_SUITE_P(
    NoDatabase, RefusedDatabase,
    ::testing::Values(
        RefusedFile{"Missing", [](QString const &) {}},
        RefusedFile{"Folder", [](QString const & path) { QDir().mkdir(path); }},
        RefusedFile{"Pipe", [](QString const & path) { mkfifo(path.toUtf8().constData(), 0600); }},
        RefusedFile{"DanglingLink",
                    [](QString const & path) { QFile::link(path + QStringLiteral(".no"), path); }},
        content("Empty", ""), content("OneByte", "S"),
        content("Text", QByteArray("no database\n").repeated(1000)), content("Zeros", QByteArray(8192, '\0')),
        content("Garbage", randomBytes(8192)), content("GarbageOfOddSize", randomBytes(5000)),
        content("GarbageBehindTheMagicBytes", QByteArray("SQLite format 3\0", 16) + randomBytes(8176)),
        content("MagicBytesAlone", QByteArray("SQLite format 3\0", 16))),
    [](auto const & row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(WrongKey, RefusedDatabase,
                         ::testing::Values(RefusedFile{"Version4",
                                                       [](QString const & path) {
                                                           makeEncryptedSample(path, sqlcipher::version4,
                                                                               wrongKey());
                                                       }},
                                           RefusedFile{"Version3",
                                                       [](QString const & path) {
                                                           makeEncryptedSample(path, sqlcipher::version3,
                                                                               wrongKey());
                                                       }}),
                         [](auto const & row) { return row.param.name; });

/// The sample with one bit changed in the byte at \a offset.
RefusedFile damaged(char const * name, sqlcipher::PageFormat const & format, int offset)
{
    return {name, [&format, offset](QString const & path) {
                makeEncryptedSample(path, format);
                QByteArray bytes = contentOf(path);
                bytes[offset] = static_cast<char>(bytes.at(offset) ^ 1);
                writeContent(path, bytes);
            }};
}

INSTANTIATE_TEST_SUITE_P(DamagedFirstPage, RefusedDatabase,
                         ::testing::Values(damaged("Version4Salt", sqlcipher::version4, 0),
                                           damaged("Version4FirstCipherByte", sqlcipher::version4, 16),
                                           damaged("Version4LastCipherByte", sqlcipher::version4, 4015),
                                           damaged("Version4Iv", sqlcipher::version4, 4016),
                                           damaged("Version4Hmac", sqlcipher::version4, 4095),
                                           damaged("Version3Salt", sqlcipher::version3, 15),
                                           damaged("Version3Cipher", sqlcipher::version3, 500),
                                           damaged("Version3Iv", sqlcipher::version3, 976),
                                           damaged("Version3Hmac", sqlcipher::version3, 1011)),
                         [](auto const & row) { return row.param.name; });

/// The sample with other bytes at \a offset of its header, in a first page that is authentic all the same.
RefusedFile withHeader(char const * name, sqlcipher::PageFormat const & format, int offset,
                       QByteArray const & bytes)
{
    return {name, [&format, offset, bytes](QString const & path) {
                makeEncryptedSample(path, format);
                changeHeader(path, format, offset, bytes);
            }};
}

INSTANTIATE_TEST_SUITE_P(
    AuthenticFirstPage, RefusedDatabase,
    ::testing::Values(
        withHeader("Version4OfAnotherPageSize", sqlcipher::version4, 16, QByteArray("\x20", 1)),
        withHeader("Version4OfPageSize0", sqlcipher::version4, 16, QByteArray("\0\0", 2)),
        withHeader("Version4OfPageSize1000", sqlcipher::version4, 16, QByteArray("\x03\xE8", 2)),
        withHeader("Version4ThatOnlyALaterSqliteReads", sqlcipher::version4, 19, QByteArray("\3", 1)),
        withHeader("Version4WithoutReserve", sqlcipher::version4, 20, QByteArray("\0", 1)),
        withHeader("Version4WithAByteTooLittleReserve", sqlcipher::version4, 20, QByteArray("\x4F", 1)),
        withHeader("Version4WithoutAHeader", sqlcipher::version4, 21, QByteArray("\0", 1)),
        withHeader("Version3OfAnotherPageSize", sqlcipher::version3, 16, QByteArray("\x02", 1)),
        withHeader("Version3OfPageSize0", sqlcipher::version3, 16, QByteArray("\0\0", 2)),
        withHeader("Version3WithAByteTooLittleReserve", sqlcipher::version3, 20, QByteArray("\x2F", 1))),
    [](auto const & row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    OtherSettings, RefusedDatabase,
    ::testing::Values(RefusedFile{"PageSize8192",
                                  [](QString const & path) {
                                      makeEncryptedSample(path, {0, 8192, 80, 64, "SHA512", "SHA512"});
                                  }},
                      RefusedFile{"HmacOfSha256",
                                  [](QString const & path) {
                                      makeEncryptedSample(path, {0, 4096, 48, 32, "SHA256", "SHA256"});
                                  }},
                      RefusedFile{
                          "PlainHeader",
                          [](QString const & path) { makeSampleOfPlainHeader(path, sqlcipher::version4); }}),
    [](auto const & row) { return row.param.name; });

// SQLite would overflow its stack, or read for years.
INSTANTIATE_TEST_SUITE_P(HostileSchema, RefusedDatabase,
                         ::testing::Values(RefusedFile{"ViewsWithinViews",
                                                       [](QString const & path) {
                                                           makeEncryptedDatabase(path,
                                                                                 viewsWithinViews(2000));
                                                       }},
                                           RefusedFile{"EndlessSchema", makeEndlessSchema}),
                         [](auto const & row) { return row.param.name; });

TEST_F(ConnectionFixture, OpensADatabaseOfSomeHundredViewsWithinViews)
{
    QString const file = path(QStringLiteral("views.db3"));
    makeEncryptedDatabase(file, viewsWithinViews(600));
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT * FROM v600")), "7");
}

/// A database with two views that have so many bytes together.
void makeDatabaseWithViews(QString const & path, int bytes)
{
    QString const first = QStringLiteral("CREATE VIEW v AS SELECT 7 AS a");
    QString const second = QStringLiteral("CREATE VIEW w AS SELECT 'ä%1' AS a");
    int const unpadded = static_cast<int>(first.toUtf8().size() + second.toUtf8().size()) - 2;
    makeEncryptedDatabase(path, first + QLatin1Char(';') +
                                    second.arg(QString(bytes - unpadded, QLatin1Char('x'))) +
                                    QLatin1Char(';'));
}

TEST_F(ConnectionFixture, OpensADatabaseWithViewsOf32KiBAndNoByteMore)
{
    QString const file = path(QStringLiteral("views.db3"));
    makeDatabaseWithViews(file, 32768);
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT sum(length(CAST(sql AS BLOB))) FROM sqlite_master WHERE "
                                 "type = 'view'")),
              "32768");
    EXPECT_EQ(ask(QStringLiteral("SELECT a FROM v")), "7");
    makeDatabaseWithViews(file, 32769);
    EXPECT_FALSE(open(file));
    EXPECT_EQ(messages(), "");
}

/// The sample cut to \a size bytes; negative sizes count from the end.
RefusedFile cut(char const * name, sqlcipher::PageFormat const & format, int size)
{
    return {name, [&format, size](QString const & path) {
                makeEncryptedSample(path, format);
                qint64 const whole = QFile(path).size();
                QFile::resize(path, size < 0 ? whole + size : size);
            }};
}

INSTANTIATE_TEST_SUITE_P(CutShort, RefusedDatabase,
                         ::testing::Values(cut("Version4InTheSalt", sqlcipher::version4, 10),
                                           cut("Version4BehindTheSalt", sqlcipher::version4, 16),
                                           cut("Version4InTheHeader", sqlcipher::version4, 99),
                                           cut("Version4BehindTheHeader", sqlcipher::version4, 100),
                                           cut("Version4InPage1", sqlcipher::version4, 2000),
                                           cut("Version4BeforeTheEndOfPage1", sqlcipher::version4, 4095),
                                           cut("Version4BehindPage1", sqlcipher::version4, 4096),
                                           cut("Version4InPage2", sqlcipher::version4, 5000),
                                           cut("Version4BehindPage2", sqlcipher::version4, 8192),
                                           cut("Version4BeforeTheLastPage", sqlcipher::version4, -4096),
                                           cut("Version4InTheLastPage", sqlcipher::version4, -2000),
                                           cut("Version4BeforeTheLastByte", sqlcipher::version4, -1),
                                           cut("Version3InTheSalt", sqlcipher::version3, 10),
                                           cut("Version3InPage1", sqlcipher::version3, 1023),
                                           cut("Version3BehindPage1", sqlcipher::version3, 1024),
                                           cut("Version3InPage2", sqlcipher::version3, 1500),
                                           cut("Version3BeforeTheLastPage", sqlcipher::version3, -1024),
                                           cut("Version3BeforeTheLastByte", sqlcipher::version3, -1)),
                         [](auto const & row) { return row.param.name; });

class RefusedPath : public ConnectionFixture {};

TEST_F(RefusedPath, IsAnEmptyOne)
{
    EXPECT_FALSE(open(QString()));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("test")));
    EXPECT_EQ(messages(), "");
}

TEST_F(RefusedPath, HoldsAZeroCharacterBehindTheNameOfAGoodFile)
{
    QString const file = path(QStringLiteral("sample.db3"));
    makeEncryptedSample(file);
    EXPECT_FALSE(open(file + QChar::Null + QStringLiteral(".db3")));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("test")));
    EXPECT_TRUE(open(file));
}

TEST_F(RefusedPath, IsOneWithoutPermission)
{
    QString const readable = path(QStringLiteral("readable.db3"));
    QString const forbidden = path(QStringLiteral("forbidden.db3"));
    makeEncryptedSample(readable);
    makeEncryptedSample(forbidden);
    ASSERT_EQ(chmod(folder.path().toUtf8().constData(), 0755), 0);
    ASSERT_EQ(chmod(readable.toUtf8().constData(), 0444), 0);
    ASSERT_EQ(chmod(forbidden.toUtf8().constData(), 0000), 0);

    // Permissions do not hold for root, so a process without its rights looks at the files.
    pid_t const child = fork();
    ASSERT_NE(child, -1);
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && setuid(nobody) != 0)
            _exit(100);
        bool const opensReadable = open(readable);
        bool const opensForbidden = open(forbidden);
        _exit((opensReadable ? 0 : 1) + (opensForbidden ? 2 : 0));
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0)
        << "1: the readable file did not open, 2: the forbidden one did, 100: no rights dropped";
}

} // namespace

} // namespace kestrova::test
