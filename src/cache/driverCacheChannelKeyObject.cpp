#include "cache/driverCacheChannelKeyObject.h"

#include <utility>

namespace kestrova::Morvel::Devicelore {

CDriverCacheChannelKeyObject::CDriverCacheChannelKeyObject() = default;

CDriverCacheChannelKeyObject::CDriverCacheChannelKeyObject(CDeviceGuid const & guid,
                                                           CDeviceChannelInfo const * channelInfo,
                                                           unsigned short number)
    : CDriverCacheKeyObject(WithoutText(), guid, number)
    , CDriverCacheChannelKey(channelInfo)
{
    CDriverCacheChannelKeyObject::initKeyString();
}

CDriverCacheChannelKeyObject::CDriverCacheChannelKeyObject(QString const & guid,
                                                           CDeviceChannelInfo const * channelInfo,
                                                           unsigned short number)
    : CDriverCacheKeyObject(WithoutText(), guid, number)
    , CDriverCacheChannelKey(channelInfo)
{
    CDriverCacheChannelKeyObject::initKeyString();
}

CDriverCacheChannelKeyObject::CDriverCacheChannelKeyObject(CDriverCacheChannelKeyObject const & other) =
    default;

CDriverCacheChannelKeyObject::CDriverCacheChannelKeyObject(CDriverCacheChannelKeyObject && other)
    : CDriverCacheKeyObject(static_cast<CDriverCacheKeyObject &&>(other))
    , CDriverCacheChannelKey(other)
{}

CDriverCacheChannelKeyObject::~CDriverCacheChannelKeyObject() = default;

CDriverCacheChannelKeyObject &
CDriverCacheChannelKeyObject::operator=(CDriverCacheChannelKeyObject const & other) = default;

CDriverCacheChannelKeyObject & CDriverCacheChannelKeyObject::operator=(CDriverCacheChannelKeyObject && other)
{
    CDriverCacheChannelKey::operator=(other);
    CDriverCacheKeyObject::operator=(static_cast<CDriverCacheKeyObject &&>(other));
    return *this;
}

CDeviceChannelInfo * CDriverCacheChannelKeyObject::channelInfo() const
{
    return CDriverCacheChannelKey::channelInfo();
}

void CDriverCacheChannelKeyObject::initKeyString()
{
    initObjectnumberString();
    QChar * place = beginKeyText(channelInfoText.size() + 1 + 2 * numberBytes);
    place = channelInfoText.copyTo(place);
    *place++ = QLatin1Char('_');
    placeHex<numberBytes>(place, objectNumber(), lowerHex);
}

} // namespace kestrova::Morvel::Devicelore
