#pragma once

#include <QFlags>

namespace kestrova::Morvel::Devicelore {

/// The members of CObjectDef that a caller wants: those to be read from a database, and those to be copied
/// into the caller's record. The numbers are what applications use and store: `ObjectDefMask(0x70)` asks for
/// the range.
enum ObjectDefMask : quint32 {
    ObjectDefName = 0x1,
    ObjectDefObjectNumber = 0x2,
    ObjectDefChannelCount = 0x4,
    ObjectDefRecordCount = 0x8,
    ObjectDefMinValue = 0x10,
    ObjectDefMaxValue = 0x20,
    ObjectDefStep = 0x40,
    ObjectDefFormat = 0x80,
    ObjectDefFlags = 0x100,
    // 0x200 has no member
    ObjectDefAccess = 0x400,
    ObjectDefDefaultValue = 0x800,
    ObjectDefSize = 0x1000,
    ObjectDefTextOffset = 0x2000,
    ObjectDefDisplayName = 0x4000,
    ObjectDefComment = 0x8000,
    // 0x10000 has no member
    ObjectDefWaitTime = 0x20000,
    ObjectDefWaitStates = 0x40000,
    ObjectDefObjectType = 0x80000,
    ObjectDefUnit = 0x100000,
    ObjectDefDisplaySubName = 0x200000,
    ObjectDefOcaClassId = 0x400000, ///< the array and its size
    ObjectDefClassId = 0x800000,
    ObjectDefPropertyHash = 0x1000000,
    ObjectDefOnoType = 0x2000000,
    ObjectDefBoxNumber = 0x4000000,
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<ObjectDefMask>)

} // namespace kestrova::Morvel::Devicelore
