#include "byteReader.h"

#include <algorithm>
#include <cstring>

namespace kestrova::fuzz {

double ByteReader::real()
{
    quint64 const bits = longNumber();
    double value = 0;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}

QByteArray ByteReader::bytes(int longest)
{
    int const wanted = choice(longest + 1); // which takes a byte itself
    int const length = std::min(wanted, static_cast<int>(end - next));
    QByteArray taken(reinterpret_cast<char const *>(next), length);
    next += length;
    return taken;
}

} // namespace kestrova::fuzz
