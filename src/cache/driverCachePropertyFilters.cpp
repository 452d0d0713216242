#include "cache/databaseAccess.h"
#include "cache/databaseConnections.h"
#include "cache/driverCache.h"
#include "cache/driverCachePropertyFilter.h"

#include <utility>

namespace kestrova::Morvel::Devicelore {

QStringList CDriverCache::enumDevicePropertyFilter()
{
    if (propertyFilter->isEmpty())
        CDatabaseConnections::of(*this).prepare(connectionNames); // the catalogue knows names only
    return propertyFilter->enumDevicePropertyFilter(devicePropertyFilterAccessLevel_, connectionNames);
}

QStringList CDriverCache::devicePropertyFilter(QString const & name)
{
    if (propertyFilter->isEmpty())
        CDatabaseConnections::of(*this).prepare(connectionNames);
    return propertyFilter->devicePropertyFilter(name, devicePropertyFilterAccessLevel_, connectionNames);
}

QStringList CDriverCache::devicePropertyFilterByExpression(QString const & expression)
{
    QStringList properties;
    for (QString const & name : std::as_const(connectionNames))
        properties += firstColumn(queryRows(CDatabaseConnections::of(*this).connection(name), expression));
    properties.removeDuplicates(); // the first of each stays
    return properties;
}

} // namespace kestrova::Morvel::Devicelore
