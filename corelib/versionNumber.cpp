#include "core/versionNumber.h"

namespace kestrova::Solvane::DataTypes {

CVersionNumber::CVersionNumber(unsigned char major, unsigned char minor, unsigned short bugfix)
    : major_(major)
    , minor_(minor)
    , bugfix_(bugfix)
{}

CVersionNumber::~CVersionNumber() = default;

CVersionNumber & CVersionNumber::operator=(CVersionNumber const & other) = default;

bool CVersionNumber::operator==(CVersionNumber const & other) const
{
    return major_ == other.major_ && minor_ == other.minor_ && bugfix_ == other.bugfix_;
}

void CVersionNumber::setMajor(unsigned char major)
{
    major_ = major;
}

void CVersionNumber::setMinor(unsigned char minor)
{
    minor_ = minor;
}

void CVersionNumber::setBugfix(unsigned short bugfix)
{
    bugfix_ = bugfix;
}

} // namespace kestrova::Solvane::DataTypes
