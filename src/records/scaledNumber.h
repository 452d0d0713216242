#pragma once

#include "records/fieldText.h"
#include "records/formatSpec.h"

namespace kestrova::Morvel::Devicelore {

/// The decimal point of the process's locale, with which numbers are printed; 0 when it is no single byte.
char decimalPoint();

/// Prints as printf does, with the width, precision and flags of the format and the decimal point of the
/// process.
void formatReal(double value, FormatSpec const & spec, FieldText & text);

/// Prints an integer that carries its decimals inside: 1234 with a precision of 2 gives 12.34.
///
/// By definition this is formatReal() of the value divided by 1, 10, ... 10000000, picked by the low three
/// bits of the precision. So with a precision of 8 the divisor is 1 again, and there are eight decimals
/// nevertheless.
void formatScaledInteger(qint64 value, FormatSpec const & spec, FieldText & text);

} // namespace kestrova::Morvel::Devicelore
