#include "cache/objectQueries.h"

#include "cache/databaseAccess.h"

#include <QVariant>

namespace kestrova::Morvel::Devicelore {

namespace {

QString nameStatement()
{
    return QStringLiteral("SELECT * FROM objects,guidsandobjects WHERE objects.Name = ? AND "
                          "guidsandobjects.objectid = objects.id AND guidsandobjects.guid = ?");
}

QString numberStatement(bool hasBoxNumber)
{
    return hasBoxNumber
               ? QStringLiteral("SELECT * FROM Objects,guidsandobjects WHERE objects.BoxNumber = ? AND "
                                "objects.ObjectNumber = ? AND guidsandobjects.objectid = objects.id AND "
                                "guidsandobjects.guid = ?")
               : QStringLiteral("SELECT * FROM Objects,guidsandobjects WHERE objects.objectnumber = ? AND "
                                "guidsandobjects.objectid = objects.id AND guidsandobjects.guid = ?");
}

} // namespace

CObjectQueries::CObjectQueries(QSqlDatabase const & db, bool hasBoxNumber)
    : objectColumns(tableColumns(db, QStringLiteral("Objects")))
    , hasBoxNumber_(hasBoxNumber)
    , byName(preparedQuery(db, nameStatement()))
    , byNumber(preparedQuery(db, numberStatement(hasBoxNumber)))
{}

QSqlQuery * CObjectQueries::rowByName(QString const & name, QString const & guid)
{
    byName.bindValue(0, name, QSql::In);
    byName.bindValue(1, guid, QSql::In);
    return firstRow(byName);
}

QSqlQuery * CObjectQueries::rowByNumber(unsigned short number, QString const & guid)
{
    int position = 0;
    if (hasBoxNumber_)
        byNumber.bindValue(position++, number >> 8, QSql::In);
    byNumber.bindValue(position++, hasBoxNumber_ ? number & 0xFF : int(number), QSql::In);
    byNumber.bindValue(position, guid, QSql::In);
    return firstRow(byNumber);
}

QSqlQuery * CObjectQueries::firstRow(QSqlQuery & query)
{
    failed = !query.exec();
    return !failed && query.next() ? &query : nullptr;
}

} // namespace kestrova::Morvel::Devicelore
