#pragma once

#include "cache/driverCacheGuidItem.h"
#include "cache/driverDatabaseInfo.h"
#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class QDir;
class QSqlDatabase;

namespace kestrova::Morvel::Devicelore {

class CDriverCacheGuidItemList;

/// The one store behind every facade: the open description databases and the catalogues that are filled from
/// them.
///
/// A cache does nothing by itself. openDatabases() opens the databases and reads the catalogues of devices
/// and hardware types; all questions are answered on the caller's thread, and answers may fill catalogues, so
/// a cache is used by one thread at a time.
///
/// Wherever several databases have a say, they are asked in the order in which they were opened. Trouble in a
/// database is silent: a statement that fails counts as one without rows.
class KESTROVA_DEVICELORE_EXPORT CDriverCache : public QObject {
public:
    /// Makes empty catalogues and opens nothing. Throws CMemoryException when a catalogue cannot be created.
    explicit CDriverCache(QObject * parent = nullptr);

    /// Closes the databases and deletes the catalogues, and with them everything that was lent out.
    ~CDriverCache() override;

    // --- The set of databases ---

    /// Opens every file that \a dir lists, in its order, each under a connection named after the file, and
    /// then reads the start catalogues anew. What is open already stays open.
    ///
    /// The number of databases opened. 0 when \a dir lists none; nothing changes then. -1 when a file could
    /// not be opened: all connections of this cache are closed then, those of earlier calls too, and the
    /// catalogues keep what they held.
    int openDatabases(QDir const & dir);

    /// Closes and removes all connections. What has been read stays readable from memory.
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

    /// The level against which devices are released. It starts at 0, while the device catalogue itself starts
    /// at 1: on a fresh cache setGuidSupportedLevel(0) leaves the catalogue at 1, and
    /// setGuidSupportedLevel(1) only reloads.
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

protected:
    /// Empties all catalogues and reads the start catalogues again.
    void init();

    /// The name of the connection whose database describes that very GUID; empty when none does.
    QString connectionName(CDeviceGuid const & guid);

    void fillGuidCache();
    void fillHardwaretypeCache();

    /// True when the catalogue has taken the item over.
    bool addGuidItem(CDriverCacheGuidItem * item);

    QStringList connectionNames;                 ///< in opening order
    QHash<CDeviceGuid, QString> guidConnections; ///< the connection of the database that supplied a GUID
    QHash<QString, bool> connectionHasBoxNumber; ///< whether a database's Objects have the column BoxNumber
    std::unique_ptr<CDriverCacheGuidItemList> guidItems;
    std::unique_ptr<QVector<QString>> hardwareTypes; ///< device type string by hardware type number
    unsigned char devicePropertyFilterAccessLevel_ = 0;
    unsigned char guidSupportedLevel_ = 0;
};

} // namespace kestrova::Morvel::Devicelore
