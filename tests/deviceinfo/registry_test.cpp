#include "deviceinfo/deviceInfo.h"
#include "modelWorld.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::ExposedCache;
using kestrova::test::Model;
using kestrova::test::models;
using kestrova::test::ModelWorld;
using kestrova::test::said;

TEST(ModelRegistry, HasTheFifteenModels)
{
    ExposedCache const cache;
    EXPECT_EQ(cache.deviceInfos.size(), 15);
    for (Model const & model : models)
        EXPECT_NE(cache.getDeviceInfo(QLatin1String(model.name)), nullptr) << model.name;
}

TEST(ModelRegistry, MatchesExactly)
{
    CDriverCache const cache;
    EXPECT_EQ(cache.getDeviceInfo(QStringLiteral("hesko")), nullptr);
    EXPECT_EQ(cache.getDeviceInfo(QStringLiteral("HESKO")), nullptr);
    EXPECT_EQ(cache.getDeviceInfo(QStringLiteral("Hesko ")), nullptr);
    EXPECT_EQ(cache.getDeviceInfo(QString()), nullptr);
}

TEST(ModelRegistry, HasAnObjectOfItsOwnForEachModel)
{
    CDriverCache const cache;
    QList<ADeviceInfo *> found;
    for (Model const & model : models) {
        ADeviceInfo * const deviceInfo = cache.getDeviceInfo(QLatin1String(model.name));
        EXPECT_FALSE(found.contains(deviceInfo)) << model.name;
        found.append(deviceInfo);
    }
}

TEST(ModelRegistry, ItsObjectsOutliveTheCache)
{
    ADeviceInfo const * hesko = nullptr;
    {
        CDriverCache const cache;
        hesko = cache.getDeviceInfo(QStringLiteral("Hesko"));
    }
    EXPECT_EQ(hesko->channelCount(ChannelTypeInput), 8);
}

TEST(ModelRegistry, SurvivesAClear)
{
    CDriverCache cache;
    cache.clear();
    EXPECT_NE(cache.getDeviceInfo(QStringLiteral("Hesko")), nullptr);
}

TEST(ModelRegistry, AModelThatIsMissingOrNullIsUnknown)
{
    ModelWorld world;
    CDeviceGuid const hesko(0xC7000012);
    CDriverPropertyTarget const target(hesko, QStringLiteral("Volume"));
    world.cache.deviceInfos[QStringLiteral("Hesko")] = nullptr;
    for (bool const isEmpty : {false, true}) {
        if (isEmpty)
            world.cache.deviceInfos.clear();
        EXPECT_EQ(world.cache.DeviceChannelCount(hesko, ChannelTypeSpeaker), -1);
        EXPECT_EQ(said(world.cache.defaultPropertyValue(target)), "invalid");
        EXPECT_EQ(said(world.cache.defaultSpeakerId(target, OutputMode(0))), "invalid");
        EXPECT_EQ(said(world.cache.validateSpeakerId(target, OutputMode(0))), "invalid");
        EXPECT_EQ(world.cache.getDeviceInfo(QStringLiteral("Hesko")), nullptr);
    }
}
