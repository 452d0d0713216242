#include "records/driverPropertyTarget.h"

namespace kestrova::Morvel::Devicelore {

CDriverPropertyTarget::CDriverPropertyTarget(CDeviceGuid const & guid, QString const & propertyName)
    : guid_(guid)
    , propertyName_(propertyName)
{}

CDriverPropertyTarget::CDriverPropertyTarget(CDeviceGuid const & guid, QString const & propertyName,
                                             DeviceChannel deviceChannel, unsigned short recordNumber,
                                             unsigned short speakerId)
    : deviceChannel_(deviceChannel)
    , guid_(guid)
    , propertyName_(propertyName)
    , recordNumber_(recordNumber)
{
    if (speakerId != 0)
        channelInfo.SetSpeakerId(speakerId);
}

CDriverPropertyTarget::CDriverPropertyTarget(CDeviceGuid const & guid, QString const & propertyName,
                                             DeviceChannel deviceChannel, unsigned short recordNumber,
                                             CDeviceChannelInfo const * initialInfo)
    : deviceChannel_(deviceChannel)
    , guid_(guid)
    , propertyName_(propertyName)
    , recordNumber_(recordNumber)
{
    SetDeviceChannelInfo(initialInfo);
}

void CDriverPropertyTarget::SetDeviceChannelInfo(CDeviceChannelInfo const * newInfo)
{
    if (newInfo != nullptr)
        channelInfo = *newInfo;
}

} // namespace kestrova::Morvel::Devicelore
