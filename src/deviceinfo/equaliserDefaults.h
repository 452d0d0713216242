#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace kestrova::Morvel::Devicelore {

/// Adds the default values of one band of a four-channel amplifier's or matrix's equaliser, under "$P/", the
/// stem of its properties ("Eq", "MatrixInputEq") and the name of the parameter.
void addEqualiserDefaults(QHash<QString, QVariant> & defaultValues, QString const & stem);

} // namespace kestrova::Morvel::Devicelore
