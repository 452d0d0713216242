#include "toolFolder.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

using kestrova::test::ProgramResult;
using kestrova::test::ToolFolder;

namespace {

QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "INSERT INTO Guids VALUES ('C7000012', 'Hesko', '', 1), ('C7000312', 'Hesko', '', 1),"
    " ('C7000005', 'Talvo', '', 1), ('C7000030', 'Tovian', '', 1), ('C7000115', 'Nurix', '', 1);"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER, "
    "Format TEXT, Access INTEGER, DefaultValue TEXT);"
    "INSERT INTO Objects VALUES (1, 'Config_SpeakerId', 1, 1, '%3u', 11, '40'),"
    " (2, 'Volume', 1, 2, '%3d dB', 11, '-20'), (3, 'ChStatus_MsDelay', 1, 3, '%5.1d ms', 11, '1');"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
    "INSERT INTO guidsandobjects SELECT id, GUID FROM Objects, Guids;"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "INSERT INTO SpeakerClasses VALUES (1, 'Line', '', 1, ''), (9, 'Column', '', 1, '');"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (12, 'Wave', 1, 0, 'W', 1, 0, 1), (30, 'Column', 9, 0, 'C', 2, 0, 0);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId INTEGER, Access INTEGER);"
    "INSERT INTO GuidsSpeakersFilters SELECT GUID, SpeakerId, 0, 0 FROM Guids, Speakers;");

struct DefaultsTool : ::testing::Test {
    DefaultsTool() { tool.add(QStringLiteral("a.db3"), world); }

    /// What the tool prints when all goes well.
    QString output(char const * arguments) const
    {
        ProgramResult const result = tool.run(arguments);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.messages, QString());
        return result.output;
    }

    ToolFolder tool;
};

} // namespace

TEST_F(DefaultsTool, ListsTheOutputModes)
{
    EXPECT_EQ(output("modes"), QStringLiteral("MODE  CHANNELS  SPEAKERS  ON TWO CHANNELS\n"
                                              "0     1 2 3 4   4         2\n"
                                              "1     1 2 3 4   4         2\n"
                                              "2     1+2 3 4   3         1\n"
                                              "3     1 2 3 4   4         4\n"
                                              "4     1 2 3+4   3         3\n"
                                              "5     1 2 3 4   4         4\n"
                                              "6     1+2 3 4   3         3\n"
                                              "7     1 2 3+4   3         3\n"
                                              "8     1+2 3+4   2         1\n"));
}

TEST_F(DefaultsTool, ListsTheOutputModesAsJson)
{
    QJsonArray const modes = tool.json("modes").toArray();
    ASSERT_EQ(modes.size(), 9);
    auto const channel = [](int number, int first, bool twoWay, bool firstOfTwo) {
        return QJsonObject{{QStringLiteral("channel"), number},
                           {QStringLiteral("firstChannel"), first},
                           {QStringLiteral("twoWay"), twoWay},
                           {QStringLiteral("firstOfTwo"), firstOfTwo}};
    };
    QJsonObject const expected{
        {QStringLiteral("mode"), 2},
        {QStringLiteral("speakers"), 3},
        {QStringLiteral("speakersOnTwoChannels"), 1},
        {QStringLiteral("channels"), QJsonArray{channel(1, 1, true, true), channel(2, 1, true, false),
                                                channel(3, 3, false, false), channel(4, 4, false, false)}}};
    EXPECT_EQ(modes.at(2).toObject(), expected);
}

TEST_F(DefaultsTool, TellsTheSpeakersOfAllChannelsAndWhereTheyComeFrom)
{
    struct Row {
        char const * arguments;
        char const * output;
    };

    Row const rows[] = {
        {"defaults C7000312", "CHANNEL  DEFAULT SPEAKER  FROM        VALIDATED  FROM\n"
                              "1        71               mode table  71         mode table\n"
                              "2        71               mode table  71         mode table\n"
                              "3        71               mode table  71         mode table\n"
                              "4        71               mode table  71         mode table\n"},
        {"defaults C7000312 --mode 1 --speaker 30",
         "CHANNEL  DEFAULT SPEAKER  FROM        30 BECOMES  FROM\n"
         "1        71               mode table  71          mode table\n"
         "2        68               mode table  68          mode table\n"
         "3        71               mode table  30          stays\n"
         "4        71               mode table  30          stays\n"},
        {"defaults C7000312 --mode 2 --channel 1 --speaker 12",
         "CHANNEL  DEFAULT SPEAKER  FROM        12 BECOMES  FROM\n"
         "1        11               mode table  11          mode table\n"},
        {"defaults C7000312 --mode -1 --channel 0",
         "CHANNEL  DEFAULT SPEAKER  FROM      VALIDATED  FROM\n"
         "0        40               database  40         database\n"},
        {"defaults Talvo", "CHANNEL  DEFAULT SPEAKER  FROM      VALIDATED  FROM\n"
                           "1        40               database  40         database\n"
                           "2        40               database  40         database\n"},
        {"defaults Tovian --speaker 6 --mode 8",
         "CHANNEL  DEFAULT SPEAKER  FROM         6 BECOMES  FROM\n"
         "1        6                model table  0          model table\n"},
        {"defaults C7000912 --mode 0 --channel 7 --speaker 30",
         "CHANNEL  DEFAULT SPEAKER  FROM        30 BECOMES  FROM\n"
         "7        71               mode table  30          stays\n"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        EXPECT_EQ(output(row.arguments), QString::fromUtf8(row.output));
    }
}

TEST_F(DefaultsTool, TellsTheDefaultsOfPropertiesAndWhereTheyComeFrom)
{
    EXPECT_EQ(output("defaults Hesko Eq_Fg2 Eq_Order Volume ChStatus_MsDelay --channel 1"),
              QStringLiteral("CHANNEL  DEFAULT SPEAKER  FROM        VALIDATED  FROM\n"
                             "1        71               mode table  71         mode table\n"
                             "\n"
                             "PROPERTY          DEFAULT  FROM\n"
                             "Eq_Fg2            2000     model table\n"
                             "Eq_Order          1        model table\n"
                             "Volume            -20      database\n"
                             "ChStatus_MsDelay  1        database\n"));
    EXPECT_EQ(output("defaults Hesko ChStatus_MsDelay --channel 1 --speaker 12"),
              QStringLiteral("CHANNEL  DEFAULT SPEAKER  FROM        12 BECOMES  FROM\n"
                             "1        71               mode table  12          stays\n"
                             "\n"
                             "PROPERTY          DEFAULT  FROM\n"
                             "ChStatus_MsDelay  6.2      Wavefold speaker\n"));
}

TEST_F(DefaultsTool, SaysWhichPropertiesHaveNoDefault)
{
    ProgramResult const result = tool.run("defaults Hesko Nothing Volume volume --channel 1");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages, QStringLiteral("devicelore: C7000312 has no default of Nothing, volume\n"));
    EXPECT_EQ(result.output, QStringLiteral("CHANNEL  DEFAULT SPEAKER  FROM        VALIDATED  FROM\n"
                                            "1        71               mode table  71         mode table\n"
                                            "\n"
                                            "PROPERTY  DEFAULT  FROM\n"
                                            "Nothing   none     nowhere\n"
                                            "Volume    -20      database\n"
                                            "volume    none     nowhere\n"));
}

TEST_F(DefaultsTool, TellsDefaultsAsJson)
{
    auto const found = [](QJsonValue const & value, char const * source) {
        return QJsonObject{{QStringLiteral("value"), value},
                           {QStringLiteral("source"), QString::fromUtf8(source)}};
    };
    QJsonObject const expected{
        {QStringLiteral("guid"), QStringLiteral("C7000312")},
        {QStringLiteral("mode"), 1},
        {QStringLiteral("speakers"),
         QJsonArray{QJsonObject{{QStringLiteral("channel"), 2},
                                {QStringLiteral("default"), found(68, "mode table")},
                                {QStringLiteral("validated"), found(68, "mode table")}}}},
        {QStringLiteral("properties"), QJsonObject{{QStringLiteral("Eq_Q"), found(0.7, "model table")},
                                                   {QStringLiteral("Volume"), found(-20, "database")},
                                                   {QStringLiteral("None"), found({}, "nowhere")}}},
    };
    EXPECT_EQ(tool.json("defaults C7000212 Eq_Q Volume None --mode 1 --channel 2 --speaker 30").toObject(),
              expected);
}

TEST_F(DefaultsTool, RefusesWrongUseAndUnknownDevices)
{
    struct Row {
        char const * arguments;
        int exitCode;
        char const * message;
    };

    Row const rows[] = {
        {"defaults", 2, "usage: devicelore defaults GUID|MODEL [PROPERTY...]; see devicelore --help"},
        {"modes 1", 2, "usage: devicelore modes; see devicelore --help"},
        {"devices --mode 1", 2, "--mode is no option of 'devices'; see devicelore --help"},
        {"defaults Hesko --mode 9", 2, "--mode takes a number from -1 to 8, not '9'"},
        {"defaults Hesko --mode -2", 2, "--mode takes a number from -1 to 8, not '-2'"},
        {"defaults Hesko --mode x", 2, "--mode takes a number from -1 to 8, not 'x'"},
        {"defaults Hesko --channel 8", 2, "--channel takes a number from 0 to 7, not '8'"},
        {"defaults Hesko --channel -1", 2, "--channel takes a number from 0 to 7, not '-1'"},
        {"defaults Hesko --speaker 65536", 2, "--speaker takes a number from 0 to 65535, not '65536'"},
        {"defaults Hesko --speaker", 2, "Missing value after '--speaker'; see devicelore --help"},
        {"defaults C7000099", 3,
         "the model of C7000099 is not known; `devicelore device C7000099` tells what is"},
        {"defaults Nurix", 3,
         "the model of C7000115 is not known; `devicelore device C7000115` tells what is"},
        {"defaults Lumbo", 3, "there is no model 'Lumbo'; the models are Hesko, Talvo, Tovian"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = tool.run(row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode);
        EXPECT_EQ(result.output, QString());
        EXPECT_EQ(result.messages, QStringLiteral("devicelore: %1\n").arg(QString::fromUtf8(row.message)));
    }
}

TEST_F(DefaultsTool, ExplainsTheOptionsOfACommandThere)
{
    EXPECT_TRUE(tool.run("defaults --help")
                    .output.contains(QLatin1String(
                        "\nOptions of this command:\n"
                        "  --mode M                 the output mode, -1 (no mode) to 8; 0 if not given\n")));
    EXPECT_FALSE(tool.run("modes --help").output.contains(QLatin1String("Options of this command")));
}
