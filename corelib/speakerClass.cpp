#include "core/speakerClass.h"

namespace kestrova::Solvane::DataTypes {

CSpeakerClass::CSpeakerClass() = default;

CSpeakerClass::CSpeakerClass(CSpeakerClass const & other) = default;

CSpeakerClass::~CSpeakerClass() = default;

CSpeakerClass & CSpeakerClass::operator=(CSpeakerClass const & other) = default;

bool CSpeakerClass::operator==(CSpeakerClass const & other) const
{
    return classNumber == other.classNumber && ways == other.ways && names == other.names;
}

QString CSpeakerClass::wayNames() const
{
    return names;
}

} // namespace kestrova::Solvane::DataTypes
