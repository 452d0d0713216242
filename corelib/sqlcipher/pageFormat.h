#pragma once

#include <array>

namespace kestrova::sqlcipher {

inline constexpr int keySize = 32;
inline constexpr int saltSize = 16;
inline constexpr int ivSize = 16;

using Key = std::array<unsigned char, keySize>;
using Salt = std::array<unsigned char, saltSize>;

/// How one version of the file format lays out a page: ciphertext, IV, HMAC, padding. What follows the
/// ciphertext fills the bytes that SQLite reserves at the end of each page. Page 1 begins with the salt in
/// place of SQLite's magic bytes.
struct PageFormat {
    int version;
    int pageSize;
    int reserve;            ///< bytes at the end of a page for IV, HMAC and padding
    int macSize;            ///< bytes of the HMAC
    char const * digest;    ///< of the HMAC
    char const * keyDigest; ///< of the derivation of the HMAC's key
};

/// In the order in which they are tried on a file.
inline constexpr std::array<PageFormat, 2> pageFormats = {{
    {4, 4096, 80, 64, "SHA512", "SHA512"},
    {3, 1024, 48, 20, "SHA1", "SHA1"},
}};

inline constexpr PageFormat const & version4 = pageFormats[0];
inline constexpr PageFormat const & version3 = pageFormats[1];

/// So many bytes from the start of a file hold page 1 whatever the format is.
inline constexpr int largestPageSize = 4096;
inline constexpr int smallestPageSize = 1024;

} // namespace kestrova::sqlcipher
