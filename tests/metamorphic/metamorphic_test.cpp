#include "answers.h"
#include "randomWorld.h"

#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <memory>

using namespace kestrova::Morvel::Devicelore;
using namespace kestrova::test;

// Two ways to say the same give the same answers, whatever is said.

namespace {

constexpr unsigned worlds = 40;
constexpr unsigned char level = 2;
constexpr unsigned short noSpeaker = 0;
/// Those of the worlds, one that is unknown, and none.
constexpr unsigned short speakerIds[] = {noSpeaker, 5, 11, 12, 68, 71, 99, 267};

/// A library with the databases of a folder open. One at a time: connections are named after the files.
struct Opened {
    explicit Opened(DatabaseFolder const & folder, unsigned char accessLevel = level)
        : cache(new CDriverCache)
        , library(std::make_unique<CDevicelore>(QPointer<CDriverCache>(cache), nullptr))
    {
        EXPECT_GT(cache->openDatabases(folder.dir()), 0);
        library->setDeviceAccessLevel(accessLevel);
    }

    CDriverCache * cache;
    std::unique_ptr<CDevicelore> library;
};

QStringList answersOfFolder(DatabaseFolder const & folder, RandomWorld const & world)
{
    Opened const opened(folder);
    return answersOf(*opened.library, world);
}

/// The first difference, to be read; null when there is none.
QString difference(QStringList const & left, QStringList const & right)
{
    for (int i = 0; i < qMax(left.size(), right.size()); ++i) {
        if (left.value(i) != right.value(i))
            return QStringLiteral("%1\n%2").arg(left.value(i), right.value(i));
    }
    return {};
}

/// The definitions of all objects of all devices, on each channel and on none, asked in one of two ways.
template <typename Ask>
QStringList definitions(DatabaseFolder const & folder, RandomWorld const & world, Ask ask)
{
    Opened const opened(folder);
    QStringList all;
    for (QString const & guid : world.guids()) {
        for (RandomWorld::Object const & object : world.objects) {
            for (unsigned short const speakerId : speakerIds) {
                CDeviceChannelInfo channel;
                channel.SetSpeakerId(speakerId);
                CObjectDef definition;
                definition.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
                bool const isFound = ask(*opened.library, CDeviceGuid(guid), object, definition,
                                         speakerId != noSpeaker ? &channel : nullptr);
                all.append(QStringLiteral("%1 %2 %3 %4 %5")
                               .arg(guid, object.name)
                               .arg(speakerId)
                               .arg(isFound)
                               .arg(wordsOf(definition)));
            }
        }
    }
    return all;
}

QString const fileA = QStringLiteral("a.db3");
QString const fileB = QStringLiteral("b.db3");

} // namespace

TEST(RandomWorlds, HaveSomethingToTell)
{
    int objects = 0;
    int questions = 0;
    for (unsigned seed = 0; seed < worlds; ++seed) {
        RandomWorld const world(seed);
        DatabaseFolder folder;
        folder.add(fileA, world.sql(RandomWorld::Form::New));
        for (QString const & answer : answersOfFolder(folder, world)) {
            ++questions;
            objects += answer.count(QLatin1Char('|')) > 10 ? 1 : 0;
        }
    }
    EXPECT_GT(questions, 50000);
    EXPECT_GT(objects, 3000);
}

TEST(RandomWorlds, AnswerAlikeInTheOldAndTheNewFormOfTheDatabase)
{
    MessageRecorder const recorder;
    for (unsigned seed = 0; seed < worlds; ++seed) {
        RandomWorld const world(seed);
        DatabaseFolder newForm;
        newForm.add(fileA, world.sql(RandomWorld::Form::New));
        DatabaseFolder oldForm;
        oldForm.add(fileA, world.sql(RandomWorld::Form::Old));
        EXPECT_EQ(difference(answersOfFolder(newForm, world), answersOfFolder(oldForm, world)), QString())
            << seed;
    }
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(RandomWorlds, AnswerAlikeWhenTheyAreSplitBetweenTwoDatabases)
{
    for (unsigned seed = 0; seed < worlds; ++seed) {
        RandomWorld const world(seed);
        DatabaseFolder whole;
        whole.add(fileA, world.sql(RandomWorld::Form::New));
        std::size_t const middle = world.devices.size() / 2;
        DatabaseFolder split;
        split.add(fileA, world.sql(RandomWorld::Form::New, 0, middle));
        split.add(fileB, world.sql(RandomWorld::Form::Old, middle, world.devices.size()));
        EXPECT_EQ(difference(answersOfFolder(whole, world), answersOfFolder(split, world)), QString())
            << seed;
    }
}

TEST(RandomWorlds, AnswerAlikeWhateverTheCaseOfTheFileNames)
{
    // The same devices in three databases: which of them answers is a question of their order.
    for (unsigned seed = 0; seed < worlds; ++seed) {
        RandomWorld const world(seed);
        RandomWorld const other(seed + 1000);
        RandomWorld const third(seed + 2000);
        DatabaseFolder lower;
        DatabaseFolder mixed;
        lower.add(QStringLiteral("a.db3"), world.sql(RandomWorld::Form::New));
        lower.add(QStringLiteral("b.db3"), other.sql(RandomWorld::Form::New));
        lower.add(QStringLiteral("c.db3"), third.sql(RandomWorld::Form::New));
        mixed.add(QStringLiteral("a.db3"), world.sql(RandomWorld::Form::New));
        mixed.add(QStringLiteral("B.db3"), other.sql(RandomWorld::Form::New));
        mixed.add(QStringLiteral("C.db3"), third.sql(RandomWorld::Form::New));
        EXPECT_EQ(difference(answersOfFolder(lower, world), answersOfFolder(mixed, world)), QString())
            << seed;
    }
}

TEST(RandomWorlds, AnswerAlikeByNameAndByNumber)
{
    for (unsigned seed = 0; seed < worlds; ++seed) {
        RandomWorld const world(seed);
        DatabaseFolder folder;
        folder.add(fileA, world.sql(RandomWorld::Form::New));
        QStringList const byName = definitions(
            folder, world,
            [](CDevicelore & library, CDeviceGuid const & guid, RandomWorld::Object const & object,
               CObjectDef & def, CDeviceChannelInfo const * channel) {
                return library.GetObjectDef(guid, object.name, def, channel) == TharnNoError;
            });
        QStringList const byNumber = definitions(
            folder, world,
            [](CDevicelore & library, CDeviceGuid const & guid, RandomWorld::Object const & object,
               CObjectDef & def, CDeviceChannelInfo const * channel) {
                auto const number = static_cast<unsigned short>(object.box * 256 + object.number);
                return library.GetObjectDef(guid, number, def, channel) == TharnNoError;
            });
        EXPECT_EQ(difference(byName, byNumber), QString()) << seed;
    }
}

TEST(RandomWorlds, AnswerAlikeWhenAskedTwice)
{
    for (unsigned seed = 0; seed < worlds; ++seed) {
        RandomWorld const world(seed);
        DatabaseFolder folder;
        folder.add(fileA, world.sql(RandomWorld::Form::New));
        Opened const opened(folder);
        QStringList const first = answersOf(*opened.library, world);
        EXPECT_EQ(difference(first, answersOf(*opened.library, world)), QString()) << seed;
    }
}

TEST(RandomWorlds, AnswerAlikeAfterAReloadAndAFreshStart)
{
    for (unsigned seed = 0; seed < worlds; ++seed) {
        RandomWorld const world(seed);
        DatabaseFolder folder;
        folder.add(fileA, world.sql(RandomWorld::Form::New));
        folder.add(fileB, RandomWorld(seed + 1000).sql(RandomWorld::Form::Old));
        QStringList reloaded;
        {
            Opened const opened(folder);
            answersOf(*opened.library, world);
            opened.library->setDeviceAccessLevel(9);
            answersOf(*opened.library, world);
            opened.library->setDeviceAccessLevel(0);
            opened.library->setDeviceAccessLevel(level);
            reloaded = answersOf(*opened.library, world);
        }
        EXPECT_EQ(difference(reloaded, answersOfFolder(folder, world)), QString()) << seed;
    }
}
