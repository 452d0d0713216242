#pragma once

#include <sqlite3.h>

#include <chrono>

namespace kestrova::hardening {

/// What one run of a statement may take, without its preparation. A statement that goes beyond is interrupted
/// and fails. After three of them, each further one on the connection has a million steps and three seconds.
struct StatementBudget {
    /// Of SQLite's virtual machine. A row of a million takes some twenty; a hundred million are done in a few
    /// seconds.
    sqlite3_int64 steps = 100'000'000;
    /// For steps that take long: on values of megabytes a single one takes milliseconds.
    std::chrono::milliseconds time = std::chrono::seconds(30);
    /// In bytes. By so much SQLite's memory may grow, beyond the size of the file for the page cache: sorting
    /// and recursion hold their rows in memory. What other threads do with SQLite meanwhile does not count,
    /// unless all of it together is eight times as much. And so much may the rows hold that it gives, for
    /// whoever collects them.
    sqlite3_int64 memory = sqlite3_int64(512) * 1024 * 1024;
};

/// Lets a statement on \a database, and the reading of its schema, take a hundred thousand steps at most:
/// enough for a schema of thousands of tables. For the time until holdToBudget(), whose budget is meant for
/// the rows.
void holdToOpening(sqlite3 * database);

/// Holds each statement that begins on \a database to the budget, until the connection is closed. Takes
/// SQLite's progress and trace handlers of the connection. False when SQLite refuses.
bool holdToBudget(sqlite3 * database, StatementBudget const & budget = StatementBudget());

} // namespace kestrova::hardening
