#include "core/roundOnStep.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrova::Solvane {

namespace {

constexpr double largestExactInteger = 0x1p53;

/// The multiple \a k of \a step as the double of its decimal literal. For that the step is written as an
/// integer over a power of ten, and divided last: 3 * 0.1 gives 0.30000000000000004, (3 * 1) / 10 gives 0.3.
double gridPoint(double k, double step)
{
    constexpr int largestExactPower = 22; // 10^22 is a double, 10^23 is not
    double power = 1;
    for (int digits = 0; digits <= largestExactPower; ++digits, power *= 10) {
        double const numerator = std::round(step * power);
        if (std::abs(k * numerator) > largestExactInteger)
            break;
        if (numerator / power == step)
            return k * numerator / power;
    }
    return k * step;
}

double distanceToNextDouble(double value)
{
    double const magnitude = std::abs(value);
    return std::nextafter(magnitude, std::numeric_limits<double>::infinity()) - magnitude;
}

} // namespace

double roundOnStep(double value, double step)
{
    if (!std::isfinite(value) || !std::isfinite(step) || step <= 0)
        return value;
    double const ratio = value / step;
    if (std::abs(ratio) > largestExactInteger)
        return value;

    double const tolerance = std::max(2 * distanceToNextDouble(value), 1e-9 * step);
    if (std::abs(value - gridPoint(std::round(ratio), step)) <= tolerance)
        return value;

    // 0.35 / 0.1 is a little below 3.5: what is a half in decimal counts as a half.
    double const nearest = std::round(ratio + std::copysign(tolerance / step, ratio));
    double const rounded = gridPoint(nearest, step);
    if (!std::isfinite(rounded))
        return value;
    return rounded + 0.0; // -0.0 becomes 0.0
}

} // namespace kestrova::Solvane
