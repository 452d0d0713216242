#include "objectText.h"

#include "core/qt5Conversions.h"
#include "optionValue.h"

#include <QStringList>
#include <QVariant>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

QString hexadecimal(quint32 number, int width)
{
    return QStringLiteral("0x") + QString::number(number, 16).rightJustified(width, QLatin1Char('0'));
}

QString numberWithPartsText(CObjectNumber const & number)
{
    return QStringLiteral("%1 (box %2, object %3)")
        .arg(hexadecimal(number.fullObject(), 4))
        .arg(number.box())
        .arg(number.objectByte());
}

QString typeName(CObjectDef const & object)
{
    switch (object.objectType()) {
    case CObjectDef::ObjectTypeToggle:
        return QStringLiteral("on/off");
    case CObjectDef::ObjectTypeNumber:
        return QStringLiteral("number");
    case CObjectDef::ObjectTypeString:
        return QStringLiteral("text");
    case CObjectDef::ObjectTypeHex:
        return QStringLiteral("hexadecimal");
    case CObjectDef::ObjectTypeHexDump:
        return QStringLiteral("dump");
    case CObjectDef::ObjectTypeUnknown:
        break;
    }
    return QStringLiteral("unknown");
}

QString rangeText(CObjectDef const & object)
{
    return QStringLiteral("%1 to %2, step %3")
        .arg(numberText(object.minValue()), numberText(object.maxValue()), numberText(object.step()));
}

QString rightsText(CObjectDef const & object)
{
    QStringList rights;
    if (object.isReadable())
        rights.append(QStringLiteral("readable from level %1").arg(object.access() / 10));
    if (object.isWriteable())
        rights.append(QStringLiteral("writeable from level %1").arg(object.access() % 10));
    return rights.isEmpty() ? QStringLiteral("neither readable nor writeable")
                            : rights.join(QStringLiteral(", "));
}

QString valueText(QVariant const & value)
{
    bool const isReal = value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
    return isReal ? numberText(value.toDouble()) : qt5::toText(value);
}

} // namespace kestrova::inspector
