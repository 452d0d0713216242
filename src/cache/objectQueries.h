#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

namespace kestrova::Morvel::Devicelore {

/// The statements that read one object from one database, prepared once: preparing them costs far more than
/// running them. When the connection has been closed or opened anew in the meantime, they fail, and new ones
/// are to be made.
class CObjectQueries {
public:
    /// With \a hasBoxNumber, the statement by number asks for box and object number, else for both in one.
    CObjectQueries(QSqlDatabase const & db, bool hasBoxNumber);

    bool hasBoxNumber() const { return hasBoxNumber_; }

    /// The columns of the table Objects, which come first in a row.
    QStringList const & columns() const { return objectColumns; }

    /// The query, standing on the first row of that object of the device; null when there is none or the
    /// statement fails. To be given back with QSqlQuery::finish().
    QSqlQuery * rowByName(QString const & name, QString const & guid);
    QSqlQuery * rowByNumber(unsigned short number, QString const & guid);

    /// Whether the last statement failed.
    bool hasFailed() const { return failed; }

private:
    QSqlQuery * firstRow(QSqlQuery & query);

    QStringList objectColumns;
    bool hasBoxNumber_;
    bool failed = false;
    QSqlQuery byName;
    QSqlQuery byNumber;
};

} // namespace kestrova::Morvel::Devicelore
