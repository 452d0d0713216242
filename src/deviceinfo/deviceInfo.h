#pragma once

#include "cache/speakerType.h"
#include "records/deviceChannel.h"
#include "records/outputMode.h"

#include <QFlags>
#include <QHash>
#include <QPair>
#include <QString>
#include <QVariant>

namespace kestrova::Morvel::Devicelore {

class CDriverCache;
class CDriverPropertyTarget;

/// What the databases do not say about a model of device: how many channels it has, a few default values,
/// and which speaker a channel takes.
///
/// One object serves all devices of a model. It is made once, with its tables, and never changes. What only
/// the databases know it asks of the cache that asks it. The speaker ids in the tables are ids of the
/// databases' speakers.
class ADeviceInfo {
public:
    virtual ~ADeviceInfo();
    ADeviceInfo(ADeviceInfo const &) = delete;
    ADeviceInfo & operator=(ADeviceInfo const &) = delete;

    /// The value that a property has out of the box: from the table of the model, else that of the object in
    /// the database; invalid when there is no such object.
    virtual QVariant defaultValue(CDriverPropertyTarget const & target, CDriverCache * cache) const;

    /// The id, an int, of the speaker that the target's channel takes by default. Here the default value of
    /// the target, whatever the mode, which keeps its own type.
    virtual QVariant defaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                    CDriverCache * cache) const;

    /// The id, an int, of the target's speaker when its channel can take it, else of one that it can take.
    /// Here any speaker will do, and a target without one gets its default value, not its default speaker.
    virtual QVariant validatedSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                      CDriverCache * cache) const;

    /// 0 when the model has no channels of that type.
    int channelCount(DeviceChannelType type) const;

protected:
    ADeviceInfo() = default;

    void setChannelCount(DeviceChannelType type, int count);

    /// The target's speaker when the device lists it for these types and this mode, else the default speaker
    /// of \a mode.
    QVariant listedOrDefaultSpeaker(CDriverPropertyTarget const & target, OutputMode mode,
                                    QFlags<SpeakerType> types, OutputMode listMode,
                                    CDriverCache * cache) const;

    QHash<DeviceChannelType, QPair<int, int>> channelCounts; ///< the type again, and the count
    QHash<QString, QVariant> defaultValues;                  ///< by "$P/" and the name of the property
};

} // namespace kestrova::Morvel::Devicelore
