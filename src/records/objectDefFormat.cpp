#include "records/objectDef.h"

#include "records/formatSpec.h"
#include "records/latin1Text.h"
#include "records/parameterParsing.h"
#include "records/parameterPrinting.h"

#include <cmath>

namespace kestrova::Morvel::Devicelore {

namespace {

/// The unit behind a conversion: one "%" marks where it begins, and 0x81 is the devices' Ohm sign.
QString unitName(char const * conversion)
{
    char const * const unit = unitBehind(conversion);
    switch (*unit) {
    case '%':
        return QString::fromLatin1(unit + 1);
    case '\x81':
        return QStringLiteral("Ohm");
    default:
        return QString::fromLatin1(unit);
    }
}

bool isToggle(CObjectDef const & object)
{
    return std::abs(object.maxValue() - object.minValue()) == 1.0 && object.minValue() == 0.0 &&
           object.step() == 1.0;
}

} // namespace

void CObjectDef::determineObjectType()
{
    if (!mask_.testFlag(ObjectDefFormat))
        return;
    Latin1Text const format(format_);
    FormatSpec spec;
    char const * const conversion = parseFormatSpec(format.constData(), spec);
    if (*unitBehind(conversion) != 0)
        unit_ = unitName(conversion);

    switch (spec.conversion) {
    case 'H':
        objectType_ = ObjectTypeHexDump;
        break;
    case 'x':
        objectType_ = ObjectTypeHex;
        break;
    case 'b':
        objectType_ = ObjectTypeUnknown;
        break;
    case 's':
        objectType_ = ObjectTypeString;
        break;
    case 'c':
    case 'd':
    case 'f':
    case 'u':
        if (mask_.testFlag(ObjectDefMinValue) && mask_.testFlag(ObjectDefMaxValue))
            objectType_ = isToggle(*this) ? ObjectTypeToggle : ObjectTypeNumber;
        break;
    default:
        break;
    }
}

bool CObjectDef::isNumeric() const
{
    Latin1Text const format(format_);
    FormatSpec spec;
    return *parseFormatSpec(format.constData(), spec) != 's';
}

ConvertResult CObjectDef::paraToStr(QString const & format, void const * data, int length, QString & text,
                                    int * textLength, bool withUnit)
{
    FieldText printed;
    ConvertResult const result =
        formatParameter(Latin1Text(format).constData(), data, &length, &printed, textLength, withUnit);
    if (result == ConvertOk)
        printed.assignTo(text);
    return result;
}

ConvertResult CObjectDef::strToPara(QString const & text, QString const & format, QVariant & value)
{
    int consumed = 0;
    return parseParameter(Latin1Text(text).constData(), Latin1Text(format).constData(), value, consumed);
}

int CObjectDef::decimals(QString const & format)
{
    auto const point = format.lastIndexOf(QLatin1Char('.'));
    if (point < 0)
        return 0;
    auto end = point + 1;
    while (end < format.size() && isDecimalDigit(format.at(end).toLatin1()))
        ++end;
    return format.mid(point + 1, end - point - 1).toInt();
}

QString CObjectDef::unit(QString const & format)
{
    Latin1Text const bytes(format);
    FormatSpec spec;
    return unitName(parseFormatSpec(bytes.constData(), spec));
}

} // namespace kestrova::Morvel::Devicelore
