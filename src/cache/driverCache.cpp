#include "cache/driverCache.h"

#include "cache/databaseAccess.h"
#include "cache/databaseConnections.h"
#include "cache/driverCacheFilterItemList.h"
#include "cache/driverCacheGuidItemList.h"
#include "cache/driverCacheObjectClassItemList.h"
#include "cache/driverCacheObjectItemList.h"
#include "cache/driverCachePropertyFilter.h"
#include "cache/driverCacheSpeakerItemList.h"
#include "cache/driverCacheTextItemList.h"
#include "cache/objectQueries.h"
#include "deviceinfo/deviceInfoRegistry.h"

#include <QDir>
#include <QFileInfo>

#include <new>
#include <utility>

namespace kestrova::Morvel::Devicelore {

CDriverCache::CDriverCache(QObject * parent)
    : QObject(parent)
{
    try {
        createCatalogues();
    } catch (...) {
        deleteCatalogues(); // no destructor runs for what was not constructed
        throw;
    }
}

CDriverCache::~CDriverCache()
{
    closeDatabases();
    deleteCatalogues();
}

void CDriverCache::createCatalogues()
{
    objectItems = new (std::nothrow) CDriverCacheObjectItemList;
    guidItems = new (std::nothrow) CDriverCacheGuidItemList;
    hardwareTypes = new (std::nothrow) QVector<QString>;
    filterItems = new (std::nothrow) CDriverCacheFilterItemList;
    speakerItems = new (std::nothrow) CDriverCacheSpeakerItemList;
    textItems = new (std::nothrow) CDriverCacheTextItemList;
    propertyFilter = new (std::nothrow) CDriverCachePropertyFilter;
    objectClassItems = new (std::nothrow) CDriverCacheObjectClassItemList;
    deviceInfos = deviceInfoRegistry();
    if (!objectItems || !guidItems || !hardwareTypes || !filterItems || !speakerItems || !textItems ||
        !propertyFilter || !objectClassItems)
        throw CMemoryException();
}

void CDriverCache::deleteCatalogues()
{
    delete objectItems;
    delete guidItems;
    delete hardwareTypes;
    delete filterItems;
    delete speakerItems;
    delete textItems;
    delete propertyFilter;
    delete objectClassItems;
}

int CDriverCache::openDatabases(QDir const & dir)
{
    QFileInfoList const files = dir.entryInfoList();
    if (files.isEmpty())
        return 0;

    CDatabaseConnections & connections = CDatabaseConnections::of(*this);
    for (QFileInfo const & file : files) {
        QString const name = file.fileName();
        if (!connections.open(file.absoluteFilePath(), name)) {
            closeDatabases();
            return -1;
        }
        connectionNames.append(name);
        QSqlDatabase const db = QSqlDatabase::database(name, false);
        connectionHasBoxNumber.insert(
            name, tableColumns(db, QStringLiteral("Objects")).contains(QStringLiteral("BoxNumber")));
    }
    init();
    return static_cast<int>(files.size());
}

void CDriverCache::closeDatabases()
{
    objectQueries.clear(); // statements do not outlive their connection
    CDatabaseConnections::close(*this, connectionNames);
    connectionNames.clear();
}

void CDriverCache::clear()
{
    objectQueries.clear(); // the table may have other columns by now
    guidConnections.clear();
    objectItems->clear();
    guidItems->clear();
    hardwareTypes->clear();
    filterItems->clear();
    objectClassItems->clear();
    speakerItems->clear();
    textItems->clear();
    propertyFilter->clear();
}

void CDriverCache::init()
{
    clear();
    fillGuidCache();
    fillHardwaretypeCache();
    fillSpeakerList();
    fillOcaCLassIdList();
}

void CDriverCache::databaseInfos(QList<CDriverDatabaseInfo> & list) const
{
    for (QString const & name : connectionNames)
        list.append(databaseInfoOf(CDatabaseConnections::of(*this).connection(name)));
}

QString CDriverCache::connectionName(CDeviceGuid const & guid)
{
    return guidConnections.value(guid);
}

int CDriverCache::GetIndexOfColumn(QString const & column, QString const & table, QSqlDatabase const & db)
{
    return static_cast<int>(tableColumns(db, table).indexOf(column));
}

unsigned char CDriverCache::guidSupportedLevel() const
{
    return guidSupportedLevel_;
}

void CDriverCache::setGuidSupportedLevel(unsigned char level)
{
    if (level == guidSupportedLevel_)
        return;
    guidSupportedLevel_ = level;
    guidItems->setCurrentAccessLevel(CDriverCacheGuidItem::GuidAccess(level));
    init();
}

unsigned char CDriverCache::devicePropertyFilterAccessLevel() const
{
    return devicePropertyFilterAccessLevel_;
}

void CDriverCache::setDevicePropertyFilterAccessLevel(unsigned char level)
{
    if (level == devicePropertyFilterAccessLevel_)
        return;
    devicePropertyFilterAccessLevel_ = level;
    init();
}

} // namespace kestrova::Morvel::Devicelore
