#include "sampleDatabase.h"

#include "sqlcipher/inspection.h"
#include "support/sqlFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <functional>
#include <random>

namespace kestrova::test {

namespace {

using sqlcipher::FileState;
using sqlcipher::inspectDatabase;
using sqlcipher::Inspection;
using sqlcipher::version3;
using sqlcipher::version4;

void changeByte(QString const & path, int offset)
{
    QByteArray content = contentOf(path);
    content[offset] = static_cast<char>(content.at(offset) ^ 1);
    writeContent(path, content);
}

/// One file, and what an inspection finds of it.
struct InspectedFile {
    std::string name;
    std::function<void(QString const & path)> make;
    FileState state;
    int version;
    int damagedPage;
    std::string message; ///< with FILE for the path
};

class InspectedDatabase : public ::testing::TestWithParam<InspectedFile> {};

TEST_P(InspectedDatabase, IsKnownForWhatItIs)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("100% %1 %2.db3"));
    GetParam().make(path);
    Inspection inspection = inspectDatabase(path);
    EXPECT_EQ(inspection.state, GetParam().state);
    EXPECT_EQ(inspection.version, GetParam().version);
    EXPECT_EQ(inspection.damagedPage, GetParam().damagedPage);
    EXPECT_EQ(inspection.message.replace(path, QStringLiteral("FILE")).toStdString(), GetParam().message);
    EXPECT_EQ(inspection.isGood(),
              GetParam().state == FileState::Plain || GetParam().state == FileState::Encrypted);
}

void make4(QString const & path)
{
    makeEncryptedSample(path, version4);
}

void make3(QString const & path)
{
    makeEncryptedSample(path, version3);
}

auto const wrongKeyMessage =
    "FILE does not open with the key of this build; encrypt it with that key, or check that it "
    "is a database at all.";

INSTANTIATE_TEST_SUITE_P(
    Good, InspectedDatabase,
    ::testing::Values(
        InspectedFile{"Plain", makePlainSample, FileState::Plain, 0, 0, "FILE is a plain database."},
        InspectedFile{"Version4", make4, FileState::Encrypted, 4, 0, "FILE is an encrypted database."},
        InspectedFile{"Version3", make3, FileState::Encrypted, 3, 0, "FILE is an encrypted database."},
        InspectedFile{"Version3OfCompatibilityMode", makeSampleOfCompatibilityMode, FileState::Encrypted, 3,
                      0, "FILE is an encrypted database."}),
    [](auto const & row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    NoFile, InspectedDatabase,
    ::testing::Values(
        InspectedFile{"Missing", [](QString const &) {}, FileState::Missing, 0, 0,
                      "FILE does not exist; check the path."},
        InspectedFile{"Folder", [](QString const & path) { QDir().mkdir(path); }, FileState::NotAFile, 0, 0,
                      "FILE is no regular file; name a database file."},
        InspectedFile{"Pipe", [](QString const & path) { mkfifo(path.toUtf8().constData(), 0600); },
                      FileState::NotAFile, 0, 0, "FILE is no regular file; name a database file."},
        InspectedFile{"Empty", [](QString const & path) { writeContent(path, ""); }, FileState::Empty, 0, 0,
                      "FILE is empty; make it anew."}),
    [](auto const & row) { return row.param.name; });

InspectedFile notADatabase(char const * name, QByteArray const & content)
{
    return {name,
            [content](QString const & path) { writeContent(path, content); },
            FileState::NotADatabase,
            0,
            0,
            "FILE is not a database, neither plain nor encrypted; check the path."};
}

INSTANTIATE_TEST_SUITE_P(
    NotADatabase, InspectedDatabase,
    ::testing::Values(notADatabase("OneByte", "S"),
                      notADatabase("Text", QByteArray("no database\n").repeated(1000)),
                      notADatabase("RandomBytesShortOfAPage", randomBytes(1023)),
                      notADatabase("Zeros", QByteArray(8192, '\0')),
                      notADatabase("MagicBytesAlone", QByteArray("SQLite format 3\0", 16)),
                      notADatabase("PageSizeThatIsNoPowerOfTwo",
                                   QByteArray("SQLite format 3\0\x0F\xFF", 18) + QByteArray(8174, '\0')),
                      notADatabase("MagicBytesAndZeros",
                                   QByteArray("SQLite format 3\0", 16) + QByteArray(8176, '\0'))),
    [](auto const & row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    WrongKey, InspectedDatabase,
    ::testing::Values(
        InspectedFile{"RandomBytesOfAPage",
                      [](QString const & path) { writeContent(path, randomBytes(1024)); },
                      FileState::WrongKey, 0, 0, wrongKeyMessage},
        InspectedFile{"Version4",
                      [](QString const & path) { makeEncryptedSample(path, version4, wrongKey()); },
                      FileState::WrongKey, 0, 0, wrongKeyMessage},
        InspectedFile{"Version3",
                      [](QString const & path) { makeEncryptedSample(path, version3, wrongKey()); },
                      FileState::WrongKey, 0, 0, wrongKeyMessage},
        InspectedFile{"OtherSettings",
                      [](QString const & path) {
                          makeEncryptedSample(path, {0, 8192, 80, 64, "SHA512", "SHA512"}, wrongKey());
                      },
                      FileState::WrongKey, 0, 0, wrongKeyMessage},
        // Another salt is another key to every page.
        InspectedFile{"DamagedSalt",
                      [](QString const & path) {
                          make4(path);
                          changeByte(path, 3);
                      },
                      FileState::WrongKey, 0, 0, wrongKeyMessage}),
    [](auto const & row) { return row.param.name; });

InspectedFile damaged(char const * name, sqlcipher::PageFormat const & format, int offset, int page)
{
    return {name,
            [&format, offset](QString const & path) {
                makeEncryptedSample(path, format);
                changeByte(path, offset);
            },
            FileState::DamagedPage,
            format.version,
            page,
            "FILE is damaged in page " + std::to_string(page) + "; make it anew."};
}

INSTANTIATE_TEST_SUITE_P(DamagedPage, InspectedDatabase,
                         ::testing::Values(damaged("Version4Page1", version4, 100, 1),
                                           damaged("Version4Page2", version4, 4096, 2),
                                           damaged("Version4EndOfPage7", version4, 7 * 4096 - 1, 7),
                                           damaged("Version3Page1", version3, 100, 1),
                                           damaged("Version3Page2", version3, 1024, 2),
                                           damaged("Version3Page7", version3, 6 * 1024, 7)),
                         [](auto const & row) { return row.param.name; });

InspectedFile ofOtherSettings(char const * name, sqlcipher::PageFormat const & format,
                              std::string const & settings,
                              void (*make)(QString const & path, sqlcipher::PageFormat const & format))
{
    return {name,
            [format, make](QString const & path) { make(path, format); },
            FileState::OtherSettings,
            0,
            0,
            "FILE opens with the key of this build, but with settings of SQLCipher that are not supported: " +
                settings + "; export it anew with the default settings of version 4 or 3."};
}

void makeSampleOf(QString const & path, sqlcipher::PageFormat const & format)
{
    makeEncryptedSample(path, format);
}

INSTANTIATE_TEST_SUITE_P(
    OtherSettings, InspectedDatabase,
    ::testing::Values(
        ofOtherSettings("PageSize1024", {0, 1024, 80, 64, "SHA512", "SHA512"},
                        "cipher_page_size = 1024, cipher_hmac_algorithm = HMAC_SHA512, "
                        "cipher_kdf_algorithm = PBKDF2_HMAC_SHA512",
                        makeSampleOf),
        ofOtherSettings("PageSize8192", {0, 8192, 80, 64, "SHA512", "SHA512"},
                        "cipher_page_size = 8192, cipher_hmac_algorithm = HMAC_SHA512, "
                        "cipher_kdf_algorithm = PBKDF2_HMAC_SHA512",
                        makeSampleOf),
        ofOtherSettings("PageSize65536", {0, 65536, 80, 64, "SHA512", "SHA512"},
                        "cipher_page_size = 65536, cipher_hmac_algorithm = HMAC_SHA512, "
                        "cipher_kdf_algorithm = PBKDF2_HMAC_SHA512",
                        makeSampleOf),
        ofOtherSettings("HmacOfSha256", {0, 4096, 48, 32, "SHA256", "SHA256"},
                        "cipher_page_size = 4096, cipher_hmac_algorithm = HMAC_SHA256, "
                        "cipher_kdf_algorithm = PBKDF2_HMAC_SHA256",
                        makeSampleOf),
        ofOtherSettings("HmacOfSha1", {0, 4096, 48, 20, "SHA1", "SHA512"},
                        "cipher_page_size = 4096, cipher_hmac_algorithm = HMAC_SHA1, "
                        "cipher_kdf_algorithm = PBKDF2_HMAC_SHA512",
                        makeSampleOf),
        ofOtherSettings("KeyOfTheHmacBySha1", {0, 4096, 80, 64, "SHA512", "SHA1"},
                        "cipher_page_size = 4096, cipher_hmac_algorithm = HMAC_SHA512, "
                        "cipher_kdf_algorithm = PBKDF2_HMAC_SHA1",
                        makeSampleOf),
        ofOtherSettings("PlainHeader", version4,
                        "cipher_plaintext_header_size = 32 (the salt is not in the file), cipher_page_size "
                        "= 4096, cipher_hmac_algorithm = HMAC_SHA512",
                        makeSampleOfPlainHeader),
        ofOtherSettings("PlainHeaderAndAShorterHmac", version3,
                        "cipher_plaintext_header_size = 32 (the salt is not in the file), cipher_page_size "
                        "= 1024, cipher_hmac_algorithm = HMAC_SHA256 or HMAC_SHA1",
                        makeSampleOfPlainHeader),
        ofOtherSettings("PlainHeaderAndNoHmac", {0, 4096, 16, 0, "SHA512", "SHA512"},
                        "cipher_plaintext_header_size = 32 (the salt is not in the file), cipher_page_size "
                        "= 4096, cipher_use_hmac = OFF",
                        makeSampleOfPlainHeader)),
    [](auto const & row) { return row.param.name; });

/// With other bytes in the header of a first page that is authentic all the same.
InspectedFile relabelledDatabase(char const * name, sqlcipher::PageFormat const & format, int offset,
                                 QByteArray const & bytes)
{
    return {name,
            [&format, offset, bytes](QString const & path) {
                makeEncryptedSample(path, format);
                changeHeader(path, format, offset, bytes);
            },
            FileState::DamagedPage,
            format.version,
            1,
            "FILE is damaged in page 1; make it anew."};
}

INSTANTIATE_TEST_SUITE_P(
    AuthenticFirstPage, InspectedDatabase,
    ::testing::Values(relabelledDatabase("Version4OfPageSize0", version4, 16, QByteArray("\0\0", 2)),
                      relabelledDatabase("Version4OfPageSize1000", version4, 16, QByteArray("\x03\xE8", 2)),
                      relabelledDatabase("Version4OfPageSize8192", version4, 16, QByteArray("\x20", 1)),
                      relabelledDatabase("Version4WithoutReserve", version4, 20, QByteArray("\0", 1)),
                      relabelledDatabase("Version3OfPageSize0", version3, 16, QByteArray("\0\0", 2)),
                      relabelledDatabase("Version3OfPageSize1000", version3, 16, QByteArray("\x03\xE8", 2))),
    [](auto const & row) { return row.param.name; });

InspectedFile cut(char const * name, std::function<void(QString const &)> const & make, int size, int version,
                  std::string const & message)
{
    return {name,
            [make, size](QString const & path) {
                make(path);
                QFile::resize(path, size);
            },
            FileState::CutShort,
            version,
            0,
            message};
}

void makeTwoPages(QString const & path)
{
    makeSqlFile(path, QStringLiteral("PRAGMA page_size = 4096; CREATE TABLE T (a)"));
}

INSTANTIATE_TEST_SUITE_P(
    CutShort, InspectedDatabase,
    ::testing::Values(cut("Plain", makeTwoPages, 4096, 0,
                          "FILE is cut short: 4096 bytes instead of 8192; copy it again."),
                      cut("PlainInPage2", makeTwoPages, 8191, 0,
                          "FILE is cut short: 8191 bytes instead of 8192; copy it again."),
                      cut("Version4InPage1", make4, 2000, 0,
                          "FILE is cut short: its 2000 bytes are no whole number of pages; copy it again.")),
    [](auto const & row) { return row.param.name; });

TEST(Inspection, CountsThePagesThatTheHeaderStates)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("sample.db3"));
    makeEncryptedSample(path, version4);
    qint64 const pages = QFile(path).size() / 4096;
    EXPECT_GT(pages, 20);
    EXPECT_EQ(inspectDatabase(path).pageCount, pages);
    QFile::resize(path, qint64(3) * 4096);
    EXPECT_EQ(inspectDatabase(path).pageCount, pages);
    EXPECT_EQ(inspectDatabase(path).state, FileState::CutShort);
    EXPECT_EQ(inspectDatabase(path).version, 4);
}

TEST(Inspection, TellsHowManyBytesThePagesReserve)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("sample.db3"));
    makePlainSample(path);
    EXPECT_EQ(inspectDatabase(path).reserve, 0);
    makeEncryptedSample(path, version4);
    EXPECT_EQ(inspectDatabase(path).reserve, 80);
    makeEncryptedSample(path, version3);
    EXPECT_EQ(inspectDatabase(path).reserve, 48);
    makeSampleOfCompatibilityMode(path);
    EXPECT_EQ(inspectDatabase(path).reserve, 80);
}

TEST(Inspection, IgnoresBytesBehindTheLastPageAsSqliteDoes)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("sample.db3"));
    makeEncryptedSample(path, version4);
    writeContent(path, contentOf(path) + "appended");
    EXPECT_EQ(inspectDatabase(path).state, FileState::Encrypted);
}

TEST(Inspection, ReportsEachPageAsItIsChecked)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("sample.db3"));
    makeEncryptedSample(path, version4);
    qint64 expected = 0;
    Inspection const inspection =
        inspectDatabase(path, sqlcipher::databaseKey, [&expected](qint64 done, qint64 all) {
            EXPECT_EQ(done, ++expected);
            EXPECT_GT(all, 20);
        });
    EXPECT_EQ(expected, inspection.pageCount);
}

TEST(Inspection, FindsEveryChangedByteOfVersion4)
{
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("sample.db3"));
    makeEncryptedSample(path, version4);
    QByteArray const content = contentOf(path);
    std::mt19937 random(20240229); // NOLINT(cert-msc51-cpp): the same bytes in every run
    std::uniform_int_distribution<int> anyOffsetBehindTheSalt(16, static_cast<int>(content.size()) - 1);
    for (int i = 0; i < 200; ++i) {
        int const offset = anyOffsetBehindTheSalt(random);
        writeContent(path, content);
        changeByte(path, offset);
        Inspection const inspection = inspectDatabase(path);
        EXPECT_EQ(inspection.state, FileState::DamagedPage) << offset;
        EXPECT_EQ(inspection.damagedPage, offset / 4096 + 1) << offset;
    }
}

} // namespace

} // namespace kestrova::test
