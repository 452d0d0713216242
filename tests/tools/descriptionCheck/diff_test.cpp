#include "descriptionWorld.h"

#include "diff/comparison.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace kestrova::authoring;
using namespace kestrova::test;

namespace {

SetView viewOfWorld(DescriptionWorld const & world)
{
    DescriptionSet set({world.path()});
    return viewOf(set);
}

/// What an application sees change when the good database becomes the changed one.
QString changesBy(QString const & change)
{
    SetView const before = viewOfWorld(DescriptionWorld());
    return changesText(changesBetween(before, viewOfWorld(DescriptionWorld(change))));
}

QString objectChange(QString const & column, QString const & value)
{
    return changesBy(QStringLiteral("UPDATE Objects SET %1 = %2 WHERE id = 109").arg(column, value));
}

} // namespace

TEST(DescriptionDiff, OfEqualDatabasesIsEmpty)
{
    EXPECT_EQ(changesBy({}), QStringLiteral("0 breaking, 0 compatible\n"));
}

TEST(DescriptionDiff, TellsHowAnObjectChangesAndWhetherThatBreaks)
{
    struct Row {
        char const * column;
        char const * value;
        char const * line;
    };

    Row const rows[] = {
        {"ObjectNumber", "8", R"(breaking    object Trim, number: "1/9" -> "1/8")"},
        {"ChannelCount", "2", R"(compatible  object Trim, channels: "1" -> "2")"},
        {"ChannelCount", "0", R"(breaking    object Trim, channels: "1" -> "0")"},
        {"RecordCount", "2", R"(compatible  object Trim, records: "1" -> "2")"},
        {"RecordCount", "0", R"(breaking    object Trim, records: "1" -> "0")"},
        {"Min", "-1225", R"(compatible  object Trim, minimum: "-1200" -> "-1225")"},
        {"Min", "-1175", R"(breaking    object Trim, minimum: "-1200" -> "-1175")"},
        {"Max", "1225", R"(compatible  object Trim, maximum: "1200" -> "1225")"},
        {"Max", "1175", R"(breaking    object Trim, maximum: "1200" -> "1175")"},
        {"Step", "5", R"(compatible  object Trim, step: "25" -> "5")"},
        {"Step", "10", R"(breaking    object Trim, step: "25" -> "10")"},
        {"Step", "50", R"(breaking    object Trim, step: "25" -> "50")"},
        {"Step", "0", R"(compatible  object Trim, step: "25" -> "0")"},
        {"Format", "'%+7.2d dB'", R"(compatible  object Trim, format: "%+6.2d dB" -> "%+7.2d dB")"},
        {"Format", "'%+6.1d dB'", R"(breaking    object Trim, format: "%+6.2d dB" -> "%+6.1d dB")"},
        {"Format", "'%+6.2d dBu'", R"(breaking    object Trim, format: "%+6.2d dB" -> "%+6.2d dBu")"},
        {"Format", "'%+6.2u dB'", R"(breaking    object Trim, format: "%+6.2d dB" -> "%+6.2u dB")"},
        {"Format", "'%+6.2ld dB'", R"(breaking    object Trim, format: "%+6.2d dB" -> "%+6.2ld dB")"},
        {"Flags", "19", R"(compatible  object Trim, flags: "3" -> "19")"},
        {"Flags", "1", R"(breaking    object Trim, flags: "3" -> "1")"},
        {"Flags", "1027", R"(breaking    object Trim, flags: "3" -> "1027")"},
        {"Access", "1", R"(compatible  object Trim, access: "11" -> "1")"},
        {"Access", "12", R"(breaking    object Trim, access: "11" -> "12")"},
        {"Access", "20", R"(breaking    object Trim, access: "11" -> "20")"},
        {"DefaultValue", "'25'", R"(compatible  object Trim, default: "0" -> "25")"},
        {"Size", "4", R"(breaking    object Trim, size: "2" -> "4")"},
        {"Description", "'Trim'", R"(compatible  object Trim, name for people: NULL -> "Trim")"},
        {"Comment", "'fine'", R"(compatible  object Trim, comment: NULL -> "fine")"},
        {"ClassId", "1", R"(compatible  object Trim, class: "0" -> "1")"},
        {"WaitTime", "9", R"(compatible  object Trim, wait time: "0" -> "9")"},
        {"WaitStates", "9", R"(compatible  object Trim, wait states: "0" -> "9")"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(testing::Message() << row.column << " = " << row.value);
        QString const text = objectChange(QString::fromUtf8(row.column), QString::fromUtf8(row.value));
        EXPECT_EQ(text.section(QLatin1Char('\n'), 0, 0),
                  QString::fromUtf8(row.line) + QStringLiteral("  (C7000012 and 1 more)"));
        EXPECT_EQ(text.count(QLatin1Char('\n')), 2);
    }
}

TEST(DescriptionDiff, TellsWhatElseAnApplicationSees)
{
    struct Row {
        char const * change;
        char const * lines;
    };

    Row const rows[] = {
        {"INSERT INTO Guids VALUES ('C7000212', 'Hesko', '2.00', 1, 1)",
         "compatible  device C7000212: added\n0 breaking, 1 compatible\n"},
        {"DELETE FROM Guids WHERE GUID = 'C7000112'",
         "breaking    device C7000112: removed\n1 breaking, 0 compatible\n"},
        {"UPDATE Guids SET Version = '1.11' WHERE GUID = 'C7000112'",
         "compatible  device, firmware: \"1.10\" -> \"1.11\"  (C7000112)\n0 breaking, 1 compatible\n"},
        {"UPDATE Guids SET Access = 2 WHERE GUID = 'C7000112'",
         "breaking    device, level: \"1\" -> \"2\"  (C7000112)\n1 breaking, 0 compatible\n"},
        {"UPDATE Guids SET Access = 0 WHERE GUID = 'C7000112'",
         "compatible  device, level: \"1\" -> \"0\"  (C7000112)\n0 breaking, 1 compatible\n"},
        {"UPDATE Guids SET OnoType = 2 WHERE GUID = 'C7000112'",
         "breaking    device, remote numbering: \"1\" -> \"2\"  (C7000112)\n1 breaking, 0 compatible\n"},
        {"UPDATE Objects SET Name = 'Mains' WHERE id = 1",
         "compatible  object Mains: added  (C7000012 and 1 more)\n"
         "breaking    object Power: removed  (C7000012 and 1 more)\n1 breaking, 1 compatible\n"},
        // The flag for single steps changes the step that applications get.
        {"UPDATE Objects SET Flags = 35 WHERE id = 109",
         "compatible  object Trim, flags: \"3\" -> \"35\"  (C7000012 and 1 more)\n"
         "compatible  object Trim, step: \"25\" -> \"1\"  (C7000012 and 1 more)\n0 breaking, 2 compatible\n"},
        {"UPDATE TextsObjectValues SET TextShort_en_US = 'Turned' WHERE TextOffset = 30 AND Value = 1",
         "compatible  object Polarity, text en_US 1: \"Inverted\" -> \"Turned\"  (C7000012 and 1 more)\n"
         "0 breaking, 1 compatible\n"},
        {"DELETE FROM TextsObjectValues WHERE TextOffset = 30 AND Value = 1",
         "breaking    object Polarity, text de_DE 1: removed  (C7000012 and 1 more)\n"
         "breaking    object Polarity, text en_US 1: removed  (C7000012 and 1 more)\n"
         "2 breaking, 0 compatible\n"},
        {"UPDATE Hardwaretypes SET DeviceType = 'Kalom'",
         "breaking    hardware type 3, model: \"Hesko\" -> \"Kalom\"\n1 breaking, 0 compatible\n"},
        {"INSERT INTO DevicePropertyFilter VALUES ('Power', 'SELECT ''Power''', 1)",
         "compatible  group Power: added\n0 breaking, 1 compatible\n"},
        {"UPDATE DevicePropertyFilter SET Expression = 'SELECT ''Gain'''",
         "breaking    group Channel, property Polarity: removed\n"
         "breaking    group Channel, property Trim: removed\n2 breaking, 0 compatible\n"},
        {"UPDATE Speakers SET Name = 'Line' WHERE SpeakerId = 71",
         "compatible  speaker 71, name: \"Linear\" -> \"Line\"\n0 breaking, 1 compatible\n"},
        {"UPDATE Speakers SET Class = 2 WHERE SpeakerId = 71",
         "breaking    speaker 71, class: \"0\" -> \"2\"\n1 breaking, 0 compatible\n"},
        {"UPDATE Speakers SET CablefitMaxCount = 4 WHERE SpeakerId = 71",
         "compatible  speaker 71, Cablefit count: \"0\" -> \"4\"\n0 breaking, 1 compatible\n"},
        {"UPDATE Speakers SET WfActive = 1 WHERE SpeakerId = 71",
         "breaking    speaker 71, Wavefold level: \"0\" -> \"1\"\n1 breaking, 0 compatible\n"},
        {"DELETE FROM GuidsSpeakersFilters WHERE GUID = 'C7000112' AND SpeakerId = 68",
         "breaking    support of speaker 68: removed  (C7000112)\n1 breaking, 0 compatible\n"},
        {"UPDATE Filters SET DisplayNameShort = 'Cut' WHERE Id = 11",
         "compatible  support of speaker 11, filter 1: \"Low cut\" -> \"Cut\"  (C7000012 and 1 more)\n"
         "0 breaking, 1 compatible\n"},
        {"UPDATE GuidsSpeakersFilters SET Access = 5 WHERE GUID = 'C7000112' AND SpeakerId = 68",
         "breaking    support of speaker 68, level: \"1\" -> \"5\"  (C7000112)\n1 breaking, 0 compatible\n"},
        {"UPDATE DevicePropertyFilter SET Access = 5",
         "breaking    group Channel, level: \"1\" -> \"5\"\n1 breaking, 0 compatible\n"},
        {"UPDATE Filters SET Max = 3 WHERE Id = 11", "compatible  support of speaker 11, filter 1 range: \"0 "
                                                     "to 1\" -> \"0 to 3\"  (C7000012 and 1 more)\n"
                                                     "0 breaking, 1 compatible\n"},
        {"UPDATE SpeakerClasses SET Ways = 2 WHERE Class = 0",
         "breaking    class of speakers 0, ways: \"1\" -> \"2\"\n1 breaking, 0 compatible\n"},
        {"UPDATE ObjectClasses SET OcaClassId = '9.9'",
         "compatible  object class 1, OCA class: \"1.2.5\" -> \"9.9\"\n0 breaking, 1 compatible\n"},
        {"ALTER TABLE Guids DROP COLUMN OnoType", "0 breaking, 0 compatible\n"},
        {"CREATE TABLE SpeakerData (GUID, SpeakerId, DeviceType, SpeakerName, SpeakerVersion, BlobData, "
         "BlobDataMD5); "
         "INSERT INTO SpeakerData VALUES ('C7000012', 71, 'Hesko', 'Linear', '1', 'abc', 'x')",
         "compatible  DSP data of C7000012, speaker 71: added\n0 breaking, 1 compatible\n"},
        {"UPDATE Guids SET DeviceType = 'Vesni'; UPDATE Hardwaretypes SET DeviceType = 'Hesko'",
         "compatible  default speakers, mode 2 channel 1: \"11\" -> \"37\"  (C7000012 and 1 more)\n"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.change);
        EXPECT_TRUE(changesBy(QString::fromUtf8(row.change)).startsWith(QString::fromUtf8(row.lines)))
            << changesBy(QString::fromUtf8(row.change)).toStdString();
    }
}

TEST(DescriptionDiff, ComparesTwoDescriptionsOfOneSet)
{
    SetView const view = viewOfWorld(DescriptionWorld(
        QStringLiteral("DELETE FROM guidsandobjects WHERE objectid = 109 AND guid = 'C7000112'")));
    QString const guid = QStringLiteral("C7000112");
    EXPECT_EQ(changesText(changesBetween(view.devices.value(QStringLiteral("C7000012")),
                                         view.devices.value(guid), guid)),
              QStringLiteral("compatible  device, firmware: \"1.00\" -> \"1.10\"  (C7000112)\n"
                             "breaking    object Trim: removed  (C7000112)\n"
                             "1 breaking, 1 compatible\n"));
}

TEST(DescriptionDiff, HasTheSameFactsAsJson)
{
    SetView const before = viewOfWorld(DescriptionWorld());
    SetView const after =
        viewOfWorld(DescriptionWorld(QStringLiteral("UPDATE Objects SET Max = 1175 WHERE id = 109")));
    QJsonObject const json = changesJson(changesBetween(before, after));
    EXPECT_EQ(json.value(QStringLiteral("breaking")).toInt(), 1);
    EXPECT_EQ(json.value(QStringLiteral("compatible")).toInt(), 0);
    QJsonArray const changes = json.value(QStringLiteral("changes")).toArray();
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes.at(0).toObject(),
              (QJsonObject{{QStringLiteral("change"), QStringLiteral("changed")},
                           {QStringLiteral("breaking"), true},
                           {QStringLiteral("thing"), QStringLiteral("object Trim")},
                           {QStringLiteral("member"), QStringLiteral("maximum")},
                           {QStringLiteral("before"), QStringLiteral("1200")},
                           {QStringLiteral("after"), QStringLiteral("1175")},
                           {QStringLiteral("devices"),
                            QJsonArray{QStringLiteral("C7000012"), QStringLiteral("C7000112")}}}));
}
