#pragma once

#include <sqlite3.h>

#include <chrono>

namespace kestrova::hardening {

/// What one run of a statement may take. A statement that goes beyond is interrupted and fails.
struct StatementBudget {
    /// Of SQLite's virtual machine. A row of a million takes some twenty; a hundred million are done in a few
    /// seconds.
    sqlite3_int64 steps = 100'000'000;
    /// For steps that take long: on values of megabytes a single one takes milliseconds.
    std::chrono::milliseconds time = std::chrono::seconds(30);
    /// By which SQLite's memory may grow, in bytes: sorting and recursion hold their rows in memory. To this
    /// comes the size of the file, for the page cache.
    sqlite3_int64 memory = 256 * 1024 * 1024;
};

/// Holds each statement that begins on \a database to the budget, until the connection is closed. Takes
/// SQLite's progress and trace handlers of the connection. False when SQLite refuses.
bool holdToBudget(sqlite3 * database, StatementBudget const & budget = StatementBudget());

} // namespace kestrova::hardening
