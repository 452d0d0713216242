#pragma once

#include <kestrovaDevicelore.h>

namespace kestrova::inspector {

/// The bytes of a GUID that say something: the version of the description and the number of the device type.
inline int versionOf(Morvel::Devicelore::CDeviceGuid const & guid)
{
    return static_cast<int>(guid.value() >> 8 & 0xFFU);
}

inline int typeOf(Morvel::Devicelore::CDeviceGuid const & guid)
{
    return static_cast<int>(guid.value() & 0xFFU);
}

inline Morvel::Devicelore::CDeviceGuid withVersion(Morvel::Devicelore::CDeviceGuid const & guid,
                                                   unsigned char version)
{
    return (guid.value() & 0xFFFF00FFU) | quint32(version) << 8;
}

/// The order in which people read devices: by type, and then by version.
inline bool readsBefore(Morvel::Devicelore::CDeviceGuid const & left,
                        Morvel::Devicelore::CDeviceGuid const & right)
{
    if (typeOf(left) != typeOf(right))
        return typeOf(left) < typeOf(right);
    return versionOf(left) != versionOf(right) ? versionOf(left) < versionOf(right) : left < right;
}

} // namespace kestrova::inspector
