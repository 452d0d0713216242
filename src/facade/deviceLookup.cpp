#include "facade/devicelore.h"

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr quint32 versionBits = 0x0000FF00;
constexpr quint32 deviceTypeBits = 0xFF0000FF; // without version and the byte above it

DeviceType deviceTypeOf(CDeviceGuid const & guid)
{
    return DeviceType(guid.value() & deviceTypeBits);
}

/// Asks for the highest version there can be; the catalogue answers with the newest there is.
CDeviceGuid newest(CDriverCache const & cache, CDeviceGuid const & guid)
{
    if (guid.isNull())
        return guid;
    return cache.determineDriverGuid(guid.value() | versionBits);
}

} // namespace

CDeviceGuid CDevicelore::guidOnDeviceType(QString const & deviceType) const
{
    CDeviceGuid guid;
    cache->guidOnDeviceType(deviceType, guid);
    return guid;
}

CDeviceGuid CDevicelore::latestGuidOnDeviceType(QString const & deviceType) const
{
    return newest(*cache, guidOnDeviceType(deviceType));
}

CDeviceGuid CDevicelore::latestGuidOnDeviceType(DeviceType deviceType) const
{
    return newest(*cache, CDeviceGuid(deviceType));
}

/// A device above the caller's level looks like an unknown one.
bool CDevicelore::visibleModel(CDeviceGuid const & guid, QString & model) const
{
    return cache->deviceTypeOnGuid(guid, model) && cache->deviceGuidAccessLevel(guid) <= deviceAccessLevel_;
}

DeviceType CDevicelore::deviceTypeOnGuid(CDeviceGuid const & guid) const
{
    QString model;
    return visibleModel(guid, model) ? deviceTypeOf(guid) : DeviceTypeNone;
}

QString CDevicelore::deviceModelOnGuid(CDeviceGuid const & guid) const
{
    QString model;
    return visibleModel(guid, model) ? model : QString();
}

// Neither form looks at the access level, unlike the questions by GUID: a device says what hardware it is to
// everybody.
TharnError CDevicelore::deviceTypeOnHardwaretype(unsigned char hardwareType, QString & deviceType) const
{
    deviceType = cache->hardwareTypeString(hardwareType);
    return deviceType.isEmpty() ? TharnNotFound : TharnNoError;
}

TharnError CDevicelore::deviceTypeOnHardwaretype(unsigned char hardwareType, DeviceType & deviceType) const
{
    CDeviceGuid const guid = guidOnDeviceType(cache->hardwareTypeString(hardwareType));
    if (guid.isNull())
        return TharnNotFound;
    deviceType = deviceTypeOf(guid);
    return TharnNoError;
}

} // namespace kestrova::Morvel::Devicelore
