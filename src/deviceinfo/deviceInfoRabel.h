#pragma once

#include "deviceinfo/deviceInfo.h"

namespace kestrova::Morvel::Devicelore {

/// The matrices.
class ADeviceInfoIbrix : public ADeviceInfo {};

/// A matrix of 64 inputs and 64 outputs. It drives no speakers.
class CDeviceInfoRabel : public ADeviceInfoIbrix {
public:
    CDeviceInfoRabel();

    QVariant defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                            CDriverCache * cache) const override;
    QVariant validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                              CDriverCache * cache) const override;
};

} // namespace kestrova::Morvel::Devicelore
