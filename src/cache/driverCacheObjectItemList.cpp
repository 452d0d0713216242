#include "cache/driverCacheObjectItemList.h"

#include "cache/objectKey.h"

namespace kestrova::Morvel::Devicelore {

namespace {

/// The text of the key of the other kind, with the same qualifier.
template <typename NameOrNumber>
QString twinKeyText(CDriverCacheKey const & key, NameOrNumber const & nameOrNumber)
{
    return withObjectKey(key.guidString(), nameOrNumber, key.channelInfo(),
                         [](CDriverCacheKey const * twin) { return twin->key(); });
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
    itemsByNumber.insert(twinKeyText(key, item->FullObjectNumber()), item);
}

// A number with channel bits stands under its own text only. When the same object is then asked for without
// them, the entry by name moves on to the new item, and the first one stays reachable by its number alone:
// clear() leaves it.
void CDriverCacheObjectItemList::addByNumber(CDriverCacheKey const & key, CDriverCacheObjectItem * item)
{
    itemsByNumber.insert(key.key(), item);
    itemsByName.insert(twinKeyText(key, item->name()), item);
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
