#pragma once

#include "cache/driverCacheObjectClassItem.h"
#include "records/deviceloreExport.h"

#include <QHash>

namespace kestrova::Morvel::Devicelore {

/// The classes of objects by their ids. It owns the items.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheObjectClassItemList {
public:
    CDriverCacheObjectClassItemList();

    /// A copy shares the items with its source and both would delete them. Copying exists because an exported
    /// class has it; nothing in the library uses it.
    CDriverCacheObjectClassItemList(CDriverCacheObjectClassItemList const & other);
    CDriverCacheObjectClassItemList & operator=(CDriverCacheObjectClassItemList const & other);

    ~CDriverCacheObjectClassItemList();

    /// Takes the item over. It replaces an item of its id, which is not deleted: whoever adds looks first.
    void append(CDriverCacheObjectClassItem * item);

    /// The item of an id; null for an unknown id and for 0, which stands for "no class". The list keeps
    /// owning it.
    CDriverCacheObjectClassItem * itemByClassId(unsigned short classId) const;

    /// Deletes all items.
    void clear();

protected:
    QHash<unsigned short, CDriverCacheObjectClassItem *> itemsByClassId;
};

} // namespace kestrova::Morvel::Devicelore
