#include "hardening/statementBudget.h"

#include "hardening/touchedMemory.h"

#include <algorithm>
#include <memory>

namespace kestrova::hardening {

namespace {

using Clock = std::chrono::steady_clock;

/// So seldom that it costs nothing measurable, and so often that a statement of slow steps is stopped in
/// time.
constexpr int stepsPerCheck = 100;

/// A database that has brought along so many statements without an end may have thousands of them. What is
/// left still has to read the tables: an honest database with one such statement overruns at each reload.
constexpr int overrunsForgiven = 3;
constexpr sqlite3_int64 stepsAfterwards = 1'000'000;
constexpr std::chrono::seconds timeAfterwards{3};

/// By so many budgets all of the process's SQLite may grow, whoever takes them. What a statement takes of
/// memory that the process has had before cannot be told from what others take.
constexpr sqlite3_int64 budgetsOfTheProcess = 8;

/// Larger files are not read whole.
constexpr sqlite3_int64 largestPageCache = sqlite3_int64(256) * 1024 * 1024;

sqlite3_int64 fileSize(sqlite3 * database)
{
    sqlite3_file * file = nullptr;
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK && file &&
        file->pMethods)
        file->pMethods->xFileSize(file, &size);
    return size;
}

/// Watches over the statements of one connection, and lives as long as that is open.
class Watch {
public:
    Watch(sqlite3 * connection, StatementBudget const & statementBudget)
        : database(connection)
        , budget(statementBudget)
        , pageCache(std::min(fileSize(connection), largestPageCache))
    {}

    bool begin()
    {
        sqlite3_progress_handler(database, stepsPerCheck, onProgress, this);
        return sqlite3_trace_v2(database, SQLITE_TRACE_STMT | SQLITE_TRACE_ROW | SQLITE_TRACE_CLOSE, onTrace,
                                this) == SQLITE_OK;
    }

private:
    static int onTrace(unsigned int event, void * context, void * subject, void * text)
    {
        auto * const watch = static_cast<Watch *>(context);
        if (event == SQLITE_TRACE_STMT)
            watch->statementBegins(static_cast<sqlite3_stmt *>(subject), text);
        else if (event == SQLITE_TRACE_ROW)
            watch->rowIsGiven(static_cast<sqlite3_stmt *>(subject));
        else
            watch->end();
        return 0;
    }

    static int onProgress(void * context)
    {
        auto * const watch = static_cast<Watch *>(context);
        if (!watch->isExceeded())
            return 0;
        watch->noteOverrun();
        return 1;
    }

    /// Statements that take turns share one account, which the last one of them opened.
    void statementBegins(sqlite3_stmt * statement, void const * text)
    {
        // A statement that SQLite runs within another comes with a comment for a text. It is on the account
        // of the other one, which could go on for ever otherwise.
        if (text == sqlite3_sql(statement))
            checks = given = 0;
    }

    void rowIsGiven(sqlite3_stmt * row)
    {
        for (int column = 0; column < sqlite3_column_count(row); ++column)
            given += bytesOf(row, column);
        if (given > budget.memory) {
            noteOverrun();
            sqlite3_interrupt(database); // the next row fails
        }
    }

    void noteOverrun()
    {
        if (++overruns < overrunsForgiven)
            return;
        budget.steps = std::min(budget.steps, stepsAfterwards);
        budget.time = std::min<std::chrono::milliseconds>(budget.time, timeAfterwards);
    }

    static sqlite3_int64 bytesOf(sqlite3_stmt * row, int column)
    {
        constexpr sqlite3_int64 bytesOfVariant = 16;
        switch (sqlite3_column_type(row, column)) {
        case SQLITE_TEXT:
            return bytesOfVariant + sqlite3_column_bytes16(row, column); // as Qt is going to take it
        case SQLITE_BLOB:
            return bytesOfVariant + sqlite3_column_bytes(row, column);
        default:
            return bytesOfVariant;
        }
    }

    bool isExceeded()
    {
        if (checks++ == 0) {
            start = Clock::now();
            memoryAtStart = sqlite3_memory_used();
            touchedAtStart = bytesTouchedByThisThread();
        }
        return checks * stepsPerCheck > budget.steps || Clock::now() - start > budget.time ||
               takesTooMuchMemory();
    }

    /// What SQLite counts for a connection is its page cache and no more: no sorting, no recursion, no value.
    /// What it counts for the process is all of that, and the application's other connections besides. These
    /// work on other threads.
    bool takesTooMuchMemory() const
    {
        sqlite3_int64 const allowed = budget.memory + pageCache;
        sqlite3_int64 const grown = sqlite3_memory_used() - memoryAtStart;
        return grown > allowed && (bytesTouchedByThisThread() - touchedAtStart > allowed ||
                                   grown / budgetsOfTheProcess > allowed);
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
    sqlite3_int64 pageCache;
    int overruns = 0;
    // Of the statement that began last:
    sqlite3_int64 checks = 0;
    sqlite3_int64 given = 0; ///< bytes in its rows
    Clock::time_point start;
    sqlite3_int64 memoryAtStart = 0;
    sqlite3_int64 touchedAtStart = 0;
};

} // namespace

void holdToOpening(sqlite3 * database)
{
    constexpr int steps = 100'000;
    sqlite3_progress_handler(
        database, steps, [](void *) { return 1; }, nullptr);
}

bool holdToBudget(sqlite3 * database, StatementBudget const & budget)
{
    auto watch = std::make_unique<Watch>(database, budget);
    if (!watch->begin())
        return false;
    static_cast<void>(watch.release()); // it deletes itself when the connection is closed
    return true;
}

} // namespace kestrova::hardening
