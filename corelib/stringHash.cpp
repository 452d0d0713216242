#include "core/stringHash.h"

namespace kestrova::Solvane {

// The classic ELF hash, over UTF-16 units. Object names are known by these hashes outside this library too,
// so the function must not change.
unsigned int StringToHash(QString const & text)
{
    quint32 hash = 0;
    for (QChar const unit : text) {
        hash = (hash << 4) + unit.unicode();
        hash ^= (hash & 0xF0000000U) >> 23;
        hash &= 0x0FFFFFFFU;
    }
    return hash;
}

} // namespace kestrova::Solvane
