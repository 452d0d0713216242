#include "toolFixture.h"

#include "sqlcipher/databaseFile.h"

#include "corelib/sampleDatabase.h"
#include "support/sqlFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/stat.h>

using namespace kestrova::test;

namespace {

QString const newSql = QStringLiteral(
    "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES (1, 2, 3), (4, 5, 6);"
    "CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType); INSERT INTO Guids (GUID) VALUES (1), "
    "(2);"
    "CREATE TABLE Objects (id, Name, BoxNumber, ObjectNumber); INSERT INTO Objects (id) VALUES (1), (2), (3);"
    "CREATE TABLE DevicePropertyFilter (FilterName, Expression, Access);");

QString const oldSql = QStringLiteral("CREATE TABLE guids (GUID, DeviceType, Version, Access, onotype);"
                                      "CREATE TABLE Objects (id, Name, ObjectNumber, boxnumber);"
                                      "CREATE TABLE DevicePropertyFilter (FilterName, Expression);"
                                      "CREATE TABLE Unknown (a);");

struct InfoCommand : ToolFixture {
    /// Runs `info FILE --json`.
    QJsonObject json(QString const & fileName) const
    {
        QByteArray const text =
            run({QStringLiteral("info"), fileName, QStringLiteral("--json")}).output.toUtf8();
        QJsonParseError error;
        QJsonObject const object = QJsonDocument::fromJson(text, &error).object();
        EXPECT_EQ(error.error, QJsonParseError::NoError) << text.toStdString();
        return object;
    }

    /// Of a file that is no good.
    void expectTrouble(QString const & fileName, char const * state, QString const & reason) const
    {
        SCOPED_TRACE(fileName.toStdString());
        std::string const before = names();
        ProgramResult const result = run({QStringLiteral("info"), fileName});
        EXPECT_EQ(result.exitCode, 4);
        EXPECT_TRUE(result.output.contains(QStringLiteral("state  ")));
        EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: %1\n").arg(reason));

        QJsonObject const object = json(fileName);
        EXPECT_EQ(object.value(QStringLiteral("state")).toString(), QString::fromUtf8(state));
        EXPECT_EQ(object.value(QStringLiteral("reason")).toString(), reason);
        EXPECT_FALSE(object.value(QStringLiteral("good")).toBool(true));
        EXPECT_EQ(names(), before);
    }
};

} // namespace

TEST_F(InfoCommand, TellsOfAPlainDatabase)
{
    makeSqlFile(path(QStringLiteral("a.db")), newSql);
    ProgramResult const result = run("info a.db");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    EXPECT_EQ(result.output, QStringLiteral("file       a.db\n"
                                            "state      plain\n"
                                            "page size  4096\n"
                                            "pages      5\n"
                                            "version    1.2.3\n"
                                            "\n"
                                            "TABLE                 ROWS  VARIANT\n"
                                            "Version               2\n"
                                            "Guids                 2     with OnoType\n"
                                            "Hardwaretypes         -\n"
                                            "Objects               3     with BoxNumber\n"
                                            "guidsandobjects       -\n"
                                            "ObjectClasses         -\n"
                                            "SpeakerClasses        -\n"
                                            "Speakers              -\n"
                                            "GuidsSpeakersFilters  -\n"
                                            "Filters               -\n"
                                            "TextsObjectValues     -\n"
                                            "DevicePropertyFilter  0     with Access\n"
                                            "SpeakerData           -\n"));
}

TEST_F(InfoCommand, TellsOfAnEncryptedDatabaseOfOlderForm)
{
    makeSqlFile(path(QStringLiteral("a.db")), oldSql);
    make("encrypt a.db a.db3 --format 3");
    ProgramResult const result = run("info a.db3");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    EXPECT_EQ(result.output, QStringLiteral("file       a.db3\n"
                                            "state      encrypted, format version 3\n"
                                            "page size  1024\n"
                                            "pages      6\n"
                                            "version    none\n"
                                            "\n"
                                            "TABLE                 ROWS  VARIANT\n"
                                            "Version               -\n"
                                            "Guids                 0     without OnoType\n"
                                            "Hardwaretypes         -\n"
                                            "Objects               0     without BoxNumber\n"
                                            "guidsandobjects       -\n"
                                            "ObjectClasses         -\n"
                                            "SpeakerClasses        -\n"
                                            "Speakers              -\n"
                                            "GuidsSpeakersFilters  -\n"
                                            "Filters               -\n"
                                            "TextsObjectValues     -\n"
                                            "DevicePropertyFilter  0     without Access\n"
                                            "SpeakerData           -\n"));
}

TEST_F(InfoCommand, TellsOfTheReserveOfAFileOfCompatibilityMode)
{
    makeSampleOfCompatibilityMode(path(QStringLiteral("a.db3")));
    ProgramResult const result = run("info a.db3");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    EXPECT_TRUE(
        result.output.startsWith(QStringLiteral("file       a.db3\n"
                                                "state      encrypted, format version 3\n"
                                                "page size  1024\n"
                                                "reserved   80 bytes a page, of which the format uses 48\n"
                                                "pages      ")))
        << result.output.toStdString();
    EXPECT_EQ(json(QStringLiteral("a.db3")).value(QStringLiteral("reserve")).toInt(), 80);
}

TEST_F(InfoCommand, TellsTheSameAsJson)
{
    makeSqlFile(path(QStringLiteral("a.db")), newSql);
    make("encrypt a.db a.db3");
    QJsonObject const object = json(QStringLiteral("a.db3"));
    EXPECT_EQ(object.keys().join(QLatin1Char(' ')),
              QStringLiteral(
                  "damagedPage file formatVersion good pageSize pages reason reserve state tables version"));
    EXPECT_EQ(object.value(QStringLiteral("file")).toString(), QStringLiteral("a.db3"));
    EXPECT_TRUE(object.value(QStringLiteral("good")).toBool());
    EXPECT_EQ(object.value(QStringLiteral("state")).toString(), QStringLiteral("encrypted"));
    EXPECT_EQ(object.value(QStringLiteral("reason")).toString(), QString());
    EXPECT_EQ(object.value(QStringLiteral("formatVersion")).toInt(), 4);
    EXPECT_EQ(object.value(QStringLiteral("pageSize")).toInt(), 4096);
    EXPECT_EQ(object.value(QStringLiteral("reserve")).toInt(), 80);
    EXPECT_EQ(object.value(QStringLiteral("pages")).toInt(), 6);
    EXPECT_EQ(object.value(QStringLiteral("damagedPage")).toInt(-1), 0);
    EXPECT_EQ(object.value(QStringLiteral("version")).toString(), QStringLiteral("1.2.3"));

    QJsonObject const tables = object.value(QStringLiteral("tables")).toObject();
    EXPECT_EQ(tables.keys().join(QLatin1Char(' ')),
              QStringLiteral(
                  "DevicePropertyFilter Filters Guids GuidsSpeakersFilters Hardwaretypes ObjectClasses "
                  "Objects SpeakerClasses SpeakerData Speakers TextsObjectValues Version guidsandobjects"));
    EXPECT_EQ(tables.value(QStringLiteral("Objects")).toObject(),
              (QJsonObject{{QStringLiteral("present"), true},
                           {QStringLiteral("rows"), 3},
                           {QStringLiteral("BoxNumber"), true}}));
    EXPECT_EQ(tables.value(QStringLiteral("Filters")).toObject(),
              (QJsonObject{{QStringLiteral("present"), false}, {QStringLiteral("rows"), QJsonValue()}}));
}

TEST_F(InfoCommand, TakesAnyVersionRow)
{
    struct Row {
        char const * sql;
        char const * version;
    };

    Row const rows[] = {
        {"CREATE TABLE Version (a, b, c)", ""},
        {"CREATE TABLE Version (a); INSERT INTO Version VALUES (7)", "7.0.0"},
        {"CREATE TABLE Version (a, b, c, d); INSERT INTO Version VALUES ('3', NULL, x'ff00fe', 4)", "3.0.0"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.sql);
        makeSqlFile(path(QStringLiteral("a.db")), QString::fromUtf8(row.sql));
        EXPECT_EQ(json(QStringLiteral("a.db")).value(QStringLiteral("version")).toString(),
                  QString::fromUtf8(row.version));
        EXPECT_TRUE(QFile::remove(path(QStringLiteral("a.db"))));
    }
}

TEST_F(InfoCommand, WritesNothing)
{
    makeSqlFile(path(QStringLiteral("plain.db")), newSql);
    makeSqlFile(path(QStringLiteral("wal.db")), QStringLiteral("PRAGMA journal_mode = WAL;") + newSql);
    make("encrypt plain.db encrypted.db3");
    ASSERT_TRUE(QFile::setPermissions(path(QString()), QFile::ReadOwner | QFile::ExeOwner));
    std::string const before = names();
    for (char const * name : {"plain.db", "wal.db", "encrypted.db3"}) {
        SCOPED_TRACE(name);
        QByteArray const bytes = content(QString::fromUtf8(name));
        ProgramResult const result =
            run({QStringLiteral("info"), QString::fromUtf8(name)}, underPermissions());
        EXPECT_EQ(result.exitCode, 0) << result.messages.toStdString();
        EXPECT_TRUE(result.output.contains(QLatin1String("Objects               3")));
        EXPECT_EQ(content(QString::fromUtf8(name)), bytes);
    }
    EXPECT_EQ(names(), before);
    QFile::setPermissions(path(QString()), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(InfoCommand, SaysWhyAFileDoesNotOpen)
{
    makeSqlFile(path(QStringLiteral("plain.db")), newSql);
    write(QStringLiteral("empty"), "");
    write(QStringLiteral("text"), "no database");
    ASSERT_EQ(mkfifo(path(QStringLiteral("pipe")).toUtf8().constData(), 0600), 0);
    kestrova::sqlcipher::Key otherKey = kestrova::sqlcipher::databaseKey;
    otherKey[31] ^= 1;
    kestrova::sqlcipher::encryptDatabase(path(QStringLiteral("plain.db")), path(QStringLiteral("other.db3")),
                                         kestrova::sqlcipher::version4, otherKey);
    kestrova::sqlcipher::encryptDatabase(path(QStringLiteral("plain.db")),
                                         path(QStringLiteral("large pages.db3")),
                                         {0, 8192, 80, 64, "SHA512", "SHA512"});
    make("encrypt plain.db short.db3");
    ASSERT_TRUE(QFile::resize(path(QStringLiteral("short.db3")), 5 * pageSize));
    ASSERT_TRUE(QFile::copy(path(QStringLiteral("plain.db")), path(QStringLiteral("short.db"))));
    ASSERT_TRUE(QFile::resize(path(QStringLiteral("short.db")), 4 * pageSize));

    expectTrouble(QStringLiteral("none"), "missing", QStringLiteral("none does not exist; check the path."));
    expectTrouble(QStringLiteral("."), "not a file",
                  QStringLiteral(". is no regular file; name a database file."));
    expectTrouble(QStringLiteral("pipe"), "not a file",
                  QStringLiteral("pipe is no regular file; name a database file."));
    expectTrouble(QStringLiteral("empty"), "empty", QStringLiteral("empty is empty; make it anew."));
    expectTrouble(QStringLiteral("text"), "not a database",
                  QStringLiteral("text is not a database, neither plain nor encrypted; check the path."));
    expectTrouble(
        QStringLiteral("other.db3"), "wrong key",
        QStringLiteral("other.db3 does not open with the key of this build; encrypt it with that key, or "
                       "check that it is a database at all."));
    expectTrouble(QStringLiteral("large pages.db3"), "other settings",
                  QStringLiteral(
                      "large pages.db3 opens with the key of this build, but with settings of SQLCipher that "
                      "are not supported: cipher_page_size = 8192, cipher_hmac_algorithm = HMAC_SHA512, "
                      "cipher_kdf_algorithm = PBKDF2_HMAC_SHA512; export it anew with the default settings "
                      "of version 4 or 3."));
    expectTrouble(QStringLiteral("short.db3"), "cut short",
                  QStringLiteral("short.db3 is cut short: 20480 bytes instead of 24576; copy it again."));
    expectTrouble(QStringLiteral("short.db"), "cut short",
                  QStringLiteral("short.db is cut short: 16384 bytes instead of 20480; copy it again."));
}

TEST_F(InfoCommand, SaysThatAFileMayNotBeRead)
{
    makeSqlFile(path(QStringLiteral("a.db")), newSql);
    ASSERT_TRUE(QFile::setPermissions(path(QStringLiteral("a.db")), {}));
    ProgramResult const result = run({QStringLiteral("info"), QStringLiteral("a.db")}, underPermissions());
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, QStringLiteral("file   a.db\nstate  unreadable\n"));
    EXPECT_EQ(
        result.messages,
        QStringLiteral("devicelore-db: a.db cannot be read (Permission denied); check its permissions.\n"));
}

TEST_F(InfoCommand, CountsTheRowsThatADamagedPageLeaves)
{
    makeSqlFile(path(QStringLiteral("a.db")), newSql);
    make("encrypt a.db a.db3");
    // Page 2 holds Version, page 3 Guids, page 4 Objects.
    damage(QStringLiteral("a.db3"), 3 * pageSize + 100);
    ProgramResult const result = run("info a.db3");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: a.db3 is damaged in page 4; make it anew.\n"));
    EXPECT_EQ(result.output, QStringLiteral("file       a.db3\n"
                                            "state      damaged, format version 4\n"
                                            "page size  4096\n"
                                            "pages      6\n"
                                            "version    1.2.3\n"
                                            "\n"
                                            "TABLE                 ROWS        VARIANT\n"
                                            "Version               2\n"
                                            "Guids                 2           with OnoType\n"
                                            "Hardwaretypes         -\n"
                                            "Objects               unreadable  with BoxNumber\n"
                                            "guidsandobjects       -\n"
                                            "ObjectClasses         -\n"
                                            "SpeakerClasses        -\n"
                                            "Speakers              -\n"
                                            "GuidsSpeakersFilters  -\n"
                                            "Filters               -\n"
                                            "TextsObjectValues     -\n"
                                            "DevicePropertyFilter  0           with Access\n"
                                            "SpeakerData           -\n"));

    QJsonObject const object = json(QStringLiteral("a.db3"));
    EXPECT_EQ(object.value(QStringLiteral("damagedPage")).toInt(), 4);
    EXPECT_EQ(object.value(QStringLiteral("tables")).toObject().value(QStringLiteral("Objects")).toObject(),
              (QJsonObject{{QStringLiteral("present"), true},
                           {QStringLiteral("rows"), QJsonValue()},
                           {QStringLiteral("BoxNumber"), true}}));
}

TEST_F(InfoCommand, FindsTheDamageOfAFirstPage)
{
    makeSqlFile(path(QStringLiteral("a.db")), newSql);
    make("encrypt a.db a.db3");
    damage(QStringLiteral("a.db3"), 2000);
    ProgramResult const result = run("info a.db3");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: a.db3 is damaged in page 1; make it anew.\n"));
    EXPECT_EQ(result.output, QStringLiteral("file   a.db3\nstate  damaged, format version 4\n"));
}

TEST_F(InfoCommand, FindsViewsThatNoApplicationOpens)
{
    makeSqlFile(path(QStringLiteral("a.db")),
                viewsWithinViews(2000) + QStringLiteral("CREATE VIEW Objects AS SELECT * FROM v2000"));
    expectTrouble(
        QStringLiteral("a.db"), "plain",
        QStringLiteral("a.db cannot be used: its views have more than 32 KiB together; make them shorter"));
}

TEST_F(InfoCommand, FindsTheDamageOfAPlainDatabase)
{
    makeSqlFile(path(QStringLiteral("a.db")), newSql);
    QByteArray bytes = content(QStringLiteral("a.db"));
    bytes.replace(3 * 4096, 4096, QByteArray(4096, 'x')); // page 4: Objects
    write(QStringLiteral("a.db"), bytes);
    ProgramResult const result = run("info a.db");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_TRUE(result.messages.startsWith(QLatin1String("devicelore-db: a.db cannot be used: Page 4: ")))
        << result.messages.toStdString();
    EXPECT_TRUE(result.output.contains(QLatin1String("\nstate      plain\n")));
    EXPECT_TRUE(result.output.contains(QLatin1String("\nGuids                 2           with OnoType\n")));
    EXPECT_TRUE(
        result.output.contains(QLatin1String("\nObjects               unreadable  with BoxNumber\n")));
    EXPECT_FALSE(json(QStringLiteral("a.db")).value(QStringLiteral("good")).toBool(true));
}

TEST_F(InfoCommand, SurvivesAnySingleChangeOfAPlainDatabase)
{
    makeSqlFile(path(QStringLiteral("a.db")), newSql);
    // Every byte of the header and of the start of the schema would be too slow; primes miss no field by
    // rhythm.
    for (qint64 offset = 0; offset < 3 * pageSize; offset += 97) {
        damage(QStringLiteral("a.db"), offset);
        int const exitCode = run("info a.db").exitCode; // a crash would throw
        EXPECT_TRUE(exitCode == 0 || exitCode == 4) << offset;
        damage(QStringLiteral("a.db"), offset); // the same bit once more mends it
    }
    EXPECT_EQ(run("info a.db").exitCode, 0);
    EXPECT_EQ(names(), "a.db");
}
