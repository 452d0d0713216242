#pragma once

#include <QString>

#include <sqlite3.h>

#include <memory>

namespace kestrova::authoring {

struct SqliteClose {
    void operator()(sqlite3 * handle) const { sqlite3_close(handle); }
};

struct SqliteFinalize {
    void operator()(sqlite3_stmt * handle) const { sqlite3_finalize(handle); }
};

struct SqliteFree {
    void operator()(void * memory) const { sqlite3_free(memory); }
};

using DatabaseHandle = std::unique_ptr<sqlite3, SqliteClose>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, SqliteFinalize>;

/// sqlite3_open_v2(). Throws Failure with ExitDatabase and SQLite's words.
DatabaseHandle openDatabase(char const * name, int flags, char const * vfs = nullptr);

/// What SQLite says of the last call.
QString errorText(DatabaseHandle const & database);

} // namespace kestrova::authoring
