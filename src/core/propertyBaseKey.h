#pragma once

#include "core/key.h"

namespace kestrova::Solvane {
namespace DataTypes {

/// A key that names a property but no device yet. Its CKey is a virtual base, so that a class which joins
/// several kinds of key holds one CKey only.
class KESTROVA_CORE_EXPORT CPropertyBaseKey : public virtual CKey {
public:
    CPropertyBaseKey();
    CPropertyBaseKey(CPropertyBaseKey const &) = default;
    ~CPropertyBaseKey();

    CPropertyBaseKey & operator=(CPropertyBaseKey const &) = default;
};

} // namespace DataTypes

using DataTypes::CPropertyBaseKey;

} // namespace kestrova::Solvane
