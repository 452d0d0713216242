#pragma once

#include "cache/driverCacheChannelKey.h"
#include "cache/driverCacheKeyObject.h"

namespace kestrova::Morvel::Devicelore {

/// Key of an object by its number on a channel: "C7010205_001_0012_0123".
///
/// Made with a null qualifier, its text has an empty place for it ("C7010205__0123"), unlike a filter key's.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheChannelKeyObject : public CDriverCacheKeyObject,
                                                                public CDriverCacheChannelKey {
public:
    CDriverCacheChannelKeyObject();
    CDriverCacheChannelKeyObject(CDeviceGuid const & guid, CDeviceChannelInfo const * channelInfo,
                                 unsigned short number);
    CDriverCacheChannelKeyObject(QString const & guid, CDeviceChannelInfo const * channelInfo,
                                 unsigned short number);
    CDriverCacheChannelKeyObject(CDriverCacheChannelKeyObject const & other);
    CDriverCacheChannelKeyObject(CDriverCacheChannelKeyObject && other);
    ~CDriverCacheChannelKeyObject() override;

    CDriverCacheChannelKeyObject & operator=(CDriverCacheChannelKeyObject const & other);
    CDriverCacheChannelKeyObject & operator=(CDriverCacheChannelKeyObject && other);

    CDeviceChannelInfo * channelInfo() const override;

protected:
    void initKeyString() override;
};

} // namespace kestrova::Morvel::Devicelore
