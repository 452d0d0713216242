#pragma once

#include <QString>

#include <array>

namespace kestrova::Morvel::Devicelore {

/// A short part of a key text, kept in place: a key makes one allocation, for its whole text.
class CKeyTextPart {
public:
    bool isEmpty() const { return length == 0; }

    int size() const { return length; }

    QString toString() const { return QString(characters.data(), length); }

    void clear() { length = 0; }

    void append(QChar character)
    {
        if (length < capacity)
            characters[static_cast<std::size_t>(length++)] = character;
    }

    void append(QString const & text)
    {
        for (QChar const character : text)
            append(character);
    }

    /// Appends \a value in base 16 with at least \a width digits.
    void appendHex(quint64 value, int width, char const * digits)
    {
        while (width < 16 && value >> (4 * width) != 0)
            ++width;
        for (int shift = 4 * (width - 1); shift >= 0; shift -= 4)
            append(QLatin1Char(digits[value >> shift & 0xF]));
    }

    /// Copies the part to \a place and gives the place behind it.
    QChar * copyTo(QChar * place) const
    {
        for (int i = 0; i < length; ++i)
            *place++ = characters[static_cast<std::size_t>(i)];
        return place;
    }

private:
    static constexpr int capacity =
        24; // sixteen digits of an odd channel type, "_", and five digits of a speaker id
    std::array<QChar, capacity> characters;
    int length = 0;
};

constexpr char upperHexDigits[] = "0123456789ABCDEF";
constexpr char lowerHexDigits[] = "0123456789abcdef";

} // namespace kestrova::Morvel::Devicelore
