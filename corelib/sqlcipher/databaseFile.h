#pragma once

#include "sqlcipher/inspection.h"
#include "sqlcipher/pageFormat.h"

#include <QString>

#include <stdexcept>

namespace kestrova::sqlcipher {

/// A file could not be made. what(), in UTF-8, names the file and says what to do.
class DatabaseFileError : public std::runtime_error {
public:
    explicit DatabaseFileError(QString const & text)
        : std::runtime_error(text.toStdString())
    {}
};

/// Makes the encrypted file \a encryptedPath from the plain SQLite file \a plainPath, with a fresh random
/// salt. The encrypted database is compacted and carries statistics for the query planner; the plain one is
/// not changed. An existing \a encryptedPath is replaced when everything has gone well, and is untouched
/// otherwise. Throws DatabaseFileError.
void encryptDatabase(QString const & plainPath, QString const & encryptedPath,
                     PageFormat const & format = version4, Key const & key = databaseKey,
                     Progress const & progress = {});

/// Makes the plain SQLite file \a plainPath from the encrypted file \a encryptedPath of either version, page
/// by page; the bytes that the encryption needed in each page stay reserved. An existing \a plainPath is
/// replaced when everything has gone well, and is untouched otherwise. Throws DatabaseFileError.
void decryptDatabase(QString const & encryptedPath, QString const & plainPath, Key const & key = databaseKey,
                     Progress const & progress = {});

} // namespace kestrova::sqlcipher
