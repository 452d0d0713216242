#pragma once

namespace kestrova::Morvel::Devicelore {

/// Bit 0 of a speaker's flags says that it is a Wavefold setup.
constexpr bool hasWavefoldFlag(unsigned char flags)
{
    return (flags & 0x01) != 0;
}

/// The flags with that bit as given and the others as they are.
constexpr unsigned char withWavefoldFlag(unsigned char flags, bool isWavefold)
{
    return static_cast<unsigned char>((flags & 0xFE) | (isWavefold ? 0x01 : 0x00));
}

} // namespace kestrova::Morvel::Devicelore
