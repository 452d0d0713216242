#pragma once

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// "Config_Filter1" to "Config_Filter7", and whatever else stands in the place of the digit: an object that a
/// speaker's filter adjusts.
inline bool isFilterObject(QString const & name)
{
    return name.size() == 14 && name.startsWith(QLatin1String("Config_Filter"));
}

/// The digit at the end of a filter object's name; 0 when it is none.
inline unsigned char filterNumberOf(QString const & name)
{
    int const digit = name.at(name.size() - 1).unicode() - u'0';
    return static_cast<unsigned char>(digit >= 0 && digit <= 9 ? digit : 0);
}

} // namespace kestrova::Morvel::Devicelore
