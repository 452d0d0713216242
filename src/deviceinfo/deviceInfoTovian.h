#pragma once

#include "deviceinfo/deviceInfo.h"

namespace kestrova::Morvel::Devicelore {

/// A powered speaker: its amplifier drives the speaker it sits in, and there are no channels to speak of.
class CDeviceInfoTovian : public ADeviceInfo {
public:
    QVariant defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                            CDriverCache * cache) const override;

    /// 0 and not the default speaker: there is nothing to choose.
    QVariant validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                              CDriverCache * cache) const override;
};

} // namespace kestrova::Morvel::Devicelore
