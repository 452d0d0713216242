#include "toolFolder.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

using kestrova::test::DatabaseFolder;
using kestrova::test::onFullDisk;
using kestrova::test::ProgramResult;
using kestrova::test::ToolFolder;

namespace {

QString const devicesSql = QStringLiteral(
    "CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES (1, 2, 3);"
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER, OnoType INTEGER);"
    "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '1.0', 1, 1), ('C7000105', 'Talvo', '1.1', 1, 2),"
    "                         ('C7000305', 'Talvo', '1.3', 2, 2), ('C7000106', 'Hesko', '1.0', 1, 1),"
    "                         ('C7000007', 'Zerin', '1.0', 3, 1);");

struct DeviceTool : ::testing::Test {
    DeviceTool() { tool.add(QStringLiteral("a.db3"), devicesSql); }

    ToolFolder tool;
};

} // namespace

TEST_F(DeviceTool, RefusesWrongUse)
{
    struct Row {
        char const * arguments;
        char const * message;
    };

    Row const rows[] = {
        {"", "devicelore: which command?; see devicelore --help\n"},
        {"nonsense", "devicelore: there is no command 'nonsense'; see devicelore --help\n"},
        {"devices --nonsense", "devicelore: Unknown option 'nonsense'; see devicelore --help\n"},
        {"device", "devicelore: usage: devicelore device GUID|MODEL; see devicelore --help\n"},
        {"device a b", "devicelore: usage: devicelore device GUID|MODEL; see devicelore --help\n"},
        {"devices a", "devicelore: usage: devicelore devices; see devicelore --help\n"},
        {"devices --access-level",
         "devicelore: Missing value after '--access-level'; see devicelore --help\n"},
        {"devices --access-level 256",
         "devicelore: --access-level takes a number from 0 to 255, not '256'; see devicelore --help\n"},
        {"devices --access-level -1",
         "devicelore: --access-level takes a number from 0 to 255, not '-1'; see devicelore --help\n"},
        {"devices --access-level x",
         "devicelore: --access-level takes a number from 0 to 255, not 'x'; see devicelore --help\n"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = tool.run(row.arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, QString());
        EXPECT_EQ(result.messages, QString::fromUtf8(row.message));
    }
}

TEST_F(DeviceTool, ExplainsItselfAndEachCommand)
{
    for (char const * arguments : {"--help", "-h", "databases --help", "devices --help", "device --help"}) {
        SCOPED_TRACE(arguments);
        ProgramResult const result = tool.run(arguments);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_TRUE(result.output.startsWith(QLatin1String("usage: devicelore ")))
            << result.output.toStdString();
        EXPECT_TRUE(result.output.contains(QLatin1String("--databases DIR")));
        EXPECT_TRUE(
            result.output.contains(QLatin1String("Exit codes: 0 ok, 2 wrong use, 3 not found, 4 trouble")));
        EXPECT_EQ(result.messages, QString());
    }
    EXPECT_TRUE(tool.run("--help").output.contains(QLatin1String("\n  device GUID|MODEL")));
}

TEST_F(DeviceTool, TellsTheVersionOfTheLibrary)
{
    EXPECT_EQ(tool.run("--version").output, QStringLiteral("devicelore 1.4.19\n"));
}

TEST(DeviceToolDatabases, MustBeThere)
{
    ToolFolder const tool;
    ProgramResult const result = tool.run("devices");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, QString());
    EXPECT_EQ(result.messages,
              QStringLiteral("devicelore: there are no databases (*.db3) in '%1'; name a folder with "
                             "--databases DIR\n")
                  .arg(tool.dir().absolutePath()));
}

TEST(DeviceToolDatabases, MayLieInOtherFoldersToo)
{
    ToolFolder tool;
    tool.add(QStringLiteral("own.db3"), QString());
    DatabaseFolder other;
    other.add(QStringLiteral("a.db3"), devicesSql);
    ProgramResult const result =
        tool.run({QStringLiteral("databases"), QStringLiteral("--databases"), other.dir().path()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    QStringList const lines = result.output.split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines.at(0), QStringLiteral("DATABASE  VERSION  FILE"));
    EXPECT_EQ(lines.at(1), QStringLiteral("own.db3   0.0.0    ") + tool.path(QStringLiteral("own.db3")));
    EXPECT_EQ(lines.at(2), QStringLiteral("a.db3     1.2.3    ") + other.path(QStringLiteral("a.db3")));
}

TEST(DeviceToolDatabases, ThatCannotBeHadAreNamed)
{
    ToolFolder tool;
    DatabaseFolder empty;
    DatabaseFolder damaged;
    damaged.add(QStringLiteral("a.db3"), QString()).addFile(QStringLiteral("b.db3"), "no database");
    DatabaseFolder sameName;
    sameName.add(QStringLiteral("a.db3"), QString());
    DatabaseFolder sameNameToo;
    sameNameToo.add(QStringLiteral("a.db3"), QString());

    struct Row {
        char const * name;
        QStringList folders;
        QString message;
    };

    Row const rows[] = {
        {"no such folder",
         {QStringLiteral("/no/such/folder")},
         QStringLiteral("there is no folder '/no/such/folder'")},
        {"nothing in it",
         {empty.dir().path()},
         QStringLiteral("there are no readable databases (*.db3) in '%1'").arg(empty.dir().path())},
        {"a file that does not open",
         {damaged.dir().path()},
         QStringLiteral("cannot open the database '%1'; unless a message above tells why, "
                        "`devicelore-db info '%1'` does")
             .arg(damaged.path(QStringLiteral("b.db3")))},
        {"two of one name",
         {sameName.dir().path(), sameNameToo.dir().path()},
         QStringLiteral(
             "two of the databases are named 'a.db3', and a name can be open only once; rename the one in "
             "'%1'")
             .arg(sameNameToo.dir().path())},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        QStringList arguments{QStringLiteral("devices")};
        for (QString const & folder : row.folders)
            arguments << QStringLiteral("--databases") << folder;
        ProgramResult const result = tool.run(arguments);
        EXPECT_EQ(result.exitCode, 4);
        EXPECT_EQ(result.output, QString());
        EXPECT_EQ(result.messages, QStringLiteral("devicelore: ") + row.message + QLatin1Char('\n'));
    }
}

TEST(DeviceToolDatabases, BesideTheToolThatDoNotOpenAreNamed)
{
    ToolFolder tool;
    tool.addFile(QStringLiteral("bad.db3"), "no database");
    ProgramResult const result = tool.run("devices");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages,
              QStringLiteral("devicelore: cannot open the database '%1'; unless a message above tells why, "
                             "`devicelore-db info '%1'` does\n")
                  .arg(tool.path(QStringLiteral("bad.db3"))));
}

TEST_F(DeviceTool, ListsDescriptionsByTypeAndVersion)
{
    ProgramResult const result = tool.run("devices");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    EXPECT_EQ(result.output, QStringLiteral("GUID      MODEL  VERSION  ACCESS    DATABASE\n"
                                            "C7000005  Talvo  0        1         a.db3\n"
                                            "C7000105  Talvo  1        1         a.db3\n"
                                            "C7000305  Talvo  3        2 hidden  a.db3\n"
                                            "C7000106  -      1        1         a.db3\n"
                                            "C7000007  -      0        3 hidden  a.db3\n"));
}

TEST_F(DeviceTool, ShowsMoreAtAHigherLevel)
{
    EXPECT_EQ(tool.run("devices --access-level 3").output,
              QStringLiteral("GUID      MODEL  VERSION  ACCESS  DATABASE\n"
                             "C7000005  Talvo  0        1       a.db3\n"
                             "C7000105  Talvo  1        1       a.db3\n"
                             "C7000305  Talvo  3        2       a.db3\n"
                             "C7000106  -      1        1       a.db3\n"
                             "C7000007  Zerin  0        3       a.db3\n"));
}

TEST_F(DeviceTool, ListsDescriptionsAsJson)
{
    QJsonArray const devices = tool.json("devices").toArray();
    ASSERT_EQ(devices.size(), 5);
    QJsonObject const expected{{QStringLiteral("guid"), QStringLiteral("C7000305")},
                               {QStringLiteral("model"), QStringLiteral("Talvo")},
                               {QStringLiteral("type"), 5},
                               {QStringLiteral("version"), 3},
                               {QStringLiteral("accessLevel"), 2},
                               {QStringLiteral("visible"), false},
                               {QStringLiteral("onoType"), 2},
                               {QStringLiteral("database"), QStringLiteral("a.db3")}};
    EXPECT_EQ(devices.at(2).toObject(), expected);
    EXPECT_EQ(devices.at(3).toObject().value(QStringLiteral("model")), QJsonValue(QString()));
}

TEST_F(DeviceTool, ListsDatabasesAsJson)
{
    QJsonArray const databases = tool.json("databases").toArray();
    ASSERT_EQ(databases.size(), 1);
    QJsonObject const expected{{QStringLiteral("name"), QStringLiteral("a.db3")},
                               {QStringLiteral("version"), QStringLiteral("1.2.3")},
                               {QStringLiteral("file"), tool.path(QStringLiteral("a.db3"))}};
    EXPECT_EQ(databases.first().toObject(), expected);
}

TEST_F(DeviceTool, TellsThatAVersionIsDescribed)
{
    ProgramResult const result = tool.run("device C7000105");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    EXPECT_EQ(result.output, QStringLiteral("asked                 C7000105 (type 5, version 1)\n"
                                            "description           C7000105\n"
                                            "why                   exact: this very version is described\n"
                                            "model                 Talvo\n"
                                            "database              a.db3\n"
                                            "access level          1\n"
                                            "base GUID             C7000005\n"
                                            "known versions        0, 1, 3 (hidden)\n"
                                            "newer than all known  no\n"));
}

TEST_F(DeviceTool, TellsWhyADescriptionStands)
{
    struct Row {
        char const * arguments;
        int exitCode;
        char const * reason;
        char const * description; ///< null when there is none
        bool newer;
    };

    Row const rows[] = {
        {"device C7000005", 0, "exact", "C7000005", false},
        {"device 0xc7000005", 0, "exact", "C7000005", false},
        {"device C7000205", 0, "newest visible", "C7000105", true},
        {"device C7000205 --access-level 2", 0, "newest visible", "C7000305", false},
        {"device C7000305", 0, "exact", "C7000305", true},
        {"device C7000905 --access-level 2", 0, "newest visible", "C7000305", true},
        {"device C7000006", 0, "newest visible", "C7000106", false},
        {"device C7000007", 3, "none", nullptr, false},
        {"device C7000007 --access-level 3", 0, "exact", "C7000007", false},
        {"device C7000008", 3, "none", nullptr, false},
        {"device 00000000", 3, "none", nullptr, false},
        {"device Talvo", 0, "exact", "C7000105", false},
        {"device Talvo --access-level 2", 0, "exact", "C7000305", false},
        {"device Hesko", 0, "exact", "C7000106", false},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        EXPECT_EQ(tool.run(row.arguments).exitCode, row.exitCode);
        QJsonObject const answer = tool.json(row.arguments).toObject();
        EXPECT_EQ(answer.value(QStringLiteral("reason")).toString(), QString::fromUtf8(row.reason));
        EXPECT_EQ(answer.contains(QStringLiteral("description")), row.description != nullptr);
        EXPECT_EQ(answer.value(QStringLiteral("description")).toString(), QString::fromUtf8(row.description));
        EXPECT_EQ(answer.value(QStringLiteral("newerThanAllKnown")).toBool(), row.newer);
    }
}

TEST_F(DeviceTool, TellsADeviceAsJson)
{
    QJsonObject const expected{{QStringLiteral("asked"), QStringLiteral("C7000205")},
                               {QStringLiteral("type"), 5},
                               {QStringLiteral("version"), 2},
                               {QStringLiteral("reason"), QStringLiteral("newest visible")},
                               {QStringLiteral("model"), QStringLiteral("Talvo")},
                               {QStringLiteral("knownVersions"), QJsonArray{0, 1, 3}},
                               {QStringLiteral("hiddenVersions"), QJsonArray{3}},
                               {QStringLiteral("newerThanAllKnown"), true},
                               {QStringLiteral("description"), QStringLiteral("C7000105")},
                               {QStringLiteral("database"), QStringLiteral("a.db3")},
                               {QStringLiteral("accessLevel"), 1},
                               {QStringLiteral("baseGuid"), QStringLiteral("C7000005")}};
    EXPECT_EQ(tool.json("device C7000205").toObject(), expected);
}

TEST_F(DeviceTool, SaysWhatItDidNotFind)
{
    struct Row {
        char const * arguments;
        char const * message;
    };

    Row const rows[] = {
        {"device C7000008",
         "devicelore: there is no description of C7000008 (none: no database describes the type)\n"},
        {"device C7000007",
         "devicelore: there is no description of C7000007 (none: every description of the type is "
         "above the access level)\n"},
        {"device Lumbo", "devicelore: there is no model 'Lumbo'; the models are Talvo\n"},
        {"device talvo", "devicelore: there is no model 'talvo'; the models are Talvo\n"},
        {"device C70001", "devicelore: there is no model 'C70001'; the models are Talvo\n"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = tool.run(row.arguments);
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_EQ(result.messages, QString::fromUtf8(row.message));
    }
}

TEST_F(DeviceTool, EndsInTroubleWhenItsAnswerCannotBeWritten)
{
    for (char const * arguments :
         {"databases", "databases --json", "devices", "devices --json", "device Talvo", "device C7000008",
          "device C7000008 --json", "modes", "modes --json", "explain Talvo", "defaults Talvo", "version",
          "version --json", "--help", "device --help", "--version", "--print-manual-page",
          "--print-completion"}) {
        SCOPED_TRACE(arguments);
        ProgramResult const result = tool.run(arguments, onFullDisk());
        EXPECT_EQ(result.exitCode, 4);
        // What follows comes from the C library, in the language of the process.
        EXPECT_TRUE(result.messages.startsWith(QStringLiteral("devicelore: the answer cannot be written: ")))
            << result.messages.toStdString();
        EXPECT_EQ(result.messages.count(QLatin1Char('\n')), 1);
    }
}
