#pragma once

#include <QString>

#include <algorithm>
#include <cstring>

namespace kestrova::Morvel::Devicelore {

/// A printed parameter: at most 255 bytes, not ended by 0. What does not fit is dropped, as snprintf drops
/// it.
class FieldText {
public:
    static constexpr int capacity = 255;

    int length() const { return length_; }

    char const * constData() const { return bytes; }

    char * begin() { return bytes; }

    char * end() { return bytes + length_; }

    void append(char byte) { append(1, byte); }

    /// A count of 0 or less appends nothing.
    void append(qint64 count, char byte)
    {
        int const fitting = static_cast<int>(std::clamp<qint64>(count, 0, capacity - length_));
        std::memset(end(), byte, static_cast<std::size_t>(fitting));
        length_ += fitting;
    }

    void append(char const * text, std::size_t count)
    {
        std::size_t const fitting = std::min(count, static_cast<std::size_t>(capacity - length_));
        std::memcpy(end(), text, fitting);
        length_ += static_cast<int>(fitting);
    }

    /// The text right-justified to a width.
    void appendPadded(qint64 width, char padding, char const * text, std::size_t count)
    {
        append(width - static_cast<qint64>(count), padding);
        append(text, count);
    }

    /// Makes \a text this text, read as UTF-8. Plain ASCII, as almost always, goes into the memory that \a
    /// text has.
    void assignTo(QString & text) const
    {
        bool const isAscii =
            std::all_of(bytes, bytes + length_, [](char byte) { return (byte & 0x80) == 0; });
        if (!isAscii) {
            text = QString::fromUtf8(bytes, length_);
            return;
        }
        if (text.capacity() < length_)
            text = QString(length_, Qt::Uninitialized);
        else
            text.resize(length_);
        std::transform(bytes, bytes + length_, text.begin(), [](char byte) { return QLatin1Char(byte); });
    }

private:
    char bytes[capacity];
    int length_ = 0;
};

} // namespace kestrova::Morvel::Devicelore
