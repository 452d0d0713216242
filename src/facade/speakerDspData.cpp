#include "facade/speakerDspData.h"

namespace kestrova::Morvel::Devicelore {

SpeakerDspData::SpeakerDspData() = default;

SpeakerDspData::SpeakerDspData(SpeakerDspData const & other) = default;

SpeakerDspData::SpeakerDspData(SpeakerDspData && other) noexcept = default;

SpeakerDspData::~SpeakerDspData() = default;

SpeakerDspData & SpeakerDspData::operator=(SpeakerDspData const & other) = default;

SpeakerDspData & SpeakerDspData::operator=(SpeakerDspData && other) noexcept = default;

void SpeakerDspData::Clear()
{
    *this = SpeakerDspData();
}

bool SpeakerDspData::IsValid() const
{
    return !deviceGuid.isNull() && !deviceType.isEmpty() && speakerId != 0 && !speakerName.isEmpty() &&
           !speakerSetupVersion.isEmpty() && !speakerDspData.isEmpty() && !md5.isEmpty();
}

QString SpeakerDspData::GetDeviceType() const
{
    return deviceType;
}

void SpeakerDspData::SetDeviceType(QString const & newDeviceType)
{
    deviceType = newDeviceType;
}

CDeviceGuid SpeakerDspData::GetDeviceGuid() const
{
    return deviceGuid;
}

void SpeakerDspData::SetDeviceGuid(CDeviceGuid const & newDeviceGuid)
{
    deviceGuid = newDeviceGuid;
}

unsigned short SpeakerDspData::GetSpeakerId() const
{
    return speakerId;
}

void SpeakerDspData::SetSpeakerId(unsigned short newSpeakerId)
{
    speakerId = newSpeakerId;
}

QString SpeakerDspData::GetSpeakerName() const
{
    return speakerName;
}

void SpeakerDspData::SetSpeakerName(QString const & newSpeakerName)
{
    speakerName = newSpeakerName;
}

QString SpeakerDspData::GetSpeakerSetupVersion() const
{
    return speakerSetupVersion;
}

void SpeakerDspData::SetSpeakerSetupVersion(QString const & newSpeakerSetupVersion)
{
    speakerSetupVersion = newSpeakerSetupVersion;
}

QByteArray SpeakerDspData::GetSpeakerDspData() const
{
    return speakerDspData;
}

void SpeakerDspData::SetSpeakerDspData(QByteArray const & newSpeakerDspData)
{
    speakerDspData = newSpeakerDspData;
}

QString SpeakerDspData::GetMd5() const
{
    return md5;
}

void SpeakerDspData::SetMd5(QString const & newMd5)
{
    md5 = newMd5;
}

} // namespace kestrova::Morvel::Devicelore
