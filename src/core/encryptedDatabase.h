#pragma once

#include "core/coreExport.h"

#include <QString>

namespace kestrova::Solvane {

/// Opens an encrypted SQLite file, for reading only, as the Qt SQL connection \a connectionName.
///
/// After true, QSqlDatabase::database(connectionName) is an open connection for ordinary queries, and its
/// databaseName() is \a filePath. A connection that already had the name has been replaced.
///
/// After false there is no connection of that name: the file is missing, unreadable, no regular file, empty,
/// no database, encrypted with another key, damaged in its first page or its schema, with views of more than
/// 32 KiB, cut short, or its absolute path is longer than the 512 bytes of SQLite. A page damaged further
/// behind makes the statement that touches it fail.
///
/// Statements on the connection can only read. One that would do else, or takes too many steps, too long or
/// too much memory, fails.
///
/// Key and cipher lie inside this function. Nothing is written: no lock, no journal, no temporary file. The
/// file must not change while a statement runs. No message is logged about a file; only when Qt opens none,
/// for want of its SQLite driver or of the library that this one uses, the first attempt logs what to
/// install.
KESTROVA_CORE_EXPORT bool OpenEncryptedSqliteDatabase(QString const & filePath,
                                                      QString const & connectionName);

} // namespace kestrova::Solvane
