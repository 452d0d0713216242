#pragma once

#include <QString>

#include <string>

namespace kestrova::test {

/// Everything in a folder, hidden files too: a line for each with name, size, time of last change and a hash
/// of the content. Equal texts mean that nothing was created, changed or removed.
std::string snapshotOf(QString const & folder);

} // namespace kestrova::test
