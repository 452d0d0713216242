#include "cache/driverCacheChannelKeyFilter.h"

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr int numberBytes = 1;

} // namespace

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

// A moved-from key keeps its text and loses the spelling of its number only.
CDriverCacheChannelKeyFilter::CDriverCacheChannelKeyFilter(CDriverCacheChannelKeyFilter && other)
    : CDriverCacheChannelKeyFilter(other)
{
    other.hasNumberString = false;
}

CDriverCacheChannelKeyFilter::~CDriverCacheChannelKeyFilter() = default;

CDriverCacheChannelKeyFilter &
CDriverCacheChannelKeyFilter::operator=(CDriverCacheChannelKeyFilter const & other) = default;

CDriverCacheChannelKeyFilter & CDriverCacheChannelKeyFilter::operator=(CDriverCacheChannelKeyFilter && other)
{
    if (this != &other) {
        *this = other;
        other.hasNumberString = false;
    }
    return *this;
}

QString CDriverCacheChannelKeyFilter::filterNumberString() const
{
    return hasNumberString ? hexText<numberBytes>(filterNumber_, lowerHex) : QString();
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
    hasNumberString = true;
}

void CDriverCacheChannelKeyFilter::initKeyString()
{
    if (channelInfoText.isEmpty())
        initChannelInfoString();
    initFilternumberString();
    QChar * place = beginKeyText(channelInfoText.size() + 1 + 2 * numberBytes);
    place = channelInfoText.copyTo(place);
    *place++ = QLatin1Char('_');
    placeHex<numberBytes>(place, filterNumber_, lowerHex);
}

} // namespace kestrova::Morvel::Devicelore
