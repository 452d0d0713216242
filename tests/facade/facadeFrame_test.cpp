#include "cache/driverCacheGuidItemList.h"
#include "facade/devicelore.h"
#include "support/databaseFolder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QSqlDatabase>

#include <memory>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;

// These tests hand the facade a cache with databases of their own; the folder of the test program has none.

namespace {

class Cache : public CDriverCache {
public:
    using CDriverCache::guidItems;
};

class Facade : public CDevicelore {
public:
    using CDevicelore::cache;
    using CDevicelore::CDevicelore;
    using CDevicelore::CheckChannelInfo;
};

} // namespace

TEST(FacadeFrame, MakesACacheOfItsOwn)
{
    Facade const facade;
    ASSERT_NE(facade.cache, nullptr);
    EXPECT_EQ(facade.cache->parent(), &facade);
}

TEST(FacadeFrame, WorksWithoutDatabases)
{
    CDevicelore const facade;
    QList<CDriverDatabaseInfo> infos;
    facade.databaseInfos(infos);
    EXPECT_TRUE(infos.isEmpty());
}

TEST(FacadeFrame, TakesTheCacheGiven)
{
    auto * const cache = new CDriverCache;
    Facade const facade(QPointer<CDriverCache>(cache), nullptr);
    EXPECT_EQ(facade.cache, cache);
    EXPECT_EQ(cache->parent(), nullptr) << "a cache that is handed in keeps its parent";
}

TEST(FacadeFrame, BelongsToItsParent)
{
    QObject parent;
    auto * const own = new CDevicelore(&parent);
    auto * const given = new CDevicelore(QPointer<CDriverCache>(new CDriverCache), &parent);
    EXPECT_EQ(own->parent(), &parent);
    EXPECT_EQ(given->parent(), &parent);
}

TEST(FacadeFrame, ThrowsWithoutACache)
{
    QObject parent;
    EXPECT_THROW(CDevicelore(QPointer<CDriverCache>(), &parent), CMemoryException);

    QPointer<CDriverCache> deleted(new CDriverCache);
    delete deleted.data();
    EXPECT_THROW(CDevicelore(deleted, &parent), CMemoryException);
    EXPECT_TRUE(parent.children().isEmpty()) << "nothing may be left of the failed facade";
}

TEST(FacadeFrame, DestroysTheCacheWhicheverConstructorGaveIt)
{
    QPointer<CDriverCache> given(new CDriverCache);
    QPointer<CDriverCache> own;
    {
        Facade const first(given, nullptr);
        Facade const second;
        own = second.cache;
        ASSERT_FALSE(own.isNull());
    }
    EXPECT_TRUE(given.isNull());
    EXPECT_TRUE(own.isNull());
}

TEST(FacadeFrame, DestroyingItClosesTheDatabases)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), QString());
    auto * const cache = new CDriverCache;
    cache->openDatabases(folder.dir());
    {
        CDevicelore const facade(QPointer<CDriverCache>(cache), nullptr);
        EXPECT_TRUE(QSqlDatabase::contains(QStringLiteral("a.db3")));
    }
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("a.db3")));
}

TEST(FacadeFrame, TwoFacadesMayShareACacheWhileNeitherIsDestroyed)
{
    auto * const cache = new CDriverCache;
    auto first = std::make_unique<Facade>(QPointer<CDriverCache>(cache), nullptr);
    Facade second(QPointer<CDriverCache>(cache), nullptr);
    EXPECT_EQ(first->cache, second.cache);

    first->setDeviceAccessLevel(3);
    EXPECT_EQ(cache->guidSupportedLevel(), 3);
    EXPECT_EQ(second.deviceAccessLevel(), 1) << "each facade has a level of its own";

    first.reset(); // takes the cache with it
    second.cache = new CDriverCache;
}

TEST(FacadeFrame, BearsWithASubclassThatTakesItsCacheAway)
{
    auto facade = std::make_unique<Facade>();
    delete facade->cache;
    facade->cache = nullptr;
    QList<CDriverDatabaseInfo> infos{CDriverDatabaseInfo()};
    facade->databaseInfos(infos);
    EXPECT_EQ(infos.size(), 1);
    CDeviceChannelInfo speaker;
    speaker.SetSpeakerId(65535);
    EXPECT_TRUE(facade->CheckChannelInfo(&speaker, "here")) << "nobody knows any bounds";
    facade.reset();
}

TEST(FacadeFrame, StartsAtLevelOneWhateverTheCacheHas)
{
    auto * const cache = new CDriverCache;
    cache->setGuidSupportedLevel(5);
    CDevicelore const facade(QPointer<CDriverCache>(cache), nullptr);
    EXPECT_EQ(facade.deviceAccessLevel(), 1);
    EXPECT_EQ(cache->guidSupportedLevel(), 5) << "construction does not pass the level on";
}

TEST(FacadeFrame, PassesTheLevelToTheCache)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"),
               QStringLiteral(
                   "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
                   "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 1), ('C7000305', 'Talvo', '', 3);"));
    auto * const cache = new Cache;
    cache->openDatabases(folder.dir());
    CDevicelore facade(QPointer<CDriverCache>(cache), nullptr);

    facade.setDeviceAccessLevel(3);
    EXPECT_EQ(facade.deviceAccessLevel(), 3);
    EXPECT_EQ(cache->guidSupportedLevel(), 3);
    EXPECT_EQ(cache->devicePropertyFilterAccessLevel(), 3);
    EXPECT_EQ(cache->determineDriverGuid(0xC7000905), CDeviceGuid(0xC7000305));

    facade.setDeviceAccessLevel(255);
    EXPECT_EQ(facade.deviceAccessLevel(), 255);
    EXPECT_EQ(cache->guidItems->currentAccessLevel(), 255);
}

TEST(FacadeFrame, DatabaseInfosAppends)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), QString());
    auto * const cache = new CDriverCache;
    cache->openDatabases(folder.dir());
    CDevicelore const facade(QPointer<CDriverCache>(cache), nullptr);
    CDriverDatabaseInfo mine;
    mine.setName(QStringLiteral("mine"));
    QList<CDriverDatabaseInfo> infos{mine};
    facade.databaseInfos(infos);
    ASSERT_EQ(infos.size(), 2);
    EXPECT_EQ(infos.at(0), mine);
    EXPECT_EQ(infos.at(1).name(), QStringLiteral("a.db3"));
}

TEST(LibVersion, PutsTheLastNumberFirst)
{
    int first = -1;
    int second = -1;
    int third = -1;
    libVersion(first, second, third);
    EXPECT_EQ(first, 19);
    EXPECT_EQ(second, 4);
    EXPECT_EQ(third, 1);
}

TEST(ErrorNumbers, AreTheOnesThatApplicationsKnow)
{
    EXPECT_EQ(int(TharnNoError), 0);
    EXPECT_EQ(int(TharnFailed), -32801);
    EXPECT_EQ(int(TharnNotFound), -32805);
    EXPECT_EQ(int(TharnNotAvailable), -32808);
    EXPECT_EQ(sizeof(TharnError), 4U);
    EXPECT_EQ(quint32(DeviceTypeNone), 0xC7000000U);
}
