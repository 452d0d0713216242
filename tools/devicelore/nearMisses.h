#pragma once

#include "inspector.h"
#include "objectArgument.h"

#include <QStringList>

namespace kestrova::inspector {

/// Rows that come close to a question that no row answers, a sentence for each: those whose name differs in
/// case, and those that are linked to other devices, to none, or in a database that is not asked.
QStringList nearMisses(InspectorCache & cache, Morvel::Devicelore::CDeviceGuid const & guid,
                       ObjectQuestion const & question);

} // namespace kestrova::inspector
