#include "cache/driverCacheGuidItemList.h"

#include <utility>

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr unsigned char prefix = 0xC7;
constexpr unsigned char firstDeviceType = 4; // the numbers below are no device types

unsigned char prefixOf(CDeviceGuid const & guid)
{
    return static_cast<unsigned char>(guid.value() >> 24);
}

unsigned char versionOf(CDeviceGuid const & guid)
{
    return static_cast<unsigned char>(guid.value() >> 8);
}

unsigned char typeOf(CDeviceGuid const & guid)
{
    return static_cast<unsigned char>(guid.value());
}

CDeviceGuid baseGuidOf(CDeviceGuid const & guid)
{
    return guid.value() & 0xFFFF00FFU;
}

} // namespace

CDriverCacheGuidItemList::CDriverCacheGuidItemList()
    : currentAccessLevel_(GuidAccess(1))
{}

CDriverCacheGuidItemList::CDriverCacheGuidItemList(CDriverCacheGuidItemList const & other) = default;

CDriverCacheGuidItemList &
CDriverCacheGuidItemList::operator=(CDriverCacheGuidItemList const & other) = default;

CDriverCacheGuidItemList::~CDriverCacheGuidItemList()
{
    clear();
}

CDriverCacheGuidItemList::AddItemReturnValue CDriverCacheGuidItemList::addItem(CDriverCacheGuidItem * item)
{
    if (item == nullptr)
        return AddItemNoItem;
    CDeviceGuid const & guid = item->guid();
    if (prefixOf(guid) != prefix)
        return AddItemInvalidPrefix;
    if (itemsByGuid.contains(guid))
        return AddItemKnownGuid;
    unsigned char const type = typeOf(guid);
    if (type < firstDeviceType)
        return AddItemInvalidType;

    itemsByGuid.insert(guid, item);
    if (item->access() > currentAccessLevel_)
        return AddItemOk;

    CDriverCacheGuidItem * const latest = latestItem(guid);
    if (latest == nullptr || versionOf(latest->guid()) < versionOf(guid))
        latestItems.insert(type, item);
    baseGuids.insert(type, baseGuidOf(guid));
    if (!typeGuids.contains(item->deviceType()))
        typeGuids.insert(item->deviceType(), baseGuidOf(guid));
    return AddItemOk;
}

CDeviceGuid const & CDriverCacheGuidItemList::determineDriverGuid(CDeviceGuid const & guid) const
{
    static CDeviceGuid const nullGuid;
    if (!baseGuids.contains(typeOf(guid)))
        return nullGuid;
    if (itemsByGuid.contains(guid))
        return guid;
    CDriverCacheGuidItem const * const latest = latestItem(guid);
    return latest != nullptr ? latest->guid() : guid;
}

CDriverCacheGuidItemList::GuidAccess CDriverCacheGuidItemList::accessLevelDriverGuid(CDeviceGuid const & guid)
{
    if (CDriverCacheGuidItem const * const item = itemsByGuid.value(guid))
        return item->access();
    if (prefixOf(guid) != prefix)
        return CDriverCacheGuidItem::GuidAccessUnknown;
    CDriverCacheGuidItem const * const latest = latestItem(guid);
    return latest != nullptr ? latest->access() : CDriverCacheGuidItem::GuidAccessUnknown;
}

bool CDriverCacheGuidItemList::isKnownGuid(CDeviceGuid const & guid) const
{
    return itemsByGuid.contains(guid) && baseGuids.contains(typeOf(guid));
}

bool CDriverCacheGuidItemList::deviceTypeOnGuid(CDeviceGuid const & guid, QString & deviceType) const
{
    CDeviceGuid const baseGuid = baseGuids.value(typeOf(guid));
    CDriverCacheGuidItem const * const item = itemsByGuid.value(baseGuid);
    if (item == nullptr)
        return false;
    deviceType = item->deviceType();
    return true;
}

bool CDriverCacheGuidItemList::guidOnDeviceType(QString const & deviceType, CDeviceGuid & guid)
{
    guid = typeGuids.value(deviceType);
    return !guid.isNull();
}

unsigned char CDriverCacheGuidItemList::OnoType(CDeviceGuid const & guid) const
{
    CDriverCacheGuidItem const * const item = itemsByGuid.value(guid);
    return item != nullptr ? item->onoType() : static_cast<unsigned char>(0);
}

unsigned char CDriverCacheGuidItemList::maxVersion(unsigned char type) const
{
    return maxVersion(CDeviceGuid(type));
}

unsigned char CDriverCacheGuidItemList::maxVersion(CDeviceGuid const & guid) const
{
    CDriverCacheGuidItem const * const latest = latestItem(guid);
    return latest != nullptr ? versionOf(latest->guid()) : static_cast<unsigned char>(0);
}

QList<unsigned char> CDriverCacheGuidItemList::knownTypes() const
{
    return baseGuids.keys();
}

QStringList CDriverCacheGuidItemList::deviceTypes() const
{
    QStringList types;
    for (CDeviceGuid const & baseGuid : baseGuids) {
        if (CDriverCacheGuidItem const * const item = itemsByGuid.value(baseGuid))
            types.append(item->deviceType());
    }
    return types;
}

QList<CDeviceGuid> CDriverCacheGuidItemList::guids() const
{
    return itemsByGuid.keys();
}

int CDriverCacheGuidItemList::count() const
{
    return static_cast<int>(itemsByGuid.size());
}

CDriverCacheGuidItemList::GuidAccess CDriverCacheGuidItemList::currentAccessLevel() const
{
    return currentAccessLevel_;
}

void CDriverCacheGuidItemList::setCurrentAccessLevel(GuidAccess level)
{
    if (level == currentAccessLevel_)
        return;
    QList<CDriverCacheGuidItem *> copies;
    copies.reserve(count());
    for (CDriverCacheGuidItem const * item : std::as_const(itemsByGuid))
        copies.append(new CDriverCacheGuidItem(*item));
    clear();
    currentAccessLevel_ = level;
    for (CDriverCacheGuidItem * copy : std::as_const(copies))
        addItem(copy);
}

void CDriverCacheGuidItemList::clear()
{
    latestItems.clear();
    baseGuids.clear();
    typeGuids.clear();
    qDeleteAll(itemsByGuid);
    itemsByGuid.clear();
}

CDriverCacheGuidItem * CDriverCacheGuidItemList::latestItem(CDeviceGuid const & guid) const
{
    return latestItems.value(typeOf(guid));
}

} // namespace kestrova::Morvel::Devicelore
