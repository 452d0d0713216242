#include "cache/driverCacheKeyObject.h"

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

// A moved-from key keeps its text and loses its digits only.
CDriverCacheKeyObject::CDriverCacheKeyObject(CDriverCacheKeyObject && other)
    : CDriverCacheKeyObject(other)
{
    other.objectNumberDigits.clear();
}

CDriverCacheKeyObject::~CDriverCacheKeyObject() = default;

CDriverCacheKeyObject & CDriverCacheKeyObject::operator=(CDriverCacheKeyObject const & other) = default;

CDriverCacheKeyObject & CDriverCacheKeyObject::operator=(CDriverCacheKeyObject && other)
{
    if (this != &other) {
        *this = other;
        other.objectNumberDigits.clear();
    }
    return *this;
}

CDeviceChannelInfo * CDriverCacheKeyObject::channelInfo() const
{
    return nullptr;
}

void CDriverCacheKeyObject::initObjectnumberString()
{
    objectNumberDigits.clear();
    objectNumberDigits.appendHex(objectNumber_, 4, lowerHexDigits);
}

void CDriverCacheKeyObject::initKeyString()
{
    if (objectNumberDigits.isEmpty())
        initObjectnumberString();
    objectNumberDigits.copyTo(beginKeyText(objectNumberDigits.size()));
}

} // namespace kestrova::Morvel::Devicelore
