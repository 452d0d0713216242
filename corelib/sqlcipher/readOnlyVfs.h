#pragma once

namespace kestrova::sqlcipher {

/// The name under which SQLite knows the virtual file system that reads encrypted database files, and plain
/// ones in a build that accepts them. The first call registers it, never as SQLite's default. Null when
/// SQLite refuses. Two libraries that hold this code have each a name and a key of its own.
///
/// It opens main databases for reading only, takes no locks, and shows SQLite no journal: a file must not
/// change while a statement runs. Changes between two statements are seen, also where the file is replaced
/// byte by byte. A page that is not authentic is reported to SQLite as corrupt.
char const * readOnlyVfs();

} // namespace kestrova::sqlcipher
