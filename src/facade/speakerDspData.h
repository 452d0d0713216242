#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QByteArray>
#include <QString>

namespace kestrova::Morvel::Devicelore {

/// The DSP setup of one speaker on one device, as the speaker DSP database has it.
class KESTROVA_DEVICELORE_EXPORT SpeakerDspData {
public:
    /// GUID and speaker id 0, null texts, no data. Not valid.
    SpeakerDspData();
    SpeakerDspData(SpeakerDspData const & other);
    SpeakerDspData(SpeakerDspData && other) noexcept;
    ~SpeakerDspData();

    SpeakerDspData & operator=(SpeakerDspData const & other);
    SpeakerDspData & operator=(SpeakerDspData && other) noexcept;

    /// Makes it as new.
    void Clear();

    /// Whether every member is filled. Nobody has compared the data with the MD5 text.
    bool IsValid() const;

    QString GetDeviceType() const;
    void SetDeviceType(QString const & deviceType);

    /// The GUID that was asked about.
    CDeviceGuid GetDeviceGuid() const;
    void SetDeviceGuid(CDeviceGuid const & deviceGuid);

    /// The speaker that was asked about.
    unsigned short GetSpeakerId() const;
    void SetSpeakerId(unsigned short speakerId);

    QString GetSpeakerName() const;
    void SetSpeakerName(QString const & speakerName);

    QString GetSpeakerSetupVersion() const;
    void SetSpeakerSetupVersion(QString const & speakerSetupVersion);

    QByteArray GetSpeakerDspData() const;
    void SetSpeakerDspData(QByteArray const & speakerDspData);

    /// The hash that the database has beside the data, as text.
    QString GetMd5() const;
    void SetMd5(QString const & md5);

protected:
    QString deviceType;
    CDeviceGuid deviceGuid;
    quint16 speakerId = 0;
    QString speakerName;
    QString speakerSetupVersion;
    QByteArray speakerDspData;
    QString md5;
};

} // namespace kestrova::Morvel::Devicelore
