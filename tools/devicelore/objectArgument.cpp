#include "objectArgument.h"

#include "common/failure.h"
#include "optionValue.h"

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

bool readNumber(QString const & text, unsigned short & number)
{
    bool isNumber = false;
    number = text.toUShort(&isNumber, 0);
    return isNumber;
}

} // namespace

CObjectDef objectOfArgument(Inspector & inspector, CDeviceGuid const & guid, QString const & nameOrNumber,
                            CDeviceChannelInfo const * channel)
{
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    CDevicelore const & library = inspector.facade();
    unsigned short number = 0;
    TharnError const result = readNumber(nameOrNumber, number)
                                  ? library.GetObjectDef(guid, number, object, channel)
                                  : library.GetObjectDef(guid, nameOrNumber, object, channel);
    if (result != TharnNoError)
        throw Failure(ExitNotFound, QStringLiteral("%1 has no object '%2'%3 at access level %4; `devicelore "
                                                   "objects %1` lists its objects")
                                        .arg(guid.toString(), nameOrNumber, channelText(channel))
                                        .arg(library.deviceAccessLevel()));
    return object;
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

} // namespace kestrova::inspector
