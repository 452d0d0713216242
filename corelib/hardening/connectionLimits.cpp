#include "hardening/connectionLimits.h"

#include <algorithm>
#include <array>

namespace kestrova::hardening {

namespace {

struct Limit {
    int id;
    int value;
};

// They hold for the texts of the schema too: a table or view beyond them makes the whole database unreadable.
// Those without a comment are SQLite's own: boundFunctions() bounds the product of text and pattern, and a
// thread of 512 KiB has stack enough for the deepest expression.
constexpr std::array<Limit, 12> limits = {{
    {SQLITE_LIMIT_LENGTH, 16 * 1024 * 1024}, // bytes of a value, and of a row: a DSP blob is far smaller
    {SQLITE_LIMIT_SQL_LENGTH, 64 * 1024},    // bytes: a group that names a thousand objects
    {SQLITE_LIMIT_COLUMN, 2000},
    {SQLITE_LIMIT_EXPR_DEPTH, 1000},
    {SQLITE_LIMIT_COMPOUND_SELECT, 500},
    {SQLITE_LIMIT_VDBE_OP, 250'000}, // of a compiled statement: they take memory before any budget counts it
    {SQLITE_LIMIT_FUNCTION_ARG, 127},
    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 50'000},
    {SQLITE_LIMIT_VARIABLE_NUMBER, 32'766}, // as SQLite is by default, and not as Debian's is
    {SQLITE_LIMIT_TRIGGER_DEPTH, 0},
    {SQLITE_LIMIT_WORKER_THREADS, 0},
}};

struct Setting {
    int id;
    int on;
};

constexpr std::array<Setting, 5> settings = {{
    {SQLITE_DBCONFIG_DEFENSIVE, 1},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0}, // views cannot call functions with side effects
    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
    {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
    {SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, 0},
}};

/// They look at nothing but the values that they are given. The table-valued PRAGMAs are there besides.
constexpr std::array<char const *, 3> harmlessModules = {"json_each", "json_tree", nullptr};

} // namespace

bool limitConnection(sqlite3 * database)
{
    for (Limit const & limit : limits)
        sqlite3_limit(database, limit.id, limit.value);
    return std::all_of(settings.begin(), settings.end(),
                       [database](Setting const & setting) {
                           return sqlite3_db_config(database, setting.id, setting.on, nullptr) == SQLITE_OK;
                       }) &&
           // Virtual tables are much code that trusts the ordinary tables it keeps its own structures in, and
           // some reach outside the database. No description needs one.
           sqlite3_drop_modules(database, const_cast<char const **>(harmlessModules.data())) == SQLITE_OK &&
           // A damaged page is found when it is read, not when its cells lead astray.
           sqlite3_exec(database, "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr) == SQLITE_OK;
}

} // namespace kestrova::hardening
