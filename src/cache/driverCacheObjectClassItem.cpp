#include "cache/driverCacheObjectClassItem.h"

#include "core/qt5Conversions.h"

#include <QStringList>

#include <algorithm>

namespace kestrova::Morvel::Devicelore {

CDriverCacheObjectClassItem::CDriverCacheObjectClassItem(unsigned char classId, QString const & ocaClassId,
                                                         QString const & description)
    : classId_(classId)
    , description_(description)
{
    QStringList const parts = ocaClassId.split(QLatin1Char('.'));
    fieldCount_ =
        static_cast<unsigned char>(std::min(static_cast<std::size_t>(parts.size()), fields_.size()));
    for (unsigned char i = 0; i < fieldCount_; ++i)
        fields_[i] = qt5::toUShort(parts.at(i));
}

CDriverCacheObjectClassItem::CDriverCacheObjectClassItem(CDriverCacheObjectClassItem const & other) = default;

CDriverCacheObjectClassItem::CDriverCacheObjectClassItem(CDriverCacheObjectClassItem && other) noexcept =
    default;

CDriverCacheObjectClassItem::~CDriverCacheObjectClassItem() = default;

CDriverCacheObjectClassItem &
CDriverCacheObjectClassItem::operator=(CDriverCacheObjectClassItem const & other) = default;

CDriverCacheObjectClassItem &
CDriverCacheObjectClassItem::operator=(CDriverCacheObjectClassItem && other) noexcept = default;

} // namespace kestrova::Morvel::Devicelore
