#include "facade/devicelore.h"

#include "core/qt5Conversions.h"
#include "records/scaledNumber.h"

#include <QMessageLogger>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace kestrova::Morvel::Devicelore {

namespace {

constexpr unsigned short textOnlyFlag = 0x400; // such an object's texts are no raw values

// Some conversions read on behind the value: "s" up to a 0 byte, "H" as far as its width says.
constexpr int bytesThatAFormatMayRead = 256;

/// The number in a printed text; 0 when it is none. It is read with the decimal point with which it was
/// printed, so that values convert alike in every locale.
double printedNumber(QString text)
{
    char const point = decimalPoint();
    if (point != '.' && point != 0)
        text.replace(QLatin1Char(point), QLatin1Char('.'));
    return text.toDouble();
}

/// Prints a raw number by the object's format and reads the text back as a real number.
template <typename Number>
bool numberToReal(CObjectDef const & object, Number raw, QVariant & value)
{
    std::array<char, bytesThatAFormatMayRead> bytes{};
    std::memcpy(bytes.data(), &raw, sizeof(raw));
    QString text;
    if (CObjectDef::paraToStr(object.format(), bytes.data(), sizeof(raw), text, nullptr, false) != ConvertOk)
        return false;
    bool isNumber = true; // a text that is no number counts as 0, but for hexadecimal objects
    if (object.objectType() == CObjectDef::ObjectTypeHex)
        value = QVariant(double(qt5::toUInt(text, &isNumber, 16)));
    else
        value = QVariant(printedNumber(text));
    return isNumber;
}

bool textToReal(CObjectDef const & object, QVariant & value)
{
    if (object.mask().testFlag(ObjectDefFlags) && (object.flags() & textOnlyFlag) != 0)
        return false;
    QByteArray bytes(qt5::toText(value).toLatin1().constData()); // up to the first NUL
    int const length = static_cast<int>(bytes.size());
    bytes.append(bytesThatAFormatMayRead, '\0');
    QString text;
    if (CObjectDef::paraToStr(object.format(), bytes.constData(), length, text, nullptr, false) != ConvertOk)
        return false;
    value = QVariant(text);
    return true;
}

/// The integer part in 64 bits. What does not fit is the lowest number, as the processor has it.
qint64 integerPart(double number)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    return number >= -limit && number < limit ? static_cast<qint64>(number)
                                              : std::numeric_limits<qint64>::min();
}

/// Converts minimum, maximum and step, all of them whatever becomes of the others. A member that cannot be
/// converted stays. Whether all could be.
template <typename Convert>
bool convertRange(CObjectDef & object, Convert convert)
{
    struct Member {
        double (CObjectDef::*get)() const;
        void (CObjectDef::*set)(double);
    };

    constexpr Member members[] = {
        {&CObjectDef::minValue, &CObjectDef::setMin},
        {&CObjectDef::maxValue, &CObjectDef::setMax},
        {&CObjectDef::step, &CObjectDef::setStep},
    };
    bool all = true;
    for (Member const & member : members) {
        QVariant value((object.*member.get)());
        if (convert(value))
            (object.*member.set)(qt5::toDouble(value));
        else
            all = false;
    }
    return all;
}

CDevicelore::ValidationState validateToggle(QVariant & value)
{
    if (!value.canConvert<int>()) {
        QMessageLogger(nullptr, 0, nullptr).warning("Invalid value or type");
        return CDevicelore::Invalid;
    }
    int const number = qt5::toInt(value);
    if (number < 0) {
        value = QVariant(0);
        return CDevicelore::AdjustedToMin;
    }
    if (number > 1) {
        value = QVariant(1);
        return CDevicelore::AdjustedToMax;
    }
    return CDevicelore::Valid;
}

// The limits come first and win: what they have changed is not rounded, and what is rounded is not limited
// again, even where the step grid leads past the maximum.
CDevicelore::ValidationState validateNumber(QVariant & value, CObjectDef const & object, bool roundToStep)
{
    double const number = qt5::toDouble(value); // 0 for what is no number
    value = QVariant(number);
    if (object.minValue() > number) {
        value = QVariant(object.minValue());
        return CDevicelore::AdjustedToMin;
    }
    if (number > object.maxValue()) {
        value = QVariant(object.maxValue());
        return CDevicelore::AdjustedToMax;
    }
    if (!roundToStep)
        return CDevicelore::Valid;
    double const rounded = roundOnStep(number, object.step());
    if (rounded == number)
        return CDevicelore::Valid;
    value = QVariant(rounded);
    return rounded > number ? CDevicelore::RoundedUp : CDevicelore::RoundedDown;
}

CDevicelore::ValidationState validateText(QVariant & value, CObjectDef const & object)
{
    int const limit = object.size() - 1; // the terminator takes one place; -1 for an object without any
    QString const text = qt5::toText(value);
    if (text.size() <= limit)
        return CDevicelore::Valid;
    value = QVariant(text.left(std::max(limit, 0)));
    return CDevicelore::Truncated;
}

} // namespace

bool CDevicelore::deviceToReal(CObjectDef const & object, QVariant & value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::Double:
        return numberToReal(object, qt5::toInt(value), value);
    case QMetaType::UInt:
        return numberToReal(object, qt5::toUInt(value), value);
    case QMetaType::QString:
        return textToReal(object, value);
    case QMetaType::QByteArray:
        if (object.objectType() == CObjectDef::ObjectTypeString)
            value = QVariant(qt5::toText(value));
        return false; // though the bytes have become a text
    default:
        return false;
    }
}

bool CDevicelore::realToDevice(CObjectDef const & object, QVariant & value)
{
    QString text;
    switch (object.objectType()) {
    case CObjectDef::ObjectTypeToggle:
    case CObjectDef::ObjectTypeNumber:
        text = QString::number(qt5::toDouble(value), 'f', 4); // finer values are rounded here
        break;
    case CObjectDef::ObjectTypeString:
        text = qt5::toText(value);
        break;
    case CObjectDef::ObjectTypeHex:
        // Unsigned: Qt 6 would put a minus sign in front of the digits of a negative number.
        text = QString::number(static_cast<quint64>(integerPart(qt5::toDouble(value))), 16);
        break;
    default:
        return false;
    }
    return CObjectDef::strToPara(text, object.format(), value) == ConvertOk;
}

// The range of a text means nothing on the way to the user. The way back has no such exception.
bool CDevicelore::deviceToReal(CObjectDef & object)
{
    if (object.objectType() == CObjectDef::ObjectTypeString)
        return true;
    return convertRange(object, [&](QVariant & value) { return deviceToReal(object, value); });
}

bool CDevicelore::realToDevice(CObjectDef & object)
{
    return convertRange(object, [&](QVariant & value) { return realToDevice(object, value); });
}

CDevicelore::ValidationState CDevicelore::validateValue(QVariant & value, CObjectDef const & object,
                                                        bool roundToStep) const
{
    switch (object.objectType()) {
    case CObjectDef::ObjectTypeToggle:
        return validateToggle(value);
    case CObjectDef::ObjectTypeNumber:
        return validateNumber(value, object, roundToStep);
    case CObjectDef::ObjectTypeString:
        return validateText(value, object);
    default: // hexadecimal values have no range to be checked
        return Valid;
    }
}

// As with DetermineSimpleControlType(), and unlike the other questions about properties, the channel is no
// gate.
CDevicelore::ValidationState CDevicelore::AdjustDeviceProperty(CDeviceGuid const & guid, QString const & name,
                                                               QVariant & value,
                                                               CDeviceChannelInfo const * channelInfo) const
{
    CDriverCacheObjectItem * item = nullptr;
    GetItemReturnValue const found = GetObjectItem(item, determineDriverGuid(guid), name, channelInfo);
    if (item == nullptr || found != GetItemFound)
        return Invalid;
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(ObjectDefObjectNumber) | ObjectDefMinValue | ObjectDefMaxValue |
                   ObjectDefStep | ObjectDefFormat | ObjectDefSize | ObjectDefObjectType |
                   ObjectDefBoxNumber);
    FillObjectDef(object, item);
    correctDelayMinimum(name, object, channelInfo);
    return validateValue(value, object, true);
}

bool CDevicelore::parseVokraAscii(unsigned char * text, QVariant & value)
{
    constexpr unsigned char ohmByte = 0x81;
    constexpr char16_t ohmSign = 0x03A9;
    if (text == nullptr)
        return false;

    QString result;
    bool isReplaced = false;
    auto * segment = reinterpret_cast<char *>(text);
    for (unsigned char * byte = text; *byte != 0; ++byte) {
        if (*byte != ohmByte)
            continue;
        *byte = 0;
        result += QString::fromUtf8(segment) + QChar(ohmSign);
        segment = reinterpret_cast<char *>(byte) + 1;
        isReplaced = true;
    }
    result += QString::fromUtf8(segment);
    value = QVariant(result);
    return isReplaced;
}

} // namespace kestrova::Morvel::Devicelore
