#include "records/deviceProperty.h"

#include <QMessageLogger>

namespace kestrova::Morvel::Devicelore {

CDeviceProperty::CDeviceProperty(QObject * parent)
    : QObject(parent)
{}

CDeviceProperty::CDeviceProperty(CDeviceProperty const & other)
    : QObject()
{
    *this = other;
}

CDeviceProperty::~CDeviceProperty() = default;

CDeviceProperty & CDeviceProperty::operator=(CDeviceProperty const & other)
{
    decimals_ = other.decimals_;
    displayName_ = other.displayName_;
    flags_ = other.flags_;
    key_.CKey::operator=(other.key_);
    maxValue_ = other.maxValue_;
    minValue_ = other.minValue_;
    propertyType_ = other.propertyType_;
    simpleControlType_ = other.simpleControlType_;
    step_ = other.step_;
    subName_ = other.subName_;
    unit_ = other.unit_;
    validMembers_ = other.validMembers_;
    value_ = other.value_;
    return *this;
}

bool CDeviceProperty::operator==(CDeviceProperty const & other) const
{
    return decimals_ == other.decimals_ && propertyType_ == other.propertyType_ &&
           simpleControlType_ == other.simpleControlType_ && flags_ == other.flags_ &&
           validMembers_ == other.validMembers_ && key_ == other.key_ && minValue_ == other.minValue_ &&
           maxValue_ == other.maxValue_ && step_ == other.step_ && value_ == other.value_ &&
           unit_ == other.unit_ && displayName_ == other.displayName_ && subName_ == other.subName_;
}

QFlags<CDeviceProperty::ValidMember> CDeviceProperty::validMembers() const
{
    return validMembers_;
}

void CDeviceProperty::setValidMembers(QFlags<ValidMember> members)
{
    validMembers_ = members;
}

bool CDeviceProperty::CheckValidMembers(QFlags<ValidMember> members) const
{
    return (validMembers_ & members) == members;
}

CDevicePropertyKey CDeviceProperty::key() const
{
    return key_;
}

void CDeviceProperty::setKey(CDevicePropertyKey const & key)
{
    key_.CKey::operator=(key);
    validMembers_ |= ValidDevice | ValidPropertyName | ValidDeviceChannel | ValidRecord;
}

CDeviceKey CDeviceProperty::GetDevice() const
{
    return key_.GetDevice();
}

void CDeviceProperty::SetDevice(CDeviceKey const & device)
{
    key_.SetDevice(device);
    validMembers_ |= ValidDevice;
}

unsigned short CDeviceProperty::deviceId() const
{
    return key_.deviceId();
}

void CDeviceProperty::setDeviceId(unsigned short deviceId)
{
    key_.setDeviceId(deviceId);
    validMembers_ |= ValidDevice;
}

int CDeviceProperty::deviceChannel() const
{
    return key_.channelNumber();
}

void CDeviceProperty::setDeviceChannel(int channel)
{
    key_.setChannelNumber(channel);
    validMembers_ |= ValidDeviceChannel;
}

int CDeviceProperty::record() const
{
    return key_.recordNumber();
}

void CDeviceProperty::setRecord(int record)
{
    key_.setRecordNumber(static_cast<unsigned short>(record));
    validMembers_ |= ValidRecord;
}

QString CDeviceProperty::uniquePropertyName() const
{
    return key_.propertyName();
}

QString CDeviceProperty::displayName() const
{
    return displayName_;
}

void CDeviceProperty::setPropertyName(QString const & name, QString const & displayName)
{
    key_.setPropertyName(name);
    displayName_ = displayName;
    validMembers_ |= ValidPropertyName | ValidDisplayName;
}

QString CDeviceProperty::subName() const
{
    return subName_;
}

void CDeviceProperty::setSubName(QString const & subName)
{
    subName_ = subName;
    validMembers_ |= ValidSubName;
}

QVariant CDeviceProperty::value() const
{
    return value_;
}

void CDeviceProperty::setValue(QVariant const & value)
{
    value_ = value;
    validMembers_ |= ValidValue;
}

QVariant CDeviceProperty::minValue() const
{
    return minValue_;
}

void CDeviceProperty::setMinValue(QVariant const & minimum)
{
    minValue_ = minimum;
    validMembers_ |= ValidMinValue;
}

QVariant CDeviceProperty::maxValue() const
{
    return maxValue_;
}

void CDeviceProperty::setMaxValue(QVariant const & maximum)
{
    maxValue_ = maximum;
    validMembers_ |= ValidMaxValue;
}

QVariant CDeviceProperty::step() const
{
    return step_;
}

void CDeviceProperty::setStep(QVariant const & step)
{
    step_ = step;
    validMembers_ |= ValidStep;
}

void CDeviceProperty::setRange(QVariant const & minimum, QVariant const & maximum, QVariant const & step)
{
    setMinValue(minimum);
    setMaxValue(maximum);
    setStep(step);
}

int CDeviceProperty::decimals() const
{
    return decimals_;
}

void CDeviceProperty::setDecimals(int decimals)
{
    decimals_ = decimals;
    validMembers_ |= ValidDecimals;
}

QString CDeviceProperty::unit() const
{
    return unit_;
}

void CDeviceProperty::setUnit(QString const & unit)
{
    unit_ = unit;
    validMembers_ |= ValidUnit;
}

CDeviceProperty::PropertyType CDeviceProperty::propertyType() const
{
    return propertyType_;
}

void CDeviceProperty::setPropertyType(PropertyType type)
{
    propertyType_ = type;
    validMembers_ |= ValidPropertyType;
}

CDeviceProperty::SimpleControlType CDeviceProperty::simpleControlType() const
{
    if (!validMembers_.testFlag(ValidSimpleControlType))
        QMessageLogger(nullptr, 0, nullptr)
            .warning("Accessing non valid member 'simpleControlType' of CDeviceProperty!");
    return simpleControlType_;
}

void CDeviceProperty::setSimpleControlType(SimpleControlType type)
{
    simpleControlType_ = type;
    validMembers_ |= ValidSimpleControlType;
}

QFlags<CDeviceProperty::PropertyFlag> CDeviceProperty::flags() const
{
    return flags_;
}

void CDeviceProperty::setFlags(QFlags<PropertyFlag> flags)
{
    flags_ = flags;
    validMembers_ |= ValidFlags;
}

void CDeviceProperty::modifyFlags(QFlags<PropertyFlag> set, QFlags<PropertyFlag> clear)
{
    flags_ |= set;
    flags_ &= ~clear;
}

} // namespace kestrova::Morvel::Devicelore
