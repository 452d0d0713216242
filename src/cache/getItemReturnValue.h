#pragma once

#include <QtGlobal>

namespace kestrova::Morvel::Devicelore {

/// Result of every lookup by key.
enum GetItemReturnValue : qint32 {
    GetItemNotCached = 0,    ///< the cache knows nothing of the key yet
    GetItemFound = 1,        ///< there is an item, and the out-parameter points at it
    GetItemNotAvailable = 2, ///< asked before, or just now, and there is no item to give
};

} // namespace kestrova::Morvel::Devicelore
