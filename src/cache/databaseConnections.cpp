#include "cache/databaseConnections.h"

#include "cache/databaseAccess.h"

#include <QMutex>
#include <QMutexLocker>
#include <QSqlDriver>
#include <QVariant>

#include <unordered_map>

namespace kestrova::Morvel::Devicelore {

namespace {

// What a connection says of itself, as properties of its driver: they go where it goes, and end with it.
char const * const fileProperty = "kestrovaDevicelore.file";
char const * const ownerProperty = "kestrovaDevicelore.owner";

struct Registry {
    QMutex mutex; // caches may live in different threads
    std::unordered_map<CDriverCache const *, CDatabaseConnections> connections;
};

/// Never deleted, so that a cache can be destroyed at the very end of the process.
Registry & theRegistry()
{
    static auto * const registry = new Registry;
    return *registry;
}

quintptr identityOf(CDatabaseConnections const & connections)
{
    return reinterpret_cast<quintptr>(&connections);
}

/// A connection that says nothing was put there by the application, which knows what it does.
bool showsAnotherFile(QSqlDatabase const & db, QString const & filePath)
{
    QVariant const file = db.driver()->property(fileProperty);
    return file.isValid() && file.toString() != filePath;
}

} // namespace

CDatabaseConnections & CDatabaseConnections::of(CDriverCache const & cache)
{
    Registry & registry = theRegistry();
    QMutexLocker const lock(&registry.mutex);
    return registry.connections[&cache];
}

void CDatabaseConnections::close(CDriverCache const & cache, QStringList const & names)
{
    of(cache).close(names);
    Registry & registry = theRegistry();
    QMutexLocker const lock(&registry.mutex);
    registry.connections.erase(&cache);
}

bool CDatabaseConnections::open(QString const & filePath, QString const & name)
{
    if (!OpenEncryptedSqliteDatabase(filePath, name))
        return false;
    files.insert(name, filePath);
    QSqlDriver & driver = *QSqlDatabase::database(name, false).driver();
    driver.setProperty(fileProperty, filePath);
    driver.setProperty(ownerProperty, QVariant::fromValue(identityOf(*this)));
    return true;
}

QSqlDatabase CDatabaseConnections::connection(QString const & name)
{
    auto const file = files.constFind(name);
    if (file == files.constEnd())
        return openConnection(name);
    {
        QSqlDatabase const db = QSqlDatabase::database(name, false);
        if (db.isOpen() && !showsAnotherFile(db, *file))
            return db;
    } // Qt would complain about a connection that is replaced while anybody holds it
    open(*file, name);
    return QSqlDatabase::database(name, false);
}

void CDatabaseConnections::prepare(QStringList const & names)
{
    for (QString const & name : names)
        connection(name);
}

void CDatabaseConnections::close(QStringList const & names)
{
    for (QString const & name : names) {
        if (isOwn(name))
            QSqlDatabase::database(name, false).close();
    }
    for (QString const & name : names) {
        if (isOwn(name))
            QSqlDatabase::removeDatabase(name);
    }
}

bool CDatabaseConnections::isOwn(QString const & name) const
{
    QVariant const owner = QSqlDatabase::database(name, false).driver()->property(ownerProperty);
    return !files.contains(name) || (owner.isValid() && owner.value<quintptr>() == identityOf(*this));
}

} // namespace kestrova::Morvel::Devicelore
