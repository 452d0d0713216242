#pragma once

#include "records/deviceloreExport.h"

#include <QString>

#include <array>

namespace kestrova::Morvel::Devicelore {

/// A class of objects: a row of the table ObjectClasses.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheObjectClassItem {
public:
    static constexpr int capacity = 16; ///< most fields that a class id has

    /// \a ocaClassId is a list of decimal numbers separated by points; a part that is no number up to 65535
    /// gives 0, and parts behind the sixteenth are dropped. The class id is 8 bits wide here, although the
    /// accessor is not: ids above 255 arrive cut to their low byte.
    CDriverCacheObjectClassItem(unsigned char classId, QString const & ocaClassId,
                                QString const & description);
    CDriverCacheObjectClassItem(CDriverCacheObjectClassItem const & other);
    CDriverCacheObjectClassItem(CDriverCacheObjectClassItem && other) noexcept;
    ~CDriverCacheObjectClassItem();

    CDriverCacheObjectClassItem & operator=(CDriverCacheObjectClassItem const & other);
    CDriverCacheObjectClassItem & operator=(CDriverCacheObjectClassItem && other) noexcept;

    unsigned short classId() const { return classId_; }

    QString description() const { return description_; }

    /// How many of the fields are valid, 1 to 16.
    unsigned char fieldCount() const { return fieldCount_; }

    /// Sixteen numbers, of which the first fieldCount() mean something.
    unsigned short const * fields() const { return fields_.data(); }

protected:
    unsigned short classId_;
    QString description_;
    unsigned char fieldCount_;
    std::array<unsigned short, capacity> fields_{};
};

} // namespace kestrova::Morvel::Devicelore
