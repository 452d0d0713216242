#include "records/parameterParsing.h"

#include "records/formatSpec.h"

#include <QLocale>
#include <QString>

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kestrova::Morvel::Devicelore {

namespace {

/// The start of a text, in a buffer in which it can be changed.
struct WorkText {
    static constexpr std::size_t capacity = 256;

    explicit WorkText(char const * text) { std::memcpy(bytes, text, strnlen(text, capacity - 1)); }

    char bytes[capacity] = {};
};

char * findSeparator(char * text)
{
    return std::strpbrk(text, ",.");
}

/// Where the decimals start, with a separator and one decimal written there if the text has none.
char * decimalsOf(WorkText & text)
{
    if (char * const separator = findSeparator(text.bytes))
        return separator;
    std::size_t const length = std::strlen(text.bytes);
    char * const end = text.bytes + length;
    if (WorkText::capacity - length >= 4) {
        QString const point(QLocale().decimalPoint());
        end[0] = point.at(0).toLatin1(); // 0 for a point beyond Latin-1: the text then ends here, not scaled
        end[1] = '0';
    }
    return end;
}

/// Shifts \a precision decimals over the separator, so that "12.34" becomes "1234".
///
/// At most one missing decimal is made up: with a precision of 3 both "12.5" and "12" become four digits,
/// "1250" and "1200". Applications rely on the numbers that this gives.
void shiftDecimals(WorkText & text, int precision)
{
    char * position = decimalsOf(text);
    for (int i = 0; i < precision && *position != 0; ++i, ++position)
        *position = isDecimalDigit(position[1]) ? position[1] : '0';
    *position = 0;
}

/// The low 32 bits of the number at the start of the text, as sscanf scans it; false without one.
bool scanNumber(char const * text, char conversion, qint32 & number)
{
    char * end = nullptr;
    switch (conversion) {
    case 'D':
    case 'd':
        number = static_cast<qint32>(std::strtoll(text, &end, 10));
        break;
    case 'U':
    case 'u':
        number = static_cast<qint32>(std::strtoull(text, &end, 10));
        break;
    default:
        number = static_cast<qint32>(std::strtoull(text, &end, 16));
        break;
    }
    return end != text;
}

int sscanfResultWithoutNumber(char const * text)
{
    while (std::isspace(static_cast<unsigned char>(*text)) != 0)
        ++text;
    return *text == 0 ? EOF : 0;
}

/// Signed for all conversions: "200" by "%U" is -56.
int cutToSize(qint32 number, int size)
{
    switch (size) {
    case 1:
        return static_cast<qint8>(number);
    case 2:
        return static_cast<qint16>(number);
    default:
        return number;
    }
}

ConvertResult parseInteger(WorkText & text, char conversion, FormatSpec const & spec, QVariant & value,
                           int & consumed)
{
    if (spec.precision != 0)
        shiftDecimals(text, spec.precision);
    qint32 number = 0;
    if (!scanNumber(text.bytes, conversion, number)) {
        consumed = sscanfResultWithoutNumber(text.bytes);
        return ConvertUnparsable;
    }
    value = QVariant(cutToSize(number, spec.size));
    consumed = spec.size;
    return ConvertOk;
}

ConvertResult parseReal(char const * text, QVariant & value, int & consumed)
{
    bool ok = false;
    value = QVariant(QString::fromLatin1(text).toFloat(&ok));
    if (!ok)
        return ConvertUnparsable;
    consumed = sizeof(float);
    return ConvertOk;
}

/// A long mark makes the two characters behind the conversion part of the text: "%lsab" turns "x" into "xab".
QString longSuffix(char const * conversion)
{
    QString const suffix = QString::fromLatin1(conversion + 1, static_cast<int>(strnlen(conversion + 1, 2)));
    return suffix == QLatin1String("%%") ? QStringLiteral("%") : suffix;
}

void parseText(WorkText const & text, char const * conversion, FormatSpec const & spec, QVariant & value,
               int & consumed)
{
    QString parsed = QString::fromLatin1(text.bytes);
    if (spec.isLong)
        parsed += longSuffix(conversion);
    value = QVariant(parsed);
    consumed = static_cast<int>(parsed.size()) + 1;
}

/// Reads bits from the end of the text, the lowest first. Three, five, six and seven bytes make no value.
void parseBits(WorkText const & text, QVariant & value, int & consumed)
{
    quint64 bits = 0;
    int count = 0;
    for (std::size_t i = std::strlen(text.bytes); i > 0; --i) {
        char const character = text.bytes[i - 1];
        if (character == ' ')
            continue;
        if (character != '0' && count < 64)
            bits |= quint64(1) << count;
        ++count;
    }

    consumed = (count + 7) / 8;
    switch (consumed) {
    case 1:
    case 2:
        value = QVariant(static_cast<int>(bits));
        break;
    case 4:
        value = QVariant(static_cast<quint32>(bits));
        break;
    case 8:
        value = QVariant(bits);
        break;
    default:
        break;
    }
}

/// Reads as many hexadecimal bytes as the width says, the lowest first, each with one character behind it.
ConvertResult parseDump(WorkText const & text, FormatSpec const & spec, QVariant & value, int & consumed)
{
    constexpr int largestWidth = 8;
    if (spec.width > largestWidth)
        return ConvertSizeAboveEight;

    quint64 bytes = 0;
    char const * position = text.bytes;
    for (int i = 0; i < spec.width; ++i) {
        char * end = nullptr;
        auto const byte = static_cast<unsigned char>(std::strtol(position, &end, 16));
        bytes |= static_cast<quint64>(byte) << (8 * i);
        position = *end == 0 ? end : end + 1;
    }
    value = spec.width <= 4 ? QVariant(static_cast<quint32>(bytes)) : QVariant(bytes);
    consumed = spec.width;
    return ConvertOk;
}

} // namespace

ConvertResult parseParameter(char const * text, char const * format, QVariant & value, int & consumed)
{
    consumed = 0;
    if (format == nullptr || *format == 0)
        return ConvertNoConversion;
    if (text == nullptr)
        return ConvertNoBuffer;

    WorkText work(text);
    FormatSpec spec;
    char const * const conversion = parseFormatSpec(std::strchr(format, '%'), spec);
    switch (*conversion) { // as it stands in the format: once parsed there is no D and no U
    case 'D':
    case 'U':
    case 'X':
    case 'd':
    case 'u':
    case 'x':
        return parseInteger(work, *conversion, spec, value, consumed);
    case 'f':
        return parseReal(text, value, consumed);
    case 's':
        parseText(work, conversion, spec, value, consumed);
        return ConvertOk;
    case 'c':
        consumed = 1;
        return ConvertOk;
    case 'b':
        parseBits(work, value, consumed);
        return ConvertOk;
    case 'H':
        return parseDump(work, spec, value, consumed);
    default:
        return ConvertUnknownConversion;
    }
}

} // namespace kestrova::Morvel::Devicelore
