#pragma once

#include "sqlcipher/pageFormat.h"

#include <QByteArray>
#include <QString>

namespace kestrova::sqlcipher {

/// So many bytes from the start of a file hold page 1 under any settings of SQLCipher.
inline constexpr int largestPageSizeOfAnySettings = 65536;

/// The settings of SQLCipher under which \a key opens a file, where they are not those of a version that is
/// supported: its PRAGMAs with their values. Empty when the key opens it under none. \a start holds the
/// first bytes of the file: largestPageSizeOfAnySettings of them, or all if it has fewer.
///
/// Found are other page sizes, HMACs and derivations of the HMAC's key, files without HMAC, and those whose
/// header of 32 bytes is left plain. A plain header takes the place of the salt, without which the HMAC
/// cannot be checked.
QString otherSettings(QByteArray const & start, Key const & key);

} // namespace kestrova::sqlcipher
