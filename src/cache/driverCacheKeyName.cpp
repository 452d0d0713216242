#include "cache/driverCacheKeyName.h"

#include <algorithm>
#include <utility>

namespace kestrova::Morvel::Devicelore {

CDriverCacheKeyName::CDriverCacheKeyName()
    : CDriverCacheKey(KeyTypeName)
{}

CDriverCacheKeyName::CDriverCacheKeyName(CDeviceGuid const & guid, QString const & name)
    : CDriverCacheKeyName(WithoutText(), guid, name)
{
    CDriverCacheKeyName::initKeyString();
}

CDriverCacheKeyName::CDriverCacheKeyName(QString const & guid, QString const & name)
    : CDriverCacheKeyName(WithoutText(), guid, name)
{
    CDriverCacheKeyName::initKeyString();
}

CDriverCacheKeyName::CDriverCacheKeyName(WithoutText, CDeviceGuid const & guid, QString const & name)
    : CDriverCacheKey(KeyTypeName, guid)
    , objectName_(name)
{}

CDriverCacheKeyName::CDriverCacheKeyName(WithoutText, QString const & guid, QString const & name)
    : CDriverCacheKey(KeyTypeName, guid)
    , objectName_(name)
{}

CDriverCacheKeyName::CDriverCacheKeyName(CDriverCacheKeyName const & other) = default;

// A moved-from key keeps its text and loses its name only.
CDriverCacheKeyName::CDriverCacheKeyName(CDriverCacheKeyName && other)
    : CDriverCacheKey(other)
    , objectName_(std::move(other.objectName_))
{}

CDriverCacheKeyName::~CDriverCacheKeyName() = default;

CDriverCacheKeyName & CDriverCacheKeyName::operator=(CDriverCacheKeyName const & other) = default;

CDriverCacheKeyName & CDriverCacheKeyName::operator=(CDriverCacheKeyName && other)
{
    CDriverCacheKey::operator=(other);
    objectName_ = std::exchange(other.objectName_, QString());
    return *this;
}

CDeviceChannelInfo * CDriverCacheKeyName::channelInfo() const
{
    return nullptr;
}

void CDriverCacheKeyName::initKeyString()
{
    QChar * const place = beginKeyText(static_cast<int>(objectName_.size()));
    std::copy(objectName_.cbegin(), objectName_.cend(), place);
}

} // namespace kestrova::Morvel::Devicelore
