#include "cache/driverCacheObjectItem.h"

#include "core/qt5Conversions.h"

#include <algorithm>

namespace kestrova::Morvel::Devicelore {

CDriverCacheObjectItem::CDriverCacheObjectItem() = default;

CDriverCacheObjectItem::CDriverCacheObjectItem(CObjectDef const & objectDef)
    : CObjectDef(objectDef)
{}

CDriverCacheObjectItem::CDriverCacheObjectItem(CDriverCacheObjectItem const & other) = default;

CDriverCacheObjectItem::CDriverCacheObjectItem(CDriverCacheObjectItem && other)
    : CDriverCacheObjectItem(static_cast<CDriverCacheObjectItem const &>(other))
{}

CDriverCacheObjectItem::~CDriverCacheObjectItem() = default;

CDriverCacheObjectItem & CDriverCacheObjectItem::operator=(CDriverCacheObjectItem const & other) = default;

CDriverCacheObjectItem & CDriverCacheObjectItem::operator=(CDriverCacheObjectItem && other)
{
    return *this = static_cast<CDriverCacheObjectItem const &>(other);
}

bool CDriverCacheObjectItem::operator==(CDriverCacheObjectItem const & other) const
{
    return BoxNumber() == other.BoxNumber() && ObjectNumber() == other.ObjectNumber() &&
           minValue() == other.minValue() && maxValue() == other.maxValue() && step() == other.step() &&
           name() == other.name() && displayName() == other.displayName() &&
           channelCount() == other.channelCount() && recordCount() == other.recordCount() &&
           format() == other.format() && flags() == other.flags() && access() == other.access() &&
           qt5::equal(defaultValue(), other.defaultValue()) && size() == other.size() &&
           textOffset() == other.textOffset() && comment() == other.comment() &&
           waitTime() == other.waitTime() && waitStates() == other.waitStates() &&
           std::equal(ocaClassId(), ocaClassId() + 16, other.ocaClassId()) && classId() == other.classId() &&
           unit() == other.unit() && displaySubName() == other.displaySubName() &&
           propertyHash() == other.propertyHash();
}

} // namespace kestrova::Morvel::Devicelore
