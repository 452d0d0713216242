#include "records/deviceChannel.h"

namespace kestrova::Morvel::Devicelore {

namespace {

template <typename Enumeration>
void stepUp(Enumeration & value, Enumeration last)
{
    if (value < last)
        value = static_cast<Enumeration>(value + 1);
}

template <typename Enumeration>
void stepDown(Enumeration & value, Enumeration first)
{
    if (value > first)
        value = static_cast<Enumeration>(value - 1);
}

} // namespace

void operator++(DeviceChannel & channel)
{
    stepUp(channel, ChannelLast);
}

void operator--(DeviceChannel & channel)
{
    stepDown(channel, ChannelFirst);
}

void operator++(DeviceChannelType & type)
{
    stepUp(type, ChannelTypeEnd);
}

void operator--(DeviceChannelType & type)
{
    stepDown(type, ChannelTypeSpeaker);
}

} // namespace kestrova::Morvel::Devicelore
