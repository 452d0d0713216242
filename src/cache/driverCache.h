#pragma once

#include "cache/driverCacheGuidItem.h"
#include "cache/driverDatabaseInfo.h"
#include "cache/getItemReturnValue.h"
#include "cache/speakerType.h"
#include "records/coreNames.h"
#include "records/deviceChannel.h"
#include "records/deviceloreExport.h"
#include "records/objectDefMask.h"
#include "records/outputMode.h"
#include "records/speakerDef.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class QDir;
class QSqlDatabase;
class QSqlQuery;
class QVariant;

namespace kestrova::Morvel::Devicelore {

class ADeviceInfo;
class CDeviceChannelInfo;
class CDriverCacheChannelKeyFilter;
class CDriverCacheFilterItem;
class CDriverCacheFilterItemList;
class CDriverCacheGuidItemList;
class CDriverCacheKey;
class CDriverCacheObjectClassItemList;
class CDriverCacheObjectItem;
class CDriverCacheObjectItemList;
class CDriverCachePropertyFilter;
class CDriverCacheSpeakerClassItem;
class CDriverCacheSpeakerItemList;
class CDriverCacheTextItemList;
class CDriverPropertyTarget;
class CObjectDef;
class CObjectQueries;

/// The one store behind every facade: the open description databases and the catalogues that are filled from
/// them.
///
/// A cache does nothing by itself. openDatabases() opens the databases and reads the catalogues of devices,
/// hardware types, speakers and object classes; all questions are answered on the caller's thread, and
/// answers may fill catalogues, so a cache is used by one thread at a time.
///
/// Wherever several databases have a say, they are asked in the order in which they were opened. Trouble in a
/// database is silent: a statement that fails counts as one without rows.
///
/// Connections are named after their files, and names belong to the whole process. Several caches of one
/// thread may open files of one name: the last one owns the connection, and removes it when it closes;
/// another one that then needs its file opens it again.
class KESTROVA_DEVICELORE_EXPORT CDriverCache : public QObject {
public:
    /// Makes empty catalogues and opens nothing. Throws CMemoryException when a catalogue cannot be created.
    explicit CDriverCache(QObject * parent = nullptr);

    /// Closes the databases and deletes the catalogues, and with them everything that was lent out.
    ~CDriverCache() override;

    // --- Operations that a subclass may replace. Their order is part of the binary interface. ---

    /// The object of a key: from memory, or else from the database of the key's device. GetItemFound, or
    /// GetItemNotAvailable when there is no such object or the supported level is too low for device or
    /// object; such an answer stands until the catalogues are cleared. Only with GetItemFound is \a item to
    /// be used. It is borrowed. The key must not be null.
    virtual GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key);

    /// The name of a speaker's filter; null when there is none. A name that is empty in the database is not
    /// null.
    virtual QString filterName(CDeviceGuid const & guid, CDeviceChannelInfo const * channel,
                               unsigned char filterNumber);

    /// Bounds of the speaker ids. The lower one is 0.
    virtual unsigned short minSpeakerId() const;
    virtual unsigned short maxSpeakerId() const;

    /// Appends copies of all definitions whose id has the low byte of \a speakerId, the one read last in
    /// front. TharnNotFound, with \a definitions untouched, when there is none. The mask has no effect.
    virtual TharnError speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                                  QFlags<SpeakerDefMask> mask);

    // --- The set of databases ---

    /// Opens every file that \a dir lists, in its order, each under a connection named after the file, and
    /// then reads the start catalogues anew. What is open already stays open.
    ///
    /// The number of databases opened. 0 when \a dir lists none; nothing changes then. -1 when a file could
    /// not be opened: all connections of this cache are closed then, those of earlier calls too, and the
    /// catalogues keep what they held.
    int openDatabases(QDir const & dir);

    /// Closes and removes all connections, but for those that another cache has taken over. What has been
    /// read stays readable from memory.
    void closeDatabases();

    /// Empties all catalogues. Every pointer to an item of theirs dies.
    void clear();

    /// Appends a description of each open database, in opening order, behind what \a list holds. A database
    /// without a version is listed with 0.0.0.
    void databaseInfos(QList<CDriverDatabaseInfo> & list) const;

    /// The position of a column in a table, from 0; -1 when the table has none of exactly that name (case
    /// matters) or \a db is not open.
    int GetIndexOfColumn(QString const & column, QString const & table, QSqlDatabase const & db);

    // --- Access levels ---
    // A change of either level empties all catalogues, reads the start catalogues again and so ends the life
    // of every pointer to a cached item. Setting the present level does nothing.

    /// The level against which devices and objects are released, and speakers are read. It starts at 0, while
    /// the device catalogue itself starts at 1: on a fresh cache setGuidSupportedLevel(0) leaves the
    /// catalogue at 1, and setGuidSupportedLevel(1) only reloads.
    unsigned char guidSupportedLevel() const;
    void setGuidSupportedLevel(unsigned char level);

    /// The level up to which property filters are visible. It starts at 0.
    unsigned char devicePropertyFilterAccessLevel() const;
    void setDevicePropertyFilterAccessLevel(unsigned char level);

    // --- Devices; see CDriverCacheGuidItemList for the rules ---

    /// The GUID whose description stands for \a guid, or the null GUID. The reference lives as long as \a
    /// guid and no longer than until the catalogues are next cleared.
    CDeviceGuid const & determineDriverGuid(CDeviceGuid const & guid) const;

    /// The level that the description of \a guid needs, or CDriverCacheGuidItem::GuidAccessUnknown.
    CDriverCacheGuidItem::GuidAccess deviceGuidAccessLevel(CDeviceGuid const & guid) const;

    /// The device type string of the GUID's type, from its description of version 0. False, with \a
    /// deviceType untouched, when there is none.
    bool deviceTypeOnGuid(CDeviceGuid const & guid, QString & deviceType) const;

    /// The base GUID of a device type string. False, with \a guid 0, when the string is unknown.
    bool guidOnDeviceType(QString const & deviceType, CDeviceGuid & guid) const;

    /// The device type strings of all devices that have one by GUID, in no defined order.
    QStringList deviceModels() const;

    /// The device type string of a hardware type number; empty when there is none.
    QString hardwareTypeString(unsigned char type) const;
    void setHardwareType(unsigned char type, QString const & deviceType);

    // --- Objects ---
    // The forms build a key, with the channel if it is not null, and ask the virtual form.

    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                       QString const & name, CDeviceChannelInfo * channel);
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                       unsigned short number, CDeviceChannelInfo * channel);
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, QString const & guid,
                                       QString const & name, CDeviceChannelInfo * channel);
    GetItemReturnValue GetDriverObject(CDriverCacheObjectItem *& item, QString const & guid,
                                       unsigned short number, CDeviceChannelInfo * channel);

    // --- Filters ---

    QString filterName(QString const & guid, CDeviceChannelInfo const * channel, unsigned char filterNumber);
    QString filterName(CDriverCacheChannelKeyFilter const & key);

    // --- Speakers; see CDriverCacheSpeakerItemList for the rules ---
    // What a device supports is read from its database at the first question, also by const operations.

    /// The class of a number, or null. The cache keeps owning it.
    CDriverCacheSpeakerClassItem * speakerClassItem(unsigned char speakerClass) const;

    bool isSpeakerSupportedByDevice(unsigned short speakerId, CDeviceGuid const & guid) const;

    /// Replaces \a ids by the device's speakers in display order. TharnNotFound, with \a ids untouched, when
    /// it has none.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids);

    /// Appends the device's speakers with their short display names, in display order.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid,
                                     QList<QPair<unsigned short, QString>> & speakers);

    /// Appends those of the device's speakers that fit one of the types and the output mode.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids,
                                     QFlags<SpeakerType> types, OutputMode mode);

    // --- Texts of values; see CDriverCacheTextItemList for the rules ---

    /// The text of a value, from the group of that offset in the database that describes that very GUID; null
    /// when there is none.
    QString text(CDeviceGuid const & guid, unsigned int offset, int value);

    /// Replaces \a list by the group's values and texts, in no defined order, and gives their number; -1 when
    /// there are none.
    int textList(CDeviceGuid const & guid, unsigned int offset, QList<QPair<int, QString>> & list) const;

    /// The column that texts are taken from. It starts as "TextShort_en_US" and outlives changes of level.
    QString textLanguage();

    /// Takes any name; with one that is no column of a database, that database has no texts.
    void setTextLanguage(QString const & language);

    // --- Property filters; see CDriverCachePropertyFilter for the rules ---

    /// The names of the filters up to devicePropertyFilterAccessLevel(), in no defined order.
    QStringList enumDevicePropertyFilter();

    /// The names of a filter's properties; empty when there is no such filter.
    QStringList devicePropertyFilter(QString const & name);

    /// What a statement of the caller's own gives in its first column, from all databases and without
    /// duplicates, in the order of first appearance. It is a complete SQL statement, passed on as it is; a
    /// database in which it fails adds nothing. The access level plays no part, and nothing is stored.
    QStringList devicePropertyFilterByExpression(QString const & expression);

    // --- Models of devices: what is known of them besides the databases ---

    /// What is known of a model, by its exact device type string; null for an unknown one. It lives as long
    /// as the process and belongs to nobody.
    ADeviceInfo * getDeviceInfo(QString const & deviceType) const;

    /// How many channels of a type a device has: 0 when it has none, -1 when its model is not known. Any
    /// version of a device will do.
    int DeviceChannelCount(CDeviceGuid const & guid, DeviceChannelType type) const;

    // The following take the GUID as it is: whoever has the GUID of a version that is not described asks
    // determineDriverGuid() first. For a device whose model is not known the answer is invalid.

    /// The value that a property has out of the box: what is known of the model wins over the database.
    /// Invalid when there is no such property.
    QVariant defaultPropertyValue(CDriverPropertyTarget const & target);

    /// The id, an int, of the speaker that the target's channel takes by default in an output mode. Where the
    /// model has none for the mode, the default value of the target, of whatever type.
    QVariant defaultSpeakerId(CDriverPropertyTarget const & target, OutputMode mode);

    /// The id, an int, of the target's speaker if its channel can take it in that output mode, else what
    /// defaultSpeakerId() gives; 0 for a model without speakers to choose. The oldest models take any
    /// speaker, and without one their channel gets the default value of the target.
    QVariant validateSpeakerId(CDriverPropertyTarget const & target, OutputMode mode);

protected:
    /// Empties all catalogues and reads the start catalogues again.
    void init();

    /// The name of the connection whose database describes that very GUID; empty when none does.
    QString connectionName(CDeviceGuid const & guid);

    void fillGuidCache();
    void fillHardwaretypeCache();
    void fillSpeakerList();
    void fillGuidSpeakerList(CDeviceGuid const & guid);
    void fillOcaCLassIdList();

    /// These take the item over when they give true, or give nothing.
    bool addGuidItem(CDriverCacheGuidItem * item);
    void addSpeakerClassItem(CDriverCacheSpeakerClassItem * item);
    bool addSpeakerItem(CSpeakerDef * speaker);

    /// See CDriverCacheObjectItemList::AddObjectItem() and CDriverCacheFilterItemList::addFilterItem().
    bool addObjectItem(CDriverCacheKey * key, CDriverCacheObjectItem * item);
    void addFilterItem(CDriverCacheKey const * key, CDriverCacheFilterItem * item);

    /// Makes an item from the database and adjusts it to the key's speaker. False, with \a item untouched,
    /// when there is no such object.
    bool createDriverCacheObjectItem(CDriverCacheObjectItem *& item, CDriverCacheKey * key);

    /// Reads the members of the object's mask from the database that describes that very GUID. TharnFailed
    /// without a connection, TharnNotFound without a row; \a object stays as it came then.
    TharnError objectFromDb(QString const & name, QString const & guidString, CObjectDef & object);
    TharnError objectFromDb(unsigned short number, QString const & guidString, CObjectDef & object);

    /// Takes the members of the mask from the query's row. Columns are found by their exact names in \a
    /// columns, in the order of the row; one that is missing reads as empty.
    void takeQuery(QSqlQuery const & query, QFlags<ObjectDefMask> mask, QStringList const & columns,
                   CObjectDef & object) const;

    QString filterNameFromDatabase(CDriverCacheChannelKeyFilter const & key);

    QStringList connectionNames;                 ///< in opening order
    QHash<CDeviceGuid, QString> guidConnections; ///< the connection of the database that supplied a GUID
    QHash<QString, bool> connectionHasBoxNumber; ///< whether a database's Objects have the column BoxNumber
    QHash<QString, ADeviceInfo *> deviceInfos;   ///< by device type string; borrowed from the process
    // The catalogues, owned. Plain pointers, because type and order of the members are part of what
    // subclasses see.
    CDriverCacheFilterItemList * filterItems = nullptr;
    CDriverCacheGuidItemList * guidItems = nullptr;
    QVector<QString> * hardwareTypes = nullptr; ///< device type string by hardware type number
    CDriverCacheObjectItemList * objectItems = nullptr;
    CDriverCachePropertyFilter * propertyFilter = nullptr;
    CDriverCacheSpeakerItemList * speakerItems = nullptr;
    CDriverCacheTextItemList * textItems = nullptr;
    CDriverCacheObjectClassItemList * objectClassItems = nullptr;
    unsigned char devicePropertyFilterAccessLevel_ = 0;
    unsigned char guidSupportedLevel_ = 0;

private:
    void createCatalogues();
    void deleteCatalogues();
    ADeviceInfo * deviceInfoOnGuid(CDeviceGuid const & guid) const;
    bool isAboveLevel(CDeviceGuid const & guid, CObjectDef const & object) const;
    TharnError readObject(CDriverCacheKey const & key, CObjectDef & definition);
    void adjustToSpeaker(CDriverCacheObjectItem & item, CDriverCacheKey const & key,
                         CDeviceChannelInfo const & channel);
    void fillSpeakerClasses(QSqlDatabase const & db);
    void fillSpeakers(QSqlDatabase const & db);

    template <typename FindRow>
    TharnError objectFromRow(QString const & guidString, CObjectDef & object, FindRow findRow);
    template <typename Ask>
    TharnError withSpeakersOf(CDeviceGuid const & guid, Ask ask);

    QHash<QString, std::shared_ptr<CObjectQueries>> objectQueries; ///< by connection name
};

} // namespace kestrova::Morvel::Devicelore
