#include "descriptionWorld.h"
#include "ruleRows.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace kestrova::authoring;
using namespace kestrova::test;

// A set of databases with nothing wrong, and one thing broken in each row.

namespace {

constexpr qint64 pageSize = 4096;

/// The rules about whole files, which have tests of their own.
QSet<QString> const rulesOfFiles{QStringLiteral("damaged-table"), QStringLiteral("not-a-database"),
                                 QStringLiteral("statistics-missing")};

} // namespace

TEST(DescriptionRules, FindNothingWrongWithAGoodDatabase)
{
    EXPECT_EQ(DescriptionWorld().findingLines(), QStringList());
}

TEST(DescriptionRules, FindWhatIsBrokenAndNothingElse)
{
    for (BadRow const & row : badRows()) {
        SCOPED_TRACE(testing::Message() << row.rule << ": " << row.change);
        DescriptionWorld world(QString::fromUtf8(row.change));
        if (*row.nextDatabase != 0)
            world.add(QStringLiteral("b.db3"), QString::fromUtf8(row.nextDatabase));
        if (*row.dspData != 0)
            world.addDspData(QString::fromUtf8(row.dspData));
        EXPECT_EQ(world.findingLines().join(QLatin1Char('\n')), QString::fromUtf8(row.findings));
    }
}

TEST(DescriptionRules, FindNothingWrongWithWhatIsGood)
{
    for (GoodRow const & row : goodRows()) {
        SCOPED_TRACE(testing::Message() << row.rule << ": " << row.change);
        DescriptionWorld world(QString::fromUtf8(row.change));
        if (*row.nextDatabase != 0)
            world.add(QStringLiteral("b.db3"), QString::fromUtf8(row.nextDatabase));
        EXPECT_EQ(world.findingLines().join(QLatin1Char('\n')), QString());
    }
}

TEST(DescriptionRules, AllHaveARow)
{
    QSet<QString> tested = rulesOfFiles;
    for (BadRow const & row : badRows())
        tested.insert(QString::fromUtf8(row.rule));
    QSet<QString> known;
    for (Rule const & rule : kestrova::authoring::rules())
        known.insert(QLatin1String(rule.name));
    EXPECT_EQ(known - tested, QSet<QString>());
    EXPECT_EQ(tested - known, QSet<QString>());
}

TEST(DescriptionRules, AreInAlphabeticalOrder)
{
    std::vector<Rule> const & all = kestrova::authoring::rules();
    for (std::size_t i = 1; i < all.size(); ++i)
        EXPECT_LT(std::string(all[i - 1].name), std::string(all[i].name));
}

TEST(DescriptionRules, AreAllInTheDocument)
{
    QFile file(QStringLiteral(KESTROVA_DOCUMENT));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString const document = QString::fromUtf8(file.readAll());
    for (Rule const & rule : kestrova::authoring::rules())
        EXPECT_TRUE(
            document.contains(QStringLiteral("\n| `%1` | %2 | %3 |\n")
                                  .arg(QLatin1String(rule.name), QLatin1String(severityName(rule.severity)),
                                       QLatin1String(rule.summary))))
            << rule.name;
    EXPECT_EQ(
        document.count(QRegularExpression(QStringLiteral("\n\\| `[a-z0-9-]+` \\| (error|warning|hint) \\|"))),
        static_cast<int>(kestrova::authoring::rules().size()));
}

TEST(DescriptionRules, FindThatStatisticsAreMissing)
{
    DescriptionWorld world;
    world.addWithoutStatistics(QStringLiteral("b.db3"),
                               QStringLiteral("CREATE TABLE Hardwaretypes (Type, DeviceType); "
                                              "INSERT INTO Hardwaretypes VALUES (4, 'Hesko')"));
    EXPECT_EQ(world.findingLines(),
              QStringList({QStringLiteral("b.db3, , , : ANALYZE has not been run [statistics-missing]")}));
}

TEST(DescriptionRules, FindAFileThatIsNoDatabase)
{
    DescriptionWorld world;
    world.addFile(QStringLiteral("b.db3"), QByteArray(5000, 'x'));
    world.addFile(QStringLiteral("c.db3"), {});
    QStringList const lines = world.findingLines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines.at(0).startsWith(QLatin1String("b.db3, , , : "))) << lines.at(0).toStdString();
    EXPECT_TRUE(lines.at(0).endsWith(QLatin1String("[not-a-database]"))) << lines.at(0).toStdString();
    EXPECT_TRUE(lines.at(1).startsWith(QLatin1String("c.db3, , , : "))) << lines.at(1).toStdString();
    EXPECT_TRUE(lines.at(1).endsWith(QLatin1String("[not-a-database]"))) << lines.at(1).toStdString();
}

TEST(DescriptionRules, FindATableThatEndsInDamage)
{
    // Three thousand rows stand on many pages, behind those of all other tables.
    DescriptionWorld const world(
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                       "INSERT INTO Hardwaretypes SELECT 3, 'Hesko' FROM n"));
    ASSERT_EQ(world.findingLines(), QStringList());
    QFile file(world.path() + QStringLiteral("/a.db3"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() - 5 * pageSize);
    file.write(QByteArray(static_cast<int>(pageSize), '\xFF'));
    file.close();
    EXPECT_EQ(world.findingLines(),
              QStringList({QStringLiteral(
                  "a.db3, Hardwaretypes, , : database disk image is malformed [damaged-table]")}));
}
