#include "records/record.h"

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr unsigned int objectNumberMask = 0x0000FFFF;
constexpr unsigned int recordNumberShift = 16;

} // namespace

CRecord::CRecord(unsigned int recordKey)
    : recordKey_(recordKey)
{}

CRecord::CRecord(unsigned short recordNumber, CObjectNumber const & objectNumber)
    : CRecord(recordNumber, objectNumber.fullObject())
{}

CRecord::CRecord(unsigned short recordNumber, unsigned short objectNumber)
{
    setRecordNumber(recordNumber);
    setObjectNumber(objectNumber);
}

CRecord::CRecord(unsigned short recordNumber, unsigned char objectByte, unsigned char boxChannel)
    : CRecord(recordNumber, CObjectNumber(objectByte, boxChannel))
{}

CRecord::CRecord(unsigned short recordNumber, unsigned char objectByte, unsigned char box,
                 DeviceChannel channel)
    : CRecord(recordNumber, CObjectNumber(objectByte, box, channel))
{}

bool CRecord::operator==(CRecord const & other) const
{
    return recordKey_ == other.recordKey_;
}

unsigned int CRecord::recordKey() const
{
    return recordKey_;
}

void CRecord::setRecordKey(unsigned int recordKey)
{
    recordKey_ = recordKey;
}

unsigned short CRecord::recordNumber() const
{
    return static_cast<unsigned short>(recordKey_ >> recordNumberShift);
}

void CRecord::setRecordNumber(unsigned short recordNumber)
{
    recordKey_ =
        (static_cast<unsigned int>(recordNumber) << recordNumberShift) | (recordKey_ & objectNumberMask);
}

unsigned short CRecord::objectNumber() const
{
    return recordKey_ & objectNumberMask;
}

void CRecord::setObjectNumber(unsigned short objectNumber)
{
    recordKey_ = (recordKey_ & ~objectNumberMask) | objectNumber;
}

unsigned char CRecord::objectByte() const
{
    return object().objectByte();
}

void CRecord::setObjectByte(unsigned char objectByte)
{
    CObjectNumber changed = object();
    changed.setObjectByte(objectByte);
    setObjectNumber(changed.fullObject());
}

unsigned char CRecord::boxChannel() const
{
    return object().boxChannel();
}

void CRecord::setBoxChannel(unsigned char boxChannel)
{
    CObjectNumber changed = object();
    changed.setBoxChannel(boxChannel);
    setObjectNumber(changed.fullObject());
}

unsigned char CRecord::box() const
{
    return object().box();
}

void CRecord::setBox(unsigned char box)
{
    CObjectNumber changed = object();
    changed.setBox(box);
    setObjectNumber(changed.fullObject());
}

unsigned char CRecord::channel() const
{
    return static_cast<unsigned char>(object().channel());
}

void CRecord::setChannel(DeviceChannel channel)
{
    CObjectNumber changed = object();
    changed.setChannel(channel);
    setObjectNumber(changed.fullObject());
}

} // namespace kestrova::Morvel::Devicelore
