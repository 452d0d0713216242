#pragma once

#include "cache/driverCache.h"
#include "cache/driverCacheFilterItemList.h"
#include "cache/driverCacheGuidItemList.h"
#include "cache/driverCacheObjectClassItemList.h"
#include "cache/driverCacheObjectItemList.h"
#include "cache/driverCachePropertyFilter.h"
#include "cache/driverCacheSpeakerItemList.h"
#include "cache/driverCacheTextItemList.h"

namespace kestrova::test {

/// A cache whose protected operations and members a test can use.
class ExposedCache : public Morvel::Devicelore::CDriverCache {
public:
    using CDriverCache::addGuidItem;
    using CDriverCache::addObjectItem;
    using CDriverCache::addSpeakerItem;
    using CDriverCache::connectionHasBoxNumber;
    using CDriverCache::connectionName;
    using CDriverCache::connectionNames;
    using CDriverCache::createDriverCacheObjectItem;
    using CDriverCache::deviceInfos;
    using CDriverCache::fillGuidCache;
    using CDriverCache::fillGuidSpeakerList;
    using CDriverCache::fillHardwaretypeCache;
    using CDriverCache::fillOcaCLassIdList;
    using CDriverCache::filterItems;
    using CDriverCache::filterNameFromDatabase;
    using CDriverCache::guidConnections;
    using CDriverCache::guidItems;
    using CDriverCache::hardwareTypes;
    using CDriverCache::init;
    using CDriverCache::objectClassItems;
    using CDriverCache::objectFromDb;
    using CDriverCache::objectItems;
    using CDriverCache::propertyFilter;
    using CDriverCache::speakerItems;
    using CDriverCache::takeQuery;
    using CDriverCache::textItems;
};

} // namespace kestrova::test
