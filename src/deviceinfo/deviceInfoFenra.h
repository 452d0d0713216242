#pragma once

#include "deviceinfo/deviceInfo.h"

namespace kestrova::Morvel::Devicelore {

/// A four-channel amplifier whose default values stand in the databases alone.
class DeviceInfoFenra : public ADeviceInfo {
public:
    DeviceInfoFenra();

    QVariant validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                              CDriverCache * cache) const override;
};

} // namespace kestrova::Morvel::Devicelore
