#include "deviceinfo/deviceInfoRabel.h"

#include "deviceinfo/equaliserDefaults.h"

namespace kestrova::Morvel::Devicelore {

CDeviceInfoRabel::CDeviceInfoRabel()
{
    setChannelCount(ChannelTypeOutput, 64);
    setChannelCount(ChannelTypeInput, 64);
    addEqualiserDefaults(defaultValues, QStringLiteral("MatrixInputEq"));
    addEqualiserDefaults(defaultValues, QStringLiteral("MatrixOutputEq"));
    addEqualiserDefaults(defaultValues, QStringLiteral("ReverbInputProcessingEq"));
}

QVariant CDeviceInfoRabel::defaultSpeaker(CDriverPropertyTarget const &, OutputMode, CDriverCache *) const
{
    return 0;
}

QVariant CDeviceInfoRabel::validatedSpeaker(CDriverPropertyTarget const &, OutputMode, CDriverCache *) const
{
    return 0;
}

} // namespace kestrova::Morvel::Devicelore
