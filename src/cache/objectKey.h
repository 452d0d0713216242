#pragma once

#include "cache/driverCacheChannelKeyName.h"
#include "cache/driverCacheChannelKeyObject.h"

namespace kestrova::Morvel::Devicelore {

/// Makes the key of an object by its name, with the qualifier or, without one, for the device as a whole,
/// hands its address to \a use and gives the answer of that. The key lives for the call only.
template <typename Guid, typename Use>
auto withObjectKey(Guid const & guid, QString const & name, CDeviceChannelInfo const * channel, Use use)
{
    if (channel != nullptr) {
        CDriverCacheChannelKeyName key(guid, channel, name);
        return use(&key);
    }
    CDriverCacheKeyName key(guid, name);
    return use(&key);
}

/// The same by the object's number.
template <typename Guid, typename Use>
auto withObjectKey(Guid const & guid, unsigned short number, CDeviceChannelInfo const * channel, Use use)
{
    if (channel != nullptr) {
        CDriverCacheChannelKeyObject key(guid, channel, number);
        return use(&key);
    }
    CDriverCacheKeyObject key(guid, number);
    return use(&key);
}

} // namespace kestrova::Morvel::Devicelore
