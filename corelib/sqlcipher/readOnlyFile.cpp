#include "sqlcipher/readOnlyFile.h"

#include "sqlcipher/databaseKey.h"

#include <QFileInfo>
#include <QString>

#include <algorithm>

namespace kestrova::sqlcipher {

namespace {

constexpr bool acceptPlainDatabases = KESTROVA_ACCEPT_PLAIN_DATABASES;

/// The versions of the file format, 2 with a write-ahead log, stand at these offsets in the header. SQLite
/// would open the log and a file of shared memory beside the database, which nobody may write.
void hideWriteAheadLog(unsigned char * buffer, int count, qint64 offset)
{
    for (qint64 const place : {18, 19}) {
        if (place >= offset && place < offset + count && buffer[place - offset] == 2)
            buffer[place - offset] = 1;
    }
}

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
    PageBytes bytes;
    int const start = static_cast<int>(std::min<qint64>(fileSize, largestPageSize));
    if (int const read = readStored(bytes.data(), start, 0); read != SQLITE_OK)
        return read;

    auto contents = readFirstPage(bytes.data(), start, databaseKey);
    if (!contents || (!contents->codec && !acceptPlainDatabases))
        return SQLITE_NOTADB;
    if (contents->header.isCutShort(fileSize))
        return SQLITE_CORRUPT;
    codec = std::move(contents->codec);
    return SQLITE_OK;
}

int ReadOnlyFile::read(unsigned char * buffer, int count, qint64 offset)
{
    int const code = codec ? readDecrypted(buffer, count, offset) : readStored(buffer, count, offset);
    if (code == SQLITE_OK)
        hideWriteAheadLog(buffer, count, offset);
    return code;
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

int ReadOnlyFile::readDecrypted(unsigned char * buffer, int count, qint64 offset)
{
    // SQLite reads parts of page 1 before it knows the size of the pages.
    int const pageSize = codec->format().pageSize;
    while (count > 0) {
        PageBytes page;
        if (int const code = readPage(static_cast<quint32>(offset / pageSize + 1), page); code != SQLITE_OK)
            return code;
        int const start = static_cast<int>(offset % pageSize);
        int const part = std::min(count, pageSize - start);
        std::copy_n(page.data() + start, part, buffer);
        buffer += part;
        offset += part;
        count -= part;
    }
    return SQLITE_OK;
}

int ReadOnlyFile::readPage(quint32 number, PageBytes & plain)
{
    PageBytes stored;
    int const pageSize = codec->format().pageSize;
    int const code = readStored(stored.data(), pageSize, qint64(number - 1) * pageSize);
    if (code != SQLITE_OK)
        return code;
    // Before each statement SQLite looks into page 1 whether the file has changed. Mostly it has not, and
    // decrypting costs ten times as much as reading.
    if (number == 1 && firstPage &&
        std::equal(stored.begin(), stored.begin() + pageSize, firstPage->stored.begin())) {
        plain = firstPage->plain;
        return SQLITE_OK;
    }
    if (!codec->decrypt(number, stored.data(), plain.data()))
        return SQLITE_CORRUPT;
    if (number == 1)
        firstPage = Page{stored, plain};
    return SQLITE_OK;
}

} // namespace kestrova::sqlcipher
