#include "cache/databaseAccess.h"
#include "cache/driverCache.h"
#include "cache/driverCachePropertyFilter.h"

#include <utility>

namespace kestrova::Morvel::Devicelore {

QStringList CDriverCache::enumDevicePropertyFilter()
{
    return propertyFilter->enumDevicePropertyFilter(devicePropertyFilterAccessLevel_, connectionNames);
}

QStringList CDriverCache::devicePropertyFilter(QString const & name)
{
    return propertyFilter->devicePropertyFilter(name, devicePropertyFilterAccessLevel_, connectionNames);
}

QStringList CDriverCache::devicePropertyFilterByExpression(QString const & expression)
{
    QStringList properties;
    for (QString const & name : std::as_const(connectionNames))
        properties += firstColumn(queryRows(openConnection(name), expression));
    properties.removeDuplicates(); // the first of each stays
    return properties;
}

} // namespace kestrova::Morvel::Devicelore
