#pragma once

#include <QString>

namespace kestrova::test {

/// Plain databases of some pages that refer to each other again and again, so that walking through them never
/// ends. SQLite looks for circles among pages, and there is none.

/// A table T of one column a, with a million million million rows.
void makeEndlessTable(QString const & path);

/// A table T of one unique column a; its index stands in the schema as often.
void makeEndlessSchema(QString const & path);

} // namespace kestrova::test
