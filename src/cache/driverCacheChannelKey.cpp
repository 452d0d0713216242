#include "cache/driverCacheChannelKey.h"

#include "records/channelIdText.h"

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
    channelInfoText.appendHex(static_cast<quint64>(channelInfo_.GetChannelType()), 3);
    channelInfoText.append("_", 1);
    ChannelIdText const id = channelIdText(channelInfo_);
    channelInfoText.append(id.characters.data(), id.size);
}

} // namespace kestrova::Morvel::Devicelore
