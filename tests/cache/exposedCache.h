#pragma once

#include "cache/driverCache.h"
#include "cache/driverCacheGuidItemList.h"

namespace kestrova::test {

/// A cache whose protected operations and members a test can use.
class ExposedCache : public Morvel::Devicelore::CDriverCache {
public:
    using CDriverCache::addGuidItem;
    using CDriverCache::connectionHasBoxNumber;
    using CDriverCache::connectionName;
    using CDriverCache::connectionNames;
    using CDriverCache::fillGuidCache;
    using CDriverCache::fillHardwaretypeCache;
    using CDriverCache::guidConnections;
    using CDriverCache::guidItems;
    using CDriverCache::hardwareTypes;
    using CDriverCache::init;
};

} // namespace kestrova::test
