#include "descriptionWorld.h"

#include "check/columns.h"
#include "check/report.h"
#include "diff/comparison.h"
#include "support/messageRecorder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <random>

using namespace kestrova::authoring;
using namespace kestrova::test;

// Whatever a column holds, the tool tells something and does nothing else.

namespace {

char const * const oddValues[] = {
    "NULL",
    "''",
    "'text'",
    "'%'",
    "'%I99999999999b%s%n'",
    "x'00FF81C7'",
    "-1",
    "9223372036854775807",
    "-9223372036854775808",
    "1e308",
    "9e999",
    "-9e999",
    "'C7000012' || char(0) || 'x'",
    "replace(hex(zeroblob(5000)), '0', 'x')",
};

} // namespace

TEST(UntrustedDescriptions, AreCheckedAndComparedWhateverAColumnHolds)
{
    MessageRecorder const recorder;
    SetView good;
    {
        DescriptionWorld const world;
        DescriptionSet set({world.path()});
        good = viewOf(set);
    }
    for (KnownColumn const & column : knownColumns()) {
        bool const isRowid = QLatin1String(column.name) == QLatin1String("id"); // takes integers only
        bool const isElsewhere = QLatin1String(column.table) == QLatin1String("SpeakerData");
        if (isRowid || isElsewhere)
            continue;
        for (char const * const value : oddValues) {
            SCOPED_TRACE(testing::Message() << column.table << '.' << column.name << " = " << value);
            DescriptionWorld const world(
                QStringLiteral("UPDATE OR REPLACE %1 SET %2 = %3")
                    .arg(QLatin1String(column.table), QLatin1String(column.name), QString::fromUtf8(value)));
            DescriptionSet set({world.path()});
            QVector<Finding> const findings = checkDescriptions(set).sorted();
            findingsText(findings);
            findingsSarif(findings);
            changesText(changesBetween(good, viewOf(set)));
        }
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(UntrustedDescriptions, MayHaveTablesOfAnyForm)
{
    MessageRecorder const recorder;
    for (char const * const change :
         {"DROP TABLE Objects", "DROP TABLE Objects; CREATE TABLE Objects (x)",
          "DROP TABLE Objects; CREATE VIEW Objects AS SELECT 1 AS id, 'Gain' AS Name",
          "DROP TABLE Guids; CREATE VIEW Guids AS SELECT * FROM absent",
          "DROP TABLE guidsandobjects; CREATE TABLE guidsandobjects (guid TEXT, objectid, PRIMARY KEY (guid, "
          "objectid)) WITHOUT ROWID; INSERT INTO guidsandobjects SELECT GUID, 1 FROM Guids",
          "ALTER TABLE Objects RENAME COLUMN id TO number",

          "DROP TABLE TextsObjectValues; CREATE TABLE TextsObjectValues (TextOffset, Value)",
          "CREATE TABLE \"SpeakerData\" (GUID)"}) {
        SCOPED_TRACE(change);
        DescriptionWorld const world{QString::fromUtf8(change)};
        EXPECT_FALSE(world.findings().isEmpty());
        DescriptionSet set({world.path()});
        viewOf(set);
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(UntrustedDescriptions, MayHaveFurtherColumns)
{
    DescriptionWorld const world(QStringLiteral("ALTER TABLE Objects ADD COLUMN \"\"\"; odd\" TEXT"));
    EXPECT_EQ(world.findingLines(), QStringList());
}

TEST(UntrustedDescriptions, MayBeAnyBytes)
{
    MessageRecorder const recorder;
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same bytes in every run
    DescriptionWorld const world;
    QFile file(world.path() + QStringLiteral("/a.db3"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray const good = file.readAll();
    for (int i = 0; i < 150; ++i) {
        QByteArray bytes = good;
        for (int change = 0; change < 1 + i % 8; ++change)
            bytes[static_cast<int>(random() % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(random());
        if (i % 10 == 0)
            bytes.truncate(static_cast<int>(random() % static_cast<unsigned>(bytes.size())));
        DescriptionWorld damaged;
        damaged.addFile(QStringLiteral("b.db3"), bytes);
        DescriptionSet set({damaged.path()});
        findingsText(checkDescriptions(set).sorted());
        viewOf(set);
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}
