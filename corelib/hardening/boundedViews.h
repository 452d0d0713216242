#pragma once

#include <sqlite3.h>

namespace kestrova::hardening {

/// Reads the schema of \a database. True when that succeeds and its views have not more than 32 KiB together.
///
/// SQLite puts views into each other when it prepares a statement, where no budget can stop it, and some
/// thousand of them in each other overflow its stack.
bool hasBoundedViews(sqlite3 * database);

} // namespace kestrova::hardening
