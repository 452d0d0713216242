#pragma once

/// Everything that the library offers. Enough for any application.

#include "cache/driverCache.h"
#include "cache/driverCacheGuidItem.h"
#include "cache/driverCacheGuidItemList.h"
#include "cache/driverDatabaseInfo.h"
#include "facade/devicelore.h"
#include "records/coreNames.h"
