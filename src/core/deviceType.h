#pragma once

#include <QtGlobal>

namespace kestrova::Solvane {

/// A kind of device: a GUID with its bits 8 to 23 cleared, so that prefix and type number remain
/// (0xC70000TT). The type numbers are data of the description databases; only "no device" has a name.
enum DeviceType : quint32 {
    DeviceTypeNone = 0xC7000000,
};

} // namespace kestrova::Solvane
