#pragma once

#include "records/deviceChannel.h"
#include "records/deviceloreExport.h"

#include <QObject>
#include <QString>

namespace kestrova::Morvel::Devicelore {

/// Qualifies a lookup by what is on a channel: a speaker, the input side or the output side. Lookups take a
/// pointer to it; a null pointer means the device as a whole.
///
/// Copied by value; the QObject parent is never copied.
class KESTROVA_DEVICELORE_EXPORT CDeviceChannelInfo : public QObject {
public:
    /// Cleared: type ChannelTypeNone, speaker id 0. Not valid.
    CDeviceChannelInfo();

    /// Of that type, with speaker id 0.
    CDeviceChannelInfo(DeviceChannelType channelType);

    CDeviceChannelInfo(CDeviceChannelInfo const & other);
    ~CDeviceChannelInfo() override;

    CDeviceChannelInfo & operator=(CDeviceChannelInfo const & other);

    /// Compares the speaker id as it was set, also behind a type for which GetSpeakerId() gives 0.
    bool operator==(CDeviceChannelInfo const & other) const;

    bool operator!=(CDeviceChannelInfo const & other) const { return !(*this == other); }

    void Clear();

    /// True for a speaker with an id above 0, for the input side and for the output side.
    bool IsValid() const;

    DeviceChannelType GetChannelType() const;

    /// Leaves the speaker id as it is.
    void SetDeviceChannelType(DeviceChannelType channelType);

    /// 0 unless the type is ChannelTypeSpeaker.
    unsigned short GetSpeakerId() const;

    /// Makes the type ChannelTypeSpeaker as well, also for the id 0, which is not valid.
    void SetSpeakerId(unsigned short speakerId);

    /// The qualifier as cache keys spell it: the speaker id in decimal with at least four digits ("0012",
    /// "12345"), "IN", "OUT", or an empty text.
    QString GetIdString() const;

protected:
    DeviceChannelType channelType = ChannelTypeNone;
    quint32 speakerId = 0;
};

} // namespace kestrova::Morvel::Devicelore
