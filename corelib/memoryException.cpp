#include "core/memoryException.h"

namespace kestrova::Solvane {

CMemoryException::CMemoryException() = default;

CMemoryException::~CMemoryException() = default;

} // namespace kestrova::Solvane
