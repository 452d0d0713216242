#pragma once

#include <vector>

namespace kestrova::authoring {

/// How the library reads a column.
enum class Reading {
    Text,
    Bytes,
    Int,
    Unsigned8, ///< the low byte of an integer, and so on
    Unsigned16,
    Unsigned32,
    Real,
    FilterNumber, ///< an integer; but the text "---" says that there is deliberately no filter
    FilterKey,    ///< the same, of which the low byte is kept
};

/// What happens without the column, or with its name in another case.
enum class Need {
    Statement, ///< a statement of the library names it: without it the statement fails; SQL ignores the case
    Row,       ///< it is looked for by its exact name: without it the member is empty
    Optional,  ///< it is looked for by its exact name; databases of an older form lack it
    Probed,    ///< databases of an older form lack it; the case does not matter
    Position,  ///< it is read from the first row by its position, whatever it is called
};

/// One column that the library reads.
struct KnownColumn {
    char const * table;
    char const * name;
    Reading reading;
    Need need;
    int position = 0; ///< for Need::Position
};

/// All columns, table by table. Of TextsObjectValues the columns of the languages are not among them.
std::vector<KnownColumn> const & knownColumns();

/// The columns by which a statement of the library looks for rows: one of them has to lead an index.
struct KnownIndex {
    char const * table;
    std::vector<char const *> columns;
    char const * name; ///< that `devicelore-db new` gives it
};

std::vector<KnownIndex> const & knownIndexes();

} // namespace kestrova::authoring
