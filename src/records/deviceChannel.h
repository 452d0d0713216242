#pragma once

#include "records/deviceloreExport.h"

namespace kestrova::Morvel::Devicelore {

/// A channel of a device, 0 to 7: the three bits that an object number has for it. The present amplifiers use
/// the channels 1 to 4. The channels between have no names; write `DeviceChannel(3)`.
enum DeviceChannel : qint32 {
    ChannelZero = 0,
    ChannelFirst = 1,
    ChannelLast = 7,
};

/// What qualifies a channel; see CDeviceChannelInfo.
enum DeviceChannelType : qint32 {
    ChannelTypeNone = 0,    ///< not qualified
    ChannelTypeSpeaker = 1, ///< by a speaker id
    ChannelTypeInput = 2,   ///< the input side
    ChannelTypeOutput = 3,  ///< the output side
    ChannelTypeEnd = 4,     ///< the upper bound of stepping; no qualifier has it
};

// Stepping never wraps. Both directions end at the last value; downwards the last value is 1 and not 0,
// because lists of channels and of types start there. A loop may start at 0, but never steps back to it.

/// Adds 1 below ChannelLast; else does nothing.
KESTROVA_DEVICELORE_EXPORT void operator++(DeviceChannel & channel);

/// Subtracts 1 above ChannelFirst; else does nothing.
KESTROVA_DEVICELORE_EXPORT void operator--(DeviceChannel & channel);

/// Adds 1 below ChannelTypeEnd; else does nothing.
KESTROVA_DEVICELORE_EXPORT void operator++(DeviceChannelType & type);

/// Subtracts 1 above ChannelTypeSpeaker; else does nothing.
KESTROVA_DEVICELORE_EXPORT void operator--(DeviceChannelType & type);

} // namespace kestrova::Morvel::Devicelore
