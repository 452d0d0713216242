#include "core/propertyBaseKey.h"

namespace kestrova::Solvane::DataTypes {

CPropertyBaseKey::CPropertyBaseKey() = default;

CPropertyBaseKey::~CPropertyBaseKey() = default;

} // namespace kestrova::Solvane::DataTypes
