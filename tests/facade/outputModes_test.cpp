#include "facade/devicelore.h"
#include "records/speakerSetupInfo.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::MessageRecorder;

namespace kestrova::test::outputModes {

namespace {

struct PairAnswer {
    bool is2way;
    bool isFirst;
};

PairAnswer askPair(int channel, int mode, int channelCount)
{
    bool isFirst = true; // has to be set in any case
    bool const is2way = CDevicelore::is2wayActiveChannel(channel, OutputMode(mode), channelCount, isFirst);
    return {is2way, isFirst};
}

std::string text(PairAnswer answer)
{
    if (!answer.is2way)
        return answer.isFirst ? "no, first" : "no";
    return answer.isFirst ? "first" : "second";
}

QString const speakers = QStringLiteral(
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "INSERT INTO SpeakerClasses VALUES (3, 'Low', 'L', 2, 'Low'), (4, 'High', 'H', 2, 'High'),"
    " (0, 'Full', 'F', 1, 'Main');"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "INSERT INTO Speakers VALUES (11, 'Ostel low', 3, 0, 'OL', 20, 5, 0), (267, 'Ostel high', 4, 0, 'OH', "
    "21, 6, 0),"
    " (12, 'Varn', 0, 0, 'V', 30, 7, 0), (13, 'Arc', 0, 0, 'A', 31, 0, 1);");

CDriverCache * openCache(DatabaseFolder & folder)
{
    folder.add(QStringLiteral("a.db3"), speakers);
    auto * const cache = new CDriverCache;
    cache->setGuidSupportedLevel(1);
    EXPECT_EQ(cache->openDatabases(folder.dir()), 1);
    return cache;
}

struct SpeakerSetup : ::testing::Test {
    SpeakerSetup()
        : facade(QPointer<CDriverCache>(openCache(folder)), nullptr)
    {}

    DatabaseFolder folder;
    CDevicelore facade;
    CSpeakerSetupInfo info;
};

} // namespace

TEST(OutputModes, GroupChannelsUnderTheirFirst)
{
    struct Row {
        int mode;
        std::array<int, 11> firstOfChannel; ///< for the channels -1 to 9
    };

    // clang-format off
    Row const rows[] = {
        {-2, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        {-1, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        { 0, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        { 1, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        { 2, {{-1, 0, 1, 1, 3, 4, 5, 6, 7, 8, 9}}},
        { 3, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        { 4, {{-1, 0, 1, 2, 3, 3, 5, 6, 7, 8, 9}}},
        { 5, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        { 6, {{-1, 0, 1, 1, 3, 4, 5, 6, 7, 8, 9}}},
        { 7, {{-1, 0, 1, 2, 3, 3, 5, 6, 7, 8, 9}}},
        { 8, {{ 1, 1, 1, 1, 3, 3, 3, 3, 3, 3, 3}}},
        { 9, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        {10, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        {INT_MAX, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
        {INT_MIN, {{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}}},
    };
    // clang-format on
    CDevicelore const facade;
    for (Row const & row : rows) {
        for (int channel = -1; channel <= 9; ++channel)
            EXPECT_EQ(facade.firstChannel(OutputMode(row.mode), channel),
                      row.firstOfChannel.at(std::size_t(channel + 1)))
                << "mode " << row.mode << ", channel " << channel;
    }
}

TEST(OutputModes, CountSpeakers)
{
    struct Row {
        int mode;
        int onFewChannels;
        int onMoreChannels;
    };

    Row const rows[] = {
        {-2, 0, 0}, {-1, 0, 0}, {0, 2, 4}, {1, 2, 4}, {2, 1, 3},  {3, 4, 4},       {4, 3, 3},       {5, 4, 4},
        {6, 3, 3},  {7, 3, 3},  {8, 1, 2}, {9, 0, 0}, {10, 0, 0}, {INT_MIN, 0, 0}, {INT_MAX, 0, 0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.mode);
        for (int const few : {INT_MIN, -1, 0, 1, 2})
            EXPECT_EQ(CDevicelore::speakerCount(OutputMode(row.mode), few), row.onFewChannels) << few;
        for (int const more : {3, 4, 8, 64, INT_MAX})
            EXPECT_EQ(CDevicelore::speakerCount(OutputMode(row.mode), more), row.onMoreChannels) << more;
    }
}

TEST(OutputModes, NameTheChannelsOf2waySpeakers)
{
    struct Row {
        int mode;
        std::array<char const *, 11> answers; ///< for the channels -1 to 9
    };

    // clang-format off
    Row const rows[] = {
        {-2, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
        {-1, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
        { 0, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
        { 1, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
        { 2, {{"no", "no", "first", "second", "no", "no", "no", "no", "no", "no", "no"}}},
        { 3, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
        { 4, {{"no", "no", "no", "no", "first", "second", "no", "no", "no", "no", "no"}}},
        { 5, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
        { 6, {{"no", "no", "first", "second", "no", "no", "no", "no", "no", "no", "no"}}},
        { 7, {{"no", "no", "no", "no", "first", "second", "no", "no", "no", "no", "no"}}},
        { 8, {{"first", "second", "first", "second", "first", "second", "first", "second", "first", "second", "first"}}},
        { 9, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
        {10, {{"no", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"}}},
    };
    // clang-format on
    for (Row const & row : rows) {
        for (int channel = -1; channel <= 9; ++channel) {
            SCOPED_TRACE("mode " + std::to_string(row.mode) + ", channel " + std::to_string(channel));
            for (int const channelCount : {2, 4, 64})
                EXPECT_EQ(text(askPair(channel, row.mode, channelCount)),
                          row.answers.at(std::size_t(channel + 1)));
            for (int const tooFew : {1, 0, -4})
                EXPECT_EQ(text(askPair(channel, row.mode, tooFew)), "no");
        }
    }
}

TEST_F(SpeakerSetup, HasOneWay)
{
    ASSERT_TRUE(facade.SpeakerSetupInfo(12, info));
    EXPECT_EQ(info.speakerId(), 12);
    EXPECT_EQ(info.displayNameShort(), QStringLiteral("V"));
    EXPECT_EQ(info.sortOrder(), 30);
    EXPECT_EQ(info.cablefitMaxCount(), 7);
    EXPECT_FALSE(info.isWFSetup());
    EXPECT_EQ(info.numWays(), 1);
    EXPECT_EQ(info.setupName(0), QStringLiteral("Varn"));
    EXPECT_EQ(info.wayNameShort(0), QStringLiteral("Main"));
    ASSERT_TRUE(facade.SpeakerSetupInfo(13, info));
    EXPECT_TRUE(info.isWFSetup());
}

TEST_F(SpeakerSetup, PutsTheLowerClassFirstWhicheverIdIsAsked)
{
    for (unsigned short const id : {quint16(11), quint16(267)}) {
        SCOPED_TRACE(id);
        ASSERT_TRUE(facade.SpeakerSetupInfo(id, info));
        EXPECT_EQ(info.speakerId(), id);
        EXPECT_EQ(info.displayNameShort(), QStringLiteral("OL"));
        EXPECT_EQ(info.sortOrder(), 20);
        EXPECT_EQ(info.cablefitMaxCount(), 5);
        EXPECT_EQ(info.numWays(), 2);
        EXPECT_EQ(info.setupName(0), QStringLiteral("Ostel low"));
        EXPECT_EQ(info.setupName(1), QStringLiteral("Ostel high"));
        EXPECT_EQ(info.wayNameShort(0), QStringLiteral("Low"));
        EXPECT_EQ(info.wayNameShort(1), QStringLiteral("High"));
    }
}

TEST_F(SpeakerSetup, OfAnUnknownSpeakerLeavesTheArgument)
{
    ASSERT_TRUE(facade.SpeakerSetupInfo(11, info));
    CSpeakerSetupInfo const before(info);
    MessageRecorder const recorder;
    EXPECT_FALSE(facade.SpeakerSetupInfo(99, info));
    EXPECT_EQ(info, before);
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(SpeakerSetup, DropsTheWaysOfTheSpeakerBefore)
{
    ASSERT_TRUE(facade.SpeakerSetupInfo(11, info));
    ASSERT_TRUE(facade.SpeakerSetupInfo(12, info));
    EXPECT_EQ(info.numWays(), 1);
    EXPECT_EQ(info.setupName(1), QString());
}

TEST(SpeakerSetupQuestion, AsksForAllMembersThroughTheReplaceableOperation)
{
    class AskedCache : public CDriverCache {
    public:
        TharnError speakerDef(unsigned short, QList<CSpeakerDef> & definitions,
                              QFlags<SpeakerDefMask> mask) override
        {
            listWasEmpty = definitions.isEmpty();
            askedMask = int(mask);
            CSpeakerDef definition;
            definition.setFlags(0xA5);
            definitions.append(definition);
            return result;
        }

        bool listWasEmpty = false;
        int askedMask = 0;
        TharnError result = TharnNoError;
    };

    auto * const cache = new AskedCache;
    CDevicelore const facade(QPointer<CDriverCache>(cache), nullptr);
    CSpeakerSetupInfo info;
    EXPECT_TRUE(facade.SpeakerSetupInfo(5, info));
    EXPECT_TRUE(cache->listWasEmpty);
    EXPECT_EQ(cache->askedMask, 0x3FF);
    EXPECT_EQ(info.sortOrder(), -1) << "taken from the definition";
    EXPECT_EQ(info.flags(), 0xA5) << "also those that mean nothing here";

    CSpeakerSetupInfo const before(info);
    cache->result = TharnNotAvailable;
    EXPECT_FALSE(facade.SpeakerSetupInfo(6, info)) << "although there is a definition";
    EXPECT_EQ(info, before);
}

} // namespace kestrova::test::outputModes
