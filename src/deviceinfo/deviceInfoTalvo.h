#pragma once

#include "deviceinfo/deviceInfoLegacy.h"

namespace kestrova::Morvel::Devicelore {

/// A two-channel amplifier that knows the output modes 0 to 2.
class CDeviceInfoTalvo : public ADeviceInfoLegacy {
public:
    CDeviceInfoTalvo()
        : ADeviceInfoLegacy(2)
    {}

    QVariant defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                            CDriverCache * cache) const override;
    QVariant validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                              CDriverCache * cache) const override;
};

} // namespace kestrova::Morvel::Devicelore
