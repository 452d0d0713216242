#pragma once

#include "core/coreExport.h"

#include <exception>

namespace kestrova::Solvane {

/// Base of everything that the library throws itself.
class KESTROVA_CORE_EXPORT CException : public std::exception {
public:
    char const * what() const noexcept override { return "kestrova::Solvane::CException"; }
};

} // namespace kestrova::Solvane
