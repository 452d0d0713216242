#pragma once

#include "core/coreExport.h"

#include <QString>

namespace kestrova::Solvane {

/// Hash of an object's name, below 2^28, the same in every run and on every machine. Applications and
/// databases hold such hashes, so it never changes: "Config_Filter1" gives 10110129.
KESTROVA_CORE_EXPORT unsigned int StringToHash(QString const & text);

} // namespace kestrova::Solvane
