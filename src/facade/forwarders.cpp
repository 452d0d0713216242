#include "facade/devicelore.h"

#include "records/driverPropertyTarget.h"

#include <QVariant>

// Questions that the cache answers as they stand, and those that add a rule of little more than a line.

namespace kestrova::Morvel::Devicelore {

int CDevicelore::deviceChannelCount(CDeviceGuid const & guid, DeviceChannelType type) const
{
    return cache->DeviceChannelCount(guid, type);
}

QVariant CDevicelore::defaultPropertyValue(CDriverPropertyTarget const & target) const
{
    QVariant value = cache->defaultPropertyValue(target);
    if (target.propertyName() == QLatin1String("ChStatus_MsDelay") &&
        target.GetDeviceChannelInfo()->GetChannelType() == ChannelTypeSpeaker)
        CorrectDelayValueForWFSpeaker(target.speakerId(), value);
    return value;
}

QVariant CDevicelore::defaultSpeakerId(CDriverPropertyTarget const & target, OutputMode mode) const
{
    return cache->defaultSpeakerId(target, mode);
}

QVariant CDevicelore::validateSpeakerId(CDriverPropertyTarget const & target, OutputMode mode) const
{
    return cache->validateSpeakerId(target, mode);
}

TharnError CDevicelore::speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                                   QFlags<SpeakerDefMask> mask) const
{
    return cache->speakerDef(speakerId, definitions, mask);
}

} // namespace kestrova::Morvel::Devicelore
