#include "core/deviceGuid.h"

#include "core/qt5Conversions.h"

namespace kestrova::Solvane::DataTypes {

CDeviceGuid::~CDeviceGuid() = default;

CDeviceGuid & CDeviceGuid::operator=(QString const & text)
{
    value_ = qt5::toUInt(text, nullptr, 16);
    return *this;
}

QString CDeviceGuid::toString() const
{
    constexpr char digits[] = "0123456789ABCDEF";
    QString text(8, Qt::Uninitialized);
    for (int i = 0; i < 8; ++i)
        text[i] = QLatin1Char(digits[(value_ >> (28 - 4 * i)) & 0xF]);
    return text;
}

} // namespace kestrova::Solvane::DataTypes
