#include "cache/driverCacheObjectClassItemList.h"

namespace kestrova::Morvel::Devicelore {

CDriverCacheObjectClassItemList::CDriverCacheObjectClassItemList() = default;

CDriverCacheObjectClassItemList::CDriverCacheObjectClassItemList(
    CDriverCacheObjectClassItemList const & other) = default;

CDriverCacheObjectClassItemList &
CDriverCacheObjectClassItemList::operator=(CDriverCacheObjectClassItemList const & other) = default;

CDriverCacheObjectClassItemList::~CDriverCacheObjectClassItemList()
{
    clear();
}

void CDriverCacheObjectClassItemList::append(CDriverCacheObjectClassItem * item)
{
    itemsByClassId.insert(item->classId(), item);
}

CDriverCacheObjectClassItem * CDriverCacheObjectClassItemList::itemByClassId(unsigned short classId) const
{
    return classId == 0 ? nullptr : itemsByClassId.value(classId);
}

void CDriverCacheObjectClassItemList::clear()
{
    qDeleteAll(itemsByClassId);
    itemsByClassId.clear();
}

} // namespace kestrova::Morvel::Devicelore
