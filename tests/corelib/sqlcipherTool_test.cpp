#include "connectionFixture.h"
#include "sampleDatabase.h"

#include "sqlcipher/databaseFile.h"

#include <QFile>
#include <QProcess>

namespace kestrova::test {

namespace {

/// The files of version 3 against the public command line tool.
class SqlcipherTool : public ConnectionFixture {
protected:
    QString const file = path(QStringLiteral("sample.db3"));

    /// What the tool prints when it runs \a sql on the file with the key of this build.
    std::string runTool(QString const & sql)
    {
        QByteArray const key(reinterpret_cast<char const *>(sqlcipher::databaseKey.data()),
                             sqlcipher::keySize);
        QProcess tool;
        tool.start(QStringLiteral("sqlcipher"), {QStringLiteral("-batch"), file});
        EXPECT_TRUE(tool.waitForStarted()) << "the command line tool sqlcipher is not installed";
        tool.write("PRAGMA key = \"x'" + key.toHex() + "'\";\n" + sql.toUtf8() + ";\n");
        tool.closeWriteChannel();
        EXPECT_TRUE(tool.waitForFinished());
        EXPECT_EQ(tool.exitCode(), 0);
        EXPECT_EQ(tool.readAllStandardError().toStdString(), "");
        return tool.readAllStandardOutput().trimmed().toStdString();
    }
};

TEST_F(SqlcipherTool, WritesWhatTheLibraryReads)
{
    runTool(sampleSql());
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
    EXPECT_EQ(ask(QStringLiteral("SELECT id FROM Names WHERE name = 'name of 1618'")), "1618");
    EXPECT_EQ(ask(QStringLiteral("SELECT length(data), hex(substr(data, 19999)) FROM Blobs")), "20000|4142");
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
}

TEST_F(SqlcipherTool, WritesWhatTheLibraryReadsAlsoInWriteAheadMode)
{
    runTool(QStringLiteral("PRAGMA journal_mode = WAL;") + sampleSql());
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
}

TEST_F(SqlcipherTool, WritesWhatIsDecrypted)
{
    runTool(sampleSql());
    sqlcipher::decryptDatabase(file, path(QStringLiteral("plain.db3")));
    EXPECT_EQ(contentOf(path(QStringLiteral("plain.db3"))).left(16).toStdString(),
              std::string("SQLite format 3\0", 16));
    EXPECT_EQ(sqlcipher::inspectDatabase(file).version, 3);
}

TEST_F(SqlcipherTool, ReadsWhatIsEncryptedForVersion3)
{
    makeEncryptedSample(file, sqlcipher::version3);
    EXPECT_EQ(runTool(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(runTool(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
    EXPECT_EQ(runTool(QStringLiteral("SELECT length(data), hex(substr(data, 19999)) FROM Blobs")),
              "20000|4142");
}

TEST_F(SqlcipherTool, WritesUnderOtherSettingsWhatIsKnownAndRefused)
{
    struct Row {
        char const * pragmas;
        char const * settings;
    };

    Row const rows[] = {
        {"PRAGMA cipher_page_size = 512; PRAGMA cipher_use_hmac = OFF;",
         "cipher_page_size = 512, cipher_use_hmac = OFF"},
        {"PRAGMA cipher_use_hmac = OFF;", "cipher_page_size = 1024, cipher_use_hmac = OFF"},
        {"PRAGMA cipher_page_size = 65536; PRAGMA cipher_use_hmac = OFF;",
         "cipher_page_size = 65536, cipher_use_hmac = OFF"},
        {"PRAGMA cipher_page_size = 2048;",
         "cipher_page_size = 2048, cipher_hmac_algorithm = HMAC_SHA1, cipher_kdf_algorithm = "
         "PBKDF2_HMAC_SHA1"},
        {"PRAGMA cipher_page_size = 4096;",
         "cipher_page_size = 4096, cipher_hmac_algorithm = HMAC_SHA1, cipher_kdf_algorithm = "
         "PBKDF2_HMAC_SHA1"},
        {"PRAGMA cipher_page_size = 65536;",
         "cipher_page_size = 65536, cipher_hmac_algorithm = HMAC_SHA1, cipher_kdf_algorithm = "
         "PBKDF2_HMAC_SHA1"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.pragmas);
        runTool(QLatin1String(row.pragmas) + sampleSql());
        sqlcipher::Inspection const inspection = sqlcipher::inspectDatabase(file);
        EXPECT_EQ(inspection.state, sqlcipher::FileState::OtherSettings);
        EXPECT_EQ(inspection.message.toStdString(),
                  file.toStdString() +
                      " opens with the key of this build, but with settings of SQLCipher that are not "
                      "supported: " +
                      row.settings + "; export it anew with the default settings of version 4 or 3.");
        EXPECT_FALSE(open(file));
        EXPECT_TRUE(QFile::remove(file));
    }
    EXPECT_EQ(messages(), "");
}

TEST_F(SqlcipherTool, ReadsTheSampleOfCompatibilityMode)
{
    makeSampleOfCompatibilityMode(file);
    EXPECT_EQ(runTool(QStringLiteral("PRAGMA integrity_check")), "ok");
    EXPECT_EQ(runTool(QStringLiteral("SELECT count(*), sum(id) FROM Names WHERE name = 'name of ' || id")),
              "3000|4501500");
}

TEST_F(SqlcipherTool, WritesToWhatIsEncryptedForVersion3)
{
    makeEncryptedSample(file, sqlcipher::version3);
    runTool(QStringLiteral("INSERT INTO Names VALUES (3001, 'name of 3001')"));
    ASSERT_TRUE(open(file));
    EXPECT_EQ(ask(QStringLiteral("SELECT count(*) FROM Names")), "3001");
    EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
}

} // namespace

} // namespace kestrova::test
