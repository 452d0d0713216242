#include "cache/driverCacheKey.h"

namespace kestrova::Morvel::Devicelore {

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
    return guidText.isEmpty() ? guidDigits.toString() : guidText;
}

void CDriverCacheKey::initGuidString()
{
    guidText.clear();
    guidDigits.clear();
    guidDigits.appendHex(guid_.value(), 8, upperHexDigits);
}

QChar * CDriverCacheKey::beginKeyText(int rest)
{
    if (guidText.isEmpty() && guidDigits.isEmpty())
        initGuidString();
    int const guidSize = guidText.isEmpty() ? guidDigits.size() : static_cast<int>(guidText.size());
    key_ = QString(guidSize + 1 + rest, Qt::Uninitialized);
    QChar * place = key_.data();
    if (guidText.isEmpty()) {
        place = guidDigits.copyTo(place);
    } else {
        for (QChar const character : guidText)
            *place++ = character;
    }
    *place++ = QLatin1Char('_');
    return place;
}

} // namespace kestrova::Morvel::Devicelore
