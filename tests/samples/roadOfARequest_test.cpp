#include "cache/driverCacheChannelKeyName.h"
#include "cache/driverCacheChannelKeyObject.h"
#include "cache/driverCacheObjectItemList.h"
#include "facade/devicelore.h"
#include "support/messageRecorder.h"
#include "support/print.h"
#include "support/processLocale.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::MessageRecorder;
using kestrova::test::ProcessLocale;

namespace {

/// Notes the keys that it is asked for.
class WatchedCache : public CDriverCache {
public:
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key) override
    {
        keys.append(key->key());
        return CDriverCache::GetDriverObject(item, key);
    }

    GetItemReturnValue remembered(CDriverCacheKey & key, CDriverCacheObjectItem *& item) const
    {
        return objectItems->GetDriverObject(item, &key);
    }

    QStringList keys;
};

} // namespace

// From the question to the value that a user sees, on a speaker that changes the object's limits.
TEST(RoadOfARequest, LeadsFromTheKeyOverTheRowToTheRecordAndTheValue)
{
    ProcessLocale const plain("C"); // printed numbers have the process's decimal point
    MessageRecorder const recorder;
    auto * const cache = new WatchedCache;
    QDir dir(QStringLiteral(KESTROVA_SAMPLES));
    dir.setNameFilters({QStringLiteral("*.db3")});
    ASSERT_EQ(cache->openDatabases(dir), 4);
    CDevicelore facade(QPointer<CDriverCache>(cache), nullptr);
    facade.setDeviceAccessLevel(1);

    // 1. A record that asks for the limits only, a device, a name, a channel with a speaker.
    CDeviceGuid const guid(0xC7000312);
    QString const count = QStringLiteral("Config_CablefitSpeakerCount");
    CDeviceChannelInfo speaker;
    speaker.SetSpeakerId(12);
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(ObjectDefMinValue) | ObjectDefMaxValue | ObjectDefObjectType);

    // 2. One key text joins device, channel and name; nothing stands under it yet.
    CDriverCacheChannelKeyName byName(guid, &speaker, count);
    CDriverCacheChannelKeyObject byNumber(guid, &speaker, 0x0203);
    CDriverCacheObjectItem * item = nullptr;
    EXPECT_EQ(cache->remembered(byName, item), GetItemNotCached);
    ASSERT_EQ(facade.GetObjectDef(guid, count, object, &speaker), TharnNoError);
    EXPECT_EQ(cache->keys, QStringList{QStringLiteral("C7000312_001_0012_Config_CablefitSpeakerCount")});

    // 3. The row was read, its type determined, and the item stored under its name and its number.
    ASSERT_EQ(cache->remembered(byName, item), GetItemFound);
    CDriverCacheObjectItem * twin = nullptr;
    ASSERT_EQ(cache->remembered(byNumber, twin), GetItemFound);
    EXPECT_EQ(item, twin);
    EXPECT_EQ(item->displayName(), QStringLiteral("Speakers in line"));

    // 4. The speaker's Cablefit count is the maximum; another speaker, and the device as a whole, have their
    // own.
    EXPECT_EQ(object.maxValue(), 6.0);
    CDeviceChannelInfo linear;
    linear.SetSpeakerId(71);
    CObjectDef other = object;
    ASSERT_EQ(facade.GetObjectDef(guid, count, other, &linear), TharnNoError);
    EXPECT_EQ(other.maxValue(), 0.0);
    ASSERT_EQ(facade.GetObjectDef(guid, count, other, nullptr), TharnNoError);
    EXPECT_EQ(other.maxValue(), 20.0);

    // 5. Only what the mask names was copied; the delay rule raises a minimum for a Wavefold speaker.
    EXPECT_EQ(object.objectType(), CObjectDef::ObjectTypeNumber);
    EXPECT_TRUE(object.name().isEmpty());
    EXPECT_TRUE(object.format().isEmpty());
    CObjectDef delay;
    delay.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    ASSERT_EQ(facade.GetObjectDef(guid, QStringLiteral("ChStatus_MsDelay"), delay, &speaker), TharnNoError);
    EXPECT_EQ(delay.minValue(), 6.2);

    // 6. A value becomes legal, and a text for the user.
    QVariant value(1.0);
    EXPECT_EQ(facade.validateValue(value, delay, true), CDevicelore::AdjustedToMin);
    EXPECT_EQ(value, QVariant(6.2));
    auto const raw = static_cast<float>(value.toDouble());
    QString text;
    EXPECT_EQ(CObjectDef::paraToStr(delay.format(), &raw, sizeof(raw), text, nullptr, true), ConvertOk);
    EXPECT_EQ(text, QStringLiteral("  6.2 ms"));

    // The second time the answer comes from memory.
    cache->closeDatabases();
    CObjectDef again = CObjectDef();
    again.setMask(ObjectDefMaxValue);
    EXPECT_EQ(facade.GetObjectDef(guid, 0x0203, again, &speaker), TharnNoError);
    EXPECT_EQ(again.maxValue(), 6.0);
    EXPECT_EQ(recorder.messages(), QStringList());
}
