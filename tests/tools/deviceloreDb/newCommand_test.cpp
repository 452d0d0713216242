#include "toolFixture.h"

#include <QFile>

using namespace kestrova::test;

namespace {

struct NewCommand : ToolFixture {
    /// Makes a.db from a text, and gives the message without the tool's name.
    std::string trouble(QByteArray const & sql, int exitCode = 4) const
    {
        write(QStringLiteral("text.sql"), sql);
        ProgramResult const result = run("new a.db --sql text.sql");
        EXPECT_EQ(result.exitCode, exitCode);
        EXPECT_EQ(result.output, QString());
        EXPECT_EQ(names(), "text.sql");
        EXPECT_TRUE(result.messages.startsWith(QStringLiteral("devicelore-db: ")));
        return result.messages.mid(15).trimmed().toStdString();
    }
};

} // namespace

TEST_F(NewCommand, MakesAllTables)
{
    make("new a.db");
    EXPECT_EQ(names(), "a.db");
    EXPECT_EQ(
        rows(QStringLiteral("a.db"),
             QStringLiteral(
                 "SELECT t.name, group_concat(c.name, ' ') FROM sqlite_schema t, pragma_table_info(t.name) c "
                 "WHERE t.type = 'table' GROUP BY t.rowid ORDER BY t.rowid")),
        "Version|Major Minor Bugfix\n"
        "Guids|GUID DeviceType Version Access OnoType\n"
        "Hardwaretypes|Type DeviceType\n"
        "Objects|id Name BoxNumber ObjectNumber ChannelCount RecordCount Min Max Step Format Flags Access "
        "DefaultValue Size TextOffset Description Comment ClassId WaitTime WaitStates\n"
        "guidsandobjects|objectid guid\n"
        "ObjectClasses|Id OcaClassId Description\n"
        "TextsObjectValues|TextOffset Value TextShort_en_US\n"
        "DevicePropertyFilter|FilterName Expression Access\n"
        "SpeakerClasses|Class Name Type Ways WayNames\n"
        "Speakers|SpeakerId Name Class Rib DisplayNameShort SortOrder CablefitMaxCount WfActive\n"
        "GuidsSpeakersFilters|GUID SpeakerId FilterId Access\n"
        "Filters|Id Number Type Min Max DisplayNameShort TextOffset StateTexts\n"
        "SpeakerData|GUID SpeakerId DeviceType SpeakerName SpeakerVersion BlobData BlobDataMD5");
}

TEST_F(NewCommand, GivesTheVersionZero)
{
    make("new a.db");
    EXPECT_EQ(rows(QStringLiteral("a.db"), QStringLiteral("SELECT * FROM Version")), "0|0|0");
}

TEST_F(NewCommand, MakesTheDatabaseOfAText)
{
    write(QStringLiteral("text.sql"), "\xEF\xBB\xBF-- with a byte order mark\n"
                                      ";; CREATE TABLE T (a, b); /* a comment */\n"
                                      "SELECT 1; INSERT INTO T VALUES ('Gr\xC3\xB6\xC3\x9F"
                                      "e', x'00ff');\n"
                                      "-- the end");
    make("new a.db --sql text.sql");
    EXPECT_EQ(names(), "a.db text.sql");
    EXPECT_EQ(rows(QStringLiteral("a.db"), QStringLiteral("SELECT a, hex(b) FROM T")), "Größe|00FF");
}

TEST_F(NewCommand, SaysWhatIsWrongInATextAndWhere)
{
    struct Row {
        char const * name;
        QByteArray sql;
        char const * message;
    };

    Row const rows[] = {
        {"misspelt word", "CREATE TABLE T (a);\n\nCREAT TABLE U (a);\n",
         "text.sql:3: near \"CREAT\": syntax error"},
        {"error inside a long statement", "CREATE TABLE T (\n  a,\n  b b b,,\n  c);\n",
         "text.sql:3: near \",\": syntax error"},
        {"no such table", "\nINSERT INTO\n  T VALUES (1);", "text.sql:2: no such table: T"},
        {"broken constraint",
         "CREATE TABLE T (a UNIQUE);\n-- one\n/* and\n two */ INSERT INTO T VALUES (1), (1);\n",
         "text.sql:4: UNIQUE constraint failed: T.a"},
        {"end inside a statement", "CREATE TABLE T (a);\nCREATE TABLE\n", "text.sql:2: incomplete input"},
        {"open transaction", "BEGIN;\nCREATE TABLE T (a);\n",
         "text.sql:3: a transaction is still open; end it with COMMIT"},
        {"NUL", QByteArray("CREATE TABLE T (a);\nINSERT INTO T VALUES ('a\0b');\n", 50),
         "text.sql:2: there is a NUL character in the text"},
        {"Latin-1", "CREATE TABLE T (a);\n\nINSERT INTO T VALUES ('\xE4');\n",
         "text.sql:3: the text is not in UTF-8"},
        {"nothing", "", "text.sql: the text makes no table"},
        {"comments only", "-- nothing\n/* here */", "text.sql: the text makes no table"},
        {"another file", "ATTACH 'other.db' AS o;\n", "text.sql:1: too many attached databases - max 0"},
        {"a copy", "CREATE TABLE T (a);\nVACUUM INTO 'other.db';\n",
         "text.sql:2: too many attached databases - max 0"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(trouble(row.sql), row.message);
    }
}

TEST_F(NewCommand, SurvivesAVeryLongStatement)
{
    QByteArray values;
    for (int number = 0; number < 100000; ++number)
        values += ", (" + QByteArray::number(number) + ")";
    write(QStringLiteral("text.sql"), "CREATE TABLE T (a); INSERT INTO T VALUES " + values.mid(2));
    make("new a.db --sql text.sql");
    EXPECT_EQ(rows(QStringLiteral("a.db"), QStringLiteral("SELECT count(*), sum(a) FROM T")),
              "100000|4999950000");
}

TEST_F(NewCommand, RefusesATextThatIsTooLarge)
{
    QFile file(path(QStringLiteral("text.sql")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(500000001)); // takes no space on the disk
    ProgramResult const result = run("new a.db --sql text.sql");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages,
              QStringLiteral("devicelore-db: 'text.sql' is larger than 500 MB; split the work with the "
                             "sqlite3 tool\n"));
    EXPECT_EQ(names(), "text.sql");
}

TEST_F(NewCommand, RefusesATextThatCannotBeRead)
{
    ProgramResult const missing = run("new a.db --sql text.sql");
    EXPECT_EQ(missing.exitCode, 3);
    EXPECT_EQ(missing.messages, QStringLiteral("devicelore-db: there is no file 'text.sql'\n"));

    ProgramResult const directory = run("new a.db --sql .");
    EXPECT_EQ(directory.exitCode, 2);
    EXPECT_EQ(directory.messages,
              QStringLiteral("devicelore-db: '.' is not a file; name a text of SQL statements\n"));

    write(QStringLiteral("text.sql"), "CREATE TABLE T (a);");
    ASSERT_TRUE(QFile::setPermissions(path(QStringLiteral("text.sql")), {}));
    ProgramResult const forbidden = run(
        {QStringLiteral("new"), QStringLiteral("a.db"), QStringLiteral("--sql"), QStringLiteral("text.sql")},
        underPermissions());
    EXPECT_EQ(forbidden.exitCode, 4);
    EXPECT_EQ(forbidden.messages,
              QStringLiteral("devicelore-db: cannot read 'text.sql': Permission denied\n"));
    EXPECT_EQ(names(), "text.sql");
}

TEST_F(NewCommand, ReplacesAFileOnlyWhenForced)
{
    write(QStringLiteral("a.db"), "precious");
    ProgramResult const refused = run("new a.db");
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_EQ(refused.messages,
              QStringLiteral("devicelore-db: 'a.db' is there already; --force replaces it\n"));
    EXPECT_EQ(content(QStringLiteral("a.db")), "precious");

    make("new a.db --force");
    EXPECT_EQ(rows(QStringLiteral("a.db"), QStringLiteral("SELECT count(*) FROM Guids")), "0");
    EXPECT_EQ(names(), "a.db");
}

TEST_F(NewCommand, KeepsTheOldFileWhenTheTextIsWrong)
{
    write(QStringLiteral("a.db"), "precious");
    write(QStringLiteral("text.sql"), "nonsense");
    EXPECT_EQ(run("new a.db --force --sql text.sql").exitCode, 4);
    EXPECT_EQ(content(QStringLiteral("a.db")), "precious");
    EXPECT_EQ(names(), "a.db text.sql");
}

TEST_F(NewCommand, ReplacesNothingButAFile)
{
    ProgramResult const result = run("new --force .");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: '.' is not a file; name a file to write\n"));
}

TEST_F(NewCommand, SaysThatItCannotWrite)
{
    ProgramResult const noFolder = run("new none/a.db");
    EXPECT_EQ(noFolder.exitCode, 4);
    EXPECT_EQ(noFolder.messages,
              QStringLiteral("devicelore-db: cannot write 'none/a.db': No such file or directory\n"));

    ASSERT_TRUE(QFile::setPermissions(path(QString()), QFile::ReadOwner | QFile::ExeOwner));
    ProgramResult const forbidden = run({QStringLiteral("new"), QStringLiteral("a.db")}, underPermissions());
    EXPECT_EQ(forbidden.exitCode, 4);
    EXPECT_EQ(forbidden.messages, QStringLiteral("devicelore-db: cannot write 'a.db': Permission denied\n"));
    EXPECT_EQ(names(), "");
    QFile::setPermissions(path(QString()), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
