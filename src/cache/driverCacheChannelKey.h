#pragma once

#include "cache/keyTextPart.h"
#include "records/deviceChannelInfo.h"
#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// The channel part of a key: a copy of the caller's qualifier, and its text.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheChannelKey {
public:
    /// Without a qualifier, the channel info is a cleared one and its text stays empty.
    CDriverCacheChannelKey(CDeviceChannelInfo const * channelInfo = nullptr);
    CDriverCacheChannelKey(CDriverCacheChannelKey const & other);
    ~CDriverCacheChannelKey();

    CDriverCacheChannelKey & operator=(CDriverCacheChannelKey const & other);

    /// Never null, also when the key was made without a qualifier. It lives as long as the key.
    CDeviceChannelInfo * channelInfo() const { return &channelInfo_; }

    /// The channel type in three hexadecimal digits, "_", and the qualifier's own text: "001_0012",
    /// "003_OUT".
    QString channelInfoString() const { return channelInfoText.toString(); }

protected:
    void initChannelInfoString();

    CKeyTextPart channelInfoText;

    mutable CDeviceChannelInfo channelInfo_; ///< changing it needs initChannelInfoString() for its text
};

} // namespace kestrova::Morvel::Devicelore
