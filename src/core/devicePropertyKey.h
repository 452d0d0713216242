#pragma once

#include "core/deviceKey.h"
#include "core/propertyBaseKey.h"

namespace kestrova::Solvane {
namespace DataTypes {

/// A property on a device: a property key that also holds the device's own key.
class KESTROVA_CORE_EXPORT CDevicePropertyKey : public CPropertyBaseKey {
public:
    CDevicePropertyKey();
    CDevicePropertyKey(CDevicePropertyKey const & other);
    virtual ~CDevicePropertyKey();

    CDevicePropertyKey & operator=(CDevicePropertyKey const &) = default;

    /// The device key last set, a default one at first. It lies beside the CKey: setting it leaves
    /// CKey::deviceId.
    CDeviceKey GetDevice() const;
    void SetDevice(CDeviceKey const & device);

private:
    CDeviceKey device_;
};

} // namespace DataTypes

using DataTypes::CDevicePropertyKey;

} // namespace kestrova::Solvane
