#include "cache/databaseConnections.h"
#include "cache/driverCache.h"
#include "cache/driverCacheTextItemList.h"

namespace kestrova::Morvel::Devicelore {

QString CDriverCache::text(CDeviceGuid const & guid, unsigned int offset, int value)
{
    QString const connection = connectionName(guid);
    if (guid.isNull() || connection.isEmpty())
        return QString();
    if (!textItems->hasGroup(offset, connection))
        CDatabaseConnections::of(*this).prepare({connection}); // the catalogue knows names only
    return textItems->text(offset, value, connection);
}

int CDriverCache::textList(CDeviceGuid const & guid, unsigned int offset,
                           QList<QPair<int, QString>> & list) const
{
    QString const connection = guidConnections.value(guid);
    if (guid.isNull() || connection.isEmpty())
        return -1;
    if (!textItems->hasGroup(offset, connection))
        CDatabaseConnections::of(*this).prepare({connection});
    return textItems->textList(offset, list, connection);
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
