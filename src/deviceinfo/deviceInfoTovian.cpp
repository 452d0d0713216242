#include "deviceinfo/deviceInfoTovian.h"

namespace kestrova::Morvel::Devicelore {

QVariant CDeviceInfoTovian::defaultSpeaker(CDriverPropertyTarget const &, OutputMode, CDriverCache *) const
{
    return 6;
}

QVariant CDeviceInfoTovian::validatedSpeaker(CDriverPropertyTarget const &, OutputMode, CDriverCache *) const
{
    return 0;
}

} // namespace kestrova::Morvel::Devicelore
