#pragma once

#include "cache/driverCache.h"
#include "facade/basicControlType.h"
#include "facade/speakerDspData.h"
#include "records/deviceChannelInfo.h"
#include "records/deviceloreExport.h"
#include "records/objectDef.h"

#include <QObject>
#include <QPointer>

namespace kestrova::Morvel::Devicelore {

class CDeviceProperty;
class CDriverPropertyTarget;
class CSpeakerSetupInfo;

/// What an application holds to ask about devices.
///
/// The order of use: construct one, set the access level, ask, destroy it. All calls run to their end
/// on the caller's thread, and a facade and its cache serve one thread at a time. To look at other databases,
/// make a new one.
class KESTROVA_DEVICELORE_EXPORT CDevicelore : public QObject {
public:
    /// What validateValue() found, and did.
    enum ValidationState : qint32 {
        Valid = 0,         ///< the value is legal
        AdjustedToMax = 1, ///< it was above the range and is the maximum now
        AdjustedToMin = 2, ///< it was below the range and is the minimum now
        RoundedUp = 3,     ///< it lay between two steps and is on the upper one now
        RoundedDown = 4,
        Truncated = 5, ///< the text was too long and is cut
        Invalid = 6,   ///< the value is of no usable type, or there is no such object
    };

    /// Makes a cache of its own and opens every file "*.db3" in the application's directory, in the order of
    /// their names, ignoring case. Without databases, or when one cannot be opened, the facade works and
    /// finds nothing.
    ///
    /// Another facade of the same thread may do so too; each lives on when the other is destroyed.
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

    // --- Operations that a subclass may replace. Their order is part of the binary interface. ---

    // Values: a device speaks in raw values, a user thinks in real ones, with a unit. The object's format
    // says how one becomes the other, and its minimum, maximum and step which are legal. The record must hold
    // the members that a conversion needs: format and objectType, to which validation adds the range, or the
    // size of a text.

    /// Makes a real value a raw one: an int, or for formats of their own a float, a text or an unsigned
    /// integer. Numbers are rounded to four decimals. A number that does not fit into the bytes of the format
    /// becomes another one, with the result true: 400 is -25536 in the two bytes of "%6.2d". So limit it
    /// first, by validateValue(). False, with \a value as it was, for an object type that is not converted (4
    /// and 255), for a format that can read nothing, and for a text that it cannot read; but a text that the
    /// conversion "f" cannot read leaves 0.
    virtual bool realToDevice(CObjectDef const & object, QVariant & value);

    /// Converts minimum, maximum and step, each on its own, through the form above. A member that cannot be
    /// converted stays. Whether all could be.
    virtual bool realToDevice(CObjectDef & object);

    /// Makes a raw value a real one: a double of an int, an unsigned or a double (rounded to a 32-bit int
    /// first), a text of a text. False, with \a value as it was, when the format cannot print it, and for a
    /// text of an object whose flags, if known, have 0x400.
    ///
    /// Two answers mislead: the bytes of a text object become a text, with the result false; and a
    /// hexadecimal object's value is overwritten even when the result is false.
    virtual bool deviceToReal(CObjectDef const & object, QVariant & value);

    /// The same for minimum, maximum and step. A text object stays as it is, with the result true, unlike on
    /// the way back.
    ///
    /// Not for a range by the conversion "f": its raw numbers are the real ones already, and would be rounded
    /// to an int whose bits are taken for a float.
    virtual bool deviceToReal(CObjectDef & object);

    /// Whether a value is legal; if not, it is corrected. It is compared with the range as the record holds
    /// it: a real value needs a range that has been converted.
    ///
    /// An on/off value below 0 or above 1 is limited; a text that is no number counts as 0 and is Valid. A
    /// list, an invalid QVariant, and whatever else never becomes an integer is Invalid, stays, and is
    /// logged as a warning. A number becomes a double (0 if it is none) and is limited to the range, or else,
    /// with \a roundToStep, rounded to the step. What was limited is not rounded, and what was rounded is not
    /// limited again. A text is cut to one character less than the size. All other objects take anything.
    virtual ValidationState validateValue(QVariant & value, CObjectDef const & object,
                                          bool roundToStep) const;

    // Property filters: named groups of properties. See CDriverCachePropertyFilter for the rules.

    /// The names of the filters that the access level shows, in no defined order.
    virtual QStringList enumDevicePropertyFilter() const;

    /// The names of a filter's properties; empty when there is no such filter.
    virtual QStringList devicePropertyFilter(QString const & name) const;

    /// What an SQL statement of the caller's own gives in its first column, from all databases and without
    /// duplicates. A database in which it fails adds nothing; the access level plays no part.
    virtual QStringList devicePropertyFilterByExpression(QString const & expression) const;

    // --- The frame ---

    /// Appends a description of each open database, in opening order, behind what \a list holds; behind them
    /// one of the speaker DSP database, when there is one that opens.
    void databaseInfos(QList<CDriverDatabaseInfo> & list) const;

    /// The level of the caller: a small number; a higher level sees and may change more. It starts at 1,
    /// whatever level the cache has.
    unsigned char deviceAccessLevel() const;

    /// Sets the level here and in the cache. A new cache is at level 0 until then, and finds no object that
    /// needs more: set level 1 too. A change empties the cache: pointers to cached items die, and the start
    /// catalogues are read again.
    void setDeviceAccessLevel(unsigned char level);

    // --- Devices ---

    /// The GUID whose description stands for \a guid, or the null GUID.
    CDeviceGuid determineDriverGuid(CDeviceGuid const & guid) const;

    /// The level that the description of \a guid needs, or CDriverCacheGuidItem::GuidAccessUnknown.
    CDriverCacheGuidItem::GuidAccess deviceGuidAccessLevel(CDeviceGuid const & guid) const;

    /// The device type strings of all devices that have one by GUID, in no defined order.
    QStringList deviceModels() const;

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

    // --- Properties: how an application shows them ---
    // A channel information that is not valid, or a speaker outside the bounds of the cache, has no property.
    // A null one asks about the device as a whole.

    /// Fills range, unit, decimals, type, control and rights of the property that the record names. Range and
    /// step are raw numbers, as the database has them; deviceToReal() makes those of an object real. The
    /// value becomes the minimum. A channel that the caller has set stays; -1 becomes the object's number of
    /// channels. The GUID may be of any version. False, with \a property untouched, when there is no such
    /// property.
    bool devicePropertyInfo(CDeviceGuid const & guid, CDeviceProperty & property,
                            CDeviceChannelInfo const * channelInfo) const;

    /// The kind of control, and in \a writable whether the access level allows to set the value. ControlNone,
    /// with \a writable untouched, when there is no such object on that very GUID. Any channel information
    /// will do, also one that has no property.
    BasicControlType DetermineSimpleControlType(CDeviceGuid const & guid, QString const & name,
                                                bool & writable,
                                                CDeviceChannelInfo const * channelInfo) const;

    /// Minimum, maximum and step as doubles, in raw numbers. The GUID is used as it is, unlike in
    /// devicePropertyInfo(). False, with all three untouched, when there is no such property.
    bool GetDevicePropertyRange(CDeviceGuid const & guid, CDeviceProperty const & property, QVariant & min,
                                QVariant & max, QVariant & step,
                                CDeviceChannelInfo const * channelInfo) const;

    /// Whether the device has the object, and on a speaker channel also the speaker what the object is for: a
    /// filter, Cablefit, or a Wavefold setup.
    bool IsObjectSupported(CDeviceGuid const & guid, QString const & name,
                           CDeviceChannelInfo const * channelInfo) const;

    /// validateValue(), rounding to the step, for callers that have only a name. Nothing is converted: the
    /// range is that of the database, so a raw value is asked for. The GUID may be of any version, and the
    /// channel information any. Invalid, with \a value as it was, when there is no such object.
    ValidationState AdjustDeviceProperty(CDeviceGuid const & guid, QString const & name, QVariant & value,
                                         CDeviceChannelInfo const * channelInfo) const;

    /// Decodes a text of a device that ends with 0 and in which the byte 0x81 stands for the Ohm sign. Sets
    /// \a value in any case but a null \a text; true when there was such a byte. \a text is changed: it ends
    /// at the first of them afterwards.
    static bool parseVokraAscii(unsigned char * text, QVariant & value);

    // --- Texts of values ---
    // The offset is an object's textOffset(). The texts lie in the database of that very GUID.

    /// The text of a value, taken as an int; null when there is none.
    QString objectValueString(CDeviceGuid const & guid, int textOffset, QVariant const & value) const;

    /// Replaces \a list by the values and their texts, in no defined order, and gives their number; -1 when
    /// there are none. With an offset of 0 or below, which no object with texts has, \a list stays.
    int listValueStrings(CDeviceGuid const & guid, int textOffset, QList<QPair<int, QString>> & list);

    // --- Speakers and filters of a device; see CDriverCache ---

    bool isSpeakerSupportedByDevice(unsigned short speakerId, CDeviceGuid const & guid) const;

    /// Replaces \a ids by the device's speakers in display order. TharnNotFound, with \a ids untouched, when
    /// it has none.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids);

    /// Appends the device's speakers with their short display names, in display order.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid,
                                     QList<QPair<unsigned short, QString>> & speakers);

    /// Appends those of the device's speakers that fit one of the types and the output mode.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids,
                                     QFlags<SpeakerType> types, OutputMode mode) const;

    /// The name of a speaker's filter; null when there is none. The number is cut to its low byte. Mind the
    /// order: here the number comes before the channel.
    QString GetFilterName(CDeviceGuid const & guid, int filterNumber, CDeviceChannelInfo const * channelInfo);

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

    /// Never null once the facade is constructed. A subclass that takes it away can still be destroyed, and
    /// ask for the databases and CheckChannelInfo(). A plain pointer on purpose: the facade owns the cache
    /// and counts no other users.
    CDriverCache * cache = nullptr;

    /// The facade's own copy: the levels of the cache are changed by setDeviceAccessLevel() alone.
    unsigned char deviceAccessLevel_ = 1;

private:
    bool isChannelPossible(CDeviceChannelInfo const * channelInfo) const;
    bool isSupportedBySpeaker(CDeviceGuid const & guid, QString const & name,
                              CDeviceChannelInfo const & speaker) const;
    bool visibleModel(CDeviceGuid const & guid, QString & model) const;
    void correctDelayMinimum(QString const & name, CObjectDef & target,
                             CDeviceChannelInfo const * channelInfo) const;
};

/// The version of the library, 1.4.19. The last number comes first: \a bugfix is 19, \a minor 4, \a major 1.
KESTROVA_DEVICELORE_EXPORT void libVersion(int & bugfix, int & minor, int & major);

} // namespace kestrova::Morvel::Devicelore
