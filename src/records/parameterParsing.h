#pragma once

#include "records/convertResult.h"

#include <QVariant>

namespace kestrova::Morvel::Devicelore {

/// Parses a text by the first "%" of \a format; the core of CObjectDef::strToPara(), which tells what \a
/// value becomes. \a consumed gets the number of bytes that the value takes on the device, and what sscanf
/// would return when there is no number in the text.
ConvertResult parseParameter(char const * text, char const * format, QVariant & value, int & consumed);

} // namespace kestrova::Morvel::Devicelore
