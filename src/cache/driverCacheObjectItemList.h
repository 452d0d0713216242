#pragma once

#include "cache/driverCacheObjectItem.h"
#include "cache/getItemReturnValue.h"
#include "records/deviceloreExport.h"

#include <QHash>
#include <QString>

namespace kestrova::Morvel::Devicelore {

class CDriverCacheKey;

/// The objects that were asked for, each under the text of its name key and of its number key, and the keys
/// that nothing was found for. Only keys of objects come here.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheObjectItemList {
public:
    CDriverCacheObjectItemList();

    /// A copy shares the items with its source and both would delete them. Copying exists because an exported
    /// class has it; nothing in the library uses it.
    CDriverCacheObjectItemList(CDriverCacheObjectItemList const & other);
    CDriverCacheObjectItemList & operator=(CDriverCacheObjectItemList const & other);

    /// Deletes the items.
    virtual ~CDriverCacheObjectItemList();

    /// Stores the item under \a key and under the key of the other kind, with the same qualifier. A null \a
    /// item remembers that nothing was found for \a key; that holds for this one text only. A key that is
    /// stored already stays as it is, and \a item is neither stored nor deleted. Always true.
    bool AddObjectItem(CDriverCacheKey * key, CDriverCacheObjectItem * item);

    /// Points \a item at the item of the key, or makes it null.
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key);

    /// Deletes the items that are reachable by name, and forgets all keys.
    void clear();

protected:
    QHash<QString, CDriverCacheObjectItem *> itemsByName;   ///< owns the items
    QHash<QString, CDriverCacheObjectItem *> itemsByNumber; ///< refers to the same items
    QHash<QString, int> missingKeys;                        ///< the value is always 0

private:
    void addByName(CDriverCacheKey const & key, CDriverCacheObjectItem * item);
    void addByNumber(CDriverCacheKey const & key, CDriverCacheObjectItem * item);
};

} // namespace kestrova::Morvel::Devicelore
