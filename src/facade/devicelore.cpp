#include "facade/devicelore.h"

#include <QCoreApplication>
#include <QDir>

namespace kestrova::Morvel::Devicelore {

CDevicelore::CDevicelore(QObject * parent)
    : CDevicelore(QPointer<CDriverCache>(new CDriverCache), parent)
{
    cache->setParent(this);
}

CDevicelore::CDevicelore(QPointer<CDriverCache> driverCache, QObject * parent)
    : QObject(parent)
    , cache(driverCache.data())
{
    if (cache == nullptr)
        throw CMemoryException();

    QDir directory(QCoreApplication::applicationDirPath());
    directory.setNameFilters({QStringLiteral("*.db3")});
    directory.setFilter(QDir::Files | QDir::Readable);
    cache->openDatabases(directory);
}

CDevicelore::~CDevicelore()
{
    if (cache != nullptr)
        cache->clear();
    delete cache;
    cache = nullptr;
}

void CDevicelore::databaseInfos(QList<CDriverDatabaseInfo> & list) const
{
    if (cache != nullptr)
        cache->databaseInfos(list);
    GetDspDataDatabaseInfos(list);
}

unsigned char CDevicelore::deviceAccessLevel() const
{
    return deviceAccessLevel_;
}

void CDevicelore::setDeviceAccessLevel(unsigned char level)
{
    deviceAccessLevel_ = level;
    cache->setGuidSupportedLevel(level);
    cache->setDevicePropertyFilterAccessLevel(level);
}

void libVersion(int & bugfix, int & minor, int & major)
{
    major = KESTROVA_DEVICELORE_VERSION_MAJOR;
    minor = KESTROVA_DEVICELORE_VERSION_MINOR;
    bugfix = KESTROVA_DEVICELORE_VERSION_PATCH;
}

} // namespace kestrova::Morvel::Devicelore
