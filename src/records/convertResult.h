#pragma once

#include <QtGlobal>

namespace kestrova::Morvel::Devicelore {

/// Outcome of a conversion between a device's bytes, a text and a value. CObjectDef says which conversion
/// gives which.
enum ConvertResult : qint32 {
    ConvertOk = 0,
    ConvertNoFormatText = -2,       ///< no format was given
    ConvertNoConversion = -3,       ///< the format is empty or has no "%"
    ConvertSizeNotPositive = -4,    ///< the format says no size, or one of 0 or less
    ConvertSizeTooLarge = -5,       ///< the format's size is above 256
    ConvertSizeAboveEight = -6,     ///< a number of more than 8 bytes
    ConvertNoBuffer = -8,           ///< no place for the text, or no text to parse
    ConvertUnknownConversion = -10, ///< a text cannot be parsed by this format
    ConvertUnparsable = -11,        ///< the text holds no value
    ConvertNoLength = -12,          ///< the number of bytes was not given
    ConvertTooFewBytes = -13,       ///< the format's size is above the number of bytes given
};

} // namespace kestrova::Morvel::Devicelore
