#pragma once

#include "cache/driverCacheChannelKey.h"
#include "cache/driverCacheKeyName.h"

namespace kestrova::Morvel::Devicelore {

/// Key of an object by its name on a channel: "C7010205_003_OUT_Config_Filter1".
///
/// Made with a null qualifier, its text has an empty place for it ("C7010205__Config_Filter1"), unlike a
/// filter key's.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheChannelKeyName : public CDriverCacheKeyName,
                                                              public CDriverCacheChannelKey {
public:
    CDriverCacheChannelKeyName();
    CDriverCacheChannelKeyName(CDeviceGuid const & guid, CDeviceChannelInfo const * channelInfo,
                               QString const & name);
    CDriverCacheChannelKeyName(QString const & guid, CDeviceChannelInfo const * channelInfo,
                               QString const & name);
    CDriverCacheChannelKeyName(CDriverCacheChannelKeyName const & other);
    CDriverCacheChannelKeyName(CDriverCacheChannelKeyName && other);
    ~CDriverCacheChannelKeyName() override;

    CDriverCacheChannelKeyName & operator=(CDriverCacheChannelKeyName const & other);
    CDriverCacheChannelKeyName & operator=(CDriverCacheChannelKeyName && other);

    CDeviceChannelInfo * channelInfo() const override;

protected:
    void initKeyString() override;
};

} // namespace kestrova::Morvel::Devicelore
