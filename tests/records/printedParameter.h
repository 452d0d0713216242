#pragma once

#include "records/objectDef.h"

#include <QByteArray>

#include <ostream>
#include <string>

namespace kestrova::test {

/// All that CObjectDef::paraToStr() gives. Before the call the text is "untouched" and the length is -1.
struct Printed {
    int result = 0;
    std::string text = "untouched"; // UTF-8
    int length = -1;

    bool operator==(Printed const & other) const
    {
        return result == other.result && text == other.text && length == other.length;
    }
};

inline std::ostream & operator<<(std::ostream & out, Printed const & printed)
{
    return out << printed.result << " \"" << printed.text << "\" " << printed.length;
}

inline Printed failed(int result)
{
    Printed printed;
    printed.result = result;
    return printed;
}

inline Printed print(QString const & format, void const * data, int length, bool withUnit = false)
{
    Printed printed;
    QString text = QString::fromStdString(printed.text);
    printed.result =
        Morvel::Devicelore::CObjectDef::paraToStr(format, data, length, text, &printed.length, withUnit);
    printed.text = text.toStdString();
    return printed;
}

/// \a format in Latin-1, \a hexBytes like "D2 04".
inline Printed print(char const * format, char const * hexBytes, bool withUnit = false)
{
    QByteArray const bytes = QByteArray::fromHex(hexBytes);
    return print(QString::fromLatin1(format), bytes.constData(), static_cast<int>(bytes.size()), withUnit);
}

inline Printed printWithUnit(char const * format, char const * hexBytes)
{
    return print(format, hexBytes, true);
}

} // namespace kestrova::test
