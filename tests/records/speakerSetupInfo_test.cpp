#include "records/speakerSetupInfo.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::test::speakerSetupInfo {

namespace {

CSpeakerClass speakerClass(int number, QString const & names = QString())
{
    CSpeakerClass made;
    made.classNumber = static_cast<unsigned char>(number);
    made.names = names;
    return made;
}

CSpeakerDef definition(QString const & name, int classNumber)
{
    CSpeakerDef def;
    def.setName(name);
    def.setSpeakerClass(speakerClass(classNumber));
    return def;
}

int classNumberOf(CSpeakerSetupInfo const & info, int way)
{
    CSpeakerClass got = speakerClass(77); // what comes back when nothing was assigned
    info.speakerClass(got, way);
    return got.classNumber;
}

CSpeakerSetupInfo twoWays()
{
    CSpeakerSetupInfo info;
    info.setSpeakerId(261);
    info.setDisplayNameShort(QStringLiteral("Short"));
    info.setSortOrder(4);
    info.setCablefitMaxCount(5);
    info.setFlags(0x81);
    info.setNumWays({definition(QStringLiteral("low"), 2), definition(QStringLiteral("high"), 3)});
    return info;
}

} // namespace

static_assert(std::is_convertible_v<QObject *, CSpeakerSetupInfo>);

TEST(SpeakerSetupInfo, StartsWithOneWayAndEmptyLists)
{
    QObject parent;
    CSpeakerSetupInfo const info(&parent);
    EXPECT_EQ(info.parent(), &parent);
    EXPECT_EQ(info.speakerId(), 0);
    EXPECT_EQ(info.displayNameShort(), QString());
    EXPECT_EQ(info.sortOrder(), 0);
    EXPECT_EQ(info.cablefitMaxCount(), 0);
    EXPECT_EQ(info.flags(), 0);
    EXPECT_FALSE(info.isWFSetup());
    EXPECT_EQ(info.numWays(), 1);
    EXPECT_EQ(info.setupName(0), QString());
    EXPECT_EQ(classNumberOf(info, 0), 77) << "left alone";
    EXPECT_EQ(info.wayNameShort(0), QString());
}

TEST(SpeakerSetupInfo, IsMadeOfOneWay)
{
    CSpeakerSetupInfo const info(37, QStringLiteral("setup"), QStringLiteral("Short"),
                                 speakerClass(2, QStringLiteral("FR")));
    EXPECT_EQ(info.parent(), nullptr);
    EXPECT_EQ(info.speakerId(), 37);
    EXPECT_EQ(info.displayNameShort(), QStringLiteral("Short"));
    EXPECT_EQ(info.numWays(), 1);
    EXPECT_EQ(info.setupName(0), QStringLiteral("setup"));
    EXPECT_EQ(classNumberOf(info, 0), 2);
    EXPECT_EQ(info.wayNameShort(0), QStringLiteral("FR"));
    EXPECT_EQ(info.sortOrder(), 0);
    EXPECT_EQ(info.cablefitMaxCount(), 0);
    EXPECT_EQ(info.flags(), 0);

    QObject parent;
    CSpeakerSetupInfo const child(37, QString(), QString(), speakerClass(2), &parent);
    EXPECT_EQ(child.parent(), &parent);
}

TEST(SpeakerSetupInfo, TakesItsWaysFromDefinitions)
{
    CSpeakerSetupInfo info = twoWays();
    EXPECT_EQ(info.numWays(), 2);
    EXPECT_EQ(info.setupName(0), QStringLiteral("low"));
    EXPECT_EQ(info.setupName(1), QStringLiteral("high"));
    EXPECT_EQ(classNumberOf(info, 0), 2);
    EXPECT_EQ(classNumberOf(info, 1), 3);

    info.setNumWays({definition(QStringLiteral("only"), 9)});
    EXPECT_EQ(info.numWays(), 1);
    EXPECT_EQ(info.setupName(0), QStringLiteral("only"));
    EXPECT_EQ(classNumberOf(info, 0), 9);
    info.setNumWays(2);
    EXPECT_EQ(info.setupName(1), QString()) << "dropped, not hidden";
    EXPECT_EQ(classNumberOf(info, 1), 77) << "dropped, not hidden";
}

TEST(SpeakerSetupInfo, HasNoWayAfterAnEmptyList)
{
    CSpeakerSetupInfo info;
    info.setNumWays(QList<CSpeakerDef>());
    EXPECT_EQ(info.numWays(), 0);
    EXPECT_EQ(info.setupName(0), QString());
}

TEST(SpeakerSetupInfo, IgnoresWaysThatDoNotExist)
{
    for (int const way : {-1, 2, 1000}) {
        SCOPED_TRACE(way);
        CSpeakerSetupInfo info = twoWays();
        EXPECT_EQ(info.setupName(way), QString());
        EXPECT_EQ(classNumberOf(info, way), 77);
        EXPECT_EQ(info.wayNameShort(way), QString());
        info.setSetupName(QStringLiteral("x"), way);
        info.setSpeakerClass(speakerClass(8), way);
        EXPECT_TRUE(info == twoWays());
    }
}

TEST(SpeakerSetupInfo, LetsTheNumberOfWaysRunAheadOfTheLists)
{
    CSpeakerSetupInfo info(37, QStringLiteral("setup"), QString(), speakerClass(2));
    info.setNumWays(3);
    EXPECT_EQ(info.setupName(0), QStringLiteral("setup"));
    EXPECT_EQ(info.setupName(2), QString());
    EXPECT_EQ(classNumberOf(info, 2), 77);
    EXPECT_EQ(info.wayNameShort(2), QString());
}

TEST(SpeakerSetupInfo, ReplacesTheEntryOfAWay)
{
    CSpeakerSetupInfo info = twoWays();
    info.setSetupName(QStringLiteral("higher"), 1);
    info.setSpeakerClass(speakerClass(8, QStringLiteral("HF")), 1);
    EXPECT_EQ(info.setupName(0), QStringLiteral("low"));
    EXPECT_EQ(info.setupName(1), QStringLiteral("higher"));
    EXPECT_EQ(classNumberOf(info, 0), 2);
    EXPECT_EQ(classNumberOf(info, 1), 8);
    EXPECT_EQ(info.wayNameShort(1), QStringLiteral("HF"));
}

TEST(SpeakerSetupInfo, AppendsToAShortListInsteadOfFillingUpToTheWay)
{
    CSpeakerSetupInfo info;
    info.setNumWays(3);
    info.setSetupName(QStringLiteral("third"), 2);
    info.setSpeakerClass(speakerClass(8), 2);
    EXPECT_EQ(info.setupName(0), QStringLiteral("third"));
    EXPECT_EQ(info.setupName(2), QString());
    EXPECT_EQ(classNumberOf(info, 0), 8);
    EXPECT_EQ(classNumberOf(info, 2), 77);
}

TEST(SpeakerSetupInfo, ChangesTheWavefoldFlagAlone)
{
    CSpeakerSetupInfo info;
    info.setFlags(0x80);
    info.setIsWFSetup(true);
    EXPECT_EQ(info.flags(), 0x81);
    EXPECT_TRUE(info.isWFSetup());
    info.setIsWFSetup(false);
    EXPECT_EQ(info.flags(), 0x80);
    EXPECT_FALSE(info.isWFSetup());
}

TEST(SpeakerSetupInfo, IsClearedToANewOne)
{
    QObject parent;
    auto * const info = new CSpeakerSetupInfo(&parent);
    *info = twoWays();
    info->clear();
    EXPECT_TRUE(*info == CSpeakerSetupInfo());
    EXPECT_EQ(info->numWays(), 1);
    EXPECT_EQ(info->parent(), &parent);
}

TEST(SpeakerSetupInfo, IsUnequalWhenAnyMemberDiffers)
{
    EXPECT_TRUE(twoWays() == twoWays());
    std::vector<std::pair<char const *, void (*)(CSpeakerSetupInfo &)>> const changes = {
        {"id", [](CSpeakerSetupInfo & info) { info.setSpeakerId(5); }},
        {"short display name", [](CSpeakerSetupInfo & info) { info.setDisplayNameShort(QString()); }},
        {"sort order", [](CSpeakerSetupInfo & info) { info.setSortOrder(0); }},
        {"Cablefit count", [](CSpeakerSetupInfo & info) { info.setCablefitMaxCount(0); }},
        {"flags", [](CSpeakerSetupInfo & info) { info.setFlags(0x80); }},
        {"number of ways", [](CSpeakerSetupInfo & info) { info.setNumWays(3); }},
        {"class", [](CSpeakerSetupInfo & info) { info.setSpeakerClass(speakerClass(9), 1); }},
        {"setup name", [](CSpeakerSetupInfo & info) { info.setSetupName(QString(), 1); }},
        {"a longer list",
         [](CSpeakerSetupInfo & info) {
             info.setNumWays(3);
             info.setSetupName(QString(), 2);
             info.setNumWays(2);
         }},
    };
    for (auto const & [name, change] : changes) {
        CSpeakerSetupInfo changed = twoWays();
        change(changed);
        EXPECT_TRUE(changed != twoWays()) << name;
        EXPECT_FALSE(changed == twoWays()) << name;
    }
}

TEST(SpeakerSetupInfo, IsCopiedWithoutItsParent)
{
    QObject parent;
    CSpeakerSetupInfo original(&parent);
    original = twoWays();
    EXPECT_EQ(original.parent(), &parent) << "assigning leaves the parent";

    CSpeakerSetupInfo const copy(original);
    EXPECT_TRUE(copy == twoWays());
    EXPECT_EQ(copy.parent(), nullptr);
    original.setParent(nullptr);
}

} // namespace kestrova::test::speakerSetupInfo
