#pragma once

#include "cache/driverCacheChannelKey.h"
#include "cache/driverCacheKey.h"

namespace kestrova::Morvel::Devicelore {

/// Key of a numbered filter on a channel: "C7010205_001_0012_03".
///
/// Made with a null qualifier, its text spells the cleared one ("C7010205_000__03"). Keys of objects leave an
/// empty place there instead; both forms stand.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheChannelKeyFilter : public CDriverCacheKey,
                                                                public CDriverCacheChannelKey {
public:
    CDriverCacheChannelKeyFilter();
    CDriverCacheChannelKeyFilter(CDeviceGuid const & guid, CDeviceChannelInfo const * channelInfo,
                                 unsigned char filterNumber);
    CDriverCacheChannelKeyFilter(QString const & guid, CDeviceChannelInfo const * channelInfo,
                                 unsigned char filterNumber);
    CDriverCacheChannelKeyFilter(CDriverCacheChannelKeyFilter const & other);
    CDriverCacheChannelKeyFilter(CDriverCacheChannelKeyFilter && other);
    ~CDriverCacheChannelKeyFilter() override;

    CDriverCacheChannelKeyFilter & operator=(CDriverCacheChannelKeyFilter const & other);
    CDriverCacheChannelKeyFilter & operator=(CDriverCacheChannelKeyFilter && other);

    unsigned char filterNumber() const { return filterNumber_; }

    /// Two hexadecimal digits in lower case: "0a".
    QString filterNumberString() const;

    /// Makes the text anew for another number; does nothing for the present one. The only change that a key
    /// allows.
    void SetFilterNumber(unsigned char filterNumber);

    CDeviceChannelInfo * channelInfo() const override;

protected:
    void initFilternumberString();
    void initKeyString() override;

    unsigned char filterNumber_ = 0;
    bool hasNumberString = false; ///< filterNumberString() spells the number, and is not empty
};

} // namespace kestrova::Morvel::Devicelore
