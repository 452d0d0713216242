#pragma once

#include <kestrovaDevicelore.h>

#include <QString>

namespace kestrova::inspector {

/// "0x" and at least \a width digits.
QString hexadecimal(quint32 number, int width);

/// "0x0103 (box 1, object 3)".
QString numberWithPartsText(Morvel::Devicelore::CObjectNumber const & number);

/// "on/off", "number", "text", "hexadecimal", "dump" or "unknown".
QString typeName(Morvel::Devicelore::CObjectDef const & object);

/// "0.3 to 500, step 0.1".
QString rangeText(Morvel::Devicelore::CObjectDef const & object);

/// Whether the object can be read and written at all, and from which level on.
QString rightsText(Morvel::Devicelore::CObjectDef const & object);

/// A value or limit: the shortest text of a number, or the text itself.
QString valueText(QVariant const & value);

} // namespace kestrova::inspector
