#include "descriptionWorld.h"

#include "check/report.h"

#include <gtest/gtest.h>

using namespace kestrova::authoring;
using namespace kestrova::test;

namespace {

QVector<Finding> someFindings()
{
    return DescriptionWorld(QStringLiteral("UPDATE Objects SET Step = 0 WHERE id = 109; "
                                           "UPDATE Objects SET DefaultValue = '' WHERE id = 101; "
                                           "UPDATE SpeakerClasses SET Ways = 2 WHERE Class = 0"))
        .findings();
}

} // namespace

TEST(FindingsReport, CountsBySeverity)
{
    FindingCounts const counts = countOf(someFindings());
    EXPECT_EQ(counts.errors, 1);
    EXPECT_EQ(counts.warnings, 1);
    EXPECT_EQ(counts.hints, 1);
}

TEST(FindingsReport, TellsPlaceMessageEffectAndAdvice)
{
    EXPECT_EQ(findingsText({someFindings().at(1)}).toStdString(),
              "a.db3, Objects, row 109, Step: error: Trim (id 109): the step is 0 [step-not-positive]\n"
              "    the step of a number is 0 or below; the library: values are not rounded\n"
              "    to do: write the step that is meant\n"
              "1 error, 0 warnings, 0 hints\n");
    EXPECT_EQ(findingsText({}), QStringLiteral("0 errors, 0 warnings, 0 hints\n"));
}

TEST(FindingsReport, IsSortedByFileTableRowAndColumn)
{
    DescriptionWorld world(QStringLiteral("UPDATE Objects SET Step = 0, DefaultValue = '' WHERE id = 101; "
                                          "UPDATE Objects SET Step = 0 WHERE id = 1; "
                                          "UPDATE SpeakerClasses SET Ways = 2 WHERE Class = 0; "
                                          "INSERT INTO Filters VALUES (31, 3, 0, 0, 1, 'Air', 0, '')"));
    world.add(QStringLiteral("B.db3"),
              QStringLiteral("CREATE TABLE Filters (Id, Number, Type, Min, Max, "
                             "DisplayNameShort, TextOffset, StateTexts); INSERT INTO "
                             "Filters VALUES (32, 3, 0, 0, 1, 'Air', 0, '')"));
    QStringList places;
    for (Finding const & finding : world.findings())
        places.append(QStringLiteral("%1 %2 %3 %4")
                          .arg(finding.place.file, finding.place.table)
                          .arg(finding.place.row)
                          .arg(finding.place.column));
    EXPECT_EQ(
        places,
        QStringList({QStringLiteral("a.db3 Filters 3 Id"), QStringLiteral("a.db3 Objects 1 Step"),
                     QStringLiteral("a.db3 Objects 101 DefaultValue"),
                     QStringLiteral("a.db3 Objects 101 Step"), QStringLiteral("a.db3 SpeakerClasses 1 Ways"),
                     QStringLiteral("B.db3 Filters 0 "), QStringLiteral("B.db3 Filters 1 Id")}));
}

TEST(FindingsReport, HasTheSameFactsAsJson)
{
    QJsonObject const json = findingsJson(someFindings());
    EXPECT_EQ(json.value(QStringLiteral("errors")).toInt(), 1);
    QJsonObject const finding = json.value(QStringLiteral("findings")).toArray().at(1).toObject();
    EXPECT_EQ(finding,
              (QJsonObject{{QStringLiteral("rule"), QStringLiteral("step-not-positive")},
                           {QStringLiteral("severity"), QStringLiteral("error")},
                           {QStringLiteral("file"), QStringLiteral("a.db3")},
                           {QStringLiteral("table"), QStringLiteral("Objects")},
                           {QStringLiteral("row"), 109},
                           {QStringLiteral("column"), QStringLiteral("Step")},
                           {QStringLiteral("subject"), QStringLiteral("Trim (id 109)")},
                           {QStringLiteral("value"), QStringLiteral("0")},
                           {QStringLiteral("message"), QStringLiteral("the step is 0")},
                           {QStringLiteral("effect"), QStringLiteral("values are not rounded")},
                           {QStringLiteral("advice"), QStringLiteral("write the step that is meant")}}));
}

TEST(FindingsReport, NamesRulesPlacesAndLevelsInSarif)
{
    QJsonObject const sarif = findingsSarif(someFindings());
    EXPECT_EQ(sarif.value(QStringLiteral("version")).toString(), QStringLiteral("2.1.0"));
    QJsonObject const run = sarif.value(QStringLiteral("runs")).toArray().at(0).toObject();
    QJsonObject const driver =
        run.value(QStringLiteral("tool")).toObject().value(QStringLiteral("driver")).toObject();
    EXPECT_EQ(driver.value(QStringLiteral("name")).toString(), QStringLiteral("devicelore-db"));
    EXPECT_EQ(driver.value(QStringLiteral("rules")).toArray().size(),
              static_cast<int>(kestrova::authoring::rules().size()));

    QJsonArray const results = run.value(QStringLiteral("results")).toArray();
    ASSERT_EQ(results.size(), 3);
    EXPECT_EQ(results.at(0).toObject().value(QStringLiteral("level")).toString(), QStringLiteral("note"));
    QJsonObject const result = results.at(1).toObject();
    EXPECT_EQ(result.value(QStringLiteral("ruleId")).toString(), QStringLiteral("step-not-positive"));
    EXPECT_EQ(result.value(QStringLiteral("level")).toString(), QStringLiteral("error"));
    EXPECT_EQ(result.value(QStringLiteral("message")).toObject().value(QStringLiteral("text")).toString(),
              QStringLiteral("the step is 0"));
    QJsonObject const location = result.value(QStringLiteral("locations")).toArray().at(0).toObject();
    EXPECT_EQ(location.value(QStringLiteral("physicalLocation"))
                  .toObject()
                  .value(QStringLiteral("artifactLocation"))
                  .toObject()
                  .value(QStringLiteral("uri"))
                  .toString(),
              QStringLiteral("a.db3"));
    EXPECT_EQ(location.value(QStringLiteral("logicalLocations"))
                  .toArray()
                  .at(0)
                  .toObject()
                  .value(QStringLiteral("fullyQualifiedName"))
                  .toString(),
              QStringLiteral("Objects/109/Step"));
}

TEST(FindingsReport, ExplainsEveryRule)
{
    QString const text = rulesText();
    EXPECT_EQ(rulesJson().size(), static_cast<int>(kestrova::authoring::rules().size()));
    for (Rule const & rule : kestrova::authoring::rules())
        EXPECT_TRUE(text.contains(
            QStringLiteral("%1 (%2): %3\n    the library: %4\n    to do: %5\n")
                .arg(QLatin1String(rule.name), QLatin1String(severityName(rule.severity)),
                     QLatin1String(rule.summary), QLatin1String(rule.effect), QLatin1String(rule.advice))))
            << rule.name;
}
