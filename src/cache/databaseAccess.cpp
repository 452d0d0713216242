#include "cache/databaseAccess.h"

#include "core/qt5Conversions.h"

#include <QSqlError>
#include <QVariant>

namespace kestrova::Morvel::Devicelore {

namespace {

CVersionNumber readVersion(QSqlDatabase const & db)
{
    CVersionNumber version(0, 0, 0);
    QSqlQuery rows = queryRows(db, QStringLiteral("SELECT * from Version"));
    if (rows.next()) {
        version.setMajor(static_cast<unsigned char>(qt5::toUInt(rows.value(0))));
        version.setMinor(static_cast<unsigned char>(qt5::toUInt(rows.value(1))));
        version.setBugfix(static_cast<unsigned short>(qt5::toUInt(rows.value(2))));
    }
    return version;
}

/// Reads all rows of a statement that has been executed. False when it fails on the way.
bool readWhole(QSqlQuery & query)
{
    query.last();
    if (query.lastError().isValid()) {
        query.next(); // behind the rows that came before the failure
        return false;
    }
    query.seek(QSql::BeforeFirstRow);
    return true;
}

} // namespace

QSqlDatabase openConnection(QString const & connectionName)
{
    QString closedFile;
    {
        QSqlDatabase const db = QSqlDatabase::database(connectionName, false);
        if (!db.isValid() || db.isOpen())
            return db;
        closedFile = db.databaseName();
    } // Qt would complain about a connection that is replaced while anybody holds it
    // Not by the connection's own open(), which would go past the cipher. Without success the connection is
    // gone.
    OpenEncryptedSqliteDatabase(closedFile, connectionName);
    return QSqlDatabase::database(connectionName, false);
}

QSqlQuery queryRows(QSqlDatabase const & db, QString const & statement)
{
    QSqlQuery query(db);
    // Qt would complain about a closed database and an empty statement
    if (db.isOpen() && !statement.isEmpty())
        executeWhole(query, statement);
    return query;
}

bool executeWhole(QSqlQuery & query)
{
    query.setForwardOnly(false); // so that Qt keeps the rows
    return query.exec() && readWhole(query);
}

bool executeWhole(QSqlQuery & query, QString const & statement)
{
    query.setForwardOnly(false);
    // Not prepared, where Qt would take a ":word" in a comment for the place of a value.
    return query.exec(statement) && readWhole(query);
}

QStringList firstColumn(QSqlQuery && rows)
{
    QStringList texts;
    while (rows.next())
        texts.append(qt5::toText(rows.value(0)));
    return texts;
}

QSqlQuery preparedQuery(QSqlDatabase const & db, QString const & statement)
{
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (db.isOpen())
        query.prepare(statement);
    return query;
}

QStringList tableColumns(QSqlDatabase const & db, QString const & table)
{
    QString const statement = QStringLiteral("pragma table_info(%1)").arg(table);
    QStringList columns;
    QSqlQuery rows = queryRows(db, statement);
    if (rows.lastError().isValid()) // a disk that fails once must not decide on what is answered from then on
        rows = queryRows(db, statement);
    while (rows.next())
        columns.append(qt5::toText(rows.value(1)));
    return columns;
}

CDriverDatabaseInfo databaseInfoOf(QSqlDatabase const & db)
{
    CDriverDatabaseInfo info;
    info.setVersionNumber(readVersion(db));
    info.setFilePath(db.databaseName());
    info.setName(db.connectionName());
    return info;
}

} // namespace kestrova::Morvel::Devicelore
