#pragma once

#include "cache/driverCacheFilterItem.h"
#include "cache/getItemReturnValue.h"
#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QHash>
#include <QString>

namespace kestrova::Morvel::Devicelore {

class CDeviceChannelInfo;
class CDriverCacheChannelKeyFilter;
class CDriverCacheKey;

/// The filters that were asked for, and the keys that no filter was found for. It owns the items.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheFilterItemList {
public:
    CDriverCacheFilterItemList();

    /// A copy shares the items with its source and both would delete them.
    CDriverCacheFilterItemList(CDriverCacheFilterItemList const & other);
    CDriverCacheFilterItemList & operator=(CDriverCacheFilterItemList const & other);

    ~CDriverCacheFilterItemList();

    /// Takes \a item over under \a key; a null item remembers that there is no filter. Nothing happens
    /// without a filter key. A key that is stored already stays as it is, and \a item remains the caller's.
    void addFilterItem(CDriverCacheKey const * key, CDriverCacheFilterItem * item);

    /// The name of the key's filter. \a name is set with GetItemFound only.
    GetItemReturnValue filterName(CDriverCacheChannelKeyFilter const & key, QString & name) const;
    GetItemReturnValue filterName(CDeviceGuid const & guid, CDeviceChannelInfo const * channelInfo,
                                  unsigned char filterNumber, QString & name) const;
    GetItemReturnValue filterName(QString const & guid, CDeviceChannelInfo const * channelInfo,
                                  unsigned char filterNumber, QString & name) const;

    /// The filter of the key; null for a remembered miss and for a key that nobody has asked. The list keeps
    /// owning it.
    CDriverCacheFilterItem * item(CDriverCacheChannelKeyFilter const & key) const;

    /// Deletes all items and forgets all keys.
    void clear();

protected:
    QHash<QString, CDriverCacheFilterItem *> items;        ///< null for a key that has no filter
    QHash<QString, CDriverCacheFilterItem *> notFoundKeys; ///< the value is always null
};

} // namespace kestrova::Morvel::Devicelore
