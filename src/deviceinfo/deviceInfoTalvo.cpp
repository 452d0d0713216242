#include "deviceinfo/deviceInfoTalvo.h"

#include "records/driverPropertyTarget.h"

#include <array>

namespace kestrova::Morvel::Devicelore {

namespace talvo {
namespace {

/// What a channel is used for.
struct Use {
    QFlags<SpeakerType> types; ///< of the speakers that can be put there
    int defaultSpeaker;        ///< 0: the default value of the target
};

struct ModeRow {
    Use channel1;
    Use channel2;
    Use otherChannels;
};

constexpr Use full{QFlags<SpeakerType>(SpeakerTypeFirstChannel) | SpeakerTypeSecondChannel, 0};
constexpr Use high{SpeakerTypeFirstChannel, 7};
constexpr Use bass{SpeakerTypeSecondChannel, 25};
constexpr Use gone{QFlags<SpeakerType>(), 25}; // no such channel, but a default all the same
constexpr Use pair{SpeakerTypeTwoWay, 11};

constexpr std::array<ModeRow, 3> modeRows = {{
    {full, full, full}, // mode 0
    {high, bass, gone}, // 1
    {pair, pair, pair}, // 2
}};
constexpr Use useInOtherModes{QFlags<SpeakerType>(), 0};

Use useOf(int channel, OutputMode mode)
{
    if (mode < 0 || mode >= int(modeRows.size()))
        return useInOtherModes;
    ModeRow const & row = modeRows.at(std::size_t(mode));
    switch (channel) {
    case 1:
        return row.channel1;
    case 2:
        return row.channel2;
    default:
        return row.otherChannels;
    }
}

} // namespace
} // namespace talvo

QVariant CDeviceInfoTalvo::defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                          CDriverCache * cache) const
{
    int const speaker = talvo::useOf(target.deviceChannel(), mode).defaultSpeaker;
    return speaker != 0 ? QVariant(speaker) : defaultValue(target, cache);
}

QVariant CDeviceInfoTalvo::validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                            CDriverCache * cache) const
{
    return listedOrDefaultSpeaker(target, mode, talvo::useOf(target.deviceChannel(), mode).types, mode,
                                  cache);
}

} // namespace kestrova::Morvel::Devicelore
