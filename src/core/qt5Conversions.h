#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QVariant>
#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

/// Conversions of values as Qt 5.15 makes them, with whatever Qt the library is built. What becomes of an odd
/// value in a database or in the hands of an application must not depend on that, and Qt 6 converts some
/// otherwise.
namespace kestrova::qt5 {

/// A fraction is rounded to the nearest number, a half towards positive infinity; -2.5 becomes -2. What does
/// not fit loses its high bits.
int toInt(QVariant const & value, bool * isNumber = nullptr);
unsigned int toUInt(QVariant const & value);
qint64 toInt64(QVariant const & value);

/// Infinite for bytes and texts that say a number beyond the range of double; these count as no number.
double toDouble(QVariant const & value, bool * isNumber = nullptr);

/// The shorter of decimals and exponent for a double, decimals up to 100000. Bytes end at the first 0 byte;
/// without any they are an empty text and not a null one.
QString toText(QVariant const & value);

/// The bytes of toText() for a double.
QByteArray toBytes(QVariant const & value);

/// Whether it is invalid, NULL in the database, or null as a text or as bytes: an empty blob is.
bool isNull(QVariant const & value);

/// Numbers are equal if they agree in about 12 digits as soon as one of them is a fraction. Two kinds of
/// values are compared as the kind of \a left if \a right converts to it.
bool equal(QVariant const & left, QVariant const & right);

/// Any white space around the number and the minus sign U+2212 are understood; no U+0000 is.
int toInt(QString const & text, bool * isNumber = nullptr, int base = 10);
unsigned int toUInt(QString const & text, bool * isNumber = nullptr, int base = 10);
unsigned short toUShort(QString const & text, bool * isNumber = nullptr, int base = 10);

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

inline int toInt(QVariant const & value, bool * isNumber)
{
    return value.toInt(isNumber);
}

inline unsigned int toUInt(QVariant const & value)
{
    return value.toUInt();
}

inline qint64 toInt64(QVariant const & value)
{
    return value.toLongLong();
}

inline double toDouble(QVariant const & value, bool * isNumber)
{
    return value.toDouble(isNumber);
}

inline QString toText(QVariant const & value)
{
    return value.toString();
}

inline QByteArray toBytes(QVariant const & value)
{
    return value.toByteArray();
}

inline bool isNull(QVariant const & value)
{
    return value.isNull();
}

inline bool equal(QVariant const & left, QVariant const & right)
{
    return left == right;
}

inline int toInt(QString const & text, bool * isNumber, int base)
{
    return text.toInt(isNumber, base);
}

inline unsigned int toUInt(QString const & text, bool * isNumber, int base)
{
    return text.toUInt(isNumber, base);
}

inline unsigned short toUShort(QString const & text, bool * isNumber, int base)
{
    return text.toUShort(isNumber, base);
}

#else

namespace detail {

inline bool isReal(QVariant const & value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

inline bool isNumeric(QVariant const & value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return isReal(value);
    }
}

// NOLINTBEGIN(bugprone-incorrect-roundings): exactly the steps of Qt 5
inline qint64 rounded(double number)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (number >= limit || number == -limit)
        return std::numeric_limits<qint64>::min();
    if (number >= 0.0)
        return static_cast<qint64>(number + 0.5);
    if (!(number > -limit))
        return 0;
    auto const below = static_cast<qint64>(number - 1.0);
    return static_cast<qint64>(number - static_cast<double>(below) + 0.5) + below;
}

// NOLINTEND(bugprone-incorrect-roundings)

/// The number of that text in the spelling that Qt 6 understands; empty if it is none.
inline QString plainNumber(QString const & text)
{
    if (text.contains(QChar::Null))
        return QString();
    return text.trimmed().replace(QChar(0x2212), QLatin1Char('-'));
}

/// The value with its number, if it is a fraction or a text, as Qt 5 understands it.
inline QVariant withPlainNumber(QVariant const & value)
{
    if (isReal(value))
        return QVariant(rounded(value.toDouble()));
    return value.userType() == QMetaType::QString ? QVariant(plainNumber(value.toString())) : value;
}

inline QString shortestText(double number)
{
    QByteArray const exponential = QByteArray::number(number, 'e', QLocale::FloatingPointShortest);
    auto const mark = exponential.indexOf('e');
    if (mark < 0) // infinite, or not a number
        return QString::number(number);
    auto const digits = std::count_if(exponential.begin(), exponential.begin() + mark,
                                      [](char character) { return character >= '0' && character <= '9'; });
    int const point = exponential.mid(mark + 1).toInt() + 1; // digits in front of the decimal point
    auto const widestDecimals = digits + (point > 100 ? 6 : 5);
    bool const isExponential = point <= -4 || (point != digits && point > widestDecimals);
    return QString::number(number, isExponential ? 'e' : 'f', QLocale::FloatingPointShortest);
}

} // namespace detail

inline int toInt(QVariant const & value, bool * isNumber)
{
    return detail::withPlainNumber(value).toInt(isNumber);
}

inline unsigned int toUInt(QVariant const & value)
{
    return detail::withPlainNumber(value).toUInt();
}

inline qint64 toInt64(QVariant const & value)
{
    return detail::withPlainNumber(value).toLongLong();
}

inline double toDouble(QVariant const & value, bool * isNumber)
{
    bool isDouble = false;
    double const number = value.toDouble(&isDouble);
    if (isNumber != nullptr)
        *isNumber = isDouble;
    if (isDouble || value.userType() != QMetaType::QByteArray)
        return number;
    bool isText = false;
    double const endless = QString::fromLatin1(value.toByteArray()).toDouble(&isText);
    return isText ? number : endless;
}

inline QString toText(QVariant const & value)
{
    if (detail::isReal(value))
        return detail::shortestText(value.toDouble());
    if (value.userType() == QMetaType::QByteArray)
        return QString::fromUtf8(value.toByteArray().constData());
    return value.toString();
}

inline QByteArray toBytes(QVariant const & value)
{
    return detail::isReal(value) ? detail::shortestText(value.toDouble()).toLatin1() : value.toByteArray();
}

inline bool isNull(QVariant const & value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return value.toString().isNull();
    case QMetaType::QByteArray:
        return value.toByteArray().isNull();
    default:
        return value.isNull();
    }
}

inline bool equal(QVariant const & left, QVariant const & right)
{
    if (detail::isNumeric(left) && detail::isNumeric(right)) {
        if (!detail::isReal(left) && !detail::isReal(right))
            return left == right;
        double const number = left.toDouble();
        double const other = right.toDouble();
        return number == other ||
               (std::isfinite(number) && std::isfinite(other) && qFuzzyCompare(number, other));
    }
    if (left.userType() == QMetaType::QString)
        return right.canConvert<QString>() && left.toString() == toText(right);
    if (left.userType() == QMetaType::QByteArray)
        return right.canConvert<QByteArray>() && left.toByteArray() == toBytes(right);
    if (detail::isNumeric(left)) {
        bool const isInteger = !detail::isReal(left) && left.userType() != QMetaType::Bool;
        QVariant converted = isInteger ? detail::withPlainNumber(right) : right;
        return converted.convert(left.metaType()) && left == converted;
    }
    return left == right;
}

inline int toInt(QString const & text, bool * isNumber, int base)
{
    return detail::plainNumber(text).toInt(isNumber, base);
}

inline unsigned int toUInt(QString const & text, bool * isNumber, int base)
{
    return detail::plainNumber(text).toUInt(isNumber, base);
}

inline unsigned short toUShort(QString const & text, bool * isNumber, int base)
{
    return detail::plainNumber(text).toUShort(isNumber, base);
}

#endif

} // namespace kestrova::qt5
