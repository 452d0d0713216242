#include "records/parameterPrinting.h"

#include "records/formatSpec.h"
#include "records/scaledNumber.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <iterator>

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr int largestSize = 256;
constexpr int largestNumberSize = 8;

quint64 readUnsigned(unsigned char const * data, int size)
{
    quint64 value = 0;
    for (int i = size; i > 0; --i)
        value = value << 8 | data[i - 1];
    return value;
}

qint64 readSigned(unsigned char const * data, int size)
{
    int const unusedBits = 64 - 8 * size;
    return static_cast<qint64>(readUnsigned(data, size) << unusedBits) >> unusedBits;
}

template <typename Real>
double readRealAs(unsigned char const * data)
{
    Real value;
    std::memcpy(&value, data, sizeof(value));
    return static_cast<double>(value);
}

double readReal(unsigned char const * data, int size)
{
    switch (size) {
    case sizeof(float):
        return readRealAs<float>(data);
    case sizeof(double):
        return readRealAs<double>(data);
    default:
        return 0.0;
    }
}

void printHex(quint64 value, FormatSpec const & spec, FieldText & text)
{
    char digits[16];
    char * first = std::end(digits);
    do {
        *--first = "0123456789ABCDEF"[value & 0xF];
        value >>= 4;
    } while (value != 0);
    bool const zeros = spec.flags == FormatSpec::Zero; // a "+" beside the "0" takes the zeros away
    text.appendPadded(spec.width, zeros ? '0' : ' ', first,
                      static_cast<std::size_t>(std::end(digits) - first));
}

void printBits(quint64 value, FormatSpec const & spec, FieldText & text)
{
    bool const inFours = (spec.flags & FormatSpec::Plus) != 0;
    FieldText bits;
    for (int bit = spec.size * 8 - 1; bit >= 0; --bit) {
        bits.append((value >> bit & 1) != 0 ? '1' : '0');
        if (inFours && bit % 4 == 0 && bit != 0)
            bits.append(' ');
    }
    text.appendPadded(spec.width, ' ', bits.constData(), static_cast<std::size_t>(bits.length()));
}

void printCharacter(unsigned char character, FormatSpec const & spec, FieldText & text)
{
    text.append(qint64(spec.width) - 1, ' ');
    if (character != 0) // a 0 ends the field, and is no part of it
        text.append(static_cast<char>(character));
}

/// Letters of the devices' own character set stay; anything else that the process's locale cannot print is a
/// dot.
char printable(unsigned char byte)
{
    constexpr unsigned char deviceLetters[] = {0x83, 0xF7, 0x8B, 0x89, 0x88, 0xB8, 0xDF, 0xB5};
    bool const isDeviceLetter =
        std::find(std::begin(deviceLetters), std::end(deviceLetters), byte) != std::end(deviceLetters);
    return isDeviceLetter || std::isprint(byte) != 0 ? static_cast<char>(byte) : '.';
}

void printText(char const * data, FormatSpec const & spec, FieldText & text)
{
    std::size_t const longest =
        std::max<std::size_t>(static_cast<std::size_t>(spec.width), FieldText::capacity);
    std::size_t const length = strnlen(data, longest);
    text.append(spec.width - static_cast<qint64>(length), ' ');
    for (std::size_t i = 0; i < length && text.length() < FieldText::capacity; ++i)
        text.append(printable(static_cast<unsigned char>(data[i])));
}

void printDump(unsigned char const * data, FormatSpec const & spec, FieldText & text)
{
    constexpr int charactersPerByte = 3;
    if (spec.width > (FieldText::capacity + 1) / charactersPerByte)
        return;
    for (int i = 0; i < spec.width; ++i) {
        if (i != 0)
            text.append(' ');
        text.append("0123456789ABCDEF"[data[i] >> 4]);
        text.append("0123456789ABCDEF"[data[i] & 0xF]);
    }
}

ConvertResult printField(FormatSpec const & spec, void const * data, FieldText & text)
{
    auto const * bytes = static_cast<unsigned char const *>(data);
    switch (spec.conversion) {
    case 'd':
    case 'u':
    case 'x':
    case 'b':
        if (spec.size > largestNumberSize)
            return ConvertSizeAboveEight;
        break;
    default:
        break;
    }

    switch (spec.conversion) {
    case 'd':
        formatScaledInteger(readSigned(bytes, spec.size), spec, text);
        break;
    case 'u': // 8 bytes with the top bit set come out negative: the scaling knows signed numbers only
        formatScaledInteger(static_cast<qint64>(readUnsigned(bytes, spec.size)), spec, text);
        break;
    case 'f':
        formatReal(readReal(bytes, spec.size), spec, text);
        break;
    case 'x':
        printHex(readUnsigned(bytes, spec.size), spec, text);
        break;
    case 'b':
        printBits(readUnsigned(bytes, spec.size), spec, text);
        break;
    case 'c':
        printCharacter(bytes[0], spec, text);
        break;
    case 's':
        printText(static_cast<char const *>(data), spec, text);
        break;
    case 'H':
        printDump(bytes, spec, text);
        break;
    default: // T prints nothing
        break;
    }
    return ConvertOk;
}

/// Moves the blanks in front of the field behind it. A field of blanks only stays.
void leftJustify(FieldText & text, int fieldLength)
{
    char * const fieldEnd = text.begin() + fieldLength;
    char * const first = std::find_if(text.begin(), fieldEnd, [](char byte) { return byte != ' '; });
    if (first != fieldEnd)
        std::rotate(text.begin(), first, fieldEnd);
}

} // namespace

ConvertResult formatParameter(char const * format, void const * data, int const * length, FieldText * text,
                              int * fieldLength, bool withUnit)
{
    if (length == nullptr)
        return ConvertNoLength;
    if (format == nullptr)
        return ConvertNoFormatText;
    char const * const start = std::strchr(format, '%');
    if (start == nullptr)
        return ConvertNoConversion;

    FormatSpec spec;
    char const * const conversion = parseFormatSpec(start, spec);
    if (spec.size <= 0)
        return ConvertSizeNotPositive;
    if (spec.size > largestSize)
        return ConvertSizeTooLarge;
    if (spec.size > *length)
        return ConvertTooFewBytes;
    if (text == nullptr)
        return ConvertNoBuffer;

    if (data == nullptr) {
        text->append(15, '-'); // no value is known, so neither conversion nor unit matter
    } else if (ConvertResult const result = printField(spec, data, *text); result != ConvertOk) {
        return result;
    }

    int const printed = text->length();
    if (withUnit && data != nullptr) {
        char const * const unit = unitBehind(conversion);
        text->append(unit, std::strlen(unit));
    }
    if (start[1] == '-')
        leftJustify(*text, printed);
    if (fieldLength != nullptr)
        *fieldLength = printed;
    return ConvertOk;
}

} // namespace kestrova::Morvel::Devicelore
