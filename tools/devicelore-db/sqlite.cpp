#include "sqlite.h"

#include "common/failure.h"

using namespace kestrova::tools;

namespace kestrova::authoring {

DatabaseHandle openDatabase(char const * name, int flags, char const * vfs)
{
    sqlite3 * handle = nullptr;
    int const code = sqlite3_open_v2(name, &handle, flags, vfs);
    DatabaseHandle database(handle);
    if (code != SQLITE_OK)
        throw Failure(ExitDatabase, errorText(database));
    return database;
}

QString errorText(DatabaseHandle const & database)
{
    return QString::fromUtf8(sqlite3_errmsg(database.get()));
}

} // namespace kestrova::authoring
