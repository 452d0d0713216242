#include "records/speakerDef.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

using namespace kestrova::Morvel::Devicelore;

namespace {

CSpeakerClass speakerClass(int number, int ways, QString const & names)
{
    CSpeakerClass made;
    made.classNumber = static_cast<unsigned char>(number);
    made.ways = static_cast<unsigned char>(ways);
    made.names = names;
    return made;
}

CSpeakerDef known()
{
    CSpeakerDef def;
    def.setSpeakerId(261);
    def.setName(QStringLiteral("Name"));
    def.setSpeakerClass(speakerClass(2, 2, QStringLiteral("LF/HF")));
    def.setRib(3);
    def.setDisplayNameShort(QStringLiteral("Short"));
    def.setSortOrder(4);
    def.setCablefitMaxCount(5);
    def.setFlags(0x81);
    return def;
}

} // namespace

TEST(SpeakerDef, StartsWithNothingRead)
{
    CSpeakerDef const def;
    EXPECT_EQ(def.speakerId(), 0);
    EXPECT_EQ(def.name(), QString());
    EXPECT_EQ(def.rib(), -1);
    EXPECT_EQ(def.displayNameShort(), QString());
    EXPECT_EQ(def.sortOrder(), -1);
    EXPECT_EQ(def.cablefitMaxCount(), -1);
    EXPECT_EQ(def.flags(), 0);
    EXPECT_FALSE(def.isWFSetup());

    CSpeakerClass got = speakerClass(1, 1, QStringLiteral("x"));
    def.speakerClass(got);
    EXPECT_EQ(got, CSpeakerClass());
}

TEST(SpeakerDef, KeepsWhatIsSet)
{
    CSpeakerDef const original = known();
    CSpeakerDef assigned;
    assigned = original;
    for (CSpeakerDef const & def : {original, assigned}) {
        EXPECT_EQ(def.speakerId(), 261);
        EXPECT_EQ(def.name(), QStringLiteral("Name"));
        EXPECT_EQ(def.rib(), 3);
        EXPECT_EQ(def.displayNameShort(), QStringLiteral("Short"));
        EXPECT_EQ(def.sortOrder(), 4);
        EXPECT_EQ(def.cablefitMaxCount(), 5);
        EXPECT_EQ(def.flags(), 0x81);
        CSpeakerClass got;
        def.speakerClass(got);
        EXPECT_EQ(got, speakerClass(2, 2, QStringLiteral("LF/HF")));
    }
}

TEST(SpeakerDef, ChangesTheWavefoldFlagAlone)
{
    struct Row {
        int before;
        bool set;
        int after;
    };

    Row const rows[] = {
        {0x80, true, 0x81}, {0x81, true, 0x81}, {0x81, false, 0x80}, {0xFE, true, 0xFF}, {0x7F, false, 0x7E}};
    for (Row const & row : rows) {
        SCOPED_TRACE(row.before);
        CSpeakerDef def;
        def.setFlags(static_cast<unsigned char>(row.before));
        def.setIsWFSetup(row.set);
        EXPECT_EQ(def.flags(), row.after);
        EXPECT_EQ(def.isWFSetup(), row.set);
    }
}

TEST(SpeakerDef, IsUnequalWhenAnyMemberDiffers)
{
    EXPECT_TRUE(known() == known());
    std::vector<std::pair<char const *, void (*)(CSpeakerDef &)>> const changes = {
        {"id", [](CSpeakerDef & def) { def.setSpeakerId(5); }},
        {"name", [](CSpeakerDef & def) { def.setName(QString()); }},
        {"class", [](CSpeakerDef & def) { def.setSpeakerClass(CSpeakerClass()); }},
        {"rib", [](CSpeakerDef & def) { def.setRib(0); }},
        {"short display name", [](CSpeakerDef & def) { def.setDisplayNameShort(QString()); }},
        {"sort order", [](CSpeakerDef & def) { def.setSortOrder(0); }},
        {"Cablefit count", [](CSpeakerDef & def) { def.setCablefitMaxCount(0); }},
        {"flags", [](CSpeakerDef & def) { def.setFlags(0x80); }},
    };
    for (auto const & [name, change] : changes) {
        CSpeakerDef changed = known();
        change(changed);
        EXPECT_TRUE(changed != known()) << name;
        EXPECT_FALSE(changed == known()) << name;
    }
}

TEST(SpeakerDef, SortsByWaysAndThenByClass)
{
    using ClassAndWays = std::pair<int, int>;
    std::vector<CSpeakerDef> definitions;
    for (auto const & [number, ways] :
         std::vector<ClassAndWays>{{9, 1}, {200, 1}, {2, 2}, {1, 1}, {0, 130}}) {
        CSpeakerDef def;
        def.setSpeakerClass(speakerClass(number, ways, QString()));
        definitions.push_back(def);
    }
    std::sort(definitions.begin(), definitions.end(), CSpeakerDef::lessThan);

    std::vector<ClassAndWays> sorted;
    for (CSpeakerDef const & def : definitions) {
        CSpeakerClass got;
        def.speakerClass(got);
        sorted.emplace_back(got.classNumber, got.ways);
    }
    EXPECT_EQ(sorted, (std::vector<ClassAndWays>{{1, 1}, {9, 1}, {200, 1}, {2, 2}, {0, 130}}));
}

TEST(SpeakerDef, SortsByNothingElse)
{
    CSpeakerDef other = known();
    other.setSpeakerId(1);
    other.setName(QString());
    other.setSortOrder(-5);
    EXPECT_FALSE(CSpeakerDef::lessThan(other, known()));
    EXPECT_FALSE(CSpeakerDef::lessThan(known(), other));
}

TEST(SpeakerDef, GivesTheWayNamesForEveryWay)
{
    for (int const way : {-1, 0, 1, 99})
        EXPECT_EQ(known().wayNameShort(way), QStringLiteral("LF/HF")) << way;
}
