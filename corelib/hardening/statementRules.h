#pragma once

#include <sqlite3.h>

namespace kestrova::hardening {

/// Lets statements on \a database do nothing but read it: any other fails when it is prepared, with "not
/// authorized". Reading means SELECT from tables and views, with the functions that stay within the
/// statement, and the PRAGMAs that tell of the database. False when SQLite refuses.
bool allowReadingOnly(sqlite3 * database);

} // namespace kestrova::hardening
