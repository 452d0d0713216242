#include "deviceinfo/deviceInfoLegacy.h"

namespace kestrova::Morvel::Devicelore {

ADeviceInfoLegacy::ADeviceInfoLegacy(int channels)
{
    setChannelCount(ChannelTypeSpeaker, channels);
    setChannelCount(ChannelTypeInput, channels);

    // Hertz, quality factor and decibels. The order of a filter is not fixed here, unlike with the
    // four-channel amplifiers: the databases say it.
    defaultValues = {
        {QStringLiteral("$P/Eq_Fg"), 1000.0},
        {QStringLiteral("$P/Eq_Q"), 0.7},
        {QStringLiteral("$P/Eq_Vdb"), 0.0},
    };
}

} // namespace kestrova::Morvel::Devicelore
