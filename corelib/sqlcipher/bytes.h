#pragma once

#include <QByteArray>

namespace kestrova::sqlcipher {

/// The content of \a array as the unsigned bytes that SQLite and OpenSSL work on.
inline unsigned char const * bytesOf(QByteArray const & array)
{
    return reinterpret_cast<unsigned char const *>(array.constData());
}

} // namespace kestrova::sqlcipher
