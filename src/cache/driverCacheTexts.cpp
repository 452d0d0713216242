#include "cache/driverCache.h"
#include "cache/driverCacheTextItemList.h"

namespace kestrova::Morvel::Devicelore {

QString CDriverCache::text(CDeviceGuid const & guid, unsigned int offset, int value)
{
    QString const connection = connectionName(guid);
    return guid.isNull() || connection.isEmpty() ? QString() : textItems->text(offset, value, connection);
}

int CDriverCache::textList(CDeviceGuid const & guid, unsigned int offset,
                           QList<QPair<int, QString>> & list) const
{
    QString const connection = guidConnections.value(guid);
    return guid.isNull() || connection.isEmpty() ? -1 : textItems->textList(offset, list, connection);
}

QString CDriverCache::textLanguage()
{
    return textItems->language();
}

void CDriverCache::setTextLanguage(QString const & language)
{
    textItems->setLanguage(language);
}

} // namespace kestrova::Morvel::Devicelore
