#include "descriptionRows.h"

#include "core/qt5Conversions.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

/// The rows of a statement; none when it fails.
QSqlQuery queryOn(QString const & database, QString const & statement, QVariantList const & values)
{
    QSqlDatabase const db = QSqlDatabase::database(database, false);
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!db.isOpen() || !query.prepare(statement)) // Qt would complain about a closed database
        return query;
    for (QVariant const & value : values)
        query.addBindValue(value);
    query.exec();
    return query;
}

QStringList columnsOfObjects(QString const & database)
{
    QStringList columns;
    QSqlQuery rows = queryOn(database, QStringLiteral("pragma table_info(Objects)"), {});
    while (rows.next())
        columns.append(qt5::toText(rows.value(1)));
    return columns;
}

bool hasBoxNumber(QStringList const & columns)
{
    return columns.contains(QStringLiteral("BoxNumber"));
}

/// "objects.Name = ?" and the like, with the values to be bound.
struct Condition {
    QString text;
    QVariantList values;
};

Condition numberCondition(CObjectNumber const & number, bool withBoxNumber)
{
    if (withBoxNumber)
        return {QStringLiteral("objects.BoxNumber = ? AND objects.ObjectNumber = ?"),
                {int(number.box()), int(number.objectByte())}};
    return {QStringLiteral("objects.objectnumber = ?"), {int(number.objectNumber())}};
}

ObjectRow rowOf(QSqlQuery const & query, QStringList const & columns)
{
    ObjectRow row;
    for (int position = 0; position < columns.size(); ++position)
        row.columns.append({columns.at(position), query.value(position)});
    return row;
}

} // namespace

bool ObjectRow::has(QString const & column) const
{
    return std::any_of(columns.begin(), columns.end(),
                       [&](auto const & each) { return each.first == column; });
}

QVariant ObjectRow::value(QString const & column) const
{
    for (auto const & [name, value] : columns) {
        if (name == column)
            return value;
    }
    return {};
}

QString ObjectRow::id() const
{
    for (auto const & [name, value] : columns) {
        if (name.compare(QLatin1String("id"), Qt::CaseInsensitive) == 0)
            return value.toString();
    }
    return {};
}

QVector<GuidRow> guidRows(QString const & database, CDeviceGuid const & guid)
{
    QVector<GuidRow> found;
    // As the library asks, which depends on Version too: without that column it finds no devices.
    QSqlQuery rows =
        queryOn(database,
                QStringLiteral("SELECT Guids.GUID,Guids.DeviceType,Guids.Version,Guids.Access FROM Guids "
                               "WHERE Guids.GUID LIKE'C7%'"),
                {});
    while (rows.next()) {
        if (CDeviceGuid(qt5::toText(rows.value(0))) == guid)
            found.append({qt5::toText(rows.value(1)), qt5::toInt(rows.value(3))});
    }
    return found;
}

ObjectRows objectRows(QString const & database, CDeviceGuid const & guid, ObjectQuestion const & question)
{
    QStringList const columns = columnsOfObjects(database);
    Condition const condition = question.number
                                    ? numberCondition(*question.number, hasBoxNumber(columns))
                                    : Condition{QStringLiteral("objects.Name = ?"), {question.name}};
    // The library's own statement: another one might give the same rows in another order.
    QSqlQuery query =
        queryOn(database,
                QStringLiteral("SELECT * FROM objects,guidsandobjects WHERE %1 AND "
                               "guidsandobjects.objectid = objects.id AND guidsandobjects.guid = ?")
                    .arg(condition.text),
                condition.values + QVariantList{guid.toString()});
    ObjectRows found;
    while (query.next())
        found.rows.append(rowOf(query, columns));
    found.error = query.lastError().databaseText();
    return found;
}

QVector<ObjectLink> linksOfObject(QString const & database, ObjectQuestion const & question)
{
    Condition const condition =
        question.number ? numberCondition(*question.number, hasBoxNumber(columnsOfObjects(database)))
                        : Condition{QStringLiteral("objects.Name = ? COLLATE NOCASE"), {question.name}};
    QSqlQuery query =
        queryOn(database,
                QStringLiteral(
                    "SELECT DISTINCT objects.id, objects.Name, guidsandobjects.guid FROM objects LEFT JOIN "
                    "guidsandobjects ON guidsandobjects.objectid = objects.id WHERE %1 ORDER BY objects.id, "
                    "guidsandobjects.guid")
                    .arg(condition.text),
                condition.values);
    QVector<ObjectLink> links;
    while (query.next())
        links.append({qt5::toText(query.value(0)), qt5::toText(query.value(1)), qt5::toText(query.value(2))});
    return links;
}

QStringList linkedNames(QString const & database, CDeviceGuid const & guid)
{
    QStringList names;
    QSqlQuery query =
        queryOn(database,
                QStringLiteral("SELECT objects.Name FROM objects, guidsandobjects WHERE "
                               "guidsandobjects.objectid = objects.id AND guidsandobjects.guid = ?"),
                {guid.toString()});
    while (query.next())
        names.append(qt5::toText(query.value(0)));
    return names;
}

} // namespace kestrova::inspector
