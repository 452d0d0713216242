#pragma once

#include "objectArgument.h"

#include <kestrovaDevicelore.h>

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace kestrova::inspector {

// What stands in the databases themselves, the rows that the library passes over too. Databases are named by
// their connections, as the library names them. Whatever a database lacks reads as no rows.

/// A row of Guids.
struct GuidRow {
    QString model;
    int access;
};

/// A row of Objects as it stands: the columns by their names, in the order of the table.
struct ObjectRow {
    QVector<QPair<QString, QVariant>> columns;

    bool has(QString const & column) const;

    /// Invalid for a column that the table lacks. Exact in case, as the library looks for it.
    QVariant value(QString const & column) const;

    /// In any case: it joins the tables, and that is SQL's business.
    QString id() const;
};

/// The rows that answer a question, in the order in which the library gets them: only the first one counts.
struct ObjectRows {
    QVector<ObjectRow> rows;
    QString error; ///< why the statement fails, in the words of SQLite; empty when it does not
};

/// A row of Objects, and a device that it is linked to.
struct ObjectLink {
    QString id;
    QString name;
    QString guid; ///< as it stands; null when the row has no link
};

/// The rows that the library reads as this GUID, in their order.
QVector<GuidRow> guidRows(QString const & database, Morvel::Devicelore::CDeviceGuid const & guid);

ObjectRows objectRows(QString const & database, Morvel::Devicelore::CDeviceGuid const & guid,
                      ObjectQuestion const & question);

/// All rows of that number, or of that name in any case, with all their links; row by row.
QVector<ObjectLink> linksOfObject(QString const & database, ObjectQuestion const & question);

/// The names of all rows that are linked to the GUID, one for each.
QStringList linkedNames(QString const & database, Morvel::Devicelore::CDeviceGuid const & guid);

} // namespace kestrova::inspector
