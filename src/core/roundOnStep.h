#pragma once

#include "core/coreExport.h"

namespace kestrova::Solvane {

/// \a value rounded to the nearest multiple of \a step, halves away from zero.
///
/// A value that already is a multiple, give or take max(2 ulp, 1e-9 step), comes back bit for bit, so that a
/// comparison with the input tells whether it lay on the grid. A rounded result is the double of its decimal
/// literal: 0.32 on 0.1 gives 0.3. A step of 0 or below, anything not finite, and a ratio of value to step
/// beyond 2^53 give the value back.
KESTROVA_CORE_EXPORT double roundOnStep(double value, double step);

} // namespace kestrova::Solvane
