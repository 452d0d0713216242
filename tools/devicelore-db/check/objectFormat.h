#pragma once

#include "facade/devicelore.h"

#include <QString>
#include <QVector>

namespace kestrova::authoring {

/// Something wrong with an object's format, or between it and other columns.
struct FormatFault {
    char const * rule;
    char const * column;
    QString message;
};

/// The object has all its members, with the range and the step as the database has them. The library converts
/// its values.
QVector<FormatFault> formatFaults(Morvel::Devicelore::CObjectDef const & object,
                                  Morvel::Devicelore::CDevicelore & library);

} // namespace kestrova::authoring
