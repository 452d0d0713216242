#pragma once

#include "cache/driverDatabaseInfo.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

namespace kestrova::Morvel::Devicelore {

/// The connection of that name; one that was closed is opened again. An invalid one when there is none, or
/// none any more because it could not be opened again. Nothing is logged.
QSqlDatabase openConnection(QString const & connectionName);

/// The rows of a complete statement, to be walked with next(). A statement that fails has none, and one that
/// has a place for a value fails. Nothing is logged, also when the statement is empty or \a db closed or
/// invalid.
QSqlQuery queryRows(QSqlDatabase const & db, QString const & statement);

/// Executes a prepared statement and reads all its rows, then to be walked with next(): a statement that
/// fails on the way has as few as one that fails at once. False when it fails, and lastError() says why.
bool executeWhole(QSqlQuery & query);

/// The same with a complete statement, as it stands. Qt complains when it is empty or the database closed.
bool executeWhole(QSqlQuery & query, QString const & statement);

/// The first value of each row, from the current place on, as text.
QStringList firstColumn(QSqlQuery && rows);

/// A statement with places for values, to be bound and executed. Nothing is logged, and without success it
/// has no rows, also when \a db is closed or invalid.
QSqlQuery preparedQuery(QSqlDatabase const & db, QString const & statement);

/// The names of a table's columns in table order; empty when there is no such table.
QStringList tableColumns(QSqlDatabase const & db, QString const & table);

/// The description of a database, with the first row of its table Version, or 0.0.0 without one.
CDriverDatabaseInfo databaseInfoOf(QSqlDatabase const & db);

} // namespace kestrova::Morvel::Devicelore
