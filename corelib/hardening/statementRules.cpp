#include "hardening/statementRules.h"

#include <algorithm>
#include <array>

namespace kestrova::hardening {

namespace {

/// These load code, or take addresses of code as values.
constexpr std::array<char const *, 2> refusedFunctions = {"load_extension", "fts3_tokenizer"};

/// Their argument is the name of a table or an index.
constexpr std::array<char const *, 4> pragmasOfSchema = {"table_info", "table_xinfo", "index_list",
                                                         "index_info"};

/// They read when they have no argument, and some of them set something when they have one.
constexpr std::array<char const *, 9> pragmasOfDatabase = {"cache_size",     "encoding",   "integrity_check",
                                                           "page_count",     "page_size",  "quick_check",
                                                           "schema_version", "temp_store", "user_version"};

template <std::size_t Count>
bool contains(std::array<char const *, Count> const & names, char const * name)
{
    return std::any_of(names.begin(), names.end(),
                       [name](char const * known) { return sqlite3_stricmp(known, name) == 0; });
}

bool isAllowed(int action, char const * first, char const * second)
{
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_RECURSIVE:
        return true;
    case SQLITE_FUNCTION:
        return !contains(refusedFunctions, second);
    case SQLITE_PRAGMA:
        return second ? contains(pragmasOfSchema, first) : contains(pragmasOfDatabase, first);
    default: // also what later versions of SQLite can do
        return false;
    }
}

int authorize(void *, int action, char const * first, char const * second, char const *, char const *)
{
    return isAllowed(action, first, second) ? SQLITE_OK : SQLITE_DENY;
}

} // namespace

bool allowReadingOnly(sqlite3 * database)
{
    return sqlite3_set_authorizer(database, authorize, nullptr) == SQLITE_OK;
}

} // namespace kestrova::hardening
