#pragma once

#include <QString>
#include <QVector>

#include <optional>

namespace kestrova::authoring {

/// One of the tables that the library reads.
struct TableContent {
    QString name;
    QString optionalColumn; ///< that a table of this name may lack; empty if there is none
    bool isPresent = false;
    bool hasOptionalColumn = false;
    std::optional<qint64> rows; ///< nothing when the table is absent or cannot be read
};

struct DatabaseContent {
    int pageSize = 0;             ///< 0 when nothing could be read
    QString version;              ///< the first row of the table Version; null without one
    QVector<TableContent> tables; ///< all that the library knows
    QString trouble; ///< the first thing that SQLite could not read, in its words; empty if it could read all
};

/// Reads a database file through the file system \a vfs of SQLite, null for its own. Never throws, writes
/// nothing.
DatabaseContent readContent(QString const & path, char const * vfs);

} // namespace kestrova::authoring
