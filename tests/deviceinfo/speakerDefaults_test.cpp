#include "modelWorld.h"
#include "support/messageRecorder.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::MessageRecorder;
using kestrova::test::ModelWorld;
using kestrova::test::said;

namespace {

constexpr int firstMode = -2;
constexpr int lastMode = 10;
constexpr int firstChannel = -1;
constexpr int lastChannel = 9;
constexpr int dbs = -1; // the default value of the target, which is 500 in the database of the tests

/// By mode from -2 to 10, and in it by channel from -1 to 9.
using DefaultTable = std::array<std::array<int, 11>, 13>;

/// In the same places, the stored speakers that stay: the digits of their ids.
using KeptTable = std::array<std::array<char const *, 11>, 13>;

// clang-format off
constexpr DefaultTable sarniDefaults = {{
    // -1    0    1    2    3    4    5    6    7    8    9
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // mode -2
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // -1
    { 71,  71,  71,  71,  71,  71,  71,  71,  71,  71,  71}, // 0
    { 71,  71,  71,  68,  71,  71,  71,  71,  71,  71,  71}, // 1
    { 11,  11,  11,  11,  71,  71,  71,  71,  71,  71,  71}, // 2
    { 71,  71,  71,  71,  71,  68,  71,  71,  71,  71,  71}, // 3
    { 71,  71,  71,  71,  11,  11,  11,  11,  11,  11,  11}, // 4
    { 71,  68,  71,  68,  71,  68,  71,  68,  71,  68,  71}, // 5
    { 11,  11,  11,  11,  71,  68,  68,  68,  68,  68,  68}, // 6
    { 68,  68,  71,  68,  11,  11,  11,  11,  11,  11,  11}, // 7
    { 11,  11,  11,  11,  11,  11,  11,  11,  11,  11,  11}, // 8
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 9
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 10
}};

constexpr DefaultTable vesniDefaults = {{
    // -1    0    1    2    3    4    5    6    7    8    9
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // mode -2
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // -1
    { 71,  71,  71,  71,  71,  71,  71,  71,  71,  71,  71}, // 0
    { 71,  71,  71,  68,  71,  71,  71,  71,  71,  71,  71}, // 1
    { 37,  37,  37,  37,  71,  71,  71,  71,  71,  71,  71}, // 2
    { 71,  71,  71,  71,  71,  68,  71,  71,  71,  71,  71}, // 3
    { 71,  71,  71,  71,  37,  37,  37,  37,  37,  37,  37}, // 4
    { 71,  68,  71,  68,  71,  68,  71,  68,  71,  68,  71}, // 5
    { 37,  37,  37,  37,  71,  68,  68,  68,  68,  68,  68}, // 6
    { 68,  68,  71,  68,  37,  37,  37,  37,  37,  37,  37}, // 7
    { 37,  37,  37,  37,  37,  37,  37,  37,  37,  37,  37}, // 8
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 9
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 10
}};

constexpr DefaultTable talvoDefaults = {{
    // -1    0    1    2    3    4    5    6    7    8    9
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // mode -2
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // -1
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 0
    { 25,  25,   7,  25,  25,  25,  25,  25,  25,  25,  25}, // 1
    { 11,  11,  11,  11,  11,  11,  11,  11,  11,  11,  11}, // 2
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 3
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 4
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 5
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 6
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 7
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 8
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 9
    {dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs, dbs}, // 10
}};

constexpr KeptTable sarniKept = {{
    //-1    0      1      2      3      4      5      6      7      8      9
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // mode -2
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // -1
    {"123", "123", "123", "123", "123", "123", "123", "123", "123", "123", "123"}, // 0
    {"",    "",    "1",   "2",   "123", "123", "",    "",    "",    "",    ""},    // 1
    {"",    "",    "4",   "4",   "123", "123", "",    "",    "",    "",    ""},    // 2
    {"",    "",    "123", "123", "1",   "2",   "",    "",    "",    "",    ""},    // 3
    {"",    "",    "123", "123", "4",   "4",   "",    "",    "",    "",    ""},    // 4
    {"",    "",    "1",   "2",   "1",   "2",   "",    "",    "",    "",    ""},    // 5
    {"",    "",    "4",   "4",   "1",   "2",   "",    "",    "",    "",    ""},    // 6
    {"",    "",    "1",   "2",   "4",   "4",   "",    "",    "",    "",    ""},    // 7
    {"",    "",    "4",   "4",   "4",   "4",   "",    "",    "",    "",    ""},    // 8
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 9
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 10
}};

constexpr KeptTable talvoKept = {{
    //-1    0      1      2      3      4      5      6      7      8      9
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // mode -2
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // -1
    {"123", "123", "123", "123", "123", "123", "123", "123", "123", "123", "123"}, // 0
    {"",    "",    "1",   "2",   "",    "",    "",    "",    "",    "",    ""},    // 1
    {"4",   "4",   "4",   "4",   "4",   "4",   "4",   "4",   "4",   "4",   "4"},   // 2
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 3
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 4
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 5
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 6
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 7
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 8
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 9
    {"",    "",    "",    "",    "",    "",    "",    "",    "",    "",    ""},    // 10
}};

// clang-format on

struct ModelTables {
    char const * model;
    quint32 guid;
    DefaultTable const & defaults;
    KeptTable const & kept;
};

ModelTables const withTables[] = {
    {"Talvo", 0xC7000005, talvoDefaults, talvoKept}, {"Hesko", 0xC7000012, sarniDefaults, sarniKept},
    {"Murel", 0xC7000011, sarniDefaults, sarniKept}, {"Vesni", 0xC7000013, vesniDefaults, sarniKept},
    {"Kalom", 0xC7000014, sarniDefaults, sarniKept}, {"Nurix", 0xC7000015, sarniDefaults, sarniKept},
    {"Orvan", 0xC7000016, sarniDefaults, sarniKept}, {"Sarni", 0xC7000010, sarniDefaults, sarniKept},
    {"Lumbo", 0xC7000017, sarniDefaults, sarniKept},
};

struct ModelConstants {
    char const * model;
    quint32 guid;
    char const * defaultSpeaker;
    char const * validatedWithout; ///< without a stored speaker
    char const * validatedWith4;   ///< with speaker 4 stored
    char const * validatedWith99;  ///< with a stored speaker that no database has
};

ModelConstants const sameInEveryMode[] = {
    {"Zerin", 0xC7000006, "double 500", "double 500", "int 4", "int 99"},
    {"Yolsa", 0xC7000007, "double 500", "double 500", "int 4", "int 99"},
    {"Fenra", 0xC7000020, "double 500", "double 500", "double 500", "double 500"},
    {"Tovian", 0xC7000030, "int 6", "int 0", "int 0", "int 0"},
    {"Quimo", 0xC7000031, "int 0", "int 0", "int 0", "int 0"},
    {"Rabel", 0xC7000040, "int 0", "int 0", "int 0", "int 0"},
};

CDriverPropertyTarget target(quint32 guid, int channel, int speaker = 0)
{
    return {CDeviceGuid(guid), QStringLiteral("Config_SpeakerId"), DeviceChannel(channel), 0,
            static_cast<unsigned short>(speaker)};
}

std::string text(int speaker)
{
    return speaker == dbs ? "double 500" : "int " + std::to_string(speaker);
}

template <typename Check>
void forEachPlace(Check check)
{
    for (int mode = firstMode; mode <= lastMode; ++mode) {
        for (int channel = firstChannel; channel <= lastChannel; ++channel)
            check(mode, channel);
    }
}

template <typename Table>
auto at(Table const & table, int mode, int channel)
{
    return table.at(std::size_t(mode - firstMode)).at(std::size_t(channel - firstChannel));
}

std::string where(char const * model, int mode, int channel)
{
    return std::string(model) + ", mode " + std::to_string(mode) + ", channel " + std::to_string(channel);
}

} // namespace

TEST(DefaultSpeaker, OfEveryModeAndChannelOfTheModelsWithTables)
{
    ModelWorld world;
    for (ModelTables const & model : withTables) {
        forEachPlace([&](int mode, int channel) {
            EXPECT_EQ(said(world.cache.defaultSpeakerId(target(model.guid, channel), OutputMode(mode))),
                      text(at(model.defaults, mode, channel)))
                << where(model.model, mode, channel);
        });
    }
}

TEST(DefaultSpeaker, OfAChannelFarFromThoseOfTheDeviceGoesByOddAndEven)
{
    struct Row {
        int mode;
        int oddBelow;
        int evenBelow;
        int oddAbove;
        int evenAbove;
    };

    Row const rows[] = {
        {0, 71, 71, 71, 71}, {1, 71, 71, 71, 71}, {2, 11, 11, 71, 71},
        {3, 71, 71, 71, 71}, {4, 71, 71, 11, 11}, {5, 71, 68, 71, 68},
        {6, 11, 11, 68, 68}, {7, 68, 68, 11, 11}, {8, 11, 11, 11, 11},
    };
    ModelWorld world;
    auto const speaker = [&](int channel, int mode) {
        return world.cache.defaultSpeakerId(target(0xC7000012, channel), OutputMode(mode)).toInt();
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.mode);
        EXPECT_EQ(speaker(-3, row.mode), row.oddBelow);
        EXPECT_EQ(speaker(-2147483647, row.mode), row.oddBelow);
        EXPECT_EQ(speaker(-2, row.mode), row.evenBelow);
        EXPECT_EQ(speaker(INT_MIN, row.mode), row.evenBelow);
        EXPECT_EQ(speaker(11, row.mode), row.oddAbove);
        EXPECT_EQ(speaker(INT_MAX, row.mode), row.oddAbove);
        EXPECT_EQ(speaker(10, row.mode), row.evenAbove);
        EXPECT_EQ(speaker(2147483646, row.mode), row.evenAbove);
    }
}

TEST(DefaultSpeaker, TakesNoNoticeOfTheStoredOne)
{
    ModelWorld world;
    for (ModelTables const & model : withTables) {
        forEachPlace([&](int mode, int channel) {
            EXPECT_EQ(said(world.cache.defaultSpeakerId(target(model.guid, channel, 4), OutputMode(mode))),
                      text(at(model.defaults, mode, channel)))
                << where(model.model, mode, channel);
        });
    }
}

TEST(ValidatedSpeaker, OfTheModelsWithTablesIsTheStoredOneWhereItFitsElseTheDefault)
{
    ModelWorld world;
    for (ModelTables const & model : withTables) {
        for (int const stored : {0, 1, 2, 3, 4, 99}) {
            forEachPlace([&](int mode, int channel) {
                std::string const kept = at(model.kept, mode, channel);
                bool const stays = kept.find(std::to_string(stored)) != std::string::npos;
                EXPECT_EQ(said(world.cache.validateSpeakerId(target(model.guid, channel, stored),
                                                             OutputMode(mode))),
                          text(stays ? stored : at(model.defaults, mode, channel)))
                    << where(model.model, mode, channel) << ", stored " << stored;
            });
        }
    }
}

TEST(Speaker, OfTheOtherModelsIsTheSameInEveryModeAndOnEveryChannel)
{
    ModelWorld world;
    for (ModelConstants const & model : sameInEveryMode) {
        forEachPlace([&](int mode, int channel) {
            SCOPED_TRACE(where(model.model, mode, channel));
            auto const defaultSpeaker = [&](int stored) {
                return said(
                    world.cache.defaultSpeakerId(target(model.guid, channel, stored), OutputMode(mode)));
            };
            auto const validated = [&](int stored) {
                return said(
                    world.cache.validateSpeakerId(target(model.guid, channel, stored), OutputMode(mode)));
            };
            EXPECT_EQ(defaultSpeaker(0), model.defaultSpeaker);
            EXPECT_EQ(defaultSpeaker(4), model.defaultSpeaker);
            EXPECT_EQ(validated(0), model.validatedWithout);
            EXPECT_EQ(validated(4), model.validatedWith4);
            EXPECT_EQ(validated(99), model.validatedWith99);
        });
    }
}

TEST(ValidatedSpeaker, IsFoundAlthoughTheDevicesSpeakersWereNotReadYet)
{
    ModelWorld world;
    CDeviceGuid const hesko(0xC7000012);
    QList<unsigned short> ids;
    ASSERT_EQ(world.cache.speakerItems->listSpeakersForDevice(hesko, ids), TharnNotFound);
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000012, 1, 3), OutputMode(0))), "int 3");
    EXPECT_EQ(world.cache.speakerItems->listSpeakersForDevice(hesko, ids), TharnNoError);
}

TEST(ValidatedSpeaker, ReadsTheDevicesSpeakersAlsoWhereNoneFits)
{
    struct Row {
        char const * name;
        quint32 guid;
        int mode;
        int channel;
        char const * speaker;
    };

    Row const rows[] = {
        {"a channel above those of the device", 0xC7000012, 1, 5, "int 71"},
        {"a channel below them", 0xC7000013, 8, 0, "int 37"},
        {"no mode", 0xC7000012, -1, 1, "double 500"},
        {"a mode above the table", 0xC7000012, 9, 1, "double 500"},
        {"a mode that Talvo does not know", 0xC7000005, 3, 1, "double 500"},
        {"Fenra", 0xC7000020, 0, 1, "double 500"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        ModelWorld world;
        QList<unsigned short> ids;
        ASSERT_EQ(world.cache.speakerItems->listSpeakersForDevice(CDeviceGuid(row.guid), ids), TharnNotFound);
        EXPECT_EQ(said(world.cache.validateSpeakerId(target(row.guid, row.channel, 1), OutputMode(row.mode))),
                  row.speaker);
        EXPECT_EQ(world.cache.speakerItems->listSpeakersForDevice(CDeviceGuid(row.guid), ids), TharnNoError);
        EXPECT_EQ(ids, (QList<unsigned short>{1, 2, 3, 4}));
    }
}

TEST(ValidatedSpeaker, ZeroIsKeptWhereItIsListed)
{
    ModelWorld world;
    CDeviceGuid const hesko(0xC7000012);
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000012, 1, 0), OutputMode(1))), "int 71");
    auto * const nought = new CSpeakerDef;
    CSpeakerClass firstChannelClass;
    firstChannelClass.classNumber = 0;
    nought->setSpeakerClass(firstChannelClass);
    ASSERT_TRUE(world.cache.speakerItems->addSpeakerItem(nought));
    world.cache.speakerItems->addToSupportedList(hesko, 0);
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000012, 1, 0), OutputMode(1))), "int 0");
}

TEST(ValidatedSpeaker, OfAModelThatTakesAnyIsGivenWithoutALookAtAList)
{
    ModelWorld world;
    CDeviceGuid const zerin(0xC7000006);
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000006, 1, 42), OutputMode(0))), "int 42");
    QList<unsigned short> ids;
    EXPECT_EQ(world.cache.speakerItems->listSpeakersForDevice(zerin, ids), TharnNotFound);
}

TEST(ValidatedSpeaker, OfAVersionThatIsNotDescribedIsTheDefault)
{
    ModelWorld world;
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000912, 1, 1), OutputMode(0))), "int 71")
        << "nothing says which speakers it takes";
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000906, 1, 1), OutputMode(0))), "int 1")
        << "this model asks for no list";
    EXPECT_EQ(said(world.cache.defaultSpeakerId(target(0xC7000912, 1), OutputMode(-1))), "invalid")
        << "and there is no object";
}

TEST(ValidatedSpeaker, NeedsNoDatabaseToFallBack)
{
    ModelWorld world;
    world.cache.closeDatabases();
    MessageRecorder const recorder;
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000012, 2, 1), OutputMode(1))), "int 68");
    EXPECT_EQ(said(world.cache.validateSpeakerId(target(0xC7000005, 1, 1), OutputMode(1))), "int 7");
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(Speaker, OfAnUnknownDeviceOrModelIsInvalid)
{
    ModelWorld world;
    for (quint32 const guid : {0xC7000099U, 0U, kestrova::test::deviceOfUnknownModel}) {
        for (int const mode : {-1, 0, 2}) {
            EXPECT_EQ(said(world.cache.defaultSpeakerId(target(guid, 1, 1), OutputMode(mode))), "invalid");
            EXPECT_EQ(said(world.cache.validateSpeakerId(target(guid, 1, 1), OutputMode(mode))), "invalid");
        }
    }
    EXPECT_EQ(world.cache.askedKeys, QStringList());
}

TEST(Speaker, WithoutAModeIsTheModelsOwnDefaultValueOfThatProperty)
{
    ModelWorld world;
    CDriverPropertyTarget const order(0xC7000012, QStringLiteral("Eq_Order"));
    EXPECT_EQ(said(world.cache.defaultSpeakerId(order, OutputMode(-1))), "int 1");
    EXPECT_EQ(said(world.cache.defaultSpeakerId(order, OutputMode(0))), "int 71");
}
