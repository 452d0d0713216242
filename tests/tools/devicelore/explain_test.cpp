#include "toolFolder.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

using kestrova::test::ProgramResult;
using kestrova::test::ToolFolder;

// The stories of the sample world are in docs/command-line.md and tested there; here is each of their turns.

namespace kestrova::test::explain {

namespace {

// Columns without types, so that anything can stand in them.
QString const world = QStringLiteral(
    "CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType);"
    "INSERT INTO Guids VALUES ('C7000012', 'Hesko', '', 1, 5), ('C7000112', 'Hesko', '', 2, 5),"
    " ('c7000012', 'Twin', '', 7, 1), ('C7000020', '', '', 1, 1), ('C7000115', 'Nurix', '', 1, 1),"
    " ('C7000031', 'Quimo', '', 5, 1), ('C7000131', 'Quimo', '', 3, 1), ('C7000017', 'Newcomer', '', 1, 1);"
    "CREATE TABLE Objects (id, Name, BoxNumber, ObjectNumber, ChannelCount, RecordCount, Min, Max, Step, "
    "Format, Flags, Access, DefaultValue, Size, TextOffset, Description, Comment, ClassId, WaitTime, "
    "WaitStates);"
    "INSERT INTO Objects VALUES"
    " (1, 'Gain', 2, 5, 4, 1, -60, 12, 0.5, '%6.1f dB', 3, 11, '-12', 4, 0, 'Shown', '', 0, 0, 0),"
    " (2, 'Gain', 2, 5, 4, 1, -60, 99, 0.5, '%6.1f dB', 3, 11, '-12', 4, 0, '', '', 0, 0, 0),"
    " (3, 'Secret', 1, 7, 1, 1, 0, 1, 1, '%U', 3, 31, '', 1, 0, '', '', 0, 0, 0),"
    " (4, 'Odd', 1, 8, 1, 70000, 'abc', NULL, 1, '%U', 3, 300, x'00ff', 1, '9', '', 'a' || char(10) || 'b', "
    "0, 1.5, 0),"
    " (5, 'Title', 1, 9, 1, 1, 0, 0, 1, '%1s', 3, 12, 'It''s', 5, 0, '', '', 0, 0, 0),"
    " (6, 'Above', 1, 10, 1, 1, 2, 10, 1, '%2U', 3, 11, NULL, 1, 0, '', '', 0, 0, 0),"
    " (7, 'Around', 1, 11, 1, 1, -1, 1, 1, '%2D', 3, 11, 'x', 1, 0, '', '', 0, 0, 0),"
    " (8, 'Single', 1, 12, 1, 1, 0, 60, 5, '%2U', 35, 11, '5', 1, 0, '', '', 0, 0, 0),"
    " (9, 'ChStatus_MsDelay', 1, 13, 1, 1, 0.3, 500, 0.1, '%5.1f ms', 3, 11, '1', 4, 0, '', '', 0, 0, 0),"
    " (10, 'Config_CablefitSpeakerCount', 1, 14, 1, 1, 3, 20, 1, '%2U', 3, 11, '3', 1, 0, '', '', 0, 0, 0),"
    " (11, 'Config_Filter1', 1, 15, 1, 1, 0, 1, 1, '%U', 3, 11, '0', 1, 0, '', '', 0, 0, 0),"
    " (12, 'Config_Filter2', 1, 16, 1, 1, 0, 8, 1, '%U', 3, 11, '0', 1, 0, '', '', 0, 0, 0),"
    " (13, 'Config_Filter21', 1, 17, 1, 1, 0, 1, 1, '%U', 3, 11, '0', 1, 0, '', '', 0, 0, 0),"
    " (14, 'Unlinked', 1, 18, 1, 1, 0, 1, 1, '%U', 3, 11, '0', 1, 0, '', '', 0, 0, 0),"
    " (15, 'Foreign', 1, 19, 1, 1, 0, 1, 1, '%U', 3, 11, '0', 1, 0, '', '', 0, 0, 0),"
    " (16, 'Later', 1, 20, 1, 1, 0, 1, 1, '%U', 3, 11, '0', 1, 0, '', '', 0, 0, 0),"
    " (17, 'Lower', 1, 21, 1, 1, 0, 1, 1, '%U', 3, 11, '0', 1, 0, '', '', 0, 0, 0);"
    "CREATE TABLE guidsandobjects (objectid, guid);"
    "INSERT INTO guidsandobjects SELECT id, GUID FROM Objects, Guids"
    " WHERE id < 14 AND GUID IN ('C7000012', 'C7000112');"
    "INSERT INTO guidsandobjects VALUES (15, 'C7000020'), (15, 'C7000031'), (15, 'C7000115'), (15, "
    "'C7000131'), "
    "(15, 'C7000199'), (16, 'C7000112'), (17, 'c7000012');"
    "CREATE TABLE SpeakerClasses (Class, Name, Type, Ways, WayNames);"
    "CREATE TABLE Speakers (SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, CablefitMaxCount, "
    "WfActive);"
    "INSERT INTO Speakers VALUES (12, '', 0, 0, '', 0, 6, 1), (13, '', 0, 0, '', 0, 0, 0),"
    " (5, '', 0, 0, '', 0, 9, 1), (261, '', 0, 0, '', 0, 4, 0);"
    "CREATE TABLE GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access);"
    "INSERT INTO GuidsSpeakersFilters VALUES ('C7000012', 12, 10, 0), ('C7000012', 12, 20, 0),"
    " ('C7000012', 13, 11, 2);"
    "CREATE TABLE Filters (Id, Number, Type, Min, Max, DisplayNameShort, TextOffset, StateTexts);"
    "INSERT INTO Filters VALUES (10, 1, 0, 0, 5, 'Shelf', 0, ''), (11, 1, 0, 0, 1, '', 0, ''),"
    " (20, 2, 0, 0, 1, 'Cut', 0, '');");

// The older form: no BoxNumber, and few other columns.
QString const olderWorld = QStringLiteral(
    "CREATE TABLE Guids (GUID, DeviceType, Version, Access);"
    "INSERT INTO Guids VALUES ('C7000012', 'Rival', '', 3), ('C7000005', 'Talvo', '', 1);"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name, ObjectNumber, Format, Access, DefaultValue);"
    "INSERT INTO Objects VALUES (1, 'Elsewhere', 257, '%U', 11, '3'), (2, 'Power', 258, '%U', 11, '1');"
    "CREATE TABLE guidsandobjects (objectid, guid);"
    "INSERT INTO guidsandobjects VALUES (1, 'C7000012'), (2, 'C7000005');");

/// The lines of one section, without their indent.
QString section(QString const & output, QString const & heading)
{
    for (QString const & each : output.split(QStringLiteral("\n\n"))) {
        if (!each.startsWith(heading + QLatin1Char('\n')))
            continue;
        QStringList lines = each.trimmed().split(QLatin1Char('\n'));
        lines.removeFirst();
        for (QString & line : lines)
            line = line.trimmed();
        return lines.join(QLatin1Char('\n'));
    }
    return {};
}

struct ExplainTool : ::testing::Test {
    ExplainTool()
    {
        tool.add(QStringLiteral("a.db3"), world);
        tool.add(QStringLiteral("b.db3"), olderWorld);
    }

    ToolFolder tool;
};

struct SectionRow {
    char const * arguments;
    char const * heading;
    char const * lines;
    int exitCode = 0;
};

void expectSections(ToolFolder const & tool, std::vector<SectionRow> const & rows)
{
    for (SectionRow const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = tool.run(row.arguments);
        EXPECT_EQ(section(result.output, QString::fromUtf8(row.heading)), QString::fromUtf8(row.lines))
            << result.output.toStdString();
        EXPECT_EQ(result.exitCode, row.exitCode);
        EXPECT_EQ(result.messages.count(QLatin1Char('\n')), row.exitCode == 0 ? 0 : 1)
            << result.messages.toStdString();
    }
}

} // namespace

TEST_F(ExplainTool, TellsWhichDescriptionStandsAndWhy)
{
    expectSections(tool, {{"explain C7000012", "description",
                           "asked       C7000012\n"
                           "answers     C7000012\n"
                           "why         exact: this very version is described\n"
                           "versions    0, 1 (hidden)\n"
                           "access      level 1 is needed, the caller has 1\n"
                           "database    a.db3, the first that has it\n"
                           "never wins  a.db3 ('Twin', level 7), b.db3 ('Rival', level 3)"},
                          {"explain C7000712", "description",
                           "asked       C7000712\n"
                           "answers     C7000012\n"
                           "why         newest visible: version 7 is not described\n"
                           "versions    0, 1 (hidden)\n"
                           "access      level 1 is needed, the caller has 1\n"
                           "database    a.db3, the first that has it\n"
                           "never wins  a.db3 ('Twin', level 7), b.db3 ('Rival', level 3)"},
                          {"explain C7000112", "description",
                           "asked     C7000112\n"
                           "answers   C7000112\n"
                           "why       exact: this very version is described\n"
                           "versions  0, 1 (hidden)\n"
                           "access    level 2 is needed, the caller has 1: refused\n"
                           "database  a.db3, the first that has it"},
                          {"explain Talvo", "description",
                           "asked     C7000005\n"
                           "answers   C7000005\n"
                           "why       exact: this very version is described\n"
                           "versions  0\n"
                           "access    level 1 is needed, the caller has 1\n"
                           "database  b.db3, the first that has it"},
                          {"explain C7000031", "description",
                           "asked     C7000031\n"
                           "answers   none\n"
                           "why       none: every description of the type is above the access level\n"
                           "versions  0 (hidden), 1 (hidden)\n"
                           "access    level 3 is needed, the caller has 1: refused",
                           3},
                          {"explain C7000099 Gain", "description",
                           "asked     C7000099\n"
                           "answers   none\n"
                           "why       none: no database describes the type\n"
                           "versions  none",
                           3}});
}

TEST_F(ExplainTool, TellsTheModelAndWhatTheDescriptionHolds)
{
    expectSections(tool, {{"explain C7000112 --access-level 2", "model",
                           "name      Hesko, says the description of version 0, C7000012\n"
                           "channels  4 for speakers, 8 inputs, 0 outputs\n"
                           "ONO type  5"},
                          {"explain C7000115", "model",
                           "name      none: there is no description of version 0, C7000015\n"
                           "channels  unknown: the library does not know this model\n"
                           "ONO type  1"},
                          {"explain C7000020", "model",
                           "name      none: the description of version 0, C7000020, has none\n"
                           "channels  unknown: the library does not know this model\n"
                           "ONO type  1"},
                          {"explain C7000017", "model",
                           "name      Newcomer, says the description of version 0, C7000017\n"
                           "channels  unknown: the library does not know this model\n"
                           "ONO type  1"},
                          {"explain C7000012", "content at access level 1",
                           "objects   10 of 13 rows answer to their names\n"
                           "speakers  1"},
                          {"explain C7000012 --access-level 4", "content at access level 4",
                           "objects   12 of 13 rows answer to their names\n"
                           "speakers  2"},
                          {"explain C7000112", "content at access level 1",
                           "objects   0 of 14 rows answer to their names\n"
                           "speakers  0"},
                          {"explain C7000017", "content at access level 1",
                           "objects   0 of 0 rows answer to their names\n"
                           "speakers  0"}});
}

TEST_F(ExplainTool, TellsTheWholeStoryOfAnObject)
{
    ProgramResult const result = tool.run("explain C7000712 0x2205 --speaker 12");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    EXPECT_EQ(result.output,
              QStringLiteral("0x2205 of C7000012 on speaker 12\n"
                             "\n"
                             "description\n"
                             "  asked       C7000712\n"
                             "  answers     C7000012\n"
                             "  why         newest visible: version 7 is not described\n"
                             "  database    a.db3, the first that has it\n"
                             "  never wins  a.db3 ('Twin', level 7), b.db3 ('Rival', level 3)\n"
                             "\n"
                             "object\n"
                             "  asked      number 0x0205 (box 2, object 5): the channel bits of 0x2205 are "
                             "dropped\n"
                             "  answers    row 1 of Objects\n"
                             "  never win  row 2\n"
                             "\n"
                             "row 1 as it stands\n"
                             "  id 1, Name 'Gain', BoxNumber 2, ObjectNumber 5, ChannelCount 4, RecordCount "
                             "1, Min -60, Max 12,\n"
                             "  Step 0.5, Format '%6.1f dB', Flags 3, Access 11, DefaultValue '-12', Size 4, "
                             "TextOffset 0,\n"
                             "  Description 'Shown', Comment '', ClassId 0, WaitTime 0, WaitStates 0\n"
                             "\n"
                             "on the way\n"
                             "  default  '-12' becomes -12: it is a number (reading)\n"
                             "\n"
                             "access\n"
                             "  device  level 1 is needed, the caller has 1\n"
                             "  object  level 1 is needed, the caller has 1\n"
                             "\n"
                             "the application gets\n"
                             "  number   0x0205 (box 2, object 5)\n"
                             "  type     number\n"
                             "  unit     \" dB\"\n"
                             "  range    -60 to 12, step 0.5\n"
                             "  default  -12\n"
                             "  rights   readable from level 1, writeable from level 1\n"));
}

TEST_F(ExplainTool, TellsWhatReadingMakesOfARow)
{
    expectSections(
        tool,
        {{"explain Hesko Title", "on the way", "default  'It's' stays: the object is a text"},
         {"explain Hesko Above", "on the way",
          "default  NULL becomes 2: it is no number, and 0 is out of the row's range: the minimum stands "
          "in (reading)"},
         {"explain Hesko Around", "on the way",
          "default  'x' becomes 0: it is no number, and 0 is within the row's range (reading)"},
         {"explain Talvo Power", "on the way",
          "number   258 becomes 0x0102 (box 1, object 2): without a column BoxNumber, ObjectNumber holds "
          "both (reading)\n"
          "default  '1' becomes 1: it is a number (reading)"},
         {"explain Talvo Power", "row 2 as it stands",
          "id 2, Name 'Power', ObjectNumber 258, Format '%U', Access 11, DefaultValue '1'\n"
          "missing, and read as empty: Description, Comment, ChannelCount, RecordCount, Min, Max, Step, "
          "Flags, Size, TextOffset, ClassId, WaitTime, WaitStates"},
         {"explain C7000012 Odd --access-level 4", "row 4 as it stands",
          "id 4, Name 'Odd', BoxNumber 1, ObjectNumber 8, ChannelCount 1, RecordCount 70000, Min 'abc',\n"
          "Max NULL, Step 1, Format '%U', Flags 3, Access 300, DefaultValue x'00ff', Size 1, TextOffset "
          "'9',\n"
          "Description '', Comment 'a\\x0ab', ClassId 0, WaitTime 1.5, WaitStates 0"},
         {"explain C7000012 Odd --access-level 4", "on the way",
          "RecordCount  70000 becomes 4464: it is read as an integer of 16 bits (reading)\n"
          "Min          'abc' becomes 0: it is read as a number (reading)\n"
          "Max          NULL becomes 0: it is read as a number (reading)\n"
          "Access       300 becomes 44: it is read as an integer of 8 bits (reading)\n"
          "WaitTime     1.5 becomes 2: it is read as an integer of 16 bits (reading)\n"
          "default      x'00ff' becomes 0: it is no number, and 0 is within the row's range (reading)"}});
}

TEST_F(ExplainTool, TellsWhatTheSpeakerAndTheFlagChange)
{
    expectSections(
        tool, {{"explain Hesko Single", "on the way",
                "default  '5' becomes 5: it is a number (reading)\n"
                "step     5 becomes 1: flag 0x20 is set (cache)"},
               {"explain Hesko ChStatus_MsDelay --speaker 12", "on the way",
                "default  '1' becomes 1: it is a number (reading)\n"
                "minimum  0.3 becomes 6.2: speaker 12 is a Wavefold setup (facade)"},
               {"explain Hesko 0x010D --speaker 13", "on the way",
                "default  '1' becomes 1: it is a number (reading)\n"
                "minimum  0.3 stays: speaker 13 is no Wavefold setup"},
               {"explain Hesko ChStatus_MsDelay --speaker 99", "on the way",
                "default  '1' becomes 1: it is a number (reading)\n"
                "minimum  0.3 stays: speaker 99 is not known"},
               {"explain Hesko ChStatus_MsDelay --input", "on the way",
                "default  '1' becomes 1: it is a number (reading)"},
               {"explain Hesko Config_CablefitSpeakerCount --speaker 12", "on the way",
                "default  '3' becomes 3: it is a number (reading)\n"
                "maximum  20 becomes 6: speaker 12 has that Cablefit count (cache)"},
               {"explain Hesko Config_CablefitSpeakerCount --speaker 13", "on the way",
                "default  '3' becomes 3: it is a number (reading)\n"
                "maximum  20 becomes 0: speaker 13 has that Cablefit count (cache)\n"
                "minimum  3 becomes 0: it cannot be above the maximum (cache)"},
               {"explain Hesko Config_CablefitSpeakerCount --speaker 5", "on the way",
                "default  '3' becomes 3: it is a number (reading)\n"
                "maximum  20 becomes 4: speaker 5, for which stands 261, has that Cablefit count (cache)"},
               {"explain Hesko Config_CablefitSpeakerCount --speaker 99", "on the way",
                "default  '3' becomes 3: it is a number (reading)\n"
                "maximum  20 stays: speaker 99 is not known"},
               {"explain Hesko Config_Filter1 --speaker 12", "on the way",
                "default           '0' becomes 0: it is a number (reading)\n"
                "display sub name  '' becomes 'Shelf': so says filter 10 of speaker 12 (cache)\n"
                "range             0 to 1 becomes 0 to 5: so says filter 10 of speaker 12 (cache)\n"
                "type              on/off becomes number: that range has more than two states (cache)"},
               {"explain Hesko Config_Filter2 --speaker 12", "on the way",
                "default           '0' becomes 0: it is a number (reading)\n"
                "display sub name  '' becomes 'Cut': so says filter 20 of speaker 12 (cache)\n"
                "range             0 to 8 becomes 0 to 1: so says filter 20 of speaker 12 (cache)\n"
                "type              number becomes on/off: that range has two states (cache)"},
               {"explain Hesko Config_Filter1 --speaker 13", "on the way",
                "default           '0' becomes 0: it is a number (reading)\n"
                "display sub name  '' stays: so says filter 11 of speaker 13\n"
                "range             0 to 1 stays: so says filter 11 of speaker 13"},
               {"explain Hesko Config_Filter2 --speaker 13", "on the way",
                "default  '0' becomes 0: it is a number (reading)\n"
                "range    0 to 8 stays: speaker 13 has no filter 2"},
               {"explain Hesko Config_Filter21 --speaker 12", "on the way",
                "default  '0' becomes 0: it is a number (reading)\n"
                "range    0 to 1 stays: a filter slot is named Config_Filter and one character"},
               {"explain Hesko Config_Filter1 --output", "on the way",
                "default  '0' becomes 0: it is a number (reading)"}});
}

TEST_F(ExplainTool, TellsWhichLevelRefusesAndWhichIsEnough)
{
    char const * const missingByName =
        "nothing  error -32808 (not available), remembered as missing until the level changes";
    char const * const missingByNumber =
        "nothing  error -32801 (failed), remembered as missing until the level changes";
    expectSections(tool, {{"explain C7000012 Secret", "access",
                           "device  level 1 is needed, the caller has 1\n"
                           "object  level 3 is needed, the caller has 1: refused\n"
                           "enough  level 3",
                           3},
                          {"explain C7000012 Secret", "the application gets", missingByName, 3},
                          {"explain C7000012 0x0107", "the application gets", missingByNumber, 3},
                          {"explain C7000112 Secret", "access",
                           "device  level 2 is needed, the caller has 1: refused\n"
                           "object  level 3 is needed, the caller has 1: refused\n"
                           "enough  level 3",
                           3},
                          {"explain C7000112 Gain", "access",
                           "device  level 2 is needed, the caller has 1: refused\n"
                           "object  level 1 is needed, the caller has 1\n"
                           "enough  level 2",
                           3},
                          {"explain C7000012 Secret --access-level 3", "access",
                           "device  level 1 is needed, the caller has 3\n"
                           "object  level 3 is needed, the caller has 3"},
                          {"explain C7000012 Nothing", "the application gets", missingByName, 3},
                          {"explain C7000012 0x1F00", "the application gets", missingByNumber, 3}});
}

TEST_F(ExplainTool, DoesNotTellOfTheFacadeWhenTheLevelRefuses)
{
    EXPECT_EQ(section(tool.run("explain C7000112 ChStatus_MsDelay --speaker 12").output,
                      QStringLiteral("on the way")),
              QStringLiteral("default  '1' becomes 1: it is a number (reading)"));
}

TEST_F(ExplainTool, TellsNearMissesWhenNoRowAnswers)
{
    expectSections(
        tool,
        {{"explain Hesko gain", "object",
          "asked      name 'gain', exact in case\n"
          "answers    no row\n"
          "near miss  row 1, 'Gain', differs in upper and lower case\n"
          "near miss  row 2, 'Gain', differs in upper and lower case",
          3},
         {"explain Hesko Unlinked", "object",
          "asked      name 'Unlinked', exact in case\n"
          "answers    no row\n"
          "near miss  row 14, 'Unlinked', is linked to no device",
          3},
         {"explain Hesko foreign", "object",
          "asked      name 'foreign', exact in case\n"
          "answers    no row\n"
          "near miss  row 15, 'Foreign', is linked to other devices: C7000020, C7000031, C7000115, C7000131 "
          "and 1 more; and it differs in upper and lower case",
          3},
         {"explain C7000012 0x0114", "object",
          "asked      number 0x0114 (box 1, object 20)\n"
          "answers    no row\n"
          "near miss  row 16, 'Later', is linked to other versions: C7000112",
          3},
         {"explain Hesko Lower", "object",
          "asked      name 'Lower', exact in case\n"
          "answers    no row\n"
          "near miss  row 17, 'Lower', is linked to c7000012, but GUIDs are asked for in upper case",
          3},
         {"explain Hesko Elsewhere", "object",
          "asked      name 'Elsewhere', exact in case\n"
          "answers    no row\n"
          "near miss  b.db3 has the object for C7000012, but a.db3 describes that GUID",
          3},
         {"explain Talvo 0x0101", "object",
          "asked      number 0x0101 (box 1, object 1)\n"
          "answers    no row\n"
          "near miss  row 1, 'Elsewhere', is linked to other devices: C7000012",
          3},
         {"explain Hesko Nothing", "object",
          "asked    name 'Nothing', exact in case\n"
          "answers  no row",
          3}});
}

TEST_F(ExplainTool, SurvivesDatabasesThatLackTablesAndColumns)
{
    struct Row {
        char const * tables;
        char const * answers;
    };

    Row const rows[] = {
        {"", "no row: no such table: objects"},
        {"CREATE TABLE Objects (id, Name);", "no row: no such table: guidsandobjects"},
        {"CREATE TABLE Objects (Name); CREATE TABLE guidsandobjects (objectid, guid);",
         "no row: no such column: objects.id"},
        {"CREATE TABLE Objects (id); CREATE TABLE guidsandobjects (objectid, guid);",
         "no row: no such column: objects.Name"},
        {"CREATE TABLE Objects (id, Name); CREATE TABLE guidsandobjects (objectid);",
         "no row: no such column: guidsandobjects.guid"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.answers);
        ToolFolder broken;
        broken.add(QStringLiteral("a.db3"),
                   QStringLiteral("CREATE TABLE Guids (GUID, DeviceType, Version, Access);"
                                  "INSERT INTO Guids VALUES ('C7000012', NULL, NULL, 1);") +
                       QString::fromUtf8(row.tables));
        broken.add(QStringLiteral("b.db3"), QStringLiteral("CREATE TABLE Unasked (a);"));
        ProgramResult const object = broken.run("explain C7000012 Gain --speaker 12");
        EXPECT_EQ(section(object.output, QStringLiteral("object")),
                  QStringLiteral("asked    name 'Gain', exact in case\nanswers  ") +
                      QString::fromUtf8(row.answers));
        EXPECT_EQ(object.exitCode, 3);
        EXPECT_EQ(object.messages,
                  QStringLiteral("devicelore: an application gets no such object of C7000012 on "
                                 "speaker 12 at access level 1\n"));
        ProgramResult const device = broken.run("explain C7000012");
        EXPECT_EQ(device.exitCode, 0);
        EXPECT_EQ(device.messages, QString());
    }
}

TEST_F(ExplainTool, SurvivesRowsWithoutAnyValue)
{
    ToolFolder empty;
    empty.add(QStringLiteral("a.db3"),
              QStringLiteral("CREATE TABLE Guids (GUID, DeviceType, Version, Access);"
                             "INSERT INTO Guids VALUES ('C7000012', NULL, NULL, NULL);"
                             "CREATE TABLE Objects (ID, Name, BoxNumber, ObjectNumber, Format);"
                             "INSERT INTO Objects VALUES (x'41', 'Bare', NULL, NULL, x'');"
                             "CREATE TABLE guidsandobjects (objectid, guid);"
                             "INSERT INTO guidsandobjects VALUES (x'41', 'C7000012');"));
    ProgramResult const result = empty.run("explain C7000012 Bare");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, QString());
    EXPECT_EQ(section(result.output, QStringLiteral("on the way")),
              QStringLiteral("BoxNumber     NULL becomes 0: it is read as an integer of 16 bits (reading)\n"
                             "ObjectNumber  NULL becomes 0: it is read as an integer of 16 bits (reading)\n"
                             "default       NULL becomes 0: it is no number, and 0 is within the row's range "
                             "(reading)"));
    EXPECT_TRUE(section(result.output, QStringLiteral("row A as it stands"))
                    .startsWith(QStringLiteral(
                        "ID x'41', Name 'Bare', BoxNumber NULL, ObjectNumber NULL, Format x''\n")));
}

TEST_F(ExplainTool, CutsLongValues)
{
    ToolFolder large;
    large.add(QStringLiteral("a.db3"),
              QStringLiteral("CREATE TABLE Guids (GUID, DeviceType, Version, Access);"
                             "INSERT INTO Guids VALUES ('C7000012', '', '', 1);"
                             "CREATE TABLE Objects (id, Name, Comment);"
                             "INSERT INTO Objects VALUES (1, 'Large', '%1');"
                             "CREATE TABLE guidsandobjects (objectid, guid);"
                             "INSERT INTO guidsandobjects VALUES (1, 'C7000012');")
                  .arg(QString(100, QLatin1Char('a'))));
    QString const row =
        section(large.run("explain C7000012 Large").output, QStringLiteral("row 1 as it stands"));
    EXPECT_TRUE(row.startsWith(
        QStringLiteral("id 1, Name 'Large', Comment 'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa...'\n")))
        << row.toStdString();
}

TEST_F(ExplainTool, TellsADeviceAsJson)
{
    QJsonArray const losers{QJsonObject{{"database", "a.db3"}, {"model", "Twin"}, {"accessLevel", 7}},
                            QJsonObject{{"database", "b.db3"}, {"model", "Rival"}, {"accessLevel", 3}}};
    EXPECT_EQ(tool.json("explain C7000712").toObject(),
              (QJsonObject{{"asked", "C7000712"},
                           {"type", 18},
                           {"version", 7},
                           {"reason", "newest visible"},
                           {"model", "Hesko"},
                           {"knownVersions", QJsonArray{0, 1}},
                           {"hiddenVersions", QJsonArray{1}},
                           {"newerThanAllKnown", true},
                           {"description", "C7000012"},
                           {"database", "a.db3"},
                           {"accessLevel", 1},
                           {"baseGuid", "C7000012"},
                           {"callersLevel", 1},
                           {"neverWins", losers},
                           {"namedBy", "C7000012"},
                           {"channels", QJsonObject{{"speaker", 4}, {"input", 8}, {"output", 0}}},
                           {"onoType", 5},
                           {"objectRows", 13},
                           {"objects", 10},
                           {"speakers", 1}}));
    EXPECT_EQ(tool.json("explain C7000031").toObject().value(QStringLiteral("sufficientLevel")).toInt(), 3);
}

TEST_F(ExplainTool, TellsAnObjectAsJson)
{
    QJsonObject const json =
        tool.json("explain Talvo Power").toObject().value(QStringLiteral("object")).toObject();
    QJsonObject const row{{"id", 2},        {"Name", "Power"}, {"ObjectNumber", 258},
                          {"Format", "%U"}, {"Access", 11},    {"DefaultValue", "1"}};
    EXPECT_EQ(json.value(QStringLiteral("row")).toObject(), row);
    EXPECT_EQ(json.value(QStringLiteral("rowId")).toString(), QStringLiteral("2"));
    EXPECT_EQ(json.value(QStringLiteral("askedName")).toString(), QStringLiteral("Power"));
    EXPECT_TRUE(json.value(QStringLiteral("askedNumber")).isNull());
    EXPECT_EQ(json.value(QStringLiteral("error")).toInt(), 0);
    EXPECT_EQ(json.value(QStringLiteral("missingColumns")).toArray().size(), 13);
    EXPECT_EQ(json.value(QStringLiteral("changes")).toArray().at(1).toObject(),
              (QJsonObject{{"member", "default"},
                           {"before", "'1'"},
                           {"after", "1"},
                           {"reason", "it is a number"},
                           {"by", "reading"}}));
    EXPECT_EQ(json.value(QStringLiteral("given")).toObject(), (QJsonObject{{"name", "Power"},
                                                                           {"number", 258},
                                                                           {"type", "number"},
                                                                           {"unit", ""},
                                                                           {"minimum", 0},
                                                                           {"maximum", 0},
                                                                           {"step", 0},
                                                                           {"default", 1},
                                                                           {"access", 11}}));

    QJsonObject const refused =
        tool.json("explain C7000112 0x2205").toObject().value(QStringLiteral("object")).toObject();
    EXPECT_EQ(refused.value(QStringLiteral("askedNumber")).toInt(), 0x0205);
    EXPECT_EQ(refused.value(QStringLiteral("neverWin")).toArray(), QJsonArray{"2"});
    EXPECT_EQ(refused.value(QStringLiteral("error")).toInt(), -32801);
    EXPECT_EQ(refused.value(QStringLiteral("deviceLevel")).toInt(), 2);
    EXPECT_EQ(refused.value(QStringLiteral("objectLevel")).toInt(), 1);
    EXPECT_EQ(refused.value(QStringLiteral("sufficientLevel")).toInt(), 2);
    EXPECT_TRUE(refused.value(QStringLiteral("given")).isNull());

    EXPECT_EQ(tool.json("explain Hesko gain").toObject().value(QStringLiteral("object")).toObject(),
              (QJsonObject{{"askedName", "gain"},
                           {"askedNumber", QJsonValue()},
                           {"error", -32808},
                           {"given", QJsonValue()},
                           {"nearMisses", QJsonArray{"row 1, 'Gain', differs in upper and lower case",
                                                     "row 2, 'Gain', differs in upper and lower case"}},
                           {"sqlError", ""}}));
}

TEST_F(ExplainTool, RefusesWrongUseLikeItsSiblings)
{
    struct Row {
        char const * arguments;
        int exitCode;
        char const * message;
    };

    Row const rows[] = {
        {"explain", 2, "usage: devicelore explain GUID|MODEL [PROPERTY]; see devicelore --help"},
        {"explain a b c", 2, "usage: devicelore explain GUID|MODEL [PROPERTY]; see devicelore --help"},
        {"explain Hesko Gain --input --output", 2, "--input and --output exclude each other"},
        {"explain Hesko Gain --speaker 0", 2, "--speaker takes a number from 1 to 65535, not '0'"},
        {"explain Hesko Gain --mode 1", 2, "--mode is no option of 'explain'; see devicelore --help"},
        {"explain Nobody", 3, "there is no model 'Nobody'; the models are , Hesko, Newcomer, Talvo"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = tool.run(row.arguments);
        EXPECT_EQ(result.exitCode, row.exitCode);
        EXPECT_EQ(result.output, QString());
        EXPECT_EQ(result.messages, QStringLiteral("devicelore: %1\n").arg(QString::fromUtf8(row.message)));
    }
}

} // namespace kestrova::test::explain
