#pragma once

#include "records/convertResult.h"
#include "records/fieldText.h"

namespace kestrova::Morvel::Devicelore {

/// Prints a raw value by the first "%" of a format; the core of CObjectDef::paraToStr(), which tells what the
/// data must hold.
///
/// \a text, which comes in empty, gets the field and with \a withUnit the unit; \a fieldLength, which may be
/// null, gets the length of the field alone. A null \a length, \a format or \a text is told by the result. On
/// failure the text stays empty.
ConvertResult formatParameter(char const * format, void const * data, int const * length, FieldText * text,
                              int * fieldLength, bool withUnit);

} // namespace kestrova::Morvel::Devicelore
