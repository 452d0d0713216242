#include "hardening/boundedViews.h"

namespace kestrova::hardening {

namespace {

constexpr int largestViews = 32 * 1024;

// Whatever is not known to be harmless counts as a view, since the column "type" may lie.
constexpr char sizeOfViews[] = "SELECT total(length(CAST(sql AS BLOB))) FROM sqlite_master WHERE NOT "
                               "(sql LIKE 'CREATE TABLE %' OR sql LIKE 'CREATE INDEX %' OR "
                               "sql LIKE 'CREATE UNIQUE INDEX %')";

} // namespace

bool hasBoundedViews(sqlite3 * database)
{
    sqlite3_stmt * statement = nullptr;
    bool const isBounded = sqlite3_prepare_v2(database, sizeOfViews, -1, &statement, nullptr) == SQLITE_OK &&
                           sqlite3_step(statement) == SQLITE_ROW &&
                           sqlite3_column_double(statement, 0) <= largestViews;
    sqlite3_finalize(statement);
    return isBounded;
}

} // namespace kestrova::hardening
