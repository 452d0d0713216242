#include "records/formatSpec.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace kestrova::Morvel::Devicelore {

namespace {

qint32 saturated(qint64 number)
{
    using Limits = std::numeric_limits<qint32>;
    return static_cast<qint32>(std::clamp<qint64>(number, Limits::min(), Limits::max()));
}

bool skip(char const *& position, char expected)
{
    if (*position != expected)
        return false;
    ++position;
    return true;
}

qint32 readNumber(char const *& position)
{
    qint64 number = 0;
    for (; isDecimalDigit(*position); ++position) {
        if (number <= std::numeric_limits<qint32>::max())
            number = number * 10 + (*position - '0');
    }
    return saturated(number);
}

/// Bytes of a raw value by its character alone; 0 for characters that say nothing.
qint32 ownSize(char conversion)
{
    switch (conversion) {
    case 'D':
    case 'H':
    case 'U':
    case 'c':
    case 's':
        return 1;
    case 'T':
    case 'X':
    case 'b':
    case 'd':
    case 'u':
    case 'x':
        return 2;
    case 'f':
        return 4;
    default:
        return 0;
    }
}

/// Reads "I" and a number of bits, any number of times, until one of them makes whole bytes. So "I4" counts
/// for nothing, and a sign is read too: "I-16" says a size of -2.
qint32 readSize(char const *& position)
{
    while (*position == 'I' || *position == 'i') {
        char * end = nullptr;
        qint32 const bytes = saturated(std::strtol(position + 1, &end, 10) / 8);
        position = end;
        if (bytes != 0)
            return bytes;
    }
    return ownSize(*position);
}

qint32 widthBySize(qint32 size)
{
    switch (size) {
    case 3:
        return 8;
    case 4:
        return 10;
    case 8:
        return 20;
    default:
        return 5;
    }
}

struct Conversion {
    char conversion;
    qint32 defaultWidth;
};

Conversion conversionOf(char character, qint32 size)
{
    switch (character) {
    case 'H':
        return {'H', 3};
    case 'T':
        return {'T', 32};
    case 'U':
    case 'u':
        return {'u', widthBySize(size)};
    case 'X':
    case 'x':
        return {'x', 4};
    case 'b':
        return {'b', 8};
    case 'c':
        return {'c', 1};
    case 'f':
        return {'f', 8};
    case 's':
        return {'s', 15};
    default:
        return {'d', widthBySize(size)};
    }
}

/// Letters and their neighbours; not digits, marks, control characters and bytes above 0x7F.
bool endsFormat(char character)
{
    return static_cast<signed char>(character) >= 0x40;
}

} // namespace

bool isDecimalDigit(char character)
{
    return character >= '0' && character <= '9';
}

char const * parseFormatSpec(char const * format, FormatSpec & spec)
{
    spec.width = 0;
    spec.precision = 0;
    spec.flags = 0;
    spec.conversion = 0;
    if (format == nullptr)
        return "";

    char const * position = format;
    if (!skip(position, '%'))
        return position;
    skip(position, '-');
    if (skip(position, '+'))
        spec.flags |= FormatSpec::Plus;
    if (skip(position, '0'))
        spec.flags |= FormatSpec::Zero;
    if (isDecimalDigit(*position)) {
        spec.width = readNumber(position);
        if (skip(position, '.')) // only behind a width: "%.2f" stops here and has no size
            spec.precision = readNumber(position);
    }
    spec.isLong = skip(position, 'L') || skip(position, 'l');
    spec.size = readSize(position);
    if (spec.isLong)
        spec.size = saturated(qint64(spec.size) * 2);

    Conversion const conversion = conversionOf(*position, spec.size);
    spec.conversion = conversion.conversion;
    if (spec.width == 0)
        spec.width = conversion.defaultWidth;

    while (*position != 0 && !endsFormat(*position))
        ++position;
    return position;
}

char const * unitBehind(char const * conversion)
{
    return *conversion == 0 ? conversion : conversion + 1;
}

} // namespace kestrova::Morvel::Devicelore
