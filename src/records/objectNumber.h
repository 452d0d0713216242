#pragma once

#include "records/deviceChannel.h"
#include "records/deviceloreExport.h"

namespace kestrova::Morvel::Devicelore {

/// The number of an object (parameter) of a device, packed as the devices themselves pack it:
///
///     bits  0 to  7  objectByte  the object within its box
///     bits  8 to 12  box
///     bits 13 to 15  channel
///
/// Bits 8 to 15 together are boxChannel. Other software exchanges these numbers, so the layout never changes.
class KESTROVA_DEVICELORE_EXPORT CObjectNumber {
public:
    CObjectNumber() = default;

    /// The whole number. Implicit, so that an object number can be written as a number.
    CObjectNumber(unsigned short fullObject);

    CObjectNumber(unsigned char objectByte, unsigned char boxChannel);

    /// Only the low 5 bits of \a box and the low 3 bits of \a channel are taken.
    CObjectNumber(unsigned char objectByte, unsigned char box, DeviceChannel channel);

    /// Equal when all 16 bits are.
    bool operator==(CObjectNumber const & other) const;

    bool operator!=(CObjectNumber const & other) const { return !(*this == other); }

    unsigned short fullObject() const;
    void setFullObject(unsigned short fullObject);

    /// Box and object byte, without the channel: bits 0 to 12. CRecord::objectNumber() keeps the channel.
    unsigned short objectNumber() const;

    unsigned char objectByte() const;
    void setObjectByte(unsigned char objectByte);

    unsigned char boxChannel() const;
    void setBoxChannel(unsigned char boxChannel);

    /// 0 to 31. Setting takes the low 5 bits and leaves the channel.
    unsigned char box() const;
    void setBox(unsigned char box);

    /// 0 to 7. Setting takes the low 3 bits and leaves the box.
    DeviceChannel channel() const;
    void setChannel(DeviceChannel channel);

protected:
    unsigned short fullObject_ = 0;
};

} // namespace kestrova::Morvel::Devicelore
