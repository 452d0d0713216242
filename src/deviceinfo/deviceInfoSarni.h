#pragma once

#include "deviceinfo/deviceInfo.h"

namespace kestrova::Morvel::Devicelore {

/// The amplifiers of four channels and eight inputs.
class CDeviceInfoSarni : public ADeviceInfo {
public:
    /// \a speakerOfPair is the default of channels that drive a 2-way speaker together.
    explicit CDeviceInfoSarni(int speakerOfPair = 11);

    QVariant defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                            CDriverCache * cache) const override;
    QVariant validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                              CDriverCache * cache) const override;

private:
    int const twoWaySpeaker;
};

class CDeviceInfoVesni : public CDeviceInfoSarni {
public:
    CDeviceInfoVesni()
        : CDeviceInfoSarni(37)
    {}
};

// The models without rules of their own.

class CDeviceInfoMurel : public CDeviceInfoSarni {};

class CDeviceInfoHesko : public CDeviceInfoSarni {};

class CDeviceInfoKalom : public CDeviceInfoSarni {};

class DeviceInfoNurix : public CDeviceInfoSarni {};

class DeviceInfoOrvan : public CDeviceInfoSarni {};

class DeviceInfoSarniProd : public CDeviceInfoSarni {};

class DeviceInfoLumboProd : public CDeviceInfoSarni {};

} // namespace kestrova::Morvel::Devicelore
