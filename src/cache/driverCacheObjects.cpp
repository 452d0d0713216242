#include "cache/driverCache.h"

#include "cache/databaseAccess.h"
#include "cache/driverCacheChannelKeyFilter.h"
#include "cache/driverCacheFilterItemList.h"
#include "cache/driverCacheGuidItemList.h"
#include "cache/driverCacheObjectItemList.h"
#include "cache/driverCacheSpeakerItemList.h"
#include "cache/filterObject.h"
#include "cache/objectKey.h"

#include <QMessageLogger>

#include <cmath>

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr unsigned short stepOfOneFlag = 0x20; // such an object moves in single steps, whatever its row says

/// Takes over the filter's limits. What then has two states is a toggle, and what has more is none.
void takeLimits(CDriverCacheObjectItem & item, CDriverCacheFilterItem const & filter)
{
    item.setMin(filter.minValue());
    item.setMax(filter.maxValue());
    double const distance = std::abs(item.maxValue() - item.minValue());
    if (item.objectType() == CObjectDef::ObjectTypeToggle && distance > 1.0)
        item.setObjectType(CObjectDef::ObjectTypeNumber);
    else if (item.objectType() == CObjectDef::ObjectTypeNumber && distance == 1.0)
        item.setObjectType(CObjectDef::ObjectTypeToggle);
}

} // namespace

GetItemReturnValue CDriverCache::GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key)
{
    GetItemReturnValue const known = objectItems->GetDriverObject(item, key);
    if (known != GetItemNotCached)
        return known;

    // An item that the level refuses is neither stored nor deleted: it stays alive for the caller, who sees
    // it in the out-parameter. The missing key makes sure that this happens once.
    if (!createDriverCacheObjectItem(item, key) || isAboveLevel(key->guid(), *item)) {
        addObjectItem(key, nullptr);
        return GetItemNotAvailable;
    }
    addObjectItem(key, item);
    return GetItemFound;
}

/// The tens digit of an object's access is the level that reading needs; the units digit, for writing, plays
/// no part.
bool CDriverCache::isAboveLevel(CDeviceGuid const & guid, CObjectDef const & object) const
{
    return guidItems->accessLevelDriverGuid(guid) > guidSupportedLevel_ ||
           object.access() / 10 > guidSupportedLevel_;
}

GetItemReturnValue CDriverCache::GetDriverObject(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                                 QString const & name, CDeviceChannelInfo * channel)
{
    return withObjectKey(guid, name, channel,
                         [&](CDriverCacheKey * key) { return GetDriverObject(item, key); });
}

GetItemReturnValue CDriverCache::GetDriverObject(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                                 unsigned short number, CDeviceChannelInfo * channel)
{
    return withObjectKey(guid, number, channel,
                         [&](CDriverCacheKey * key) { return GetDriverObject(item, key); });
}

GetItemReturnValue CDriverCache::GetDriverObject(CDriverCacheObjectItem *& item, QString const & guid,
                                                 QString const & name, CDeviceChannelInfo * channel)
{
    return withObjectKey(guid, name, channel,
                         [&](CDriverCacheKey * key) { return GetDriverObject(item, key); });
}

GetItemReturnValue CDriverCache::GetDriverObject(CDriverCacheObjectItem *& item, QString const & guid,
                                                 unsigned short number, CDeviceChannelInfo * channel)
{
    return withObjectKey(guid, number, channel,
                         [&](CDriverCacheKey * key) { return GetDriverObject(item, key); });
}

bool CDriverCache::addObjectItem(CDriverCacheKey * key, CDriverCacheObjectItem * item)
{
    return objectItems->AddObjectItem(key, item);
}

bool CDriverCache::createDriverCacheObjectItem(CDriverCacheObjectItem *& item, CDriverCacheKey * key)
{
    if (key == nullptr) {
        QMessageLogger(nullptr, 0, nullptr)
            .warning("Invalid param 'key' (nullptr) in %s",
                     "kestrova::Morvel::Devicelore::CDriverCache::createDriverCacheObjectItem");
        return false;
    }
    CObjectDef definition;
    definition.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    if (readObject(*key, definition) != TharnNoError)
        return false;

    item = new CDriverCacheObjectItem(definition);
    item->setDisplaySubName(QString());
    if (CDeviceChannelInfo const * const channel = key->channelInfo();
        channel != nullptr && channel->GetChannelType() == ChannelTypeSpeaker)
        adjustToSpeaker(*item, *key, *channel);
    if ((item->flags() & stepOfOneFlag) != 0 && item->step() > 1.0)
        item->setStep(1.0);
    return true;
}

TharnError CDriverCache::readObject(CDriverCacheKey const & key, CObjectDef & definition)
{
    if (key.type() == CDriverCacheKey::KeyTypeName)
        return objectFromDb(static_cast<CDriverCacheKeyName const &>(key).objectName(), key.guidString(),
                            definition);
    return objectFromDb(static_cast<CDriverCacheKeyObject const &>(key).objectNumber(), key.guidString(),
                        definition);
}

void CDriverCache::adjustToSpeaker(CDriverCacheObjectItem & item, CDriverCacheKey const & key,
                                   CDeviceChannelInfo const & channel)
{
    if (isFilterObject(item.name())) {
        unsigned char const filterNumber = filterNumberOf(item.name());
        item.setDisplaySubName(filterName(key.guidString(), &channel, filterNumber));
        CDriverCacheChannelKeyFilter const filterKey(key.guidString(), &channel, filterNumber);
        if (CDriverCacheFilterItem const * const filter = filterItems->item(filterKey))
            takeLimits(item, *filter);
    } else if (item.name() == QLatin1String("Config_CablefitSpeakerCount")) {
        QList<CSpeakerDef> speakers;
        speakerItems->speakerDef(channel.GetSpeakerId(), speakers, SpeakerDefCablefitMaxCount);
        if (speakers.isEmpty())
            return;
        item.setMax(speakers.first().cablefitMaxCount());
        if (item.minValue() > item.maxValue())
            item.setMin(item.maxValue());
    }
}

} // namespace kestrova::Morvel::Devicelore
