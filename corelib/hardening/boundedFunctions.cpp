#include "hardening/boundedFunctions.h"

#include <algorithm>
#include <array>
#include <memory>

namespace kestrova::hardening {

namespace {

struct Function {
    char const * name;
    int argumentCount;
    char const * call;
};

constexpr std::array<Function, 9> functions = {{
    {"glob", 2, "SELECT glob(?1, ?2)"},
    {"instr", 2, "SELECT instr(?1, ?2)"},
    {"json_patch", 2, "SELECT json_patch(?1, ?2)"},
    {"like", 2, "SELECT like(?1, ?2)"},
    {"like", 3, "SELECT like(?1, ?2, ?3)"},
    {"ltrim", 2, "SELECT ltrim(?1, ?2)"},
    {"replace", 3, "SELECT replace(?1, ?2, ?3)"},
    {"rtrim", 2, "SELECT rtrim(?1, ?2)"},
    {"trim", 2, "SELECT trim(?1, ?2)"},
}};

/// In bytes times bytes: 100,000 bytes of text to 100 to look for. The slowest of the functions takes a tenth
/// of a second.
constexpr sqlite3_int64 largestProduct = 10'000'000;

/// Innocuous: views may call them.
constexpr int asSqlitesOwn = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

/// SQLite's own function behind a bound. It has replaced that function on its connection, and calls it on
/// another, which is opened when it is first needed.
class BoundedFunction {
public:
    BoundedFunction(sqlite3 * connection, Function const & replaced)
        : function(replaced)
        , longestValue(sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, -1))
        , longestPattern(sqlite3_limit(connection, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, -1))
    {}

    ~BoundedFunction()
    {
        sqlite3_finalize(statement);
        sqlite3_close(database);
    }

    BoundedFunction(BoundedFunction const &) = delete;
    BoundedFunction & operator=(BoundedFunction const &) = delete;

    static void call(sqlite3_context * context, int, sqlite3_value ** arguments)
    {
        static_cast<BoundedFunction *>(sqlite3_user_data(context))->answer(context, arguments);
    }

    static void destroy(void * function) { delete static_cast<BoundedFunction *>(function); }

private:
    void answer(sqlite3_context * context, sqlite3_value ** arguments)
    {
        sqlite3_int64 const product =
            sqlite3_int64(sqlite3_value_bytes(arguments[0])) * sqlite3_value_bytes(arguments[1]);
        if (product > largestProduct)
            return sqlite3_result_error_toobig(context);
        if (!isReady())
            return sqlite3_result_error_nomem(context);
        for (int i = 0; i < function.argumentCount; ++i)
            sqlite3_bind_value(statement, i + 1, arguments[i]);
        if (sqlite3_step(statement) == SQLITE_ROW)
            sqlite3_result_value(context, sqlite3_column_value(statement, 0));
        else
            sqlite3_result_error(context, sqlite3_errmsg(database), -1);
        sqlite3_reset(statement);
        sqlite3_clear_bindings(statement); // the values may be large
    }

    bool isReady()
    {
        if (!database && sqlite3_open(":memory:", &database) == SQLITE_OK) {
            sqlite3_limit(database, SQLITE_LIMIT_LENGTH, longestValue);
            sqlite3_limit(database, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, longestPattern);
        }
        return statement || sqlite3_prepare_v2(database, function.call, -1, &statement, nullptr) == SQLITE_OK;
    }

    Function const & function;
    int longestValue;
    int longestPattern;
    sqlite3 * database = nullptr;
    sqlite3_stmt * statement = nullptr;
};

bool bound(sqlite3 * database, Function const & function)
{
    auto bounded = std::make_unique<BoundedFunction>(database, function);
    return sqlite3_create_function_v2(database, function.name, function.argumentCount, asSqlitesOwn,
                                      bounded.release(), BoundedFunction::call, nullptr, nullptr,
                                      BoundedFunction::destroy) ==
           SQLITE_OK; // which is called without success too
}

/// The rows that "count(*)" has seen so far.
template <int Step>
void countRow(sqlite3_context * context, int, sqlite3_value **)
{
    if (auto * const rows =
            static_cast<sqlite3_int64 *>(sqlite3_aggregate_context(context, sizeof(sqlite3_int64))))
        *rows += Step;
    else
        sqlite3_result_error_nomem(context);
}

void giveCount(sqlite3_context * context)
{
    auto const * const rows = static_cast<sqlite3_int64 const *>(sqlite3_aggregate_context(context, 0));
    sqlite3_result_int64(context, rows ? *rows : 0);
}

/// SQLite's own "count(*)" walks through a whole table in one step, and pages that a hostile file refers to
/// again and again make that step endless. Of another function it does not know that it only counts.
bool countInSteps(sqlite3 * database)
{
    return sqlite3_create_window_function(database, "count", 0, asSqlitesOwn, nullptr, countRow<1>, giveCount,
                                          giveCount, countRow<-1>, nullptr) == SQLITE_OK;
}

} // namespace

bool boundFunctions(sqlite3 * database)
{
    return std::all_of(functions.begin(), functions.end(),
                       [database](Function const & function) { return bound(database, function); }) &&
           countInSteps(database);
}

} // namespace kestrova::hardening
