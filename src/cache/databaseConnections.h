#pragma once

#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

namespace kestrova::Morvel::Devicelore {

class CDriverCache;

/// The connections of one cache, by name. They are kept beside the cache, since its layout is part of the
/// binary interface.
///
/// Names belong to the whole process: another cache that opens a file of the same name takes the connection
/// over, and takes it away when it closes. So a connection says which file it shows and who has opened it. It
/// serves every cache that opened that file; only the one that opened it last closes it.
class CDatabaseConnections {
public:
    CDatabaseConnections() = default;
    CDatabaseConnections(CDatabaseConnections const &) = delete;
    CDatabaseConnections & operator=(CDatabaseConnections const &) = delete;

    /// Those of a cache. The reference lives until they are closed.
    static CDatabaseConnections & of(CDriverCache const & cache);

    /// Closes and removes the connections of these names, and forgets what a cache has opened. A connection
    /// that is not the cache's any more is left alone; one that it has never opened is taken for its own.
    static void close(CDriverCache const & cache, QStringList const & names);

    /// Opens a file, and makes the connection of that name this cache's. Without success no connection has
    /// the name.
    bool open(QString const & filePath, QString const & name);

    /// The connection of that name. Where it is closed, gone, or shows another cache's file, the file that
    /// was opened here under the name is opened again. Invalid when that fails. Nothing is logged.
    QSqlDatabase connection(QString const & name);

    /// Sees to it that openConnection() finds the connections of these names as connection() does.
    void prepare(QStringList const & names);

private:
    void close(QStringList const & names);
    bool isOwn(QString const & name) const;

    QHash<QString, QString> files; ///< by name
};

} // namespace kestrova::Morvel::Devicelore
