#include "facade/devicelore.h"

#include "core/qt5Conversions.h"
#include "records/driverPropertyTarget.h"

#include <QVariant>

// Questions that the cache answers as they stand, and those that add a rule of little more than a line.

namespace kestrova::Morvel::Devicelore {

CDeviceGuid CDevicelore::determineDriverGuid(CDeviceGuid const & guid) const
{
    return cache->determineDriverGuid(guid);
}

CDriverCacheGuidItem::GuidAccess CDevicelore::deviceGuidAccessLevel(CDeviceGuid const & guid) const
{
    return cache->deviceGuidAccessLevel(guid);
}

QStringList CDevicelore::deviceModels() const
{
    return cache->deviceModels();
}

QStringList CDevicelore::enumDevicePropertyFilter() const
{
    return cache->enumDevicePropertyFilter();
}

QStringList CDevicelore::devicePropertyFilter(QString const & name) const
{
    return cache->devicePropertyFilter(name);
}

QStringList CDevicelore::devicePropertyFilterByExpression(QString const & expression) const
{
    return cache->devicePropertyFilterByExpression(expression);
}

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

bool CDevicelore::isSpeakerSupportedByDevice(unsigned short speakerId, CDeviceGuid const & guid) const
{
    return cache->isSpeakerSupportedByDevice(speakerId, guid);
}

TharnError CDevicelore::listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids)
{
    return cache->listSpeakersForDevice(guid, ids);
}

TharnError CDevicelore::listSpeakersForDevice(CDeviceGuid const & guid,
                                              QList<QPair<unsigned short, QString>> & speakers)
{
    return cache->listSpeakersForDevice(guid, speakers);
}

TharnError CDevicelore::listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids,
                                              QFlags<SpeakerType> types, OutputMode mode) const
{
    return cache->listSpeakersForDevice(guid, ids, types, mode);
}

QString CDevicelore::GetFilterName(CDeviceGuid const & guid, int filterNumber,
                                   CDeviceChannelInfo const * channelInfo)
{
    return cache->filterName(guid, channelInfo, static_cast<unsigned char>(filterNumber));
}

QString CDevicelore::objectValueString(CDeviceGuid const & guid, int textOffset, QVariant const & value) const
{
    return cache->text(guid, static_cast<unsigned int>(textOffset), qt5::toInt(value));
}

int CDevicelore::listValueStrings(CDeviceGuid const & guid, int textOffset, QList<QPair<int, QString>> & list)
{
    return textOffset > 0 ? cache->textList(guid, static_cast<unsigned int>(textOffset), list) : -1;
}

TharnError CDevicelore::speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                                   QFlags<SpeakerDefMask> mask) const
{
    return cache->speakerDef(speakerId, definitions, mask);
}

} // namespace kestrova::Morvel::Devicelore
