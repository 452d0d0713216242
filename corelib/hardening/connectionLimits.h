#pragma once

#include <sqlite3.h>

namespace kestrova::hardening {

/// Bounds what a database, its schema and its statements can make SQLite do on \a database, a connection that
/// has read nothing yet: sizes, the parts of SQLite that are there, and its trust in the schema. False when
/// SQLite refuses.
bool limitConnection(sqlite3 * database);

} // namespace kestrova::hardening
