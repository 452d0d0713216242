#include "facade/devicelore.h"

#include "records/speakerSetupInfo.h"

#include <algorithm>
#include <array>

namespace kestrova::Morvel::Devicelore {

namespace {

/// Which channels drive a 2-way speaker together.
enum class Pairs { None, First, Second, All };

struct ModeRow {
    Pairs pairs;
    int speakersOfFew; ///< on a device of at most two channels
    int speakers;
};

// The counts of the modes 3 to 7 are those of four channels, on few channels too.
constexpr std::array<ModeRow, 9> modeRows = {{
    {Pairs::None, 2, 4},   // mode 0
    {Pairs::None, 2, 4},   // 1
    {Pairs::First, 1, 3},  // 2
    {Pairs::None, 4, 4},   // 3
    {Pairs::Second, 3, 3}, // 4
    {Pairs::None, 4, 4},   // 5
    {Pairs::First, 3, 3},  // 6
    {Pairs::Second, 3, 3}, // 7
    {Pairs::All, 1, 2},    // 8
}};
constexpr ModeRow noMode = {Pairs::None, 0, 0};

ModeRow const & rowOf(OutputMode mode)
{
    return mode >= 0 && mode < int(modeRows.size()) ? modeRows.at(std::size_t(mode)) : noMode;
}

} // namespace

int CDevicelore::firstChannel(OutputMode mode, int channel) const
{
    switch (rowOf(mode).pairs) {
    case Pairs::None:
        break;
    case Pairs::First:
        return channel == 2 ? 1 : channel;
    case Pairs::Second:
        return channel == 4 ? 3 : channel;
    case Pairs::All: // of any channel, also one that no device has
        return channel > 2 ? 3 : 1;
    }
    return channel;
}

int CDevicelore::speakerCount(OutputMode mode, int channelCount)
{
    ModeRow const & row = rowOf(mode);
    return channelCount <= 2 ? row.speakersOfFew : row.speakers;
}

bool CDevicelore::is2wayActiveChannel(int channel, OutputMode mode, int channelCount, bool & isFirst)
{
    isFirst = false;
    if (channelCount < 2)
        return false;
    switch (rowOf(mode).pairs) {
    case Pairs::None:
        break;
    case Pairs::First:
        isFirst = channel == 1;
        return channel == 1 || channel == 2;
    case Pairs::Second:
        isFirst = channel == 3;
        return channel == 3 || channel == 4;
    case Pairs::All: // as in firstChannel()
        isFirst = channel % 2 != 0;
        return true;
    }
    return false;
}

bool CDevicelore::SpeakerSetupInfo(unsigned short speakerId, CSpeakerSetupInfo & info) const
{
    QList<CSpeakerDef> definitions;
    if (cache->speakerDef(speakerId, definitions, SpeakerDefAll) != TharnNoError)
        return false;
    std::sort(definitions.begin(), definitions.end(), CSpeakerDef::lessThan);

    CSpeakerDef const & first = definitions.constFirst();
    info.setSpeakerId(speakerId);
    info.setDisplayNameShort(first.displayNameShort());
    info.setSortOrder(first.sortOrder());
    info.setCablefitMaxCount(first.cablefitMaxCount());
    info.setFlags(first.flags());
    info.setNumWays(definitions);
    return true;
}

} // namespace kestrova::Morvel::Devicelore
