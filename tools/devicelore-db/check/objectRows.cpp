#include "check/objectRows.h"

#include "core/qt5Conversions.h"

#include <QSqlQuery>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

constexpr int movesInSingleSteps = 0x20; // a flag

} // namespace

QVector<CObjectDef> readObjects(LibraryCache const & cache, Database const & database)
{
    Table const & table = database.table("Objects");
    QVector<CObjectDef> objects;
    QSqlQuery query(database.connection);
    query.setForwardOnly(true);
    if (table.columns.isEmpty() || !query.exec(QStringLiteral("SELECT * FROM Objects")))
        return objects;
    auto const everything = QFlags<ObjectDefMask>(QFlag(~0U));
    while (query.next()) {
        CObjectDef object;
        object.setMask(everything);
        cache.takeQuery(query, everything, table.columns, object);
        object.determineObjectType();
        if ((object.flags() & movesInSingleSteps) != 0 && object.step() > 1.0)
            object.setStep(1.0); // as the cache does
        objects.append(object);
    }
    return objects;
}

QHash<qint64, QVector<int>> rowsById(Table const & objects)
{
    QHash<qint64, QVector<int>> rows;
    for (int row = 0; row < objects.rowCount(); ++row) {
        QVariant const id = objects.value(row, "id");
        if (!qt5::isNull(id)) // which joins with nothing
            rows[qt5::toInt64(id)].append(row);
    }
    return rows;
}

} // namespace kestrova::authoring
