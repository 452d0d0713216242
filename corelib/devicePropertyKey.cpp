#include "core/devicePropertyKey.h"

namespace kestrova::Solvane::DataTypes {

CDevicePropertyKey::CDevicePropertyKey() = default;

CDevicePropertyKey::CDevicePropertyKey(CDevicePropertyKey const & other) = default;

CDevicePropertyKey::~CDevicePropertyKey() = default;

CDeviceKey CDevicePropertyKey::GetDevice() const
{
    return device_;
}

void CDevicePropertyKey::SetDevice(CDeviceKey const & device)
{
    device_ = device;
}

} // namespace kestrova::Solvane::DataTypes
