#include "descriptionWorld.h"

#include "check/baseline.h"
#include "common/failure.h"

#include <gtest/gtest.h>

using namespace kestrova::authoring;
using namespace kestrova::test;
using kestrova::tools::Failure;

namespace {

QString const twoFaults =
    QStringLiteral("UPDATE Objects SET Step = 0 WHERE id = 109; UPDATE Objects SET ClassId = 9 WHERE id = 1");

QVector<Finding> findingsOf(QString const & change)
{
    return DescriptionWorld(change).findings();
}

QString refusal(QByteArray const & text)
{
    try {
        Baseline const baseline(text, QStringLiteral("accepted.txt"));
        return {};
    } catch (Failure const & failure) {
        return QString::fromUtf8(failure.what());
    }
}

} // namespace

TEST(BaselineFile, HasALineForEachFinding)
{
    EXPECT_EQ(Baseline::textOf(findingsOf(twoFaults)).toStdString(),
              "# Findings that are accepted. Made by `devicelore-db check --write-baseline`.\n"
              "# rule, file, table, column, subject, value\n"
              "class-missing\ta.db3\tObjects\tClassId\tPower (id 1)\t9\n"
              "step-not-positive\ta.db3\tObjects\tStep\tTrim (id 109)\t0\n");
}

TEST(BaselineFile, AcceptsWhatItWasMadeOf)
{
    QVector<Finding> const findings = findingsOf(twoFaults);
    Baseline const baseline(Baseline::textOf(findings), QStringLiteral("accepted.txt"));
    ASSERT_EQ(findings.size(), 2);
    EXPECT_TRUE(baseline.accepts(findings.at(0)));
    EXPECT_TRUE(baseline.accepts(findings.at(1)));
    EXPECT_EQ(baseline.outdated(findings), QStringList());
}

TEST(BaselineFile, AcceptsAFindingWhoseRowHasMoved)
{
    QString const dropped = QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000112', 99, 19, 1)");
    QVector<Finding> const before = findingsOf(dropped);
    QVector<Finding> const after = findingsOf(
        QStringLiteral("INSERT INTO GuidsSpeakersFilters VALUES ('C7000112', 71, 19, 2); ") + dropped);
    ASSERT_EQ(before.size(), 1);
    ASSERT_EQ(after.size(), 1);
    ASSERT_NE(before.first().place.row, after.first().place.row);
    EXPECT_TRUE(Baseline(Baseline::textOf(before), {}).accepts(after.first()));
}

TEST(BaselineFile, DoesNotAcceptAnotherValueColumnSubjectOrFile)
{
    QVector<Finding> const findings =
        findingsOf(QStringLiteral("UPDATE Objects SET Step = 0 WHERE id = 109"));
    Baseline const baseline(Baseline::textOf(findings), {});
    ASSERT_EQ(findings.size(), 1);
    Finding other = findings.first();
    EXPECT_TRUE(baseline.accepts(other));
    other.value = QStringLiteral("-1");
    EXPECT_FALSE(baseline.accepts(other));
    other = findings.first();
    other.place.subject = QStringLiteral("Trim (id 110)");
    EXPECT_FALSE(baseline.accepts(other));
    other = findings.first();
    other.place.column = QStringLiteral("Max");
    EXPECT_FALSE(baseline.accepts(other));
    other = findings.first();
    other.place.file = QStringLiteral("b.db3");
    EXPECT_FALSE(baseline.accepts(other));
    other = findings.first();
    other.rule = findRule("step-too-large");
    EXPECT_FALSE(baseline.accepts(other));
}

TEST(BaselineFile, TellsWhatIsNoLongerThere)
{
    Baseline const baseline(Baseline::textOf(findingsOf(twoFaults)), {});
    EXPECT_EQ(baseline.outdated(findingsOf(QStringLiteral("UPDATE Objects SET Step = 0 WHERE id = 109"))),
              QStringList({QStringLiteral("class-missing\ta.db3\tObjects\tClassId\tPower (id 1)\t9")}));
}

TEST(BaselineFile, KeepsOneLineAFindingWhateverTheDatabaseHolds)
{
    QVector<Finding> const findings = findingsOf(
        QStringLiteral("INSERT INTO Hardwaretypes VALUES (9, 'a' || char(9) || 'b' || char(10) || 'c')"));
    ASSERT_EQ(findings.size(), 1);
    QByteArray const text = Baseline::textOf(findings);
    EXPECT_EQ(text.count('\n'), 3);
    EXPECT_TRUE(Baseline(text, {}).accepts(findings.first()));
}

TEST(BaselineFile, RefusesWhatIsNoBaseline)
{
    EXPECT_EQ(refusal("# only a comment\n\n"), QString());
    EXPECT_EQ(refusal("step-not-positive\ta\tb\tc\td\te\n"), QString());
    EXPECT_EQ(
        refusal("\nhello\n"),
        QStringLiteral("accepted.txt, line 2 is no accepted finding; write the file with --write-baseline"));
    EXPECT_EQ(
        refusal("no-such-rule\ta\tb\tc\td\te\n"),
        QStringLiteral("accepted.txt, line 1 is no accepted finding; write the file with --write-baseline"));
    EXPECT_EQ(
        refusal("step-not-positive\ta\tb\tc\td\n"),
        QStringLiteral("accepted.txt, line 1 is no accepted finding; write the file with --write-baseline"));
}
