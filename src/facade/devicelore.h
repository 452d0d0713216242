#pragma once

#include "cache/driverCache.h"
#include "records/deviceloreExport.h"

#include <QObject>
#include <QPointer>

namespace kestrova::Morvel::Devicelore {

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

protected:
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
    unsigned char deviceAccessLevel_ = 1;
};

/// The version of the library, 1.4.19. The last number comes first: \a bugfix is 19, \a minor 4, \a major 1.
KESTROVA_DEVICELORE_EXPORT void libVersion(int & bugfix, int & minor, int & major);

} // namespace kestrova::Morvel::Devicelore
