#pragma once

#include "sqlcipher/firstPage.h"

#include <sqlite3.h>

#include <array>
#include <memory>
#include <optional>
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

    /// Reads any range of the plain database, as it is in the file now. A header that asks for a write-ahead
    /// log asks for none when it gets here.
    int read(unsigned char * buffer, int count, qint64 offset);

    int size(qint64 & bytes);

private:
    using PageBytes = std::array<unsigned char, largestPageSize>;

    struct Page {
        PageBytes stored;
        PageBytes plain;
    };

    int readStored(unsigned char * buffer, int count, qint64 offset);
    int readDecrypted(unsigned char * buffer, int count, qint64 offset);
    int readPage(quint32 number, PageBytes & plain);

    sqlite3_vfs & realVfs;
    std::vector<std::max_align_t> handleMemory;
    sqlite3_file & handle;            // lies in handleMemory
    std::unique_ptr<PageCodec> codec; // null for a plain file
    std::optional<Page> firstPage;    // as it was read last
};

} // namespace kestrova::sqlcipher
