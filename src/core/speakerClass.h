#pragma once

#include "core/coreExport.h"

#include <QString>

namespace kestrova::Solvane {
namespace DataTypes {

/// The class of a speaker. The fields are public: the speaker catalogue fills them, and speakers are sorted
/// by them.
class KESTROVA_CORE_EXPORT CSpeakerClass {
public:
    /// No class: number 255, no ways, no names.
    CSpeakerClass();
    CSpeakerClass(CSpeakerClass const & other);
    ~CSpeakerClass();

    CSpeakerClass & operator=(CSpeakerClass const & other);

    /// Equal when all three fields are.
    bool operator==(CSpeakerClass const & other) const;

    bool operator!=(CSpeakerClass const & other) const { return !(*this == other); }

    /// The names of the ways; the field `names`.
    QString wayNames() const;

    unsigned char classNumber = 255; ///< 0 to 254; 255 means "no class"
    unsigned char ways = 0;          ///< number of ways
    QString names;                   ///< names of the ways, as the database spells them
};

} // namespace DataTypes

using DataTypes::CSpeakerClass;

} // namespace kestrova::Solvane
