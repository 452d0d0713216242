#pragma once

#include "records/objectNumber.h"

namespace kestrova::Morvel::Devicelore {

/// One record of an object, packed as the devices themselves pack it: a CObjectNumber in bits 0 to 15, and
/// the record number (the index of the record within the object) in bits 16 to 31.
class KESTROVA_DEVICELORE_EXPORT CRecord {
public:
    CRecord() = default;

    /// The whole key. Implicit, so that a record can be written as a number.
    CRecord(unsigned int recordKey);

    CRecord(unsigned short recordNumber, CObjectNumber const & objectNumber);
    CRecord(unsigned short recordNumber, unsigned short objectNumber);
    CRecord(unsigned short recordNumber, unsigned char objectByte, unsigned char boxChannel);

    /// Only the low 5 bits of \a box and the low 3 bits of \a channel are taken.
    CRecord(unsigned short recordNumber, unsigned char objectByte, unsigned char box, DeviceChannel channel);

    /// Equal when all 32 bits are.
    bool operator==(CRecord const & other) const;

    bool operator!=(CRecord const & other) const { return !(*this == other); }

    unsigned int recordKey() const;
    void setRecordKey(unsigned int recordKey);

    unsigned short recordNumber() const;
    void setRecordNumber(unsigned short recordNumber);

    /// All 16 bits, with the channel, as a device is addressed. CObjectNumber::objectNumber() leaves the
    /// channel out.
    unsigned short objectNumber() const;
    void setObjectNumber(unsigned short objectNumber);

    unsigned char objectByte() const;
    void setObjectByte(unsigned char objectByte);

    unsigned char boxChannel() const;
    void setBoxChannel(unsigned char boxChannel);

    /// 0 to 31. Setting takes the low 5 bits and leaves the channel.
    unsigned char box() const;
    void setBox(unsigned char box);

    /// 0 to 7, here as a plain number: applications put it into messages as a byte. Setting takes the low 3
    /// bits and leaves the box.
    unsigned char channel() const;
    void setChannel(DeviceChannel channel);

protected:
    unsigned int recordKey_ = 0;

private:
    CObjectNumber object() const { return CObjectNumber(objectNumber()); }
};

} // namespace kestrova::Morvel::Devicelore
