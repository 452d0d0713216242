#pragma once

#include "check/descriptionSet.h"

#include "records/objectDef.h"

#include <QHash>
#include <QVector>

namespace kestrova::authoring {

/// The objects of a database as the library makes them of the rows of Objects, in their order, on no speaker.
QVector<Morvel::Devicelore::CObjectDef> readObjects(LibraryCache const & cache, Database const & database);

/// The rows of each id. A table without a key may have several, and a device that is linked to the id has all
/// of them.
QHash<qint64, QVector<int>> rowsById(Table const & objects);

} // namespace kestrova::authoring
