#include "deviceinfo/deviceInfoFenra.h"

namespace kestrova::Morvel::Devicelore {

DeviceInfoFenra::DeviceInfoFenra()
{
    setChannelCount(ChannelTypeSpeaker, 4);
    setChannelCount(ChannelTypeInput, 8);
}

QVariant DeviceInfoFenra::validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                           CDriverCache * cache) const
{
    // Without a type no speaker is listed, and the default comes back whatever the target has. This is meant.
    QFlags<SpeakerType> const noType;
    return listedOrDefaultSpeaker(target, mode, noType, mode, cache);
}

} // namespace kestrova::Morvel::Devicelore
