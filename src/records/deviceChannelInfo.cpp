#include "records/deviceChannelInfo.h"

#include "records/channelIdText.h"

namespace kestrova::Morvel::Devicelore {

CDeviceChannelInfo::CDeviceChannelInfo() = default;

CDeviceChannelInfo::CDeviceChannelInfo(DeviceChannelType channelType_)
    : channelType(channelType_)
{}

CDeviceChannelInfo::CDeviceChannelInfo(CDeviceChannelInfo const & other)
    : QObject()
    , channelType(other.channelType)
    , speakerId(other.speakerId)
{}

CDeviceChannelInfo::~CDeviceChannelInfo() = default;

CDeviceChannelInfo & CDeviceChannelInfo::operator=(CDeviceChannelInfo const & other)
{
    channelType = other.channelType;
    speakerId = other.speakerId;
    return *this;
}

bool CDeviceChannelInfo::operator==(CDeviceChannelInfo const & other) const
{
    return channelType == other.channelType && speakerId == other.speakerId;
}

void CDeviceChannelInfo::Clear()
{
    channelType = ChannelTypeNone;
    speakerId = 0;
}

bool CDeviceChannelInfo::IsValid() const
{
    switch (channelType) {
    case ChannelTypeSpeaker:
        return speakerId > 0;
    case ChannelTypeInput:
    case ChannelTypeOutput:
        return true;
    default:
        return false;
    }
}

DeviceChannelType CDeviceChannelInfo::GetChannelType() const
{
    return channelType;
}

void CDeviceChannelInfo::SetDeviceChannelType(DeviceChannelType newType)
{
    channelType = newType;
}

unsigned short CDeviceChannelInfo::GetSpeakerId() const
{
    return channelType == ChannelTypeSpeaker ? static_cast<unsigned short>(speakerId) : 0;
}

void CDeviceChannelInfo::SetSpeakerId(unsigned short newId)
{
    channelType = ChannelTypeSpeaker;
    speakerId = newId;
}

QString CDeviceChannelInfo::GetIdString() const
{
    ChannelIdText const text = channelIdText(*this);
    return text.size == 0 ? QString() : QString::fromLatin1(text.characters.data(), text.size);
}

} // namespace kestrova::Morvel::Devicelore
