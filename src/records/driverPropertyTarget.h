#pragma once

#include "records/coreNames.h"
#include "records/deviceChannelInfo.h"
#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// Names one property of one device, down to record and qualifier, for the questions about default values.
class KESTROVA_DEVICELORE_EXPORT CDriverPropertyTarget {
public:
    /// Channel 1, the null GUID, no name, record 0, a cleared qualifier. The other constructors start from
    /// this too.
    CDriverPropertyTarget() = default;

    CDriverPropertyTarget(CDeviceGuid const & guid, QString const & propertyName);

    /// A speaker id of 0 leaves the qualifier cleared.
    CDriverPropertyTarget(CDeviceGuid const & guid, QString const & propertyName, DeviceChannel deviceChannel,
                          unsigned short recordNumber, unsigned short speakerId);

    /// A null \a channelInfo leaves the qualifier cleared.
    CDriverPropertyTarget(CDeviceGuid const & guid, QString const & propertyName, DeviceChannel deviceChannel,
                          unsigned short recordNumber, CDeviceChannelInfo const * channelInfo);

    DeviceChannel deviceChannel() const { return deviceChannel_; }

    void setDeviceChannel(DeviceChannel deviceChannel) { deviceChannel_ = deviceChannel; }

    CDeviceGuid guid() const { return guid_; }

    void setGuid(CDeviceGuid const & guid) { guid_ = guid; }

    QString propertyName() const { return propertyName_; }

    void setPropertyName(QString const & propertyName) { propertyName_ = propertyName; }

    unsigned short recordNumber() const { return recordNumber_; }

    void setRecordNumber(unsigned short recordNumber) { recordNumber_ = recordNumber; }

    /// As CDeviceChannelInfo::GetSpeakerId() of the qualifier.
    unsigned short speakerId() const { return channelInfo.GetSpeakerId(); }

    /// As CDeviceChannelInfo::SetSpeakerId() of the qualifier: the id 0 makes it a speaker's too, unlike the
    /// constructor's.
    void setSpeakerId(unsigned short speakerId) { channelInfo.SetSpeakerId(speakerId); }

    /// The qualifier inside this record; never null.
    CDeviceChannelInfo const * GetDeviceChannelInfo() const { return &channelInfo; }

    CDeviceChannelInfo * GetDeviceChannelInfo() { return &channelInfo; }

    /// Copies the qualifier pointed to. A null pointer changes nothing, unlike the constructor's: "no news"
    /// here, "no qualifier" there.
    void SetDeviceChannelInfo(CDeviceChannelInfo const * newInfo);

protected:
    DeviceChannel deviceChannel_ = ChannelFirst;
    CDeviceGuid guid_;
    QString propertyName_;
    unsigned short recordNumber_ = 0;
    CDeviceChannelInfo channelInfo;
};

} // namespace kestrova::Morvel::Devicelore
