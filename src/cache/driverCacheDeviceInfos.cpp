#include "cache/driverCache.h"

#include "cache/driverCacheGuidItemList.h"
#include "deviceinfo/deviceInfo.h"
#include "records/driverPropertyTarget.h"

#include <QVariant>

namespace kestrova::Morvel::Devicelore {

ADeviceInfo * CDriverCache::getDeviceInfo(QString const & deviceType) const
{
    return deviceInfos.value(deviceType);
}

/// What is known of a GUID's model, or null.
ADeviceInfo * CDriverCache::deviceInfoOnGuid(CDeviceGuid const & guid) const
{
    QString deviceType;
    return guidItems->deviceTypeOnGuid(guid, deviceType) ? getDeviceInfo(deviceType) : nullptr;
}

// The one question here that maps the GUID to its description first. The others take it as it stands.
int CDriverCache::DeviceChannelCount(CDeviceGuid const & guid, DeviceChannelType type) const
{
    ADeviceInfo const * const deviceInfo = deviceInfoOnGuid(determineDriverGuid(guid));
    return deviceInfo != nullptr ? deviceInfo->channelCount(type) : -1;
}

QVariant CDriverCache::defaultPropertyValue(CDriverPropertyTarget const & target)
{
    ADeviceInfo const * const deviceInfo = deviceInfoOnGuid(target.guid());
    return deviceInfo != nullptr ? deviceInfo->defaultValue(target, this) : QVariant();
}

QVariant CDriverCache::defaultSpeakerId(CDriverPropertyTarget const & target, OutputMode mode)
{
    ADeviceInfo const * const deviceInfo = deviceInfoOnGuid(target.guid());
    return deviceInfo != nullptr ? deviceInfo->defaultSpeaker(target, mode, this) : QVariant();
}

QVariant CDriverCache::validateSpeakerId(CDriverPropertyTarget const & target, OutputMode mode)
{
    ADeviceInfo const * const deviceInfo = deviceInfoOnGuid(target.guid());
    return deviceInfo != nullptr ? deviceInfo->validatedSpeaker(target, mode, this) : QVariant();
}

} // namespace kestrova::Morvel::Devicelore
