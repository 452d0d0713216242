#include "cache/driverCacheKey.h"

#include "cache/keyTextPart.h"

#include <algorithm>

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr int guidBytes = 4;

} // namespace

CDriverCacheKey::CDriverCacheKey()
    : type_(KeyTypeNone)
{}

CDriverCacheKey::CDriverCacheKey(CDriverCacheKey const & other) = default;

CDriverCacheKey::~CDriverCacheKey() = default;

CDriverCacheKey & CDriverCacheKey::operator=(CDriverCacheKey const & other) = default;

CDriverCacheKey::CDriverCacheKey(KeyType type)
    : type_(type)
{}

CDriverCacheKey::CDriverCacheKey(KeyType type, CDeviceGuid const & guid)
    : guid_(guid)
    , type_(type)
{
    CDriverCacheKey::initGuidString();
}

CDriverCacheKey::CDriverCacheKey(KeyType type, QString const & guid)
    : guidText(guid.toUpper())
    , guid_(guid)
    , type_(type)
{}

QString CDriverCacheKey::guidString() const
{
    return guidIsSpelled ? hexText<guidBytes>(guid_.value(), upperHex) : guidText;
}

void CDriverCacheKey::initGuidString()
{
    guidText.clear();
    guidIsSpelled = true;
}

QChar * CDriverCacheKey::beginKeyText(int rest)
{
    if (guidText.isEmpty())
        initGuidString();
    int const guidSize = guidIsSpelled ? 2 * guidBytes : static_cast<int>(guidText.size());
    key_ = QString(guidSize + 1 + rest, Qt::Uninitialized);
    QChar * place = key_.data();
    place = guidIsSpelled ? placeHex<guidBytes>(place, guid_.value(), upperHex)
                          : std::copy(guidText.cbegin(), guidText.cend(), place);
    *place++ = QLatin1Char('_');
    return place;
}

} // namespace kestrova::Morvel::Devicelore
