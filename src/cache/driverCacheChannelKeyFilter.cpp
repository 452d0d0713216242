#include "cache/driverCacheChannelKeyFilter.h"

#include <utility>

namespace kestrova::Morvel::Devicelore {

CDriverCacheChannelKeyFilter::CDriverCacheChannelKeyFilter()
    : CDriverCacheKey(KeyTypeFilter)
{}

CDriverCacheChannelKeyFilter::CDriverCacheChannelKeyFilter(CDeviceGuid const & guid,
                                                           CDeviceChannelInfo const * channelInfo,
                                                           unsigned char filterNumber)
    : CDriverCacheKey(KeyTypeFilter, guid)
    , CDriverCacheChannelKey(channelInfo)
    , filterNumber_(filterNumber)
{
    CDriverCacheChannelKeyFilter::initKeyString();
}

CDriverCacheChannelKeyFilter::CDriverCacheChannelKeyFilter(QString const & guid,
                                                           CDeviceChannelInfo const * channelInfo,
                                                           unsigned char filterNumber)
    : CDriverCacheKey(KeyTypeFilter, guid)
    , CDriverCacheChannelKey(channelInfo)
    , filterNumber_(filterNumber)
{
    CDriverCacheChannelKeyFilter::initKeyString();
}

CDriverCacheChannelKeyFilter::CDriverCacheChannelKeyFilter(CDriverCacheChannelKeyFilter const & other) =
    default;

// A moved-from key keeps its text and loses its digits only.
CDriverCacheChannelKeyFilter::CDriverCacheChannelKeyFilter(CDriverCacheChannelKeyFilter && other)
    : CDriverCacheChannelKeyFilter(other)
{
    other.filterNumberDigits.clear();
}

CDriverCacheChannelKeyFilter::~CDriverCacheChannelKeyFilter() = default;

CDriverCacheChannelKeyFilter &
CDriverCacheChannelKeyFilter::operator=(CDriverCacheChannelKeyFilter const & other) = default;

CDriverCacheChannelKeyFilter & CDriverCacheChannelKeyFilter::operator=(CDriverCacheChannelKeyFilter && other)
{
    if (this != &other) {
        *this = other;
        other.filterNumberDigits.clear();
    }
    return *this;
}

void CDriverCacheChannelKeyFilter::SetFilterNumber(unsigned char filterNumber)
{
    if (filterNumber == filterNumber_)
        return;
    filterNumber_ = filterNumber;
    initFilternumberString();
    initKeyString();
}

CDeviceChannelInfo * CDriverCacheChannelKeyFilter::channelInfo() const
{
    return CDriverCacheChannelKey::channelInfo();
}

void CDriverCacheChannelKeyFilter::initFilternumberString()
{
    filterNumberDigits.clear();
    filterNumberDigits.appendHex(filterNumber_, 2, lowerHexDigits);
}

void CDriverCacheChannelKeyFilter::initKeyString()
{
    if (channelInfoText.isEmpty())
        initChannelInfoString();
    if (filterNumberDigits.isEmpty())
        initFilternumberString();
    QChar * place = beginKeyText(channelInfoText.size() + 1 + filterNumberDigits.size());
    place = channelInfoText.copyTo(place);
    *place++ = QLatin1Char('_');
    filterNumberDigits.copyTo(place);
}

} // namespace kestrova::Morvel::Devicelore
