#include "cache/driverCacheObjectItem.h"
#include "exposedCache.h"
#include "records/deviceChannelInfo.h"
#include "records/objectDef.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::ExposedCache;
using kestrova::test::MessageRecorder;

namespace {

CDeviceGuid const device(0xC7000005);

/// A database whose every answer holds \a mark.
QString marked(QString const & mark)
{
    return QStringLiteral(R"sql(
        CREATE TABLE Version (a, b, c);
        CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType);
        CREATE TABLE Hardwaretypes (Type, DeviceType);
        CREATE TABLE Objects (id, Name, BoxNumber, ObjectNumber, Format, Description, ClassId);
        CREATE TABLE guidsandobjects (objectid, guid);
        CREATE TABLE ObjectClasses (Id, OcaClassId, Description);
        CREATE TABLE TextsObjectValues (TextOffset, Value, TextShort_en_US);
        CREATE TABLE DevicePropertyFilter (FilterName, Expression, Access);
        CREATE TABLE SpeakerClasses (Class, Name, Type, Ways, WayNames);
        CREATE TABLE Speakers (SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, CablefitMaxCount, WfActive);
        CREATE TABLE GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access);
        CREATE TABLE Filters (Id, Number, Type, Min, Max, DisplayNameShort, TextOffset, StateTexts);
        INSERT INTO Version VALUES (1, 2, 3);
        INSERT INTO Guids VALUES ('C7000005', 'model %1', '1', 0, 1);
        INSERT INTO Hardwaretypes VALUES (3, 'hardware %1');
        INSERT INTO Objects VALUES (1, 'Gain', 1, 2, '%3d', 'gain %1', 0), (2, 'Mute', 1, 3, '%1d', 'mute %1', 0);
        INSERT INTO guidsandobjects VALUES (1, 'C7000005'), (2, 'C7000005');
        INSERT INTO ObjectClasses VALUES (9, '1.2', 'class %1');
        INSERT INTO TextsObjectValues VALUES (10, 0, 'off %1'), (20, 0, 'low %1');
        INSERT INTO DevicePropertyFilter VALUES ('group', 'SELECT ''member %1''', 0);
        INSERT INTO SpeakerClasses VALUES (1, 'Full', '', 1, '');
        INSERT INTO Speakers VALUES (7, 'speaker %1', 1, 0, 'short %1', 0, 0, 0);
        INSERT INTO GuidsSpeakersFilters VALUES ('C7000005', 7, 10, 0);
        INSERT INTO Filters VALUES (10, 1, 0, 0, 9, 'filter %1', 0, '');
    )sql")
        .arg(mark);
}

/// What a cache says when it reads everything anew, through each way to its database.
std::string answersOf(ExposedCache & cache)
{
    cache.init();
    QStringList answers = cache.deviceModels();
    answers += cache.hardwareTypeString(3);
    answers += cache.objectClassItems->itemByClassId(9) != nullptr ? QStringLiteral("class") : QString();
    for (auto const & object : {QStringLiteral("Gain"), QStringLiteral("Mute")}) {
        CDriverCacheObjectItem * item = nullptr;
        bool const isFound = cache.GetDriverObject(item, device, object, nullptr) == GetItemFound;
        answers += isFound ? item->displayName() : QString();
    }
    CObjectDef byNumber;
    byNumber.setMask(ObjectDefDisplayName);
    cache.objectFromDb(0x0102, QStringLiteral("C7000005"), byNumber);
    answers += byNumber.displayName();
    answers += cache.text(device, 10, 0);
    QList<QPair<int, QString>> texts;
    cache.textList(device, 20, texts);
    answers += texts.value(0).second;
    answers += cache.enumDevicePropertyFilter();
    answers += cache.devicePropertyFilter(QStringLiteral("group"));
    answers += cache.devicePropertyFilterByExpression(QStringLiteral("SELECT Name FROM Speakers"));
    QList<QPair<unsigned short, QString>> speakers;
    cache.listSpeakersForDevice(device, speakers);
    answers += speakers.value(0).second;
    CDeviceChannelInfo channel;
    channel.SetDeviceChannelType(ChannelTypeSpeaker);
    channel.SetSpeakerId(7);
    answers += cache.filterName(device, &channel, 1);
    QList<CDriverDatabaseInfo> infos;
    cache.databaseInfos(infos);
    answers += infos.value(0).name() + QString::number(infos.value(0).versionNumber().minor());
    return answers.join(QLatin1Char('\n')).toStdString();
}

std::string allAnswers(QString const & mark)
{
    QStringList answers;
    for (char const * answer :
         {"model %1", "hardware %1", "class", "gain %1", "mute %1", "gain %1", "off %1", "low %1", "group",
          "member %1", "speaker %1", "short %1", "filter %1", "a.db32"})
        answers += QString::fromLatin1(answer).replace(QStringLiteral("%1"), mark);
    return answers.join(QLatin1Char('\n')).toStdString();
}

struct SeveralCaches : ::testing::Test {
    SeveralCaches() { folder.add(QStringLiteral("a.db3"), marked(QStringLiteral("one"))); }

    ~SeveralCaches() override
    {
        EXPECT_FALSE(QSqlDatabase::contains(name)) << "the last cache must leave nothing behind";
        EXPECT_EQ(recorder.messages(), QStringList());
    }

    static std::unique_ptr<ExposedCache> open(DatabaseFolder const & databases)
    {
        auto cache = std::make_unique<ExposedCache>();
        EXPECT_EQ(cache->openDatabases(databases.dir()), 1);
        return cache;
    }

    QString const name = QStringLiteral("a.db3");
    std::string const one = allAnswers(QStringLiteral("one"));
    std::string const two = allAnswers(QStringLiteral("two"));
    DatabaseFolder folder;
    MessageRecorder recorder;
};

} // namespace

TEST_F(SeveralCaches, OfOneFolderAnswerInTurn)
{
    auto const first = open(folder);
    auto const second = open(folder);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(answersOf(*first), one);
        EXPECT_EQ(answersOf(*second), one);
    }
}

TEST_F(SeveralCaches, OutliveEachOtherInAnyOrder)
{
    std::vector<int> order{0, 1, 2};
    do {
        SCOPED_TRACE(testing::PrintToString(order));
        std::vector<std::unique_ptr<ExposedCache>> caches;
        for (int i = 0; i < 3; ++i) {
            caches.push_back(open(folder));
            EXPECT_EQ(answersOf(*caches.back()), one) << "with statements prepared, and all catalogues full";
        }
        for (int const dying : order) {
            caches[static_cast<std::size_t>(dying)].reset();
            for (auto const & cache : caches) {
                if (cache) {
                    EXPECT_EQ(answersOf(*cache), one);
                }
            }
        }
        EXPECT_FALSE(QSqlDatabase::contains(name));
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(SeveralCaches, OfWhichTheLastOneDiesLeaveTheFirstItsFirstQuestions)
{
    struct Row {
        char const * name;
        QString (*ask)(ExposedCache & cache);
        char const * answer;
    };

    Row const rows[] = {
        {"an object",
         [](ExposedCache & cache) {
             CDriverCacheObjectItem * item = nullptr;
             cache.GetDriverObject(item, device, QStringLiteral("Gain"), nullptr);
             return item != nullptr ? item->displayName() : QString();
         },
         "gain one"},
        {"a text", [](ExposedCache & cache) { return cache.text(device, 10, 0); }, "off one"},
        {"texts",
         [](ExposedCache & cache) {
             QList<QPair<int, QString>> texts;
             cache.textList(device, 10, texts);
             return texts.value(0).second;
         },
         "off one"},
        {"the names of groups",
         [](ExposedCache & cache) { return cache.enumDevicePropertyFilter().join(QLatin1Char(' ')); },
         "group"},
        {"a group",
         [](ExposedCache & cache) {
             return cache.devicePropertyFilter(QStringLiteral("group")).join(QLatin1Char(' '));
         },
         "member one"},
        {"a statement",
         [](ExposedCache & cache) {
             return cache.devicePropertyFilterByExpression(QStringLiteral("SELECT Name FROM Speakers"))
                 .join(QLatin1Char(' '));
         },
         "speaker one"},
        {"speakers",
         [](ExposedCache & cache) {
             QList<QPair<unsigned short, QString>> speakers;
             cache.listSpeakersForDevice(device, speakers);
             return speakers.value(0).second;
         },
         "short one"},
        {"whether a speaker is supported",
         [](ExposedCache & cache) { return QString::number(cache.isSpeakerSupportedByDevice(7, device)); },
         "1"},
        {"a filter",
         [](ExposedCache & cache) {
             CDeviceChannelInfo channel;
             channel.SetDeviceChannelType(ChannelTypeSpeaker);
             channel.SetSpeakerId(7);
             return cache.filterName(device, &channel, 1);
         },
         "filter one"},
        {"the databases",
         [](ExposedCache & cache) {
             QList<CDriverDatabaseInfo> infos;
             cache.databaseInfos(infos);
             return infos.value(0).name();
         },
         "a.db3"},
        {"a reload",
         [](ExposedCache & cache) {
             cache.setGuidSupportedLevel(2);
             return cache.deviceModels().join(QLatin1Char(' '));
         },
         "model one"},
    };
    DatabaseFolder other;
    other.add(name, marked(QStringLiteral("two")));
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        for (DatabaseFolder const * const ofTheOther : {&folder, &other}) {
            SCOPED_TRACE(ofTheOther == &folder ? "of one file" : "of two files");
            auto const cache = open(folder);
            auto another = open(*ofTheOther);
            another.reset();
            EXPECT_EQ(row.ask(*cache), QString::fromLatin1(row.answer)) << "after the other has died";

            auto const asked = open(folder);
            another = open(*ofTheOther);
            EXPECT_EQ(row.ask(*asked), QString::fromLatin1(row.answer)) << "while the other has the name";
        }
    }
}

TEST_F(SeveralCaches, OfTwoFilesOfOneNameAnswerEachFromItsOwn)
{
    DatabaseFolder other;
    other.add(name, marked(QStringLiteral("two")));
    auto first = open(folder);
    auto second = open(other);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(answersOf(*first), one);
        EXPECT_EQ(QSqlDatabase::database(name, false).databaseName(), folder.path(name));
        EXPECT_EQ(answersOf(*second), two);
        EXPECT_EQ(QSqlDatabase::database(name, false).databaseName(), other.path(name));
    }
    first.reset();
    EXPECT_EQ(answersOf(*second), two);
    first = open(folder);
    second.reset();
    EXPECT_EQ(answersOf(*first), one);
}

TEST_F(SeveralCaches, LeaveAConnectionAloneThatIsAnothers)
{
    auto first = open(folder);
    auto const second = open(folder);
    QSqlQuery ofSecond(QSqlDatabase::database(name, false));
    ASSERT_TRUE(ofSecond.prepare(QStringLiteral("SELECT DeviceType FROM Guids")));
    first.reset();
    ASSERT_TRUE(ofSecond.exec()) << "the connection must not have been closed";
    ASSERT_TRUE(ofSecond.next());
    EXPECT_EQ(ofSecond.value(0).toString(), QStringLiteral("model one"));
}

TEST_F(SeveralCaches, AnswerFromMemoryWithoutAConnection)
{
    auto const cache = open(folder);
    answersOf(*cache);
    open(folder).reset();
    CDriverCacheObjectItem * item = nullptr;
    EXPECT_EQ(cache->GetDriverObject(item, device, QStringLiteral("Gain"), nullptr), GetItemFound);
    EXPECT_EQ(cache->text(device, 10, 0), QStringLiteral("off one"));
    EXPECT_EQ(cache->enumDevicePropertyFilter(), QStringList{QStringLiteral("group")});
    EXPECT_FALSE(QSqlDatabase::contains(name)) << "nothing had to be opened again";
}

TEST_F(SeveralCaches, OfWhichOneDoesNotOpenLeaveTheOtherItsFile)
{
    DatabaseFolder bad;
    bad.addFile(name, "no database");
    auto const cache = open(folder);
    ExposedCache failing;
    EXPECT_EQ(failing.openDatabases(bad.dir()), -1);
    EXPECT_EQ(answersOf(*cache), one);
}

TEST_F(SeveralCaches, DoNotComeBackAfterTheyHaveClosed)
{
    auto const cache = open(folder);
    cache->closeDatabases();
    CDriverCacheObjectItem * item = nullptr;
    EXPECT_EQ(cache->GetDriverObject(item, device, QStringLiteral("Gain"), nullptr), GetItemNotAvailable);
    EXPECT_FALSE(QSqlDatabase::contains(name));
}

TEST_F(SeveralCaches, OpenAFileAgainWhoseConnectionTheApplicationRemoved)
{
    auto const cache = open(folder);
    answersOf(*cache);
    QSqlDatabase::removeDatabase(name);
    EXPECT_EQ(answersOf(*cache), one);
    EXPECT_EQ(QSqlDatabase::database(name, false).databaseName(), folder.path(name));
}

TEST_F(SeveralCaches, UseAConnectionThatTheApplicationPutInPlaceOfTheirsAndLeaveItAlone)
{
    DatabaseFolder other;
    other.add(name, marked(QStringLiteral("two")));
    auto cache = open(folder);
    QSqlDatabase::removeDatabase(name);
    QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name).setDatabaseName(other.path(name));
    EXPECT_TRUE(QSqlDatabase::database(name).isOpen());
    EXPECT_EQ(answersOf(*cache), two);
    cache.reset();
    EXPECT_TRUE(QSqlDatabase::database(name, false).isOpen());
    QSqlDatabase::removeDatabase(name);
}

TEST_F(SeveralCaches, HaveNoRowsWhereAFileIsGone)
{
    auto const cache = open(folder);
    open(folder).reset();
    ASSERT_TRUE(QFile::remove(folder.path(name)));
    CDriverCacheObjectItem * item = nullptr;
    EXPECT_EQ(cache->GetDriverObject(item, device, QStringLiteral("Gain"), nullptr), GetItemNotAvailable);
    EXPECT_EQ(cache->text(device, 10, 0), QString());
    EXPECT_FALSE(QSqlDatabase::contains(name));
}
