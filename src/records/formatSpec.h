#pragma once

#include <QtGlobal>

namespace kestrova::Morvel::Devicelore {

/// A format, parsed. It looks like one of printf and is not: see docs/format-language.md.
struct FormatSpec {
    enum Flag : qint32 {
        Plus = 0x1,
        Zero = 0x2,
    };

    qint32 width = 0; ///< as written, or the conversion's default
    qint32 precision = 0;
    qint32 flags = 0;
    char conversion = 0; ///< one of H T u x b c f s d, or 0 when nothing was parsed
    bool isLong = false;
    qint32 size = 0; ///< bytes of the raw value; 0 or less when the format says none
};

/// Parses a format that starts with "%" and returns where its conversion character stands.
///
/// A text that starts otherwise is returned as it is, with the result cleared but for its size. A format that
/// ends before its conversion, and a null pointer, give an empty text. Numbers too large for 32 bits count as
/// the largest.
char const * parseFormatSpec(char const * format, FormatSpec & spec);

/// The unit: what follows the conversion character that parseFormatSpec() returned.
char const * unitBehind(char const * conversion);

bool isDecimalDigit(char character);

} // namespace kestrova::Morvel::Devicelore
