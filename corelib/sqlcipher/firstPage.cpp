#include "sqlcipher/firstPage.h"

#include <algorithm>

namespace kestrova::sqlcipher {

namespace {

std::optional<FirstPage> readEncryptedFirstPage(unsigned char const * bytes, PageFormat const & format,
                                                Key const & key)
{
    Salt salt;
    std::copy_n(bytes, saltSize, salt.begin());
    auto codec = std::make_unique<PageCodec>(format, key, salt);
    std::array<unsigned char, largestPageSize> plain;
    if (!codec->decrypt(1, bytes, plain.data()))
        return {};
    auto const header = readDatabaseHeader(plain.data());
    // Newer tools that write version 3 let the header reserve as much as version 4 needs, and leave the
    // difference, which lies within the ciphertext, unused.
    if (!header || header->pageSize != format.pageSize || header->reserve < format.reserve)
        return {};
    return FirstPage{std::move(codec), *header};
}

} // namespace

std::optional<FirstPage> readFirstPage(unsigned char const * bytes, qint64 count, Key const & key)
{
    if (count < static_cast<qint64>(databaseHeaderSize))
        return {};
    if (auto const header = readDatabaseHeader(bytes))
        return FirstPage{nullptr, *header};
    for (PageFormat const & format : pageFormats) {
        if (count < format.pageSize)
            continue;
        if (auto page = readEncryptedFirstPage(bytes, format, key))
            return page;
    }
    return {};
}

} // namespace kestrova::sqlcipher
