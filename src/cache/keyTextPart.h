#pragma once

#include <QString>

#include <algorithm>
#include <array>

namespace kestrova::Morvel::Devicelore {

/// The two digits of each byte.
using HexPairs = std::array<std::array<QChar, 2>, 256>;

constexpr HexPairs hexPairs(char const * digits)
{
    HexPairs pairs{};
    for (std::size_t byte = 0; byte < pairs.size(); ++byte)
        pairs[byte] = {QLatin1Char(digits[byte >> 4]), QLatin1Char(digits[byte & 0xF])};
    return pairs;
}

inline constexpr HexPairs upperHex = hexPairs("0123456789ABCDEF");
inline constexpr HexPairs lowerHex = hexPairs("0123456789abcdef");

/// Writes the \a bytes lowest bytes of \a value in base 16 and gives the place behind them. By hand, since
/// key texts are built on every lookup: QString::arg takes ten times as long.
template <int bytes>
QChar * placeHex(QChar * place, quint32 value, HexPairs const & pairs)
{
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        place = std::copy_n(pairs[value >> shift & 0xFF].data(), 2, place);
    return place;
}

template <int bytes>
QString hexText(quint32 value, HexPairs const & pairs)
{
    QString text(2 * bytes, Qt::Uninitialized);
    placeHex<bytes>(text.data(), value, pairs);
    return text;
}

/// A short part of a key text, kept in place: a key makes one allocation, for its whole text.
class CKeyTextPart {
public:
    bool isEmpty() const { return length == 0; }

    int size() const { return length; }

    QString toString() const { return QString(characters.data(), length); }

    void clear() { length = 0; }

    /// Appends \a value in base 16, in lower case, with at least \a width digits.
    void appendHex(quint64 value, int width)
    {
        while (width < 16 && value >> (4 * width) != 0)
            ++width;
        QChar * place = end();
        for (int shift = 4 * (width - 1); shift >= 0; shift -= 4)
            *place++ = lowerHex[value >> shift & 0xF][1];
        length += width;
    }

    /// Appends Latin-1 characters.
    void append(char const * text, int size)
    {
        std::transform(text, text + size, end(), [](char character) { return QLatin1Char(character); });
        length += size;
    }

    /// Copies the part to \a place and gives the place behind it.
    QChar * copyTo(QChar * place) const { return std::copy_n(characters.data(), length, place); }

private:
    QChar * end() { return characters.data() + length; }

    // Sixteen digits of an odd channel type, "_", and five digits of a speaker id: the longest part.
    std::array<QChar, 22> characters;
    int length = 0;
};

} // namespace kestrova::Morvel::Devicelore
