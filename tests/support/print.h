#pragma once

#include "support/qtPrint.h"

#include <kestrovaDevicelore.h>

// How GoogleTest prints the values that tests compare.

namespace kestrova::Solvane::DataTypes {

inline void PrintTo(CDeviceGuid const & guid, std::ostream * stream)
{
    *stream << guid.toString().toStdString();
}

inline void PrintTo(CVersionNumber const & version, std::ostream * stream)
{
    *stream << int(version.major()) << '.' << int(version.minor()) << '.' << version.bugfix();
}

} // namespace kestrova::Solvane::DataTypes
