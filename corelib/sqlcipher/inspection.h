#pragma once

#include "sqlcipher/databaseKey.h"

#include <QString>

#include <functional>

namespace kestrova::sqlcipher {

/// Called between pages with the pages done and the pages in all.
using Progress = std::function<void(qint64 done, qint64 all)>;

enum class FileState {
    Plain,         ///< a plain SQLite file
    Encrypted,     ///< every page of it opens with the key
    Missing,       ///< no such file
    NotAFile,      ///< a folder, a pipe or the like
    Unreadable,    ///< no permission, or the disk fails
    Empty,         ///< 0 bytes
    NotADatabase,  ///< neither a SQLite file nor anything that looks encrypted
    OtherSettings, ///< opens with the key, but under settings of SQLCipher that are not supported
    WrongKey,      ///< looks encrypted, but no page opens with the key
    DamagedPage,   ///< opens with the key, except for the page `damagedPage`
    CutShort,      ///< fewer pages than its header states, or no whole number of pages
};

/// What an inspection found.
struct Inspection {
    FileState state;
    int version = 0;      ///< of the page format, 3 or 4; 0 when the file is plain or nothing could be read
    int reserve = 0;      ///< bytes that SQLite leaves free in each page; 0 when the header could not be read
    qint64 pageCount = 0; ///< as the header states it; 0 when the header could not be read
    qint64 damagedPage = 0; ///< the first damaged page, from 1; 0 when there is none
    QString message; ///< one sentence for people that names the file, and says what to do when it is no good

    /// Whether the whole file can be read.
    bool isGood() const { return state == FileState::Plain || state == FileState::Encrypted; }
};

/// Looks at the layout of a database file, and at every page of an encrypted one. Of a plain file only the
/// header is looked at, since its pages carry nothing to check them by. Never throws, changes nothing.
Inspection inspectDatabase(QString const & path, Key const & key = databaseKey,
                           Progress const & progress = {});

} // namespace kestrova::sqlcipher
