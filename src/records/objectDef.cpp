#include "records/objectDef.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace kestrova::Morvel::Devicelore {

CObjectDef::CObjectDef(unsigned short flags)
    : flags_(flags)
{}

unsigned short CObjectDef::FullObjectNumber() const
{
    return static_cast<unsigned short>((boxNumber << 8) | objectNumber);
}

void CObjectDef::setOcaClassId(unsigned short const * ids, unsigned char count)
{
    std::fill(std::begin(ocaClassId_), std::end(ocaClassId_), static_cast<unsigned short>(0));
    if (ids == nullptr)
        return;
    auto const bytes = static_cast<unsigned char>(count * sizeof(*ids)); // 8 bits on purpose, see the header
    // The record's own array may be given, which is empty by now.
    std::memmove(ocaClassId_, ids, std::min<std::size_t>(bytes, sizeof(ocaClassId_)));
    ocaClassIdSize_ = count;
}

} // namespace kestrova::Morvel::Devicelore
