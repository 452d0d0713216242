#include "records/deviceChannelInfo.h"

namespace kestrova::Morvel::Devicelore {

namespace {

// By hand, since this text is part of every key of a speaker channel: QString::arg takes ten times as long.
QString speakerIdText(unsigned short speakerId)
{
    QString text(speakerId > 9999 ? 5 : 4, Qt::Uninitialized);
    unsigned rest = speakerId;
    for (auto digit = text.end(); digit != text.begin(); rest /= 10)
        *--digit = QLatin1Char(static_cast<char>('0' + rest % 10));
    return text;
}

} // namespace

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
    switch (channelType) {
    case ChannelTypeSpeaker:
        return speakerIdText(GetSpeakerId());
    case ChannelTypeInput:
        return QStringLiteral("IN");
    case ChannelTypeOutput:
        return QStringLiteral("OUT");
    default:
        return QString();
    }
}

} // namespace kestrova::Morvel::Devicelore
