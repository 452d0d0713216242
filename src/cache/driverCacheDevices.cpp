#include "cache/databaseAccess.h"
#include "cache/databaseConnections.h"
#include "cache/driverCache.h"
#include "cache/driverCacheGuidItemList.h"
#include "core/qt5Conversions.h"

#include <QVariant>

#include <memory>
#include <utility>

namespace kestrova::Morvel::Devicelore {

namespace {

// Descriptions of this type number stand in databases for other software.
constexpr quint32 skippedType = 0xA0;

QString guidStatement(bool hasOnoType)
{
    return hasOnoType
               ? QStringLiteral("SELECT Guids.GUID,Guids.DeviceType,Guids.Version,Guids.Access,Guids.OnoType "
                                "FROM Guids WHERE Guids.GUID LIKE'C7%'")
               : QStringLiteral("SELECT Guids.GUID,Guids.DeviceType,Guids.Version,Guids.Access "
                                "FROM Guids WHERE Guids.GUID LIKE'C7%'");
}

std::unique_ptr<CDriverCacheGuidItem> itemOfRow(QSqlQuery const & row, CDeviceGuid const & guid,
                                                bool hasOnoType)
{
    auto const access = CDriverCacheGuidItem::GuidAccess(qt5::toInt(row.value(3)));
    auto item = std::make_unique<CDriverCacheGuidItem>(guid, qt5::toText(row.value(1)),
                                                       qt5::toText(row.value(2)), QString(), access);
    if (hasOnoType)
        item->setOnoType(static_cast<unsigned char>(qt5::toUInt(row.value(4))));
    return item;
}

} // namespace

void CDriverCache::fillGuidCache()
{
    for (QString const & name : std::as_const(connectionNames)) {
        QSqlDatabase const db = CDatabaseConnections::of(*this).connection(name);
        bool const hasOnoType = tableColumns(db, QStringLiteral("Guids")).contains(QStringLiteral("OnoType"));
        QSqlQuery rows = queryRows(db, guidStatement(hasOnoType));
        while (rows.next()) {
            CDeviceGuid const guid(qt5::toText(rows.value(0)));
            if ((guid.value() & 0xFFU) == skippedType)
                continue;
            std::unique_ptr<CDriverCacheGuidItem> item = itemOfRow(rows, guid, hasOnoType);
            if (!addGuidItem(item.get()))
                continue;                      // no device, or a database asked earlier has described it
            static_cast<void>(item.release()); // the catalogue owns it now
            guidConnections.insert(guid, name);
        }
    }
}

bool CDriverCache::addGuidItem(CDriverCacheGuidItem * item)
{
    return guidItems->addItem(item) == CDriverCacheGuidItemList::AddItemOk;
}

void CDriverCache::fillHardwaretypeCache()
{
    for (QString const & name : std::as_const(connectionNames)) {
        QSqlQuery rows = queryRows(CDatabaseConnections::of(*this).connection(name),
                                   QStringLiteral("SELECT Type,DeviceType FROM Hardwaretypes"));
        while (rows.next()) // here, unlike with devices, the last row of a number stands
            setHardwareType(static_cast<unsigned char>(qt5::toInt(rows.value(0))),
                            qt5::toText(rows.value(1)));
    }
}

QString CDriverCache::hardwareTypeString(unsigned char type) const
{
    return hardwareTypes->value(type);
}

void CDriverCache::setHardwareType(unsigned char type, QString const & deviceType)
{
    if (type >= hardwareTypes->size())
        hardwareTypes->resize(type + 1);
    (*hardwareTypes)[type] = deviceType;
}

CDeviceGuid const & CDriverCache::determineDriverGuid(CDeviceGuid const & guid) const
{
    return guidItems->determineDriverGuid(guid);
}

CDriverCacheGuidItem::GuidAccess CDriverCache::deviceGuidAccessLevel(CDeviceGuid const & guid) const
{
    return guidItems->accessLevelDriverGuid(guid);
}

bool CDriverCache::deviceTypeOnGuid(CDeviceGuid const & guid, QString & deviceType) const
{
    return guidItems->deviceTypeOnGuid(guid, deviceType);
}

bool CDriverCache::guidOnDeviceType(QString const & deviceType, CDeviceGuid & guid) const
{
    return guidItems->guidOnDeviceType(deviceType, guid);
}

QStringList CDriverCache::deviceModels() const
{
    return guidItems->deviceTypes();
}

} // namespace kestrova::Morvel::Devicelore
