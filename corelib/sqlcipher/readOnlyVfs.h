#pragma once

namespace kestrova::sqlcipher {

/// The name under which SQLite knows the virtual file system that reads encrypted database files, and plain
/// ones in a build that accepts them. The first call registers it, never as SQLite's default. Null when
/// SQLite refuses. Two libraries that hold this code have each a name and a key of its own.
///
/// It opens main databases for reading only, takes no locks, and looks for no journal: the files must not
/// change while they are open. A page that is not authentic is reported to SQLite as corrupt.
char const * readOnlyVfs();

} // namespace kestrova::sqlcipher
