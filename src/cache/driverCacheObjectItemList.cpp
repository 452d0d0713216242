#include "cache/driverCacheObjectItemList.h"

#include "cache/driverCacheChannelKeyName.h"
#include "cache/driverCacheChannelKeyObject.h"

namespace kestrova::Morvel::Devicelore {

namespace {

QString numberKeyText(CDriverCacheKey const & key, unsigned short number)
{
    if (CDeviceChannelInfo const * const channel = key.channelInfo())
        return CDriverCacheChannelKeyObject(key.guidString(), channel, number).key();
    return CDriverCacheKeyObject(key.guidString(), number).key();
}

QString nameKeyText(CDriverCacheKey const & key, QString const & name)
{
    if (CDeviceChannelInfo const * const channel = key.channelInfo())
        return CDriverCacheChannelKeyName(key.guidString(), channel, name).key();
    return CDriverCacheKeyName(key.guidString(), name).key();
}

} // namespace

CDriverCacheObjectItemList::CDriverCacheObjectItemList() = default;

CDriverCacheObjectItemList::CDriverCacheObjectItemList(CDriverCacheObjectItemList const & other) = default;

CDriverCacheObjectItemList &
CDriverCacheObjectItemList::operator=(CDriverCacheObjectItemList const & other) = default;

CDriverCacheObjectItemList::~CDriverCacheObjectItemList()
{
    clear();
}

bool CDriverCacheObjectItemList::AddObjectItem(CDriverCacheKey * key, CDriverCacheObjectItem * item)
{
    bool const isName = key->type() == CDriverCacheKey::KeyTypeName;
    if ((isName ? itemsByName : itemsByNumber).contains(key->key()))
        return true;
    if (item == nullptr)
        missingKeys.insert(key->key(), 0);
    else if (isName)
        addByName(*key, item);
    else
        addByNumber(*key, item);
    return true;
}

void CDriverCacheObjectItemList::addByName(CDriverCacheKey const & key, CDriverCacheObjectItem * item)
{
    itemsByName.insert(key.key(), item);
    itemsByNumber.insert(numberKeyText(key, item->FullObjectNumber()), item);
}

// A number with channel bits stands under its own text only. When the same object is then asked for without
// them, the entry by name moves on to the new item, and the first one stays reachable by its number alone:
// clear() leaves it.
void CDriverCacheObjectItemList::addByNumber(CDriverCacheKey const & key, CDriverCacheObjectItem * item)
{
    itemsByNumber.insert(key.key(), item);
    itemsByName.insert(nameKeyText(key, item->name()), item);
}

GetItemReturnValue CDriverCacheObjectItemList::GetDriverObject(CDriverCacheObjectItem *& item,
                                                               CDriverCacheKey * key)
{
    auto const & items = key->type() == CDriverCacheKey::KeyTypeName ? itemsByName : itemsByNumber;
    item = items.value(key->key());
    if (item != nullptr)
        return GetItemFound;
    return missingKeys.contains(key->key()) ? GetItemNotAvailable : GetItemNotCached;
}

void CDriverCacheObjectItemList::clear()
{
    missingKeys.clear();
    itemsByNumber.clear();
    qDeleteAll(itemsByName);
    itemsByName.clear();
}

} // namespace kestrova::Morvel::Devicelore
