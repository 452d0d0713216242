#include "deviceinfo/deviceInfo.h"

#include "cache/driverCache.h"
#include "cache/driverCacheChannelKeyName.h"
#include "cache/driverCacheObjectItem.h"
#include "records/driverPropertyTarget.h"

namespace kestrova::Morvel::Devicelore {

namespace {

QString propertyKeyOf(CDriverPropertyTarget const & target)
{
    CPropertyBaseKey key;
    key.setPropertyName(target.propertyName());
    key.setRecordNumber(target.recordNumber());
    return key.toString(KeyTypeProperty);
}

QVariant defaultValueInDatabase(CDriverPropertyTarget const & target, CDriverCache & cache)
{
    // With a cleared qualifier too, and not by the plain name: the target always has a qualifier.
    CDriverCacheChannelKeyName key(target.guid(), target.GetDeviceChannelInfo(), target.propertyName());
    CDriverCacheObjectItem * item = nullptr;
    return cache.GetDriverObject(item, &key) == GetItemFound ? item->defaultValue() : QVariant();
}

} // namespace

ADeviceInfo::~ADeviceInfo() = default;

QVariant ADeviceInfo::defaultValue(CDriverPropertyTarget const & target, CDriverCache * cache) const
{
    // A caller may have written the key itself as the name.
    for (QString const & key : {target.propertyName(), propertyKeyOf(target)}) {
        auto const found = defaultValues.constFind(key);
        if (found != defaultValues.constEnd())
            return *found;
    }
    return defaultValueInDatabase(target, *cache);
}

QVariant ADeviceInfo::defaultSpeaker(CDriverPropertyTarget const & target, OutputMode,
                                     CDriverCache * cache) const
{
    return defaultValue(target, cache);
}

QVariant ADeviceInfo::validatedSpeaker(CDriverPropertyTarget const & target, OutputMode,
                                       CDriverCache * cache) const
{
    return target.speakerId() != 0 ? QVariant(int(target.speakerId())) : defaultValue(target, cache);
}

int ADeviceInfo::channelCount(DeviceChannelType type) const
{
    return channelCounts.value(type).second;
}

void ADeviceInfo::setChannelCount(DeviceChannelType type, int count)
{
    channelCounts.insert(type, qMakePair(int(type), count));
}

QVariant ADeviceInfo::listedOrDefaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                             QFlags<SpeakerType> types, OutputMode listMode,
                                             CDriverCache * cache) const
{
    QList<unsigned short> ids;
    cache->listSpeakersForDevice(target.guid(), ids, types, listMode);
    return ids.contains(target.speakerId()) ? QVariant(int(target.speakerId()))
                                            : defaultSpeaker(target, mode, cache);
}

} // namespace kestrova::Morvel::Devicelore
