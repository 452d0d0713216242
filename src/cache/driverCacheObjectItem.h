#pragma once

#include "records/deviceloreExport.h"
#include "records/objectDef.h"

namespace kestrova::Morvel::Devicelore {

/// An object definition that the cache owns. A pointer to one is borrowed until the catalogues are next
/// cleared.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheObjectItem : public CObjectDef {
public:
    CDriverCacheObjectItem();
    CDriverCacheObjectItem(CObjectDef const & objectDef);
    CDriverCacheObjectItem(CDriverCacheObjectItem const & other);
    CDriverCacheObjectItem(CDriverCacheObjectItem && other);
    ~CDriverCacheObjectItem();

    CDriverCacheObjectItem & operator=(CDriverCacheObjectItem const & other);
    CDriverCacheObjectItem & operator=(CDriverCacheObjectItem && other);

    /// Compares what the database says. Mask, object type, ONO type and the size of the OCA class id take no
    /// part: they follow from the question and from the rest.
    bool operator==(CDriverCacheObjectItem const & other) const;

    bool operator!=(CDriverCacheObjectItem const & other) const { return !(*this == other); }
};

} // namespace kestrova::Morvel::Devicelore
