#include "hardening/statementBudget.h"

#include <memory>

namespace kestrova::hardening {

namespace {

using Clock = std::chrono::steady_clock;

/// So seldom that it costs nothing measurable, and so often that a statement of slow steps is stopped in
/// time.
constexpr int stepsPerCheck = 1000;

/// Watches over the statements of one connection, and lives as long as that is open.
class Watch {
public:
    Watch(sqlite3 * connection, StatementBudget const & statementBudget)
        : database(connection)
        , budget(statementBudget)
    {}

    bool begin()
    {
        sqlite3_progress_handler(database, stepsPerCheck, onProgress, this);
        return sqlite3_trace_v2(database, SQLITE_TRACE_STMT | SQLITE_TRACE_CLOSE, onTrace, this) == SQLITE_OK;
    }

private:
    static int onTrace(unsigned int event, void * watch, void * subject, void * text)
    {
        if (event == SQLITE_TRACE_CLOSE)
            static_cast<Watch *>(watch)->end();
        else
            static_cast<Watch *>(watch)->statementBegins(static_cast<sqlite3_stmt *>(subject), text);
        return 0;
    }

    static int onProgress(void * watch) { return static_cast<Watch *>(watch)->isExceeded() ? 1 : 0; }

    /// Statements that take turns share one account, which the last one of them opened.
    void statementBegins(sqlite3_stmt * statement, void const * text)
    {
        // A statement that SQLite runs within another comes with a comment for a text. It is on the account
        // of the other one, which could go on for ever otherwise.
        if (text == sqlite3_sql(statement))
            checks = 0;
    }

    bool isExceeded()
    {
        if (checks++ == 0) {
            start = Clock::now();
            memoryAtStart = sqlite3_memory_used();
        }
        return checks * stepsPerCheck > budget.steps || Clock::now() - start > budget.time ||
               sqlite3_memory_used() - memoryAtStart > budget.memory;
    }

    /// SQLite says that a connection is to be closed before it looks for unfinished statements, and then may
    /// keep it. Such a connection goes on without a budget.
    void end()
    {
        sqlite3_progress_handler(database, 0, nullptr, nullptr);
        sqlite3_trace_v2(database, 0, nullptr, nullptr);
        delete this;
    }

    sqlite3 * database;
    StatementBudget budget;
    sqlite3_int64 checks = 0; ///< of the statement that began last
    Clock::time_point start;
    sqlite3_int64 memoryAtStart = 0;
};

sqlite3_int64 fileSize(sqlite3 * database)
{
    sqlite3_file * file = nullptr;
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK && file &&
        file->pMethods)
        file->pMethods->xFileSize(file, &size);
    return size;
}

} // namespace

bool holdToBudget(sqlite3 * database, StatementBudget const & budget)
{
    StatementBudget withPageCache = budget;
    withPageCache.memory += fileSize(database);
    auto watch = std::make_unique<Watch>(database, withPageCache);
    if (!watch->begin())
        return false;
    static_cast<void>(watch.release()); // it deletes itself when the connection is closed
    return true;
}

} // namespace kestrova::hardening
