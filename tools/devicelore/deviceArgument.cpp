#include "deviceArgument.h"

#include "common/failure.h"
#include "guidParts.h"

#include <QRegularExpression>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

using namespace tools;

namespace {

CDeviceGuid guidOfModel(InspectorCache & cache, QString const & model)
{
    CDeviceGuid guid;
    if (cache.guidOnDeviceType(model, guid))
        return cache.determineDriverGuid(withVersion(guid, 255)); // asks for the newest
    QStringList models = cache.deviceModels();
    models.sort();
    throw Failure(ExitNotFound, QStringLiteral("there is no model '%1'; the models are %2")
                                    .arg(model, models.join(QStringLiteral(", "))));
}

} // namespace

CDeviceGuid guidOfArgument(InspectorCache & cache, QString const & argument)
{
    static QRegularExpression const guidText(QStringLiteral("^(0[xX])?[0-9A-Fa-f]{8}$"));
    return guidText.match(argument).hasMatch() ? CDeviceGuid(argument) : guidOfModel(cache, argument);
}

CDeviceGuid descriptionOfArgument(InspectorCache & cache, QString const & argument)
{
    CDeviceGuid const asked = guidOfArgument(cache, argument);
    CDeviceGuid const described = cache.determineDriverGuid(asked);
    if (!cache.descriptions().isKnownGuid(described))
        throw Failure(ExitNotFound,
                      QStringLiteral("there is no description of %1; `devicelore device %1` tells why")
                          .arg(asked.toString()));
    return described;
}

} // namespace kestrova::inspector
