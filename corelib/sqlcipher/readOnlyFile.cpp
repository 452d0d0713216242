#include "sqlcipher/readOnlyFile.h"

#include "sqlcipher/databaseKey.h"

#include <QFileInfo>
#include <QString>

#include <algorithm>

namespace kestrova::sqlcipher {

namespace {

constexpr bool acceptPlainDatabases = KESTROVA_ACCEPT_PLAIN_DATABASES;

} // namespace

ReadOnlyFile::ReadOnlyFile(sqlite3_vfs & vfs)
    : realVfs(vfs)
    , handleMemory(static_cast<std::size_t>(vfs.szOsFile) / sizeof(std::max_align_t) + 1)
    , handle(*reinterpret_cast<sqlite3_file *>(handleMemory.data()))
{}

ReadOnlyFile::~ReadOnlyFile()
{
    if (handle.pMethods)
        handle.pMethods->xClose(&handle);
}

int ReadOnlyFile::open(char const * name, int flags)
{
    // Opening a pipe would wait for a writer, perhaps for ever.
    if (!QFileInfo(QString::fromUtf8(name)).isFile())
        return SQLITE_CANTOPEN;

    int const opened = realVfs.xOpen(&realVfs, name, &handle, flags, nullptr);
    if (opened != SQLITE_OK)
        return opened;

    qint64 fileSize = 0;
    if (int const sized = size(fileSize); sized != SQLITE_OK)
        return sized;
    int const start = static_cast<int>(std::min<qint64>(fileSize, largestPageSize));
    if (int const read = readStored(storedPage.data(), start, 0); read != SQLITE_OK)
        return read;

    auto firstPage = readFirstPage(storedPage.data(), start, databaseKey);
    if (!firstPage || (!firstPage->codec && !acceptPlainDatabases))
        return SQLITE_NOTADB;
    if (firstPage->header.isCutShort(fileSize))
        return SQLITE_CORRUPT;
    codec = std::move(firstPage->codec);
    return SQLITE_OK;
}

int ReadOnlyFile::read(unsigned char * buffer, int count, qint64 offset)
{
    if (!codec)
        return readStored(buffer, count, offset);

    // SQLite reads parts of page 1 before it knows the size of the pages.
    int const pageSize = codec->format().pageSize;
    while (count > 0) {
        if (int const loaded = loadPage(static_cast<quint32>(offset / pageSize + 1)); loaded != SQLITE_OK)
            return loaded;
        int const start = static_cast<int>(offset % pageSize);
        int const part = std::min(count, pageSize - start);
        std::copy_n(plainPage.data() + start, part, buffer);
        buffer += part;
        offset += part;
        count -= part;
    }
    return SQLITE_OK;
}

int ReadOnlyFile::size(qint64 & bytes)
{
    sqlite3_int64 result = 0;
    int const code = handle.pMethods->xFileSize(&handle, &result);
    bytes = result;
    return code;
}

int ReadOnlyFile::readStored(unsigned char * buffer, int count, qint64 offset)
{
    int const code = handle.pMethods->xRead(&handle, buffer, count, offset);
    // A short read means zeros to SQLite, and that would be wrong data: the file has lost its end since it
    // was opened.
    return code == SQLITE_IOERR_SHORT_READ ? SQLITE_CORRUPT : code;
}

int ReadOnlyFile::loadPage(quint32 number)
{
    if (number == loadedPage)
        return SQLITE_OK;
    loadedPage = 0;
    int const pageSize = codec->format().pageSize;
    int const code = readStored(storedPage.data(), pageSize, qint64(number - 1) * pageSize);
    if (code != SQLITE_OK)
        return code;
    if (!codec->decrypt(number, storedPage.data(), plainPage.data()))
        return SQLITE_CORRUPT;
    loadedPage = number;
    return SQLITE_OK;
}

} // namespace kestrova::sqlcipher
