#include "sqlcipher/databaseHeader.h"

#include <QtEndian>

#include <algorithm>

namespace kestrova::sqlcipher {

namespace {

// Offsets in the header, from the file format of SQLite.
constexpr int pageSizeOffset = 16;
constexpr int reserveOffset = 20;
constexpr int changeCounterOffset = 24;
constexpr int pageCountOffset = 28;
constexpr int versionValidForOffset = 92;

bool isPowerOfTwo(int number)
{
    return (number & (number - 1)) == 0;
}

} // namespace

qint64 DatabaseHeader::pageCount(qint64 fileSize) const
{
    return statedPages ? *statedPages : (fileSize + pageSize - 1) / pageSize;
}

std::optional<DatabaseHeader> readDatabaseHeader(unsigned char const * bytes)
{
    if (!std::equal(databaseMagic.begin(), databaseMagic.end(), bytes))
        return {};

    int const storedPageSize = qFromBigEndian<quint16>(bytes + pageSizeOffset);
    int const pageSize = storedPageSize == 1 ? 65536 : storedPageSize; // 65536 has no room in 16 bits
    if (pageSize < 512 || !isPowerOfTwo(pageSize))
        return {};

    DatabaseHeader header{pageSize, bytes[reserveOffset], {}};
    auto const pages = qFromBigEndian<quint32>(bytes + pageCountOffset);
    if (pages != 0 && std::equal(bytes + changeCounterOffset, bytes + changeCounterOffset + 4,
                                 bytes + versionValidForOffset))
        header.statedPages = pages;
    return header;
}

} // namespace kestrova::sqlcipher
