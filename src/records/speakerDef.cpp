#include "records/speakerDef.h"

#include "records/speakerFlags.h"

#include <tuple>

namespace kestrova::Morvel::Devicelore {

bool CSpeakerDef::operator==(CSpeakerDef const & other) const
{
    return speakerId_ == other.speakerId_ && name_ == other.name_ && speakerClass_ == other.speakerClass_ &&
           rib_ == other.rib_ && displayNameShort_ == other.displayNameShort_ &&
           sortOrder_ == other.sortOrder_ && cablefitMaxCount_ == other.cablefitMaxCount_ &&
           flags_ == other.flags_ && reserved == other.reserved;
}

bool CSpeakerDef::lessThan(CSpeakerDef const & left, CSpeakerDef const & right)
{
    return std::tie(left.speakerClass_.ways, left.speakerClass_.classNumber) <
           std::tie(right.speakerClass_.ways, right.speakerClass_.classNumber);
}

QString CSpeakerDef::wayNameShort(int) const
{
    return speakerClass_.wayNames();
}

bool CSpeakerDef::isWFSetup() const
{
    return hasWavefoldFlag(flags_);
}

void CSpeakerDef::setIsWFSetup(bool isWFSetup)
{
    flags_ = withWavefoldFlag(flags_, isWFSetup);
}

} // namespace kestrova::Morvel::Devicelore
