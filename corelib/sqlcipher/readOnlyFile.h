#pragma once

#include "sqlcipher/firstPage.h"

#include <sqlite3.h>

#include <vector>

namespace kestrova::sqlcipher {

/// One database file, open for reading through a handle of SQLite's own file system. The results are SQLite's
/// codes.
class ReadOnlyFile {
public:
    explicit ReadOnlyFile(sqlite3_vfs & realVfs);
    ~ReadOnlyFile();
    ReadOnlyFile(ReadOnlyFile const &) = delete;
    ReadOnlyFile & operator=(ReadOnlyFile const &) = delete;

    /// Opens the file and checks its first page. \a name and \a flags are those that SQLite gave to xOpen.
    int open(char const * name, int flags);

    /// Reads any range of the plain database.
    int read(unsigned char * buffer, int count, qint64 offset);

    int size(qint64 & bytes);

private:
    int readStored(unsigned char * buffer, int count, qint64 offset);
    int loadPage(quint32 number);

    sqlite3_vfs & realVfs;
    std::vector<std::max_align_t> handleMemory;
    sqlite3_file & handle;            // lies in handleMemory
    std::unique_ptr<PageCodec> codec; // null for a plain file
    std::array<unsigned char, largestPageSize> storedPage;
    std::array<unsigned char, largestPageSize> plainPage; // the page loadedPage
    quint32 loadedPage = 0;                               // 0: none
};

} // namespace kestrova::sqlcipher
