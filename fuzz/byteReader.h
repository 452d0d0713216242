#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstddef>

namespace kestrova::fuzz {

/// The bytes of a fuzzer, as decisions. Behind the end every decision is 0.
class ByteReader {
public:
    ByteReader(quint8 const * bytes, std::size_t count)
        : next(bytes)
        , end(bytes + count)
    {}

    bool isAtEnd() const { return next == end; }

    quint8 byte() { return isAtEnd() ? quint8(0) : *next++; }

    /// From 0 to count - 1.
    int choice(int count) { return byte() % count; }

    quint32 number()
    {
        quint32 value = 0;
        for (int i = 0; i < 4; ++i)
            value = (value << 8U) | byte();
        return value;
    }

    quint64 longNumber() { return (quint64(number()) << 32U) | number(); }

    double real();

    /// A length, and so many bytes.
    QByteArray bytes(int longest = 255);

    QByteArray rest() { return {reinterpret_cast<char const *>(next), static_cast<int>(end - next)}; }

private:
    quint8 const * next;
    quint8 const * end;
};

} // namespace kestrova::fuzz
