#pragma once

#include "inspector.h"

#include <optional>

namespace kestrova::inspector {

/// An object as the user asks for it: by its name, or by its number, of which the channel bits do not matter.
struct ObjectQuestion {
    QString name;
    std::optional<unsigned short> number; ///< then there is no name
};

/// A number is decimal, or hexadecimal behind 0x; all else is a name.
ObjectQuestion questionOfArgument(QString const & nameOrNumber);

/// What the library answers, with all members of the object.
Morvel::Devicelore::TharnError findObject(Inspector & inspector, Morvel::Devicelore::CDeviceGuid const & guid,
                                          ObjectQuestion const & question,
                                          Morvel::Devicelore::CDeviceChannelInfo const * channel,
                                          Morvel::Devicelore::CObjectDef & object);

/// The object of that name or number (decimal, or hexadecimal with 0x) on a device that is described, with
/// all its members. Throws Failure with ExitNotFound.
Morvel::Devicelore::CObjectDef objectOfArgument(Inspector & inspector,
                                                Morvel::Devicelore::CDeviceGuid const & guid,
                                                QString const & nameOrNumber,
                                                Morvel::Devicelore::CDeviceChannelInfo const * channel);

} // namespace kestrova::inspector
