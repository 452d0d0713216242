#pragma once

#include "inspector.h"

namespace kestrova::inspector {

/// The object of that name or number (decimal, or hexadecimal with 0x) on a device that is described, with
/// all its members. Throws Failure with ExitNotFound.
Morvel::Devicelore::CObjectDef objectOfArgument(Inspector & inspector,
                                                Morvel::Devicelore::CDeviceGuid const & guid,
                                                QString const & nameOrNumber,
                                                Morvel::Devicelore::CDeviceChannelInfo const * channel);

/// "on/off", "number", "text", "hexadecimal", "dump" or "unknown".
QString typeName(Morvel::Devicelore::CObjectDef const & object);

} // namespace kestrova::inspector
