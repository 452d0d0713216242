#include "objectArgument.h"

#include "common/failure.h"
#include "optionValue.h"

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

ObjectQuestion questionOfArgument(QString const & nameOrNumber)
{
    bool isNumber = false;
    unsigned short const number = nameOrNumber.toUShort(&isNumber, 0);
    return isNumber ? ObjectQuestion{{}, number} : ObjectQuestion{nameOrNumber, {}};
}

TharnError findObject(Inspector & inspector, CDeviceGuid const & guid, ObjectQuestion const & question,
                      CDeviceChannelInfo const * channel, CObjectDef & object)
{
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    CDevicelore const & library = inspector.facade();
    return question.number ? library.GetObjectDef(guid, *question.number, object, channel)
                           : library.GetObjectDef(guid, question.name, object, channel);
}

CObjectDef objectOfArgument(Inspector & inspector, CDeviceGuid const & guid, QString const & nameOrNumber,
                            CDeviceChannelInfo const * channel)
{
    CObjectDef object;
    if (findObject(inspector, guid, questionOfArgument(nameOrNumber), channel, object) != TharnNoError)
        throw Failure(ExitNotFound, QStringLiteral("%1 has no object '%2'%3 at access level %4; `devicelore "
                                                   "objects %1` lists its objects")
                                        .arg(guid.toString(), nameOrNumber, channelText(channel))
                                        .arg(inspector.facade().deviceAccessLevel()));
    return object;
}

} // namespace kestrova::inspector
