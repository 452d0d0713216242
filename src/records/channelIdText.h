#pragma once

#include "records/deviceChannelInfo.h"

#include <array>

namespace kestrova::Morvel::Devicelore {

/// The text of CDeviceChannelInfo::GetIdString(), in place: it is part of every key of a channel, which makes
/// one allocation for its whole text.
struct ChannelIdText {
    std::array<char, 5> characters;
    int size;
};

inline ChannelIdText channelIdText(CDeviceChannelInfo const & channelInfo)
{
    switch (channelInfo.GetChannelType()) {
    case ChannelTypeSpeaker:
        break;
    case ChannelTypeInput:
        return {{'I', 'N'}, 2};
    case ChannelTypeOutput:
        return {{'O', 'U', 'T'}, 3};
    default:
        return {{}, 0};
    }
    unsigned rest = channelInfo.GetSpeakerId();
    ChannelIdText text{{}, rest > 9999 ? 5 : 4};
    for (int digit = text.size - 1; digit >= 0; --digit, rest /= 10)
        text.characters[static_cast<std::size_t>(digit)] = static_cast<char>('0' + rest % 10);
    return text;
}

} // namespace kestrova::Morvel::Devicelore
