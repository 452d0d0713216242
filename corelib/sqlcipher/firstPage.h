#pragma once

#include "sqlcipher/databaseHeader.h"
#include "sqlcipher/pageCodec.h"

#include <memory>
#include <optional>

namespace kestrova::sqlcipher {

/// What page 1 of a database file tells.
struct FirstPage {
    std::unique_ptr<PageCodec> codec; ///< for the file's pages; null when the file is plain
    DatabaseHeader header;
};

/// Reads page 1 from the first bytes of a file: largestPageSize of them, or all if the file has fewer. Finds
/// out by itself whether the file is plain and which format it has. Nothing when the bytes start no SQLite
/// file and no file encrypted with \a key.
std::optional<FirstPage> readFirstPage(unsigned char const * bytes, qint64 count, Key const & key);

} // namespace kestrova::sqlcipher
