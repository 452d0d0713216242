#pragma once

#include "deviceinfo/deviceInfo.h"

namespace kestrova::Morvel::Devicelore {

/// The amplifiers of one and two channels.
class ADeviceInfoLegacy : public ADeviceInfo {
protected:
    explicit ADeviceInfoLegacy(int channels);
};

class CDeviceInfoZerin : public ADeviceInfoLegacy {
public:
    CDeviceInfoZerin()
        : ADeviceInfoLegacy(2)
    {}
};

class CDeviceInfoYolsa : public ADeviceInfoLegacy {
public:
    CDeviceInfoYolsa()
        : ADeviceInfoLegacy(1)
    {}
};

} // namespace kestrova::Morvel::Devicelore
