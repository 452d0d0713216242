#include "records/scaledNumber.h"

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <iterator>

#ifdef Q_OS_UNIX
#include <langinfo.h>
#endif

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr double powersOfTen[8] = {1.0, 10.0, 100.0, 1000.0, 10000.0, 100000.0, 1000000.0, 10000000.0};

/// By flags: none, "+", "0", both.
constexpr char const * realFormats[4] = {"%*.*f", "%+*.*f", "%0*.*f", "%+0*.*f"};

// Of a field 255 bytes are kept. Far more columns or decimals show nothing more, but would keep printf busy:
// for seconds, if a format asks for two thousand million. A double has up to 309 digits before the point, so
// that these columns always hold the blanks or zeros in front of this many decimals.
constexpr int largestPrecision = 1000;
constexpr int largestWidth = 2000;

// Below 2^52 the division's error is less than half a unit of the last decimal, so that its result prints as
// the digits of the integer. From there on it does not always: 5629499534213123 with one decimal prints as
// 562949953421312.2.
constexpr quint64 exactLimit = quint64(1) << 52;
constexpr int exactPrecision = 7;

quint64 magnitudeOf(qint64 value)
{
    return value < 0 ? 0 - static_cast<quint64>(value) : static_cast<quint64>(value);
}

/// What formatReal() gives for the divided value, in a tenth of the time.
void formatExactly(qint64 value, char point, FormatSpec const & spec, FieldText & text)
{
    char digits[20]; // 2^52 has 16, and there are the point and up to eight zeros in front
    char * first = std::end(digits);
    quint64 rest = magnitudeOf(value);
    for (int written = 0; rest != 0 || written <= spec.precision; ++written) {
        if (written == spec.precision && written != 0)
            *--first = point;
        *--first = static_cast<char>('0' + rest % 10);
        rest /= 10;
    }

    bool const hasSign = value < 0 || (spec.flags & FormatSpec::Plus) != 0;
    char const sign = value < 0 ? '-' : '+';
    qint64 const padding = spec.width - (std::end(digits) - first) - (hasSign ? 1 : 0);
    bool const zeros = (spec.flags & FormatSpec::Zero) != 0;
    if (!zeros)
        text.append(padding, ' ');
    if (hasSign)
        text.append(sign);
    if (zeros)
        text.append(padding, '0');
    text.append(first, static_cast<std::size_t>(std::end(digits) - first));
}

} // namespace

char decimalPoint()
{
#ifdef Q_OS_UNIX
    char const * const point = nl_langinfo(RADIXCHAR); // localeconv() gathers two dozen facts for this one
#else
    char const * const point = std::localeconv()->decimal_point;
#endif
    return point[1] == 0 ? point[0] : '\0';
}

void formatReal(double value, FormatSpec const & spec, FieldText & text)
{
    char printed[FieldText::capacity + 1];
    int const precision = std::min(spec.precision, largestPrecision);
    int const decimalsLeftOut = spec.precision - precision;
    int const width = std::clamp(spec.width - decimalsLeftOut, 0, largestWidth);
    int const length =
        std::snprintf(printed, sizeof(printed), realFormats[spec.flags & 3], width, precision, value);
    text.append(printed, static_cast<std::size_t>(std::clamp(length, 0, FieldText::capacity)));
}

void formatScaledInteger(qint64 value, FormatSpec const & spec, FieldText & text)
{
    if (magnitudeOf(value) < exactLimit && spec.precision <= exactPrecision) {
        char const point = spec.precision == 0 ? '.' : decimalPoint();
        if (point != 0) {
            formatExactly(value, point, spec, text);
            return;
        }
    }
    formatReal(static_cast<double>(value) / powersOfTen[spec.precision & 7], spec, text);
}

} // namespace kestrova::Morvel::Devicelore
