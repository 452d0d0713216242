#include "descriptionWorld.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace kestrova::authoring;

// The samples are clean but for what their comments announce.
TEST(SampleWorld, HasTheFindingsThatItsCommentsAnnounceAndNoOthers)
{
    DescriptionSet set({QStringLiteral(KESTROVA_SAMPLES)});
    QString lines;
    for (Finding const & finding : checkDescriptions(set).sorted())
        lines += QStringLiteral("%1 %2 %3 %4: %5 [%6]\n")
                     .arg(finding.place.file, finding.place.table, finding.place.column,
                          finding.place.subject, finding.message, QLatin1String(finding.rule->name));
    QFile golden(QStringLiteral(KESTROVA_GOLDEN "/sampleFindings.txt"));
    ASSERT_TRUE(golden.open(QIODevice::ReadOnly));
    EXPECT_EQ(lines, QString::fromUtf8(golden.readAll()));
}
