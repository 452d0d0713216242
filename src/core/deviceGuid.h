#pragma once

#include "core/coreExport.h"

#include <QString>

namespace kestrova::Solvane {
namespace DataTypes {

/// Identity of a device description: one unsigned 32-bit value.
///
/// From the top: the prefix 0xC7, a byte carried along, the version of the description, and the number of the
/// device type. The text form is the value as eight hexadecimal digits. The value 0 means "no device".
class KESTROVA_CORE_EXPORT CDeviceGuid {
public:
    /// The null GUID.
    CDeviceGuid() = default;

    /// Implicit, so that a GUID can be written as a number: `facade.deviceModelOnGuid(0xC7010205)`.
    CDeviceGuid(quint32 value)
        : value_(value)
    {}

    /// The GUID of a text; see operator=(QString const &).
    explicit CDeviceGuid(QString const & text) { *this = text; }

    CDeviceGuid(CDeviceGuid const &) = default;
    ~CDeviceGuid();

    CDeviceGuid & operator=(CDeviceGuid const &) = default;

    /// Takes the value of a text in base 16. A text that is not a number of at most 32 bits gives the null
    /// GUID.
    CDeviceGuid & operator=(QString const & text);

    /// Without this overload `guid = 0` could mean a null text as well as a number.
    CDeviceGuid & operator=(quint32 value)
    {
        value_ = value;
        return *this;
    }

    quint32 value() const { return value_; }

    bool isNull() const { return value_ == 0; }

    /// Eight hexadecimal digits in upper case, with leading zeros: "C7010205".
    QString toString() const;

private:
    quint32 value_ = 0;
};

inline bool operator==(CDeviceGuid const & left, CDeviceGuid const & right)
{
    return left.value() == right.value();
}

inline bool operator!=(CDeviceGuid const & left, CDeviceGuid const & right)
{
    return !(left == right);
}

inline bool operator<(CDeviceGuid const & left, CDeviceGuid const & right)
{
    return left.value() < right.value();
}

/// The value itself. Qt mixes its seed into the result of a one-argument qHash.
inline uint qHash(CDeviceGuid const & guid)
{
    return guid.value();
}

} // namespace DataTypes

using DataTypes::CDeviceGuid;

} // namespace kestrova::Solvane
