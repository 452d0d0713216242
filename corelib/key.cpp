#include "core/key.h"

namespace kestrova::Solvane::DataTypes {

CKey & CKey::operator=(CKey const & other) = default;

bool CKey::operator==(CKey const & other) const
{
    return deviceId_ == other.deviceId_ && channelNumber_ == other.channelNumber_ &&
           recordNumber_ == other.recordNumber_ && propertyName_ == other.propertyName_;
}

unsigned short CKey::deviceId() const
{
    return deviceId_;
}

void CKey::setDeviceId(unsigned short deviceId)
{
    deviceId_ = deviceId;
}

int CKey::channelNumber() const
{
    return channelNumber_;
}

void CKey::setChannelNumber(int channelNumber)
{
    channelNumber_ = channelNumber;
}

unsigned short CKey::recordNumber() const
{
    return recordNumber_;
}

void CKey::setRecordNumber(unsigned short recordNumber)
{
    recordNumber_ = recordNumber;
}

QString CKey::propertyName() const
{
    return propertyName_;
}

void CKey::setPropertyName(QString const & propertyName)
{
    propertyName_ = propertyName;
}

QString CKey::toString(KeyType type) const
{
    return type == KeyTypeProperty ? QLatin1String("$P/") + propertyName_ : QString();
}

} // namespace kestrova::Solvane::DataTypes
