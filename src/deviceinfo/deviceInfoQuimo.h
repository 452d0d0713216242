#pragma once

#include "deviceinfo/deviceInfo.h"

namespace kestrova::Morvel::Devicelore {

/// A service panel, without channels or speakers.
class DeviceInfoQuimo : public ADeviceInfo {
public:
    QVariant defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                            CDriverCache * cache) const override;
    QVariant validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                              CDriverCache * cache) const override;
};

} // namespace kestrova::Morvel::Devicelore
