#include "support/faultyReads.h"

#include <sqlite3.h>

#include <stdexcept>

namespace kestrova::test {

namespace {

int reads = 0;
int faultyRead = 0;
ReadFault kindOfFault = ReadFault::Error;

/// What SQLite holds for an open file; behind it lies the handle of the real file system.
struct FaultyFile : sqlite3_file {
    sqlite3_file * real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

sqlite3_file * realFile(sqlite3_file * file)
{
    return static_cast<FaultyFile *>(file)->real();
}

int readFile(sqlite3_file * file, void * buffer, int count, sqlite3_int64 offset)
{
    int const code = realFile(file)->pMethods->xRead(realFile(file), buffer, count, offset);
    if (++reads != faultyRead)
        return code;
    auto * const bytes = static_cast<unsigned char *>(buffer);
    switch (kindOfFault) {
    case ReadFault::Error:
        return SQLITE_IOERR_READ;
    case ReadFault::Short:
        for (int i = count / 2; i < count; ++i)
            bytes[i] = 0; // as SQLite wants it of a short read
        return SQLITE_IOERR_SHORT_READ;
    case ReadFault::Damage:
        bytes[count / 3] ^= 0x10U;
        return code;
    }
    return code;
}

/// Hands a call to the same function of the real file.
template <auto Function, typename Result, typename... Arguments>
Result forward(sqlite3_file * file, Arguments... arguments)
{
    return (realFile(file)->pMethods->*Function)(realFile(file), arguments...);
}

sqlite3_io_methods faultyMethods()
{
    using Methods = sqlite3_io_methods;
    Methods methods = {};
    methods.iVersion = 1;
    methods.xRead = readFile;
    methods.xClose = forward<&Methods::xClose>;
    methods.xWrite = forward<&Methods::xWrite>;
    methods.xTruncate = forward<&Methods::xTruncate>;
    methods.xSync = forward<&Methods::xSync>;
    methods.xFileSize = forward<&Methods::xFileSize>;
    methods.xLock = forward<&Methods::xLock>;
    methods.xUnlock = forward<&Methods::xUnlock>;
    methods.xCheckReservedLock = forward<&Methods::xCheckReservedLock>;
    methods.xFileControl = forward<&Methods::xFileControl>;
    methods.xSectorSize = forward<&Methods::xSectorSize>;
    methods.xDeviceCharacteristics = forward<&Methods::xDeviceCharacteristics>;
    return methods;
}

sqlite3_vfs * realVfs = nullptr;

int openFile(sqlite3_vfs *, char const * name, sqlite3_file * file, int flags, int * flagsOut)
{
    if (!(flags & SQLITE_OPEN_READONLY) || !(flags & SQLITE_OPEN_MAIN_DB))
        return realVfs->xOpen(realVfs, name, file, flags, flagsOut);
    static sqlite3_io_methods const methods = faultyMethods();
    file->pMethods = nullptr;
    int const opened = realVfs->xOpen(realVfs, name, realFile(file), flags, flagsOut);
    if (opened == SQLITE_OK)
        file->pMethods = &methods;
    return opened;
}

} // namespace

void FaultyReads::install()
{
    if (realVfs)
        return;
    realVfs = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs vfs = *realVfs;
    vfs.zName = "kestrova-faulty";
    vfs.szOsFile += static_cast<int>(sizeof(FaultyFile));
    vfs.xOpen = openFile;
    if (sqlite3_vfs_register(&vfs, 1) != SQLITE_OK)
        throw std::runtime_error("SQLite takes no file system");
}

void FaultyReads::arm(int number, ReadFault fault)
{
    reads = 0;
    faultyRead = number;
    kindOfFault = fault;
}

int FaultyReads::count()
{
    return reads;
}

} // namespace kestrova::test
