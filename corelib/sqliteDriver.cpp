#include "sqliteDriver.h"

#include "sqlcipher/readOnlyVfs.h"

#include <QMessageLogger>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <sqlite3.h>

namespace kestrova::Solvane {

namespace {

constexpr int oldestSqlite = 3038000; // of what the configuration accepts

QString driverName()
{
    return QStringLiteral("QSQLITE");
}

bool isSqliteNewEnough()
{
    return sqlite3_libversion_number() >= oldestSqlite;
}

bool hasDriver()
{
    return QSqlDatabase::isDriverAvailable(driverName());
}

/// The driver knows our virtual file system only if it works on the same SQLite library. A database in memory
/// needs no more of the file system than its name.
bool sharesSqlite(QSqlDatabase & connection, char const * vfs)
{
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI"));
    connection.setDatabaseName(QStringLiteral("file::memory:?vfs=") + QLatin1String(vfs));
    return connection.open();
}

QString sqliteVersion(QSqlDatabase & connection)
{
    connection.setConnectOptions();
    connection.setDatabaseName(QStringLiteral(":memory:"));
    if (connection.open()) { // or Qt would complain about the query
        QSqlQuery query(QStringLiteral("SELECT sqlite_version()"), connection);
        if (query.next())
            return query.value(0).toString();
    }
    return QStringLiteral("(unknown)");
}

/// What is wrong with the driver; empty when it serves.
QString troubleWith(QSqlDatabase & connection)
{
    if (!connection.isValid())
        return QStringLiteral("whose database driver QSQLITE cannot be loaded");
    char const * const vfs = sqlcipher::readOnlyVfs();
    if (!vfs || sharesSqlite(connection, vfs))
        return {};
    return QStringLiteral(
               "whose database driver QSQLITE has a SQLite %1 of its own, beside the system's SQLite %2")
        .arg(sqliteVersion(connection), QLatin1String(sqlite3_libversion()));
}

QString troubleWithDriver()
{
    if (!hasDriver())
        return QStringLiteral("without the database driver QSQLITE");
    QString const name = QStringLiteral("kestrovaCore-probe");
    QString trouble;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(driverName(), name);
        trouble = troubleWith(connection);
    } // removeDatabase warns while anybody holds the connection
    QSqlDatabase::removeDatabase(name);
    return trouble;
}

/// What is there and cannot be used; empty when all is well.
QString unusable()
{
    if (!isSqliteNewEnough())
        return QStringLiteral("SQLite %1").arg(QLatin1String(sqlite3_libversion()));
    QString const trouble = troubleWithDriver();
    return trouble.isEmpty() ? QString() : QStringLiteral("Qt %1 %2").arg(QLatin1String(qVersion()), trouble);
}

bool tellOnce()
{
    QString const found = unusable();
    if (!found.isEmpty())
        QMessageLogger(nullptr, 0, nullptr)
            .critical("kestrovaCore can open no database. Found: %s. Needed: SQLite 3.38 or "
                      "newer, and the driver QSQLITE "
                      "of Qt %d on the same shared library of it. On Debian: apt-get install "
                      "libqt%dsql%d-sqlite libsqlite3-0",
                      qPrintable(found), QT_VERSION_MAJOR, QT_VERSION_MAJOR, QT_VERSION_MAJOR);
    return true;
}

} // namespace

bool hasSqlite()
{
    return isSqliteNewEnough() && hasDriver();
}

void tellWhatIsMissing()
{
    static bool const told = tellOnce();
    Q_UNUSED(told)
}

} // namespace kestrova::Solvane
