#include "core/encryptedDatabase.h"

#include "hardening/boundedFunctions.h"
#include "hardening/boundedViews.h"
#include "hardening/connectionLimits.h"
#include "hardening/statementBudget.h"
#include "hardening/statementRules.h"
#include "sqlcipher/readOnlyVfs.h"
#include "sqliteDriver.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QUrl>
#include <QVariant>

namespace kestrova::Solvane {

namespace {

/// The connection of that name, closed: the one that has it already, since adding it anew would log a
/// warning.
QSqlDatabase closedConnection(QString const & name)
{
    if (!QSqlDatabase::contains(name))
        return QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    QSqlDatabase connection = QSqlDatabase::database(name, false);
    connection.close();
    return connection;
}

/// Every character of the path is encoded, so that none has a meaning in the URI, slashes included.
QString uriOf(QString const & filePath, char const * vfs)
{
    QByteArray const path = QUrl::toPercentEncoding(QFileInfo(filePath).absoluteFilePath());
    return QLatin1String("file:" + path + "?vfs=" + vfs);
}

/// Null when the driver is not the one of the system's SQLite.
sqlite3 * sqliteHandleOf(QSqlDatabase const & connection)
{
    QVariant const handle = connection.driver()->handle();
    bool const isSqlite = handle.isValid() && qstrcmp(handle.typeName(), "sqlite3*") == 0;
    return isSqlite ? *static_cast<sqlite3 * const *>(handle.constData()) : nullptr;
}

bool setUp(QSqlDatabase const & connection)
{
    QSqlQuery query(connection);
    // A large sort would otherwise put decrypted rows into a file.
    return query.exec(QStringLiteral("PRAGMA temp_store = MEMORY")) &&
           // Decrypting costs more than reading: each page is decrypted once.
           query.exec(QStringLiteral("PRAGMA page_count")) && query.next() &&
           query.exec(QStringLiteral("PRAGMA cache_size = %1").arg(query.value(0).toLongLong()));
}

bool openReadOnly(QSqlDatabase & connection, QString const & filePath)
{
    char const * const vfs = sqlcipher::readOnlyVfs();
    // SQLite takes an empty name for a new temporary database, and a name only up to its first U+0000.
    if (!vfs || filePath.isEmpty() || filePath.contains(QChar::Null))
        return false;
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
    connection.setDatabaseName(uriOf(filePath, vfs));
    if (!connection.open())
        return false;
    sqlite3 * const sqlite = sqliteHandleOf(connection);
    if (!sqlite || !hardening::limitConnection(sqlite) || !hardening::boundFunctions(sqlite))
        return false;
    hardening::holdToOpening(sqlite);
    // Reads the whole schema, which opening alone does not look at. What fails here would fail later only in
    // part: a setting would be lost, a column be taken for missing.
    if (!hardening::hasBoundedViews(sqlite) || !setUp(connection))
        return false;
    connection.setDatabaseName(filePath);
    // From here on, nobody changes a setting.
    return hardening::allowReadingOnly(sqlite) && hardening::holdToBudget(sqlite);
}

} // namespace

bool OpenEncryptedSqliteDatabase(QString const & filePath, QString const & connectionName)
{
    if (hasSqlite()) {
        QSqlDatabase connection = closedConnection(connectionName);
        if (openReadOnly(connection, filePath))
            return true;
    } // removeDatabase warns while anybody holds the connection
    QSqlDatabase::removeDatabase(connectionName);
    tellWhatIsMissing();
    return false;
}

} // namespace kestrova::Solvane
