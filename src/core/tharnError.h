#pragma once

#include <QtGlobal>

namespace kestrova::Tharnex {

/// Result of a lookup. These are all the values that the library produces.
enum TharnError : qint32 {
    TharnNoError = 0,           ///< success
    TharnFailed = -32801,       ///< the lookup could not be carried out
    TharnNotFound = -32805,     ///< no such thing
    TharnNotAvailable = -32808, ///< known to be unavailable to this caller or on this device
};

} // namespace kestrova::Tharnex
