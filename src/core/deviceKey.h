#pragma once

#include "core/coreExport.h"

#include <QtGlobal>

namespace kestrova::Solvane {
namespace DataTypes {

/// The device part of a key. The library passes it on and never looks inside.
class CDeviceKey {
public:
    CDeviceKey() = default;

    explicit CDeviceKey(unsigned short deviceId)
        : deviceId_(deviceId)
    {}

    unsigned short deviceId() const { return deviceId_; }

    bool operator==(CDeviceKey const & other) const { return deviceId_ == other.deviceId_; }

    bool operator!=(CDeviceKey const & other) const { return !(*this == other); }

private:
    unsigned short deviceId_ = 0;
};

} // namespace DataTypes

using DataTypes::CDeviceKey;

} // namespace kestrova::Solvane
