#pragma once

#include "core/coreExport.h"

#include <QtGlobal>

namespace kestrova::Solvane {
namespace DataTypes {

/// Version of a description database. 0.0.0 is the unset version.
class KESTROVA_CORE_EXPORT CVersionNumber {
public:
    /// major and minor from 0 to 255, bugfix from 0 to 65535.
    CVersionNumber(unsigned char major = 0, unsigned char minor = 0, unsigned short bugfix = 0);
    CVersionNumber(CVersionNumber const &) = default;
    ~CVersionNumber();

    CVersionNumber & operator=(CVersionNumber const & other);

    /// Equal when all three numbers are.
    bool operator==(CVersionNumber const & other) const;

    bool operator!=(CVersionNumber const & other) const { return !(*this == other); }

    unsigned char major() const { return major_; }

    unsigned char minor() const { return minor_; }

    unsigned short bugfix() const { return bugfix_; }

    void setMajor(unsigned char major);
    void setMinor(unsigned char minor);
    void setBugfix(unsigned short bugfix);

private:
    unsigned char major_ = 0;
    unsigned char minor_ = 0;
    unsigned short bugfix_ = 0;
};

} // namespace DataTypes

using DataTypes::CVersionNumber;

} // namespace kestrova::Solvane
