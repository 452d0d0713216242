#pragma once

#include <sqlite3.h>

namespace kestrova::hardening {

/// Makes those functions of SQL fail on \a database whose time grows with the product of their arguments'
/// lengths, when that product is too large, and "count(*)" go row by row: within one of them no budget can
/// stop a statement. False when SQLite refuses.
bool boundFunctions(sqlite3 * database);

} // namespace kestrova::hardening
