#pragma once

#include <QFlags>

namespace kestrova::Morvel::Devicelore {

/// What a speaker can be used for; its class decides. Passed as QFlags; without any flag no speaker fits.
enum SpeakerType : qint32 {
    SpeakerTypeFirstChannel = 1,  ///< on the first channel of two
    SpeakerTypeSecondChannel = 2, ///< on the second channel of two
    SpeakerTypeTwoWay = 4,        ///< on a pair of channels, one for each way
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<SpeakerType>)

/// The members of a speaker definition that a caller is interested in. Passed as QFlags. The catalogue takes
/// the mask and always delivers whole definitions: there are no partial ones.
enum SpeakerDefMask : qint32 {
    SpeakerDefCablefitMaxCount = 0x80,
    SpeakerDefIsWFSetup = 0x200,
    SpeakerDefAll = 0x3FF,
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<SpeakerDefMask>)

} // namespace kestrova::Morvel::Devicelore
