#include "deviceinfo/deviceInfoSarni.h"

#include "deviceinfo/equaliserDefaults.h"
#include "records/driverPropertyTarget.h"

#include <array>

namespace kestrova::Morvel::Devicelore {

namespace sarni {
namespace {

constexpr int lastChannel = 4;
constexpr int speakerOfModel = 0;

/// What a channel is used for.
struct Use {
    QFlags<SpeakerType> types; ///< of the speakers that can be put there
    int listMode;              ///< the output mode to list them with: the catalogue knows 0 to 2 only
    int defaultSpeaker;        ///< or speakerOfModel
};

constexpr Use full{QFlags<SpeakerType>(SpeakerTypeFirstChannel) | SpeakerTypeSecondChannel, 0, 71};
constexpr Use high{SpeakerTypeFirstChannel, 1, 71};
constexpr Use bass{SpeakerTypeSecondChannel, 1, 68};
constexpr Use pair{SpeakerTypeTwoWay, 2, speakerOfModel};

/// By channel from -1 to 6. The device has channels 1 to 4; the others have a default speaker all the same.
using ModeRow = std::array<Use, 8>;

constexpr std::array<ModeRow, 9> modeRows = {{
    // -1,   0,    1,    2,    3,    4,    5,    6
    {{full, full, full, full, full, full, full, full}}, // mode 0
    {{full, full, high, bass, full, full, full, full}}, // 1
    {{pair, pair, pair, pair, full, full, full, full}}, // 2
    {{full, full, full, full, high, bass, full, full}}, // 3
    {{full, full, full, full, pair, pair, pair, pair}}, // 4
    {{high, bass, high, bass, high, bass, high, bass}}, // 5
    {{pair, pair, pair, pair, high, bass, bass, bass}}, // 6
    {{bass, bass, high, bass, pair, pair, pair, pair}}, // 7
    {{pair, pair, pair, pair, pair, pair, pair, pair}}, // 8
}};

bool isInTable(OutputMode mode)
{
    return mode >= 0 && mode < int(modeRows.size());
}

/// A channel beyond the columns is like the even or odd one at the edge.
Use useOf(int channel, OutputMode mode)
{
    bool const isOdd = channel % 2 != 0;
    if (channel < -1)
        channel = isOdd ? -1 : 0;
    else if (channel > 6)
        channel = isOdd ? 5 : 6;
    int const column = channel + 1;
    return modeRows.at(std::size_t(mode)).at(std::size_t(column));
}

/// Mode 0 takes speakers on any channel, the others only on the channels that there are.
bool takesSpeakers(int channel, OutputMode mode)
{
    return isInTable(mode) && (mode == 0 || (channel >= 1 && channel <= lastChannel));
}

} // namespace
} // namespace sarni

CDeviceInfoSarni::CDeviceInfoSarni(int speakerOfPair)
    : twoWaySpeaker(speakerOfPair)
{
    setChannelCount(ChannelTypeSpeaker, sarni::lastChannel);
    setChannelCount(ChannelTypeInput, 8);
    addEqualiserDefaults(defaultValues, QStringLiteral("Eq"));
}

QVariant CDeviceInfoSarni::defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                          CDriverCache * cache) const
{
    if (!sarni::isInTable(mode))
        return defaultValue(target, cache);
    int const speaker = sarni::useOf(target.deviceChannel(), mode).defaultSpeaker;
    return QVariant(speaker != sarni::speakerOfModel ? speaker : twoWaySpeaker);
}

QVariant CDeviceInfoSarni::validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                            CDriverCache * cache) const
{
    if (!sarni::takesSpeakers(target.deviceChannel(), mode)) {
        // Without a type no speaker is listed, and the default comes back. Asking reads the device's
        // speakers.
        QFlags<SpeakerType> const noType;
        return listedOrDefaultSpeaker(target, mode, noType, mode, cache);
    }
    sarni::Use const use = sarni::useOf(target.deviceChannel(), mode);
    return listedOrDefaultSpeaker(target, mode, use.types, OutputMode(use.listMode), cache);
}

} // namespace kestrova::Morvel::Devicelore
