#pragma once

#include <QString>

namespace kestrova::test {

/// Makes the plain SQLite file \a path from \a sql, a text of any number of statements; of an empty one, a
/// database without tables. Throws std::runtime_error with SQLite's own words when a statement fails.
void makeSqlFile(QString const & path, QString const & sql);

/// SQL text of a table v0 with the one value 7, and of the views v1 to v\a count, each of which reads the one
/// before it.
QString viewsWithinViews(int count);

} // namespace kestrova::test
