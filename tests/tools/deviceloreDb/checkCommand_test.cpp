#include "toolFixture.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace kestrova::test;

namespace {

/// A description with one error, one warning and one hint.
char const * const faultyDescription = "CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType);"
                                       "CREATE TABLE Hardwaretypes (Type, DeviceType);"
                                       "INSERT INTO Guids VALUES ('C6000012', 'Hesko', '1', 1, 1);"
                                       "INSERT INTO Hardwaretypes VALUES (3, 'Hesko');";

struct CheckTool : ToolFixture {
    void SetUp() override
    {
        QFile text(path(QStringLiteral("faulty.sql")));
        ASSERT_TRUE(text.open(QIODevice::WriteOnly));
        text.write(faultyDescription);
        text.close();
        ASSERT_EQ(run("new faulty.db3 --sql faulty.sql").exitCode, 0);
        ASSERT_EQ(run("new good.db3").exitCode, 0);
    }

    QStringList rulesOf(QString const & output)
    {
        QStringList rules;
        QJsonObject const json = QJsonDocument::fromJson(output.toUtf8()).object();
        for (QJsonValue const & finding : json.value(QStringLiteral("findings")).toArray())
            rules.append(finding.toObject().value(QStringLiteral("rule")).toString());
        return rules;
    }
};

} // namespace

TEST_F(CheckTool, IsContentWithAGoodDatabase)
{
    ProgramResult const result = run("check good.db3");
    EXPECT_EQ(result.exitCode, 0) << result.output.toStdString();
    EXPECT_EQ(result.output, QStringLiteral("0 errors, 0 warnings, 0 hints\n"));
    EXPECT_EQ(result.messages, QString());
}

TEST_F(CheckTool, TellsWhereWhatAndWhatToDo)
{
    ProgramResult const result = run("check faulty.db3");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output.toStdString(),
              "faulty.db3: hint: ANALYZE has not been run [statistics-missing]\n"
              "    the database has no statistics; the library: SQLite may choose an index that is slower\n"
              "    to do: encrypt with `devicelore-db encrypt`, which adds them, or run ANALYZE before\n"
              "faulty.db3, Guids, row 1, GUID: error: C6000012: \"C6000012\" does not begin with C7 "
              "[guid-prefix]\n"
              "    a GUID does not begin with C7; the library: the row is not read\n"
              "    to do: correct the GUID\n"
              "faulty.db3, Hardwaretypes, row 1, DeviceType: warning: hardware type 3: no device is of the "
              "model \"Hesko\" [hardware-unknown]\n"
              "    a hardware type belongs to a model that no database describes; the library: the hardware "
              "has a name, and no device\n"
              "    to do: correct DeviceType, or describe the model\n"
              "1 error, 1 warning, 1 hint\n");
    EXPECT_EQ(result.messages, QString());
}

TEST_F(CheckTool, EndsWithOneForErrorsAndOnDemandForWarnings)
{
    struct Row {
        char const * arguments;
        int exitCode;
    };

    Row const rows[] = {
        {"check faulty.db3", 1},
        {"check faulty.db3 --ignore guid-prefix", 0},
        {"check faulty.db3 --ignore guid-prefix --strict", 1},
        {"check faulty.db3 --ignore guid-prefix --ignore hardware-unknown --strict", 0},
        {"check .", 1},
        {"check good.db3 faulty.db3", 1},
    };
    for (Row const & row : rows)
        EXPECT_EQ(run(row.arguments).exitCode, row.exitCode) << row.arguments;
}

TEST_F(CheckTool, RefusesWrongUse)
{
    struct Row {
        char const * arguments;
        int exitCode;
        char const * message;
    };

    Row const rows[] = {
        {"check", 2, "name the databases, or a folder of them; see devicelore-db check --help"},
        {"check good.db3 --ignore nothing", 2,
         "there is no rule 'nothing'; `devicelore-db check --rules` explains all"},
        {"check good.db3 --json --sarif", 2, "--json and --sarif are two ways to print; give one"},
        {"check good.db3 --baseline none.txt", 2, "cannot read 'none.txt': No such file or directory"},
        {"check good.db3 --baseline faulty.sql", 2,
         "faulty.sql, line 1 is no accepted finding; write the file with --write-baseline"},
        {"check none.db3", 4, "there is no file or folder 'none.db3'"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = run(row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode);
        EXPECT_EQ(result.output, QString());
        EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: %1\n").arg(QString::fromUtf8(row.message)));
    }
}

TEST_F(CheckTool, RefusesTwoDatabasesOfOneName)
{
    ASSERT_TRUE(QDir(path(QString())).mkdir(QStringLiteral("other")));
    ASSERT_EQ(run("new other/good.db3").exitCode, 0);
    ProgramResult const result = run("check good.db3 other");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.messages.contains(QLatin1String("two of the databases are named 'good.db3'")))
        << result.messages.toStdString();
}

TEST_F(CheckTool, TellsThatAFolderHasNoDatabases)
{
    ASSERT_TRUE(QDir(path(QString())).mkdir(QStringLiteral("empty")));
    ProgramResult const result = run("check empty");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: there are no databases (*.db3) in 'empty'\n"));
}

TEST_F(CheckTool, AcceptsWhatABaselineHolds)
{
    EXPECT_EQ(run("check faulty.db3 --write-baseline accepted.txt").exitCode, 1);
    ProgramResult const result = run("check faulty.db3 --baseline accepted.txt --strict");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, QStringLiteral("0 errors, 0 warnings, 0 hints\n"));

    ProgramResult const mended = run("check good.db3 --baseline accepted.txt");
    EXPECT_EQ(mended.exitCode, 0);
    EXPECT_EQ(mended.output,
              QStringLiteral("0 errors, 0 warnings, 0 hints\n"
                             "3 lines of accepted.txt accept what is no longer there; write it "
                             "anew with --write-baseline\n"));
}

TEST_F(CheckTool, PrintsJsonAndSarif)
{
    ProgramResult const json = run("check faulty.db3 --json");
    EXPECT_EQ(json.exitCode, 1);
    EXPECT_EQ(rulesOf(json.output),
              QStringList({QStringLiteral("statistics-missing"), QStringLiteral("guid-prefix"),
                           QStringLiteral("hardware-unknown")}));
    ProgramResult const sarif = run("check faulty.db3 --sarif");
    EXPECT_EQ(sarif.exitCode, 1);
    QJsonObject const document = QJsonDocument::fromJson(sarif.output.toUtf8()).object();
    EXPECT_EQ(document.value(QStringLiteral("runs"))
                  .toArray()
                  .at(0)
                  .toObject()
                  .value(QStringLiteral("results"))
                  .toArray()
                  .size(),
              3);
}

TEST_F(CheckTool, ExplainsAllRules)
{
    ProgramResult const result = run("check --rules");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.startsWith(
        QLatin1String("class-cut (error): an object class has a number above 255\n    the library: ")))
        << result.output.left(200).toStdString();
    EXPECT_GT(QJsonDocument::fromJson(run("check --rules --json").output.toUtf8()).array().size(), 60);
}

TEST_F(CheckTool, FindsAFileThatIsNoDatabase)
{
    ASSERT_TRUE(QFile::rename(path(QStringLiteral("faulty.sql")), path(QStringLiteral("text.db3"))));
    ProgramResult const result = run("check text.db3 --json");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(rulesOf(result.output), QStringList({QStringLiteral("not-a-database")}));
    EXPECT_EQ(result.messages, QString());
}

TEST_F(CheckTool, ChangesNothing)
{
    std::string const before = names();
    run("check .");
    run("diff good.db3 faulty.db3");
    EXPECT_EQ(names(), before);
}
