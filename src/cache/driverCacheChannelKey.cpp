#include "cache/driverCacheChannelKey.h"

namespace kestrova::Morvel::Devicelore {

CDriverCacheChannelKey::CDriverCacheChannelKey(CDeviceChannelInfo const * channelInfo)
{
    if (channelInfo == nullptr)
        return;
    channelInfo_ = *channelInfo;
    initChannelInfoString();
}

CDriverCacheChannelKey::CDriverCacheChannelKey(CDriverCacheChannelKey const & other) = default;

CDriverCacheChannelKey::~CDriverCacheChannelKey() = default;

CDriverCacheChannelKey & CDriverCacheChannelKey::operator=(CDriverCacheChannelKey const & other) = default;

void CDriverCacheChannelKey::initChannelInfoString()
{
    channelInfoText.clear();
    channelInfoText.appendHex(static_cast<quint64>(channelInfo_.GetChannelType()), 3, lowerHexDigits);
    channelInfoText.append(QLatin1Char('_'));
    channelInfoText.append(channelInfo_.GetIdString());
}

} // namespace kestrova::Morvel::Devicelore
