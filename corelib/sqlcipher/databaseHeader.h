#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <optional>

namespace kestrova::sqlcipher {

/// The first bytes of every plain SQLite file; the 0 at the end belongs to them.
constexpr std::array<unsigned char, 16> databaseMagic = {'S', 'Q', 'L', 'i', 't', 'e', ' ', 'f',
                                                         'o', 'r', 'm', 'a', 't', ' ', '3', 0};

constexpr std::size_t databaseHeaderSize = 100;

/// What the header of a plain SQLite file, or of a decrypted page 1, says about the file's layout.
struct DatabaseHeader {
    int pageSize;
    int reserve;                        ///< bytes unused by SQLite at the end of each page
    std::optional<quint32> statedPages; ///< absent when the last writer did not keep it up to date

    /// Pages of the database; for a file of \a fileSize bytes that states no number, as many as it takes to
    /// hold it.
    qint64 pageCount(qint64 fileSize) const;

    /// Whether the end of the file is missing. Bytes behind the last page are no harm: SQLite ignores them
    /// too.
    bool isCutShort(qint64 fileSize) const { return fileSize < pageCount(fileSize) * pageSize; }
};

/// Reads the header from databaseHeaderSize bytes. Nothing when they are not the start of a SQLite file.
std::optional<DatabaseHeader> readDatabaseHeader(unsigned char const * bytes);

} // namespace kestrova::sqlcipher
