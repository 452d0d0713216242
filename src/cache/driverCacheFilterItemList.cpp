#include "cache/driverCacheFilterItemList.h"

#include "cache/driverCacheChannelKeyFilter.h"

namespace kestrova::Morvel::Devicelore {

CDriverCacheFilterItemList::CDriverCacheFilterItemList() = default;

CDriverCacheFilterItemList::CDriverCacheFilterItemList(CDriverCacheFilterItemList const & other) = default;

CDriverCacheFilterItemList &
CDriverCacheFilterItemList::operator=(CDriverCacheFilterItemList const & other) = default;

CDriverCacheFilterItemList::~CDriverCacheFilterItemList()
{
    clear();
}

void CDriverCacheFilterItemList::addFilterItem(CDriverCacheKey const * key, CDriverCacheFilterItem * item)
{
    if (key == nullptr || key->type() != CDriverCacheKey::KeyTypeFilter)
        return;
    if (items.contains(key->key()) || notFoundKeys.contains(key->key()))
        return;
    if (item == nullptr)
        notFoundKeys.insert(key->key(), nullptr);
    items.insert(key->key(), item);
}

GetItemReturnValue CDriverCacheFilterItemList::filterName(CDriverCacheChannelKeyFilter const & key,
                                                          QString & name) const
{
    if (CDriverCacheFilterItem const * const found = item(key)) {
        name = found->filterName();
        return GetItemFound;
    }
    return notFoundKeys.contains(key.key()) ? GetItemNotAvailable : GetItemNotCached;
}

GetItemReturnValue CDriverCacheFilterItemList::filterName(CDeviceGuid const & guid,
                                                          CDeviceChannelInfo const * channelInfo,
                                                          unsigned char filterNumber, QString & name) const
{
    return filterName(CDriverCacheChannelKeyFilter(guid, channelInfo, filterNumber), name);
}

GetItemReturnValue CDriverCacheFilterItemList::filterName(QString const & guid,
                                                          CDeviceChannelInfo const * channelInfo,
                                                          unsigned char filterNumber, QString & name) const
{
    return filterName(CDriverCacheChannelKeyFilter(guid, channelInfo, filterNumber), name);
}

CDriverCacheFilterItem * CDriverCacheFilterItemList::item(CDriverCacheChannelKeyFilter const & key) const
{
    return items.value(key.key());
}

void CDriverCacheFilterItemList::clear()
{
    qDeleteAll(items);
    items.clear();
    notFoundKeys.clear();
}

} // namespace kestrova::Morvel::Devicelore
