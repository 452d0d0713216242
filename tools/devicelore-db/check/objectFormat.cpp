#include "check/objectFormat.h"
#include "check/finding.h"

#include "core/qt5Conversions.h"
#include "records/formatSpec.h"
#include "records/latin1Text.h"
#include "records/objectDef.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

constexpr int convertedBytes = 4; // conversions of the facade hand over an int
constexpr int convertedCharacters = 255;
constexpr int allCodesOf = 512; // so small a range is tried whole
constexpr int triedCodes = 256; // of a larger one, spread evenly

/// The format of an object, taken apart by the library's own parser.
struct Format {
    explicit Format(CObjectDef const & definition)
        : object(definition)
        , text(definition.format())
        , latin1(text)
    {
        parseFormatSpec(latin1.constData(), spec);
    }

    bool isFloat() const { return spec.conversion == 'f'; }

    bool isInteger() const { return spec.conversion == 'd' || spec.conversion == 'u'; }

    bool isSigned() const { return spec.conversion == 'd'; }

    bool isConverted() const { return isFloat() || isInteger() || spec.conversion == 'x'; }

    CObjectDef const & object;
    QString text;
    Latin1Text latin1;
    FormatSpec spec;
};

/// The device's bytes of a number, lowest first, as the int that applications read them into.
int rawOf(double number, Format const & format)
{
    if (!format.isFloat())
        return static_cast<int>(static_cast<qint64>(number));
    auto const single = static_cast<float>(number);
    int bits = 0;
    std::memcpy(&bits, &single, sizeof(bits));
    return bits;
}

// --- The rules ---

void checkSize(Format const & format, QVector<FormatFault> & faults)
{
    int expected = format.spec.size;
    if (format.spec.conversion == 'H')
        expected = format.spec.width; // the width of a dump is its number of bytes
    else if (format.spec.conversion == 'T')
        return;
    if (expected != format.object.size())
        faults.append(
            {"format-size", "Format",
             QStringLiteral("\"%1\" has the size %2, and Size is %3")
                 .arg(format.text, QString::number(expected), QString::number(format.object.size()))});
}

void checkTextSize(Format const & format, QVector<FormatFault> & faults)
{
    int const least = std::max(format.spec.width, format.spec.size); // less is filled up, or refused
    int const room = format.object.size() - 1;                       // the terminator takes one byte
    if (room < 0)
        faults.append({"format-size", "Size", QStringLiteral("a text takes one byte at least")});
    else if (least > room)
        faults.append({"format-size", "Format",
                       QStringLiteral("\"%1\" takes %2 characters at least, and Size leaves room for %3")
                           .arg(format.text, QString::number(least), QString::number(room))});
    else if (room > convertedCharacters)
        faults.append({"format-size", "Size",
                       QStringLiteral("Size leaves room for %1 characters, and %2 are converted")
                           .arg(room)
                           .arg(convertedCharacters)});
}

struct Bounds {
    double lowest;
    double highest;
};

/// What the bytes of a number hold.
Bounds boundsOf(Format const & format)
{
    if (format.isFloat()) {
        bool const isDouble = format.spec.size > static_cast<int>(sizeof(float));
        double const highest =
            isDouble ? std::numeric_limits<double>::max() : double(std::numeric_limits<float>::max());
        return {-highest, highest};
    }
    double const values = std::ldexp(1.0, format.spec.size * 8);
    return format.isSigned() ? Bounds{-values / 2, values / 2 - 1} : Bounds{0, values - 1};
}

/// Whether the range fits the bytes; if not, there is no point in trying its values.
bool checkRangeSize(Format const & format, QVector<FormatFault> & faults)
{
    Bounds const bounds = boundsOf(format);
    if (format.object.minValue() >= bounds.lowest && format.object.maxValue() <= bounds.highest)
        return true;
    faults.append({"range-size", "Max",
                   QStringLiteral("the range is %1 to %2, and \"%3\" holds %4 to %5")
                       .arg(shownNumber(format.object.minValue()), shownNumber(format.object.maxValue()),
                            format.text, shownNumber(bounds.lowest), shownNumber(bounds.highest))});
    return false;
}

/// Whether neighbouring values can be told apart.
bool checkStep(Format const & format, QVector<FormatFault> & faults)
{
    double const step = format.object.step();
    double const smallest = format.isFloat() ? std::pow(10.0, -format.spec.precision) : 1.0;
    double const steps = step / smallest;
    if (step <= 0 || std::abs(steps - std::round(steps)) < 1e-6 * std::max(1.0, steps))
        return true;
    faults.append({"format-step", "Format",
                   format.isFloat()
                       ? QStringLiteral("\"%1\" has the precision %2, and the step is %3")
                             .arg(format.text, QString::number(format.spec.precision), shownNumber(step))
                       : QStringLiteral("\"%1\" counts whole numbers, and the step is %2")
                             .arg(format.text, shownNumber(step))});
    return false;
}

void checkWidth(Format const & format, QVector<FormatFault> & faults)
{
    for (double const end : {format.object.minValue(), format.object.maxValue()}) {
        int const raw = rawOf(end, format);
        QString printed;
        int length = 0;
        if (CObjectDef::paraToStr(format.text, &raw, sizeof(raw), printed, &length, false) != ConvertOk)
            return;
        if (length > format.spec.width) {
            faults.append({"format-width", "Format",
                           QStringLiteral("\"%1\" is %2 wide, and %3 takes %4")
                               .arg(format.text, QString::number(format.spec.width), shownNumber(end),
                                    QString::number(length))});
            return;
        }
    }
}

/// Values of the range: all of a small one, else the ends and some between.
QVector<double> triedValues(Format const & format)
{
    double const minimum = format.object.minValue();
    double const step = format.isFloat() ? format.object.step() : 1.0;
    double const last = std::floor((format.object.maxValue() - minimum) / step + 1e-9);
    QVector<double> values;
    if (!(step > 0) || !(last >= 0) || !std::isfinite(last))
        return values;
    int const count = last < allCodesOf ? static_cast<int>(last) : triedCodes;
    for (int i = 0; i <= count; ++i)
        values.append(minimum + std::floor(last * i / std::max(1, count)) * step);
    return values;
}

/// What the device gets of the int: its lowest bytes. So it does not matter that an unsigned number whose top
/// bit is set comes back as a negative one.
quint64 bytesForDevice(int raw, CObjectDef const & object)
{
    int const bits = 8 * std::min<int>(object.size(), convertedBytes);
    return static_cast<quint32>(raw) & ((quint64(1) << bits) - 1);
}

bool comesBack(double number, Format const & format, CDevicelore & library, QString & shown)
{
    QVariant const raw(rawOf(number, format));
    QVariant value = raw;
    library.deviceToReal(format.object, value);
    shown = qt5::toText(value);
    library.realToDevice(format.object, value);
    int const again = value.userType() == QMetaType::Float ? rawOf(value.toDouble(), format) : value.toInt();
    return bytesForDevice(again, format.object) == bytesForDevice(raw.toInt(), format.object);
}

void checkRoundTrip(Format const & format, CDevicelore & library, QVector<FormatFault> & faults)
{
    for (double const number : triedValues(format)) {
        QString shown;
        if (!comesBack(number, format, library, shown)) {
            faults.append({"round-trip", "Format",
                           QStringLiteral("the device's %1 is shown as %2 and comes back as another")
                               .arg(shownNumber(number), shown)});
            return;
        }
    }
}

void checkConversion(Format const & format, CDevicelore & library, QVector<FormatFault> & faults)
{
    bool const fits = !format.isConverted() || checkRangeSize(format, faults);
    if (!format.isConverted() || format.spec.size > convertedBytes) {
        faults.append({"values-unconverted", "Format",
                       QStringLiteral("\"%1\" has the conversion '%3' and the size %2")
                           .arg(format.text, QString::number(format.spec.size),
                                QString(QLatin1Char(format.spec.conversion)))});
        return;
    }
    bool const isTellable = format.spec.conversion == 'x' || checkStep(format, faults);
    if (!fits || format.object.minValue() > format.object.maxValue())
        return;
    checkWidth(format, faults);
    if (isTellable)
        checkRoundTrip(format, library, faults);
}

bool isLatin1(QString const & text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 256; });
}

} // namespace

QVector<FormatFault> formatFaults(CObjectDef const & object, CDevicelore & library)
{
    QVector<FormatFault> faults;
    Format const format(object);
    if (!isLatin1(format.text))
        faults.append({"format-not-latin1", "Format",
                       QStringLiteral("\"%1\" has characters beyond Latin-1").arg(format.text)});
    if (format.spec.conversion == 0) {
        faults.append({"format-unparsable", "Format",
                       format.text.contains(QLatin1Char('%'))
                           ? QStringLiteral("\"%1\" does not begin with its conversion").arg(format.text)
                           : QStringLiteral("\"%1\" has no %").arg(format.text)});
        return faults;
    }
    if (format.spec.size <= 0) {
        faults.append({"format-without-size", "Format",
                       QStringLiteral("\"%1\" names no conversion that has a size").arg(format.text)});
        return faults;
    }
    if (format.spec.conversion == 's')
        checkTextSize(format, faults);
    else
        checkSize(format, faults);
    if (CObjectDef::decimals(format.text) != format.spec.precision)
        faults.append({"unit-point", "Format",
                       QStringLiteral("\"%1\" prints with the precision %2 and says %3")
                           .arg(format.text, QString::number(format.spec.precision),
                                QString::number(CObjectDef::decimals(format.text)))});
    switch (format.spec.conversion) {
    case 's':
    case 'b':
    case 'H':
        break; // a text, a pattern and a dump are shown as they are
    default:
        checkConversion(format, library, faults);
    }
    return faults;
}

} // namespace kestrova::authoring
