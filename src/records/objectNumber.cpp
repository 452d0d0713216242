#include "records/objectNumber.h"

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr unsigned objectByteMask = 0x00FF;
constexpr unsigned boxMask = 0x1F00;
constexpr unsigned channelMask = 0xE000;
constexpr unsigned boxShift = 8;
constexpr unsigned channelShift = 13;

constexpr unsigned short replaceBits(unsigned number, unsigned mask, unsigned bits)
{
    return static_cast<unsigned short>((number & ~mask) | (bits & mask));
}

} // namespace

CObjectNumber::CObjectNumber(unsigned short fullObject)
    : fullObject_(fullObject)
{}

CObjectNumber::CObjectNumber(unsigned char objectByte, unsigned char boxChannel)
{
    setObjectByte(objectByte);
    setBoxChannel(boxChannel);
}

CObjectNumber::CObjectNumber(unsigned char objectByte, unsigned char box, DeviceChannel channel)
{
    setObjectByte(objectByte);
    setBox(box);
    setChannel(channel);
}

bool CObjectNumber::operator==(CObjectNumber const & other) const
{
    return fullObject_ == other.fullObject_;
}

unsigned short CObjectNumber::fullObject() const
{
    return fullObject_;
}

void CObjectNumber::setFullObject(unsigned short fullObject)
{
    fullObject_ = fullObject;
}

unsigned short CObjectNumber::objectNumber() const
{
    return fullObject_ & (boxMask | objectByteMask);
}

unsigned char CObjectNumber::objectByte() const
{
    return fullObject_ & objectByteMask;
}

void CObjectNumber::setObjectByte(unsigned char objectByte)
{
    fullObject_ = replaceBits(fullObject_, objectByteMask, objectByte);
}

unsigned char CObjectNumber::boxChannel() const
{
    return static_cast<unsigned char>(fullObject_ >> boxShift);
}

void CObjectNumber::setBoxChannel(unsigned char boxChannel)
{
    fullObject_ =
        replaceBits(fullObject_, channelMask | boxMask, static_cast<unsigned>(boxChannel) << boxShift);
}

unsigned char CObjectNumber::box() const
{
    return (fullObject_ & boxMask) >> boxShift;
}

void CObjectNumber::setBox(unsigned char box)
{
    fullObject_ = replaceBits(fullObject_, boxMask, static_cast<unsigned>(box) << boxShift);
}

DeviceChannel CObjectNumber::channel() const
{
    return static_cast<DeviceChannel>(fullObject_ >> channelShift);
}

void CObjectNumber::setChannel(DeviceChannel channel)
{
    fullObject_ = replaceBits(fullObject_, channelMask, static_cast<unsigned>(channel) << channelShift);
}

} // namespace kestrova::Morvel::Devicelore
