#pragma once

#include "check/deviceFilters.h"
#include "check/finding.h"
#include "check/table.h"

#include "facade/devicelore.h"

#include <QHash>
#include <QSet>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace kestrova::authoring {

/// Of the output modes, which count from 0.
constexpr int lastOutputMode = 8;

/// The library's cache, opened so far that it can be asked what it makes of the databases.
class LibraryCache : public Morvel::Devicelore::CDriverCache {
public:
    using CDriverCache::connectionName;
    using CDriverCache::takeQuery;

    /// Opens one more database, behind the others. False when it does not open.
    bool addDatabase(QString const & path, QString const & name);

    /// Reads the catalogues of all databases that were added.
    void readCatalogues() { init(); }

    /// Whether objects of the class find it, by whichever number it was read under.
    bool hasObjectClass(unsigned short classId) const;

    QSet<int> speakerIds() const;

    /// The largest maximum that an object for the number of Cablefit speakers gets on a speaker.
    int largestCablefitCount() const;

    /// A filter that was named before; null when the speaker has none.
    Morvel::Devicelore::CDriverCacheFilterItem const *
    filter(Morvel::Devicelore::CDeviceGuid const & guid,
           Morvel::Devicelore::CDeviceChannelInfo const & channel, int number) const;
};

/// One database while it is looked at, with all of its tables.
struct Database {
    QString file; ///< its name, and that of its connection
    QSqlDatabase connection;
    QHash<QString, Table> tables; ///< by the name that the library uses

    Table const & table(char const * name) const;
};

/// A set of databases, opened as the library opens those beside an application, at a level that sees
/// everything.
class DescriptionSet {
public:
    /// The files of \a paths, files and folders, in the library's order within each folder. Throws Failure:
    /// ExitUsage for two files of one name, ExitDatabase when a path does not exist or a folder has no
    /// databases.
    explicit DescriptionSet(QStringList const & paths);

    /// The names of all files in order, those too that do not open.
    QStringList const & fileNames() const { return files; }

    /// The names of those that are open, in order.
    QStringList const & openFiles() const { return open; }

    /// Why a file does not open; empty when it does.
    QString trouble(QString const & fileName) const { return unreadable.value(fileName); }

    Database read(QString const & fileName) const;

    LibraryCache & cache() { return *ownedByLibrary; }

    Morvel::Devicelore::CDevicelore & library() { return *facade; }

    /// Whether any database has an object of that name.
    bool hasObject(QString const & name) const { return objectNames.contains(name); }

    /// Whether any database defines a speaker.
    bool hasSpeaker(int speakerId) const { return speakerIds.contains(speakerId); }

    DeviceFilters const & deviceFilters() const { return filters; }

private:
    void addFile(QString const & filePath);
    void addFolder(QString const & folderPath);
    void openAll();
    void rememberNames();
    void rememberFilters();

    QStringList files; ///< names, in order
    QHash<QString, QString> paths;
    QStringList open;
    QHash<QString, QString> unreadable; ///< why, by name
    QSet<QString> objectNames;
    QSet<int> speakerIds;
    DeviceFilters filters;
    LibraryCache * ownedByLibrary;
    std::unique_ptr<Morvel::Devicelore::CDevicelore> facade;
};

} // namespace kestrova::authoring
