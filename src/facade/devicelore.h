#pragma once

#include "cache/driverCache.h"
#include "facade/speakerDspData.h"
#include "records/deviceChannelInfo.h"
#include "records/deviceloreExport.h"
#include "records/objectDef.h"

#include <QObject>
#include <QPointer>

namespace kestrova::Morvel::Devicelore {

class CDriverPropertyTarget;
class CSpeakerSetupInfo;

/// What an application holds to ask about devices.
///
/// The order of use: construct one, perhaps set the access level, ask, destroy it. All calls run to their end
/// on the caller's thread, and a facade and its cache serve one thread at a time. To look at other databases,
/// make a new one.
class KESTROVA_DEVICELORE_EXPORT CDevicelore : public QObject {
public:
    /// Makes a cache of its own and opens every file "*.db3" in the application's directory, in the order of
    /// their names, ignoring case. Without databases, or when one cannot be opened, the facade works and
    /// finds nothing.
    explicit CDevicelore(QObject * parent = nullptr);

    /// Uses \a driverCache and opens the application's databases on it, behind those that are open there
    /// already.
    ///
    /// The cache is given away: the facade destroys it, however many others use it. Of two facades on one
    /// cache, the one that is destroyed first takes the cache with it. Throws CMemoryException, having
    /// touched nothing, when the cache is null or has been deleted.
    CDevicelore(QPointer<CDriverCache> driverCache, QObject * parent);

    /// Clears and destroys the cache, which closes all databases.
    ~CDevicelore() override;

    /// Appends a description of each open database, in opening order, behind what \a list holds; behind them
    /// one of the speaker DSP database, when there is one that opens.
    void databaseInfos(QList<CDriverDatabaseInfo> & list) const;

    /// The level of the caller: a small number; a higher level sees and may change more. It starts at 1,
    /// whatever level a cache that was handed in has.
    unsigned char deviceAccessLevel() const;

    /// Sets the level here and in the cache. A change empties the cache: pointers to cached items die, and
    /// the start catalogues are read again.
    void setDeviceAccessLevel(unsigned char level);

    // --- Devices ---

    /// The base GUID (version 0) of a device type string; the null GUID when it is unknown.
    CDeviceGuid guidOnDeviceType(QString const & deviceType) const;

    /// The GUID of the newest description of a device type that the access level lets through; the null GUID
    /// when there is none.
    CDeviceGuid latestGuidOnDeviceType(QString const & deviceType) const;
    CDeviceGuid latestGuidOnDeviceType(DeviceType deviceType) const;

    /// The type of a device; DeviceTypeNone for one that is unknown or above the caller's level.
    DeviceType deviceTypeOnGuid(CDeviceGuid const & guid) const;

    /// The device type string of a device, such as "Talvo"; null for one that is unknown or above the
    /// caller's level.
    QString deviceModelOnGuid(CDeviceGuid const & guid) const;

    /// The device type string of a hardware type number. TharnNotFound, with \a deviceType empty, when there
    /// is none.
    TharnError deviceTypeOnHardwaretype(unsigned char hardwareType, QString & deviceType) const;

    /// The same as a device type. TharnNotFound leaves \a deviceType as it is, unlike the form above.
    TharnError deviceTypeOnHardwaretype(unsigned char hardwareType, DeviceType & deviceType) const;

    // --- Objects ---
    // The GUID is used as it is: whoever has the GUID of a version that is not described asks
    // determineDriverGuid() first. A null channel information asks about the device as a whole. A lookup that
    // fails leaves its target as it was.

    /// Fills those members of \a target that its mask names. TharnNotAvailable when there is no such object
    /// for this caller, device and channel.
    ///
    /// On a speaker channel the minimum of "ChStatus_MsDelay" is 6.2 ms for a speaker in a Wavefold setup,
    /// whatever the object says.
    TharnError GetObjectDef(CDeviceGuid const & guid, QString const & name, CObjectDef & target,
                            CDeviceChannelInfo const * channelInfo) const;

    /// The same by the object's number, whose channel bits are dropped. It gives TharnFailed where the form
    /// by name gives TharnNotAvailable, and fills the name as well when the minimum is asked for.
    TharnError GetObjectDef(CDeviceGuid const & guid, unsigned short number, CObjectDef & target,
                            CDeviceChannelInfo const * channelInfo) const;

    /// The name of an object, by its number with any channel bits; null when there is none.
    QString objectName(CDeviceGuid const & guid, unsigned short number) const;

    /// Box and object number of an object; 65535 when there is none.
    unsigned short objectNumber(CDeviceGuid const & guid, QString const & name) const;

    // --- DSP data of speakers ---

    /// The DSP setup of a speaker on that very GUID, from the speaker DSP database, which is opened for this
    /// question only. Judge the answer by its IsValid(): without a database it is empty; without a row it is
    /// empty too, and that is logged as a warning; a row that lacks something is given as it is.
    SpeakerDspData GetConfigSpeakerData(CDeviceGuid const & guid, unsigned short speakerId);

    // --- Output modes: which channels drive a speaker together ---
    // Pure arithmetic on the channels, counted from 1. A number that is no output mode is like -1, no mode.

    /// The first channel of the group that drives one speaker with \a channel; \a channel itself when it
    /// drives a speaker alone. Mode 8 has no other groups than 1 and 3: any channel above 2 gives 3, any
    /// other 1.
    int firstChannel(OutputMode mode, int channel) const;

    /// How many speakers the channels of a device drive. The modes 3 to 7 need four channels: their counts do
    /// not depend on \a channelCount.
    static int speakerCount(OutputMode mode, int channelCount);

    /// Whether \a channel drives one way of a 2-way speaker, and whether it is the first of the two. Never on
    /// a device of one channel. Mode 8 says so of every channel, the odd ones being first.
    static bool is2wayActiveChannel(int channel, OutputMode mode, int channelCount, bool & isFirst);

    // --- Channels, speakers and default values; see CDriverCache ---

    /// How many channels of a type a device has: 0 when it has none, -1 when its model is not known. Any
    /// version of a device will do.
    int deviceChannelCount(CDeviceGuid const & guid, DeviceChannelType type) const;

    // The following questions take the GUID as it is, as those about objects do. For a device whose model is
    // not known the answer is invalid.

    /// The value that a property has out of the box; invalid when there is no such property. On a speaker
    /// channel the default of "ChStatus_MsDelay" is 6.2 ms for a speaker in a Wavefold setup, whatever the
    /// model and the database say.
    QVariant defaultPropertyValue(CDriverPropertyTarget const & target) const;

    /// The id, an int, of the speaker that the target's channel takes by default in an output mode. Where the
    /// model has none for the mode, the default value of the target, of whatever type.
    QVariant defaultSpeakerId(CDriverPropertyTarget const & target, OutputMode mode) const;

    /// The id, an int, of the target's speaker if its channel can take it in that output mode, else what
    /// defaultSpeakerId() gives; 0 for a model without speakers to choose.
    QVariant validateSpeakerId(CDriverPropertyTarget const & target, OutputMode mode) const;

    /// Appends the definitions of a speaker, one for each way. TharnNotFound, with \a definitions untouched,
    /// when there is no such speaker. The mask has no effect.
    TharnError speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                          QFlags<SpeakerDefMask> mask) const;

    /// A speaker with all its ways, those of fewer ways and lower class first. False, with \a info untouched,
    /// when there is no such speaker.
    bool SpeakerSetupInfo(unsigned short speakerId, CSpeakerSetupInfo & info) const;

protected:
    /// The item in the cache. Unlike GetObjectDef(), the form by number uses it with its channel bits.
    GetItemReturnValue GetObjectItem(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                     QString const & name, CDeviceChannelInfo const * channelInfo) const;
    GetItemReturnValue GetObjectItem(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                     unsigned short number, CDeviceChannelInfo const * channelInfo) const;
    GetItemReturnValue GetObjectItem(CDriverCacheObjectItem *& item, CDriverCacheKey * key) const;

    /// Copies the members that the target's mask names.
    void FillObjectDef(CObjectDef & target, CDriverCacheObjectItem * item) const;

    /// Whether the channel information is valid and, for a speaker, the id within the cache's bounds. A null
    /// one is refused here, unlike in the questions about properties. The second argument names the caller
    /// and is not used.
    bool CheckChannelInfo(CDeviceChannelInfo const * channelInfo, char const * context) const;

    /// Replaces \a value by 6.2 when the speaker is a Wavefold setup, without comparing. Whether it did.
    bool CorrectDelayValueForWFSpeaker(unsigned short speakerId, QVariant & value) const;

    /// The folder of the speaker DSP database: "DspData" in the application's directory.
    QString GetDspDataDatabasePath() const;

    /// Opens the speaker DSP database under that name. Between two calls of this class no such connection
    /// exists.
    bool OpenDspDataDatabase(QString const & connectionName) const;

    /// Closes and removes the connection.
    void CloseDspDataDatabase(QString const & connectionName) const;

    /// Appends a description of the speaker DSP database. Nothing when it does not open.
    void GetDspDataDatabaseInfos(QList<CDriverDatabaseInfo> & list) const;

    /// Never null. A plain pointer on purpose: the facade owns the cache and counts no other users.
    CDriverCache * cache = nullptr;

private:
    bool visibleModel(CDeviceGuid const & guid, QString & model) const;
    void correctDelayMinimum(QString const & name, CObjectDef & target,
                             CDeviceChannelInfo const * channelInfo) const;

    unsigned char deviceAccessLevel_ = 1;
};

/// The version of the library, 1.4.19. The last number comes first: \a bugfix is 19, \a minor 4, \a major 1.
KESTROVA_DEVICELORE_EXPORT void libVersion(int & bugfix, int & minor, int & major);

} // namespace kestrova::Morvel::Devicelore
