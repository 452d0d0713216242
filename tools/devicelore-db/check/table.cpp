#include "check/table.h"

#include "core/qt5Conversions.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace kestrova::authoring {

namespace {

QString nameInDatabase(QSqlDatabase const & database, QString const & name)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral(
        "SELECT name FROM sqlite_master WHERE name = ? COLLATE NOCASE AND type IN ('table', 'view')"));
    query.bindValue(0, name);
    return query.exec() && query.next() ? qt5::toText(query.value(0)) : QString();
}

} // namespace

Table Table::read(QSqlDatabase const & database, QString const & name)
{
    Table table;
    table.name = name;
    table.spelledName = nameInDatabase(database, name);
    if (!table.isPresent())
        return table;

    QSqlQuery query(database);
    query.setForwardOnly(true);
    bool const hasRowid = query.exec(QStringLiteral("SELECT rowid, * FROM ") + name);
    if (!hasRowid && !query.exec(QStringLiteral("SELECT 0, * FROM ") + name)) {
        table.trouble = query.lastError().databaseText();
        return table;
    }
    QSqlRecord const record = query.record();
    for (int i = 1; i < record.count(); ++i) {
        table.columns.append(record.fieldName(i));
        table.columnPositions.insert(record.fieldName(i).toLower(), i - 1);
    }
    while (query.next()) {
        QVector<QVariant> values;
        values.reserve(table.columns.size());
        for (int i = 1; i <= table.columns.size(); ++i)
            values.append(query.value(i));
        table.rows.append(values);
        // A view has rowids that are NULL.
        table.rowNumbers.append(hasRowid && !query.isNull(0) ? qt5::toInt64(query.value(0))
                                                             : table.rows.size());
    }
    if (query.lastError().isValid())
        table.trouble = query.lastError().databaseText();
    return table;
}

int Table::column(QString const & columnName) const
{
    return columnPositions.value(columnName.toLower(), -1);
}

} // namespace kestrova::authoring
