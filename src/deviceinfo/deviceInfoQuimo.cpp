#include "deviceinfo/deviceInfoQuimo.h"

namespace kestrova::Morvel::Devicelore {

QVariant DeviceInfoQuimo::defaultSpeaker(CDriverPropertyTarget const &, OutputMode, CDriverCache *) const
{
    return 0;
}

QVariant DeviceInfoQuimo::validatedSpeaker(CDriverPropertyTarget const &, OutputMode, CDriverCache *) const
{
    return 0;
}

} // namespace kestrova::Morvel::Devicelore
