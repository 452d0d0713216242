#include "sqlcipher/readOnlyVfs.h"

#include "sqlcipher/readOnlyFile.h"

#include <QByteArray>

#include <algorithm>
#include <new>

namespace kestrova::sqlcipher {

namespace {

/// Another one for each library in the process that holds this code, since each has a key of its own.
char const * vfsName()
{
    static QByteArray const name =
        "kestrova-readonly-" + QByteArray::number(reinterpret_cast<quintptr>(&vfsName), 16);
    return name.constData();
}

/// What SQLite hands to the functions below for a main database.
struct DatabaseHandle : sqlite3_file {
    ReadOnlyFile * file;
};

ReadOnlyFile & fileOf(sqlite3_file * handle)
{
    return *static_cast<DatabaseHandle *>(handle)->file;
}

int closeFile(sqlite3_file * handle)
{
    delete static_cast<DatabaseHandle *>(handle)->file;
    return SQLITE_OK;
}

int readFile(sqlite3_file * handle, void * buffer, int count, sqlite3_int64 offset)
{
    return fileOf(handle).read(static_cast<unsigned char *>(buffer), count, offset);
}

int fileSize(sqlite3_file * handle, sqlite3_int64 * bytes)
{
    qint64 result = 0;
    int const code = fileOf(handle).size(result);
    *bytes = result;
    return code;
}

sqlite3_io_methods databaseMethods()
{
    sqlite3_io_methods methods = {};
    methods.iVersion = 1; // without memory mapping and shared memory: both would bypass the decryption
    methods.xClose = closeFile;
    methods.xRead = readFile;
    methods.xWrite = [](sqlite3_file *, void const *, int, sqlite3_int64) { return SQLITE_READONLY; };
    methods.xTruncate = [](sqlite3_file *, sqlite3_int64) { return SQLITE_READONLY; };
    methods.xSync = [](sqlite3_file *, int) { return SQLITE_OK; };
    methods.xFileSize = fileSize;
    methods.xLock = [](sqlite3_file *, int) { return SQLITE_OK; };
    methods.xUnlock = [](sqlite3_file *, int) { return SQLITE_OK; };
    methods.xCheckReservedLock = [](sqlite3_file *, int * isReserved) {
        *isReserved = 0;
        return SQLITE_OK;
    };
    methods.xFileControl = [](sqlite3_file *, int, void *) { return SQLITE_NOTFOUND; };
    methods.xSectorSize = [](sqlite3_file *) { return 0; }; // SQLite's default
    // Not immutable, though that would spare the look at page 1 before each statement: pages that SQLite
    // keeps from before a change would be mixed with those that it reads afterwards.
    methods.xDeviceCharacteristics = [](sqlite3_file *) { return 0; };
    return methods;
}

sqlite3_vfs & realVfs(sqlite3_vfs * vfs)
{
    return *static_cast<sqlite3_vfs *>(vfs->pAppData);
}

int openDatabase(sqlite3_vfs * vfs, char const * name, sqlite3_file * handle, int flags, int * flagsOut)
{
    static sqlite3_io_methods const methods = databaseMethods();
    handle->pMethods = nullptr;
    // Journals and temporary files are never wanted: they would be written, and hold decrypted pages.
    if (!(flags & SQLITE_OPEN_MAIN_DB) || !(flags & SQLITE_OPEN_READONLY))
        return SQLITE_CANTOPEN;
    try {
        auto file = std::make_unique<ReadOnlyFile>(realVfs(vfs));
        if (int const opened = file->open(name, flags); opened != SQLITE_OK)
            return opened;
        static_cast<DatabaseHandle *>(handle)->file = file.release();
    } catch (std::bad_alloc const &) { // must not pass through SQLite's C code
        return SQLITE_NOMEM;
    }
    handle->pMethods = &methods;
    if (flagsOut)
        *flagsOut = flags;
    return SQLITE_OK;
}

/// Beside a database SQLite looks for a journal and a log before each statement. None may be played back.
int noFile(sqlite3_vfs *, char const *, int, int * exists)
{
    *exists = 0;
    return SQLITE_OK;
}

/// Hands a call to the same function of the real file system.
template <auto Function, typename Result, typename... Arguments>
Result forward(sqlite3_vfs * vfs, Arguments... arguments)
{
    sqlite3_vfs & real = realVfs(vfs);
    return (real.*Function)(&real, arguments...);
}

sqlite3_vfs vfsOn(sqlite3_vfs & real)
{
    sqlite3_vfs vfs = {};
    vfs.iVersion = 1;
    vfs.szOsFile = std::max(real.szOsFile, static_cast<int>(sizeof(DatabaseHandle)));
    vfs.mxPathname = real.mxPathname;
    vfs.zName = vfsName();
    vfs.pAppData = &real;
    vfs.xOpen = openDatabase;
    vfs.xDelete = [](sqlite3_vfs *, char const *, int) { return SQLITE_IOERR_DELETE; };
    vfs.xAccess = noFile;
    vfs.xFullPathname = forward<&sqlite3_vfs::xFullPathname>;
    vfs.xDlOpen = forward<&sqlite3_vfs::xDlOpen>;
    vfs.xDlError = forward<&sqlite3_vfs::xDlError>;
    vfs.xDlSym = forward<&sqlite3_vfs::xDlSym>;
    vfs.xDlClose = forward<&sqlite3_vfs::xDlClose>;
    vfs.xRandomness = forward<&sqlite3_vfs::xRandomness>;
    vfs.xSleep = forward<&sqlite3_vfs::xSleep>;
    vfs.xCurrentTime = forward<&sqlite3_vfs::xCurrentTime>;
    vfs.xGetLastError = forward<&sqlite3_vfs::xGetLastError>;
    return vfs;
}

} // namespace

char const * readOnlyVfs()
{
    static sqlite3_vfs * const real = sqlite3_vfs_find(nullptr);
    if (!real)
        return nullptr;
    static sqlite3_vfs vfs = vfsOn(*real);
    static int const registered = sqlite3_vfs_register(&vfs, 0);
    return registered == SQLITE_OK ? vfs.zName : nullptr;
}

} // namespace kestrova::sqlcipher
