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

constexpr std::array<Function, 6> functions = {{
    {"instr", 2, "SELECT instr(?1, ?2)"},
    {"json_patch", 2, "SELECT json_patch(?1, ?2)"},
    {"ltrim", 2, "SELECT ltrim(?1, ?2)"},
    {"replace", 3, "SELECT replace(?1, ?2, ?3)"},
    {"rtrim", 2, "SELECT rtrim(?1, ?2)"},
    {"trim", 2, "SELECT trim(?1, ?2)"},
}};

/// In bytes times bytes: 100,000 bytes of text to 1000 to look for. The slowest of the functions takes a
/// second.
constexpr sqlite3_int64 largestProduct = 100'000'000;

/// SQLite's own function behind a bound. It has replaced that function on its connection, and calls it on
/// another, which is opened when it is first needed.
class BoundedFunction {
public:
    BoundedFunction(Function const & replaced, int lengthLimit)
        : function(replaced)
        , longest(lengthLimit)
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
        if (!database && sqlite3_open(":memory:", &database) == SQLITE_OK)
            sqlite3_limit(database, SQLITE_LIMIT_LENGTH, longest);
        return statement || sqlite3_prepare_v2(database, function.call, -1, &statement, nullptr) == SQLITE_OK;
    }

    Function const & function;
    int longest;
    sqlite3 * database = nullptr;
    sqlite3_stmt * statement = nullptr;
};

bool bound(sqlite3 * database, Function const & function)
{
    auto bounded =
        std::make_unique<BoundedFunction>(function, sqlite3_limit(database, SQLITE_LIMIT_LENGTH, -1));
    // Innocuous, as SQLite's own are: views may call them.
    return sqlite3_create_function_v2(database, function.name, function.argumentCount,
                                      SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                                      bounded.release(), BoundedFunction::call, nullptr, nullptr,
                                      BoundedFunction::destroy) ==
           SQLITE_OK; // which is called without success too
}

} // namespace

bool boundFunctions(sqlite3 * database)
{
    return std::all_of(functions.begin(), functions.end(),
                       [database](Function const & function) { return bound(database, function); });
}

} // namespace kestrova::hardening
