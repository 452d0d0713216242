#include "support/sqlFile.h"
#include "toolFolder.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

using kestrova::test::makeSqlFile;
using kestrova::test::ProgramResult;
using kestrova::test::ToolFolder;

// What docs/command-line.md shows is tested there; here are the JSON, the corners and the errors.

namespace kestrova::test::objects {

namespace {

QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "INSERT INTO Guids VALUES ('C7000012', 'Hesko', '', 1), ('C7000112', 'Hesko', '', 2), "
    "('C7000020', 'Fenra', '', 1);"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER, "
    "ChannelCount INTEGER, RecordCount INTEGER, Min REAL, Max REAL, Step REAL, Format TEXT, Flags INTEGER, "
    "Access INTEGER, DefaultValue TEXT, Size INTEGER, TextOffset INTEGER, Description TEXT, Comment TEXT, "
    "ClassId INTEGER, WaitTime INTEGER, WaitStates INTEGER);"
    "INSERT INTO Objects VALUES"
    " (1, 'Gain', 2, 5, 4, 3, -60, 12, 0.5, '%6.1f dB', 3, 11, '-12', 4, 0, 'Gain shown', 'note', 9, 7, 8),"
    " (2, 'ChStatus_MsDelay', 1, 6, 4, 1, 0.3, 500, 0.1, '%5.1f ms', 3, 11, '', 4, 0, '', '', 0, 0, 0),"
    " (3, 'Secret', 1, 7, 1, 1, 0, 1, 1, '%U', 3, 31, '', 1, 0, '', '', 0, 0, 0),"
    " (4, 'Mode', 1, 8, 1, 1, 0, 2, 1, '%U', 1, 11, '', 1, 30, '', '', 0, 0, 0),"
    " (5, 'Title', 1, 9, 1, 1, 0, 0, 1, '%1s', 3, 12, 'It''s', 5, 0, '', '', 0, 0, 0),"
    " (6, 'Dump', 1, 10, 1, 1, 0, 0, 1, '%2H', 1, 11, '', 2, 0, '', '', 0, 0, 0),"
    " (7, 'Config_Filter1', 1, 11, 1, 1, 0, 1, 1, '%U', 3, 11, '', 1, 0, '', '', 0, 0, 0);"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
    "INSERT INTO guidsandobjects SELECT id, 'C7000012' FROM Objects;"
    "CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);"
    "INSERT INTO ObjectClasses VALUES (9, '1.2.3', '');"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "INSERT INTO SpeakerClasses VALUES (3, 'Two-way', '', 2, 'Low,High');"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (12, 'Wave', 3, 4, 'W', 1, 6, 1), (13, 'Plain', 0, 0, 'P', 2, 0, 0);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId, Access INTEGER);"
    "INSERT INTO GuidsSpeakersFilters VALUES ('C7000012', 12, 10, 0);"
    "CREATE TABLE Filters (Id, Number INTEGER, Type INTEGER, Min INTEGER, Max INTEGER, DisplayNameShort "
    "TEXT, "
    "TextOffset INTEGER, StateTexts TEXT);"
    "INSERT INTO Filters VALUES (10, 1, 2, 0, 5, 'Shelf', 40, 'a;b');"
    "CREATE TABLE TextsObjectValues (TextOffset, Value, TextShort_en_US, TextShort_de_DE);"
    "INSERT INTO TextsObjectValues VALUES (30, 1, 'On', 'An'), (30, 0, 'Off', 'Aus');"
    "CREATE TABLE DevicePropertyFilter (FilterName, Expression, Access);"
    "INSERT INTO DevicePropertyFilter VALUES ('Front', 'SELECT Name FROM Objects WHERE id < 3', 1), "
    "('Service', 'SELECT 1', 2), ('Bare', 'SELECT 1 WHERE 0', 0);");

struct ObjectsTool : ::testing::Test {
    ObjectsTool() { tool.add(QStringLiteral("a.db3"), world); }

    QJsonObject object(char const * arguments) const { return tool.json(arguments).toObject(); }

    ToolFolder tool;
};

} // namespace

TEST_F(ObjectsTool, TellsAllMembersOfAnObjectAsJson)
{
    QJsonObject const json = object("object Hesko Gain");
    EXPECT_EQ(json, (QJsonObject{{"guid", "C7000012"},
                                 {"name", "Gain"},
                                 {"number", 0x0205},
                                 {"box", 2},
                                 {"object", 5},
                                 {"displayName", "Gain shown"},
                                 {"displaySubName", ""},
                                 {"type", "number"},
                                 {"minimum", -60},
                                 {"maximum", 12},
                                 {"step", 0.5},
                                 {"default", -12},
                                 {"format", "%6.1f dB"},
                                 {"unit", " dB"},
                                 {"size", 4},
                                 {"flags", 3},
                                 {"access", 11},
                                 {"channels", 4},
                                 {"records", 3},
                                 {"textOffset", 0},
                                 {"classId", 9},
                                 {"ocaClass", QJsonArray{1, 2, 3}},
                                 {"onoType", 1},
                                 {"waitTime", 7},
                                 {"waitStates", 8},
                                 {"hash", 317438},
                                 {"comment", "note"}}));
}

TEST_F(ObjectsTool, FindsAnObjectByNameAndByNumber)
{
    for (char const * arguments :
         {"object Hesko 0x0205", "object Hesko 517", "object Hesko 0x2205", "object C7000012 Gain",
          "object Hesko Gain --input", "object Hesko Gain --output"})
        EXPECT_EQ(object(arguments).value(QStringLiteral("name")).toString(), QStringLiteral("Gain"))
            << arguments;
}

TEST_F(ObjectsTool, TellsWhatTheSpeakerChanges)
{
    QJsonObject const wave = object("object Hesko ChStatus_MsDelay --speaker 12");
    EXPECT_EQ(wave.value(QStringLiteral("minimum")).toDouble(), 6.2);
    EXPECT_EQ(
        wave.value(QStringLiteral("withoutSpeaker")).toObject().value(QStringLiteral("minimum")).toDouble(),
        0.3);
    EXPECT_EQ(wave.value(QStringLiteral("changedBy")).toString(),
              QStringLiteral("the speaker is a Wavefold setup"));
    QJsonObject const plain = object("object Hesko ChStatus_MsDelay --speaker 13");
    EXPECT_FALSE(plain.contains(QStringLiteral("withoutSpeaker")));
    QJsonObject const filter = object("object Hesko Config_Filter1 --speaker 12");
    EXPECT_EQ(filter.value(QStringLiteral("maximum")).toDouble(), 5.0);
    EXPECT_EQ(filter.value(QStringLiteral("displaySubName")).toString(), QStringLiteral("Shelf"));
    EXPECT_EQ(filter.value(QStringLiteral("changedBy")).toString(),
              QStringLiteral("the speaker's filter 'Shelf'"));
}

TEST_F(ObjectsTool, ListsObjectsByTheirNumbersUpToTheAccessLevel)
{
    auto const names = [&](char const * arguments) {
        QStringList list;
        for (QJsonValue const row : tool.json(arguments).toArray())
            list.append(row.toObject().value(QStringLiteral("name")).toString());
        return list.join(QLatin1Char(' '));
    };
    EXPECT_EQ(names("objects Hesko"), QStringLiteral("ChStatus_MsDelay Mode Title Dump Config_Filter1 Gain"));
    EXPECT_EQ(names("objects C7000012 --access-level 3"),
              QStringLiteral("ChStatus_MsDelay Secret Mode Title Dump Config_Filter1 Gain"));
    EXPECT_EQ(names("objects Hesko --like %I%"), QStringLiteral("Title Config_Filter1 Gain"))
        << "in any case";
}

TEST_F(ObjectsTool, DescribesAProperty)
{
    EXPECT_EQ(object("describe Hesko Mode"), (QJsonObject{{"guid", "C7000012"},
                                                          {"property", "Mode"},
                                                          {"displayName", ""},
                                                          {"subName", ""},
                                                          {"control", "readout"},
                                                          {"type", "number"},
                                                          {"minimum", 0},
                                                          {"maximum", 2},
                                                          {"step", 1},
                                                          {"decimals", 0},
                                                          {"unit", ""},
                                                          {"channels", 1},
                                                          {"texts", QJsonObject{{"0", "Off"}, {"1", "On"}}},
                                                          {"editable", false},
                                                          {"supported", true}}));

    struct Row {
        char const * arguments;
        char const * line;
    };

    for (Row const & row : {Row{"describe Hesko Mode", "editable   no: the object cannot be written\n"},
                            Row{"describe Hesko Title", "editable   no: it needs access level 2\n"},
                            Row{"describe C7000012 Title --access-level 2", "editable   yes\n"},
                            Row{"describe Hesko Config_Filter1 --speaker 13",
                                "supported  no: the speaker has no such filter\n"},
                            Row{"describe Hesko Config_Filter1 --speaker 12", "with       Shelf\n"},
                            Row{"describe Hesko Dump", "control    none\n"},
                            Row{"describe Hesko Mode", "texts      0 Off; 1 On\n"}})
        EXPECT_TRUE(tool.run(row.arguments).output.contains(QLatin1String(row.line))) << row.arguments;
}

TEST_F(ObjectsTool, ConvertsAndChecksValues)
{
    struct Row {
        char const * arguments;
        char const * output;
    };

    Row const rows[] = {
        {"convert Hesko Gain --to-real 0x3FC00000", "raw   1069547520\nreal  1.5 dB\n"},
        {"convert Hesko Gain --to-device 1.5", "raw   1.5\nreal  1.5 dB\n"},
        {"convert Hesko Title --to-real Stage", "raw   Stage\nreal  Stage\n"},
        {"convert Hesko Title --to-device 5", "raw   5\nreal  5\n"},
        {"check Hesko Gain 100", "verdict  adjusted to the maximum\nvalue    12\nlimit    maximum 12\n"},
        {"check Hesko Gain -100", "verdict  adjusted to the minimum\nvalue    -60\nlimit    minimum -60\n"},
        {"check Hesko Gain 3.2", "verdict  rounded down\nvalue    3\nlimit    step 0.5\n"},
        {"check Hesko Title abcdef", "verdict  cut\nvalue    abcd\nlimit    size 5\n"},
        {"check Hesko Dump abcdef", "verdict  valid\nvalue    abcdef\nlimit    none\n"},
    };
    for (Row const & row : rows) {
        ProgramResult const result = tool.run(row.arguments);
        EXPECT_EQ(result.exitCode, 0) << row.arguments;
        EXPECT_EQ(result.output, QLatin1String(row.output)) << row.arguments;
    }
}

TEST_F(ObjectsTool, ListsSpeakersAndFiltersAsJson)
{
    QJsonObject const wave{
        {"id", 12},       {"name", "Wave"},         {"class", 3}, {"displayNameShort", "W"},
        {"ways", 2},      {"wayNames", "Low,High"}, {"rib", 4},   {"cablefitMaxCount", 6},
        {"sortOrder", 1}, {"wavefold", true}};
    EXPECT_EQ(tool.json("speakers Hesko").toArray(), QJsonArray{wave});
    EXPECT_EQ(tool.json("speakers Hesko --type 4 --mode 2").toArray(), QJsonArray{wave});
    EXPECT_EQ(tool.json("speaker 12").toArray(), QJsonArray{wave});
    EXPECT_EQ(tool.json("speaker 0x10C").toArray(), QJsonArray{wave}) << "the low byte counts";
    EXPECT_EQ(object("filter Hesko 1 --speaker 12"), (QJsonObject{{"guid", "C7000012"},
                                                                  {"filter", 1},
                                                                  {"speaker", 12},
                                                                  {"name", "Shelf"},
                                                                  {"id", 10},
                                                                  {"type", 2},
                                                                  {"minimum", 0},
                                                                  {"maximum", 5},
                                                                  {"textOffset", 40},
                                                                  {"stateText", "a;b"}}));
}

TEST_F(ObjectsTool, TellsTextsAndGroups)
{
    EXPECT_EQ(tool.run("text Hesko 30").output, QStringLiteral("VALUE  TEXT\n0      Off\n1      On\n"));
    EXPECT_EQ(tool.run("text Hesko 30 1 --language TextShort_de_DE").output,
              QStringLiteral("VALUE  TEXT\n1      An\n"));
    EXPECT_EQ(tool.run("groups").output, QStringLiteral("Bare\nFront\n"));
    EXPECT_EQ(tool.run("groups --access-level 2").output, QStringLiteral("Bare\nFront\nService\n"));
    EXPECT_EQ(tool.json("groups Front").toArray(), (QJsonArray{"Gain", "ChStatus_MsDelay"}));
    EXPECT_EQ(
        tool.run({QStringLiteral("query"), QStringLiteral("SELECT Name FROM Objects WHERE id = 4")}).output,
        QStringLiteral("Mode\n"));
}

TEST_F(ObjectsTool, TellsAndWritesTheDspDataOfASpeaker)
{
    ASSERT_TRUE(QDir(tool.path(QString())).mkdir(QStringLiteral("DspData")));
    QByteArray const data = QByteArray::fromHex("0001ff");
    QString const md5 = QString::fromLatin1(QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex());
    makeSqlFile(tool.path(QStringLiteral("DspData/DspData.sqlite")),
                QStringLiteral(
                    "CREATE TABLE SpeakerData (GUID, SpeakerId, DeviceType, SpeakerName, SpeakerVersion, "
                    "BlobData, BlobDataMD5);"
                    "INSERT INTO SpeakerData VALUES ('C7000012', 12, 'Hesko', 'Wave', '2', x'0001ff', '%1'),"
                    " ('C7000012', 13, 'Hesko', 'Plain', '2', x'0001ff', 'other'),"
                    " ('C7000012', 14, 'Hesko', '', '2', x'0001ff', '%1');")
                    .arg(md5.toUpper()));
    QString const file = tool.path(QStringLiteral("out.bin"));
    ProgramResult const good = tool.run({QStringLiteral("dsp"), QStringLiteral("C7000012"),
                                         QStringLiteral("12"), QStringLiteral("--out"), file});
    EXPECT_EQ(good.exitCode, 0);
    EXPECT_EQ(good.output,
              QStringLiteral("device type    Hesko\nspeaker        Wave\nsetup version  2\n"
                             "data           3 bytes\nMD5            matches\nvalid          yes\n"));
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), data);
    for (char const * damaged : {"dsp C7000012 13", "dsp C7000012 14"}) {
        ProgramResult const result = tool.run(damaged);
        EXPECT_EQ(result.exitCode, 4) << damaged;
        EXPECT_TRUE(result.messages.endsWith(QStringLiteral("is damaged or incomplete\n"))) << damaged;
    }
    EXPECT_EQ(tool.run("dsp C7000012 12 --out /no/such/folder/file").exitCode, 4);
}

TEST_F(ObjectsTool, RefusesWithAMessageThatNamesTheValue)
{
    struct Row {
        char const * arguments;
        int exitCode;
        char const * message;
    };

    Row const rows[] = {
        {"object Hesko Gian", 3,
         "C7000012 has no object 'Gian' at access level 1; `devicelore objects C7000012` lists its objects"},
        {"object Hesko Gian --speaker 12", 3, "has no object 'Gian' on speaker 12 at"},
        {"object Hesko 0x9999 --input", 3, "has no object '0x9999' on the input side at"},
        {"object Hesko Secret", 3, "has no object 'Secret' at access level 1"},
        {"object Talvo Gain", 3, "there is no model 'Talvo'; the models are Fenra, Hesko"},
        {"object C7000099 Gain", 3,
         "there is no description of C7000099; `devicelore device C7000099` tells why"},
        {"object Hesko", 2, "usage: devicelore object GUID|MODEL NAME|NUMBER"},
        {"object Hesko Gain Gain", 2, "usage: devicelore object GUID|MODEL NAME|NUMBER"},
        {"object Hesko Gain --input --output", 2, "--input and --output exclude each other"},
        {"object Hesko Gain --speaker 0", 2, "--speaker takes a number from 1 to 65535, not '0'"},
        {"object Hesko Gain --speaker x", 2, "--speaker takes a number from 1 to 65535, not 'x'"},
        {"object Hesko Gain --mode 2", 2, "--mode is no option of 'object'"},
        {"objects Fenra", 3, "C7000020 has no object like '%' at access level 1"},
        {"objects Hesko --like '", 3, "C7000012 has no object like ''' at access level 1"},
        {"describe Hesko Gain --speaker 999", 3, "there is no property 'Gain' of C7000012 on speaker 999"},
        {"convert Hesko Gain", 2, "say either --to-real RAW or --to-device REAL"},
        {"convert Hesko Gain --to-real 1 --to-device 2", 2, "say either --to-real RAW or --to-device REAL"},
        {"convert Hesko Gain --to-real 1.5", 2,
         "a raw value of this object is an integer of 32 bits, not '1.5'"},
        {"convert Hesko Dump --to-device 1", 3, "the format \"%2H\" of Dump cannot convert '1'"},
        {"check Hesko Gain", 2, "usage: devicelore check GUID|MODEL PROPERTY VALUE"},
        {"speakers Fenra", 3, "C7000020 has no such speakers"},
        {"speakers Hesko --type 8", 2, "--type takes a number from 0 to 7, not '8'"},
        {"speakers Hesko --type -1", 2, "--type takes a number from 0 to 7, not '-1'"},
        {"object Hesko Gain -x", 2, "Unknown option 'x'"},
        {"speakers Hesko --mode 9", 2, "--mode takes a number from -1 to 8, not '9'"},
        {"speaker x", 2, "a speaker is a number from 0 to 65535, not 'x'"},
        {"speaker 77", 3, "there is no speaker 77 at access level 1"},
        {"filter Hesko 1", 2, "filters belong to speakers: say --speaker ID"},
        {"filter Hesko 256 --speaker 12", 2, "a filter is a number from 0 to 255, not '256'"},
        {"filter Hesko 2 --speaker 12", 3, "C7000012 has no filter 2 on speaker 12"},
        {"text Hesko x", 2, "a text offset is a number, not 'x'"},
        {"text Hesko 31", 3, "C7000012 has no such text at offset 31 in the language TextShort_en_US"},
        {"text Hesko 30 7", 3, "C7000012 has no such text at offset 30"},
        {"text Hesko 30 --language Nope", 3, "in the language Nope"},
        {"groups Service", 3,
         "there is no property group 'Service' at access level 1; the groups are Bare, Front"},
        {"groups Bare", 3, "the property group 'Bare' is empty"},
        {"query SELECT", 3, "no database gives a row; a statement that fails gives none either"},
        {"dsp C7000012 12", 3, "there is no DSP data of C7000012 for the speaker 12"},
        {"dsp C7000012 65536", 2, "a speaker is a number from 0 to 65535, not '65536'"},
        {"version now", 2, "usage: devicelore version"},
    };
    for (Row const & row : rows) {
        ProgramResult const result = tool.run(row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode) << row.arguments;
        EXPECT_TRUE(result.messages.contains(QLatin1String(row.message)))
            << row.arguments << ": " << result.messages.toStdString();
        EXPECT_EQ(result.output, QString()) << row.arguments;
    }
}

TEST_F(ObjectsTool, TellsTheVersions)
{
    EXPECT_EQ(object("version"), (QJsonObject{{"library", "1.4.19"}, {"qt", qVersion()}, {"databases", 1}}));
}

} // namespace kestrova::test::objects
