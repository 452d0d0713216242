#include "hardening/statementRules.h"

#include <algorithm>
#include <array>

namespace kestrova::hardening {

namespace {

/// These load code, or take addresses of code as values.
constexpr std::array<char const *, 2> refusedFunctions = {"load_extension", "fts3_tokenizer"};

/// Their argument is the name of a table or an index.
constexpr std::array<char const *, 8> pragmasOfSchema = {
    "foreign_key_check", "foreign_key_list", "index_info", "index_list",
    "index_xinfo",       "table_info",       "table_list", "table_xinfo"};

/// They read when they have no argument, and some of them set something when they have one. Others act
/// without one: case_sensitive_like, incremental_vacuum, optimize, shrink_memory, wal_checkpoint.
constexpr std::array<char const *, 53> pragmasOfDatabase = {"analysis_limit",
                                                            "application_id",
                                                            "auto_vacuum",
                                                            "automatic_index",
                                                            "busy_timeout",
                                                            "cache_size",
                                                            "cache_spill",
                                                            "cell_size_check",
                                                            "checkpoint_fullfsync",
                                                            "collation_list",
                                                            "compile_options",
                                                            "count_changes",
                                                            "data_version",
                                                            "database_list",
                                                            "default_cache_size",
                                                            "defer_foreign_keys",
                                                            "empty_result_callbacks",
                                                            "encoding",
                                                            "foreign_keys",
                                                            "freelist_count",
                                                            "full_column_names",
                                                            "fullfsync",
                                                            "function_list",
                                                            "hard_heap_limit",
                                                            "ignore_check_constraints",
                                                            "integrity_check",
                                                            "journal_mode",
                                                            "journal_size_limit",
                                                            "legacy_alter_table",
                                                            "locking_mode",
                                                            "max_page_count",
                                                            "mmap_size",
                                                            "module_list",
                                                            "page_count",
                                                            "page_size",
                                                            "pragma_list",
                                                            "query_only",
                                                            "quick_check",
                                                            "read_uncommitted",
                                                            "recursive_triggers",
                                                            "reverse_unordered_selects",
                                                            "schema_version",
                                                            "secure_delete",
                                                            "short_column_names",
                                                            "soft_heap_limit",
                                                            "synchronous",
                                                            "temp_store",
                                                            "temp_store_directory",
                                                            "threads",
                                                            "trusted_schema",
                                                            "user_version",
                                                            "wal_autocheckpoint",
                                                            "writable_schema"};

/// Each row of another table would start the check of a whole file, most of it within a single step, where no
/// budget can stop it.
constexpr std::array<char const *, 3> refusedTables = {"pragma_foreign_key_check", "pragma_integrity_check",
                                                       "pragma_quick_check"};

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
    case SQLITE_RECURSIVE:
        return true;
    case SQLITE_READ:
        return !contains(refusedTables, first);
    case SQLITE_UPDATE:
        // SQLite asks so when it makes room in memory for a table-valued function. A statement that would do
        // it in earnest finds the table read-only.
        return sqlite3_stricmp(first, "sqlite_master") == 0;
    case SQLITE_FUNCTION:
        return !contains(refusedFunctions, second);
    case SQLITE_PRAGMA:
        return contains(pragmasOfSchema, first) || (!second && contains(pragmasOfDatabase, first));
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
