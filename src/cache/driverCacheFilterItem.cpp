#include "cache/driverCacheFilterItem.h"

namespace kestrova::Morvel::Devicelore {

CDriverCacheFilterItem::CDriverCacheFilterItem() = default;

CDriverCacheFilterItem::CDriverCacheFilterItem(unsigned char filterId, unsigned char filterNumber,
                                               unsigned char filterType, QString const & filterName,
                                               QString const & stateText, double minValue, double maxValue)
    : filterId_(filterId)
    , filterNumber_(filterNumber)
    , filterType_(filterType)
    , filterName_(filterName)
    , stateText_(stateText)
    , minValue_(minValue)
    , maxValue_(maxValue)
{}

CDriverCacheFilterItem::CDriverCacheFilterItem(CDriverCacheFilterItem const & other) = default;

CDriverCacheFilterItem::CDriverCacheFilterItem(CDriverCacheFilterItem && other) noexcept = default;

CDriverCacheFilterItem::~CDriverCacheFilterItem() = default;

CDriverCacheFilterItem & CDriverCacheFilterItem::operator=(CDriverCacheFilterItem const & other) = default;

CDriverCacheFilterItem &
CDriverCacheFilterItem::operator=(CDriverCacheFilterItem && other) noexcept = default;

} // namespace kestrova::Morvel::Devicelore
