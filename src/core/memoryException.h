#pragma once

#include "core/exception.h"

namespace kestrova::Solvane {

/// A required object could not be created. Thrown by value by the constructors of the cache and of the
/// facade.
class KESTROVA_CORE_EXPORT CMemoryException : public CException {
public:
    CMemoryException();
    CMemoryException(CMemoryException const &) = default;
    ~CMemoryException() override;

    CMemoryException & operator=(CMemoryException const &) = default;

    char const * what() const noexcept override { return "kestrova::Solvane::CMemoryException"; }
};

} // namespace kestrova::Solvane
