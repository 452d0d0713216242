#include "cache/driverCacheKeyObject.h"

#include "cache/keyTextPart.h"

namespace kestrova::Morvel::Devicelore {

CDriverCacheKeyObject::CDriverCacheKeyObject()
    : CDriverCacheKey(KeyTypeObject)
{}

CDriverCacheKeyObject::CDriverCacheKeyObject(CDeviceGuid const & guid, unsigned short number)
    : CDriverCacheKeyObject(WithoutText(), guid, number)
{
    CDriverCacheKeyObject::initKeyString();
}

CDriverCacheKeyObject::CDriverCacheKeyObject(QString const & guid, unsigned short number)
    : CDriverCacheKeyObject(WithoutText(), guid, number)
{
    CDriverCacheKeyObject::initKeyString();
}

CDriverCacheKeyObject::CDriverCacheKeyObject(WithoutText, CDeviceGuid const & guid, unsigned short number)
    : CDriverCacheKey(KeyTypeObject, guid)
    , objectNumber_(number)
{
    initObjectnumberString();
}

CDriverCacheKeyObject::CDriverCacheKeyObject(WithoutText, QString const & guid, unsigned short number)
    : CDriverCacheKey(KeyTypeObject, guid)
    , objectNumber_(number)
{
    initObjectnumberString();
}

CDriverCacheKeyObject::CDriverCacheKeyObject(CDriverCacheKeyObject const & other) = default;

// A moved-from key keeps its text and loses the spelling of its number only.
CDriverCacheKeyObject::CDriverCacheKeyObject(CDriverCacheKeyObject && other)
    : CDriverCacheKeyObject(other)
{
    other.hasNumberString = false;
}

CDriverCacheKeyObject::~CDriverCacheKeyObject() = default;

CDriverCacheKeyObject & CDriverCacheKeyObject::operator=(CDriverCacheKeyObject const & other) = default;

CDriverCacheKeyObject & CDriverCacheKeyObject::operator=(CDriverCacheKeyObject && other)
{
    if (this != &other) {
        *this = other;
        other.hasNumberString = false;
    }
    return *this;
}

QString CDriverCacheKeyObject::objectNumberString() const
{
    return hasNumberString ? hexText<numberBytes>(objectNumber_, lowerHex) : QString();
}

CDeviceChannelInfo * CDriverCacheKeyObject::channelInfo() const
{
    return nullptr;
}

void CDriverCacheKeyObject::initObjectnumberString()
{
    hasNumberString = true;
}

void CDriverCacheKeyObject::initKeyString()
{
    initObjectnumberString();
    placeHex<numberBytes>(beginKeyText(2 * numberBytes), objectNumber_, lowerHex);
}

} // namespace kestrova::Morvel::Devicelore
