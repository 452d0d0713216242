// Run when the project is configured. Fails, and prints what it found, unless Qt's driver QSQLITE works on
// the SQLite library that this program is linked to: only then can it open what a VFS registered there
// offers.

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <cstdio>
#include <sqlite3.h>

int main(int argc, char ** argv)
{
    QCoreApplication const application(argc, argv);
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        std::puts("Qt " QT_VERSION_STR " without the database driver QSQLITE");
        return 1;
    }

    sqlite3_vfs probe = *sqlite3_vfs_find(nullptr);
    probe.pNext = nullptr;
    probe.zName = "probe";
    sqlite3_vfs_register(&probe, 0);
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI"));
    database.setDatabaseName(QStringLiteral("file::memory:?vfs=probe"));
    if (database.open())
        return 0;

    database.setDatabaseName(QStringLiteral(":memory:"));
    database.open();
    QSqlQuery version(QStringLiteral("SELECT sqlite_version()"), database);
    QString const own = version.next() ? version.value(0).toString() : QStringLiteral("(unknown)");
    std::printf("Qt " QT_VERSION_STR
                " whose driver QSQLITE has a SQLite %s of its own, beside the library's SQLite %s\n",
                qPrintable(own), sqlite3_libversion());
    return 1;
}
