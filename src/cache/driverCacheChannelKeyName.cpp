#include "cache/driverCacheChannelKeyName.h"

#include <algorithm>
#include <utility>

namespace kestrova::Morvel::Devicelore {

CDriverCacheChannelKeyName::CDriverCacheChannelKeyName() = default;

CDriverCacheChannelKeyName::CDriverCacheChannelKeyName(CDeviceGuid const & guid,
                                                       CDeviceChannelInfo const * channelInfo,
                                                       QString const & name)
    : CDriverCacheKeyName(WithoutText(), guid, name)
    , CDriverCacheChannelKey(channelInfo)
{
    CDriverCacheChannelKeyName::initKeyString();
}

CDriverCacheChannelKeyName::CDriverCacheChannelKeyName(QString const & guid,
                                                       CDeviceChannelInfo const * channelInfo,
                                                       QString const & name)
    : CDriverCacheKeyName(WithoutText(), guid, name)
    , CDriverCacheChannelKey(channelInfo)
{
    CDriverCacheChannelKeyName::initKeyString();
}

CDriverCacheChannelKeyName::CDriverCacheChannelKeyName(CDriverCacheChannelKeyName const & other) = default;

CDriverCacheChannelKeyName::CDriverCacheChannelKeyName(CDriverCacheChannelKeyName && other)
    : CDriverCacheKeyName(static_cast<CDriverCacheKeyName &&>(other))
    , CDriverCacheChannelKey(other)
{}

CDriverCacheChannelKeyName::~CDriverCacheChannelKeyName() = default;

CDriverCacheChannelKeyName &
CDriverCacheChannelKeyName::operator=(CDriverCacheChannelKeyName const & other) = default;

CDriverCacheChannelKeyName & CDriverCacheChannelKeyName::operator=(CDriverCacheChannelKeyName && other)
{
    CDriverCacheChannelKey::operator=(other);
    CDriverCacheKeyName::operator=(static_cast<CDriverCacheKeyName &&>(other));
    return *this;
}

CDeviceChannelInfo * CDriverCacheChannelKeyName::channelInfo() const
{
    return CDriverCacheChannelKey::channelInfo();
}

void CDriverCacheChannelKeyName::initKeyString()
{
    QString const & name = objectName();
    QChar * place = beginKeyText(channelInfoText.size() + 1 + static_cast<int>(name.size()));
    place = channelInfoText.copyTo(place);
    *place++ = QLatin1Char('_');
    std::copy(name.cbegin(), name.cend(), place);
}

} // namespace kestrova::Morvel::Devicelore
