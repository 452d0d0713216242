#pragma once

namespace kestrova::Solvane {

/// Whether SQLite is new enough, and Qt has its driver for it. Without the driver, Qt would log messages of
/// its own about each connection that is added.
bool hasSqlite();

/// After a database did not open: logs what keeps every other from opening too, and what to install. Nothing
/// is logged when that one alone is to blame. Only the first call looks.
void tellWhatIsMissing();

} // namespace kestrova::Solvane
