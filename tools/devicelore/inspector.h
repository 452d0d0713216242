#pragma once

#include <kestrovaDevicelore.h>

#include <QString>
#include <QStringList>

#include <memory>

class QDir;

namespace kestrova::inspector {

/// The tool's cache: a cache that also tells which descriptions there are and where they lie, and whether it
/// was asked for an object, which an application need not know.
class InspectorCache : public Morvel::Devicelore::CDriverCache {
public:
    using CDriverCache::connectionName;
    using CDriverCache::createDriverCacheObjectItem;
    using CDriverCache::GetDriverObject;
    using CDriverCache::objectFromDb;

    /// Every question for an object comes by here, those of the library itself too.
    Morvel::Devicelore::GetItemReturnValue GetDriverObject(Morvel::Devicelore::CDriverCacheObjectItem *& item,
                                                           Morvel::Devicelore::CDriverCacheKey * key) override
    {
        wasAskedForObject = true;
        return CDriverCache::GetDriverObject(item, key);
    }

    Morvel::Devicelore::CDriverCacheGuidItemList & descriptions() { return *guidItems; }

    /// The GUID whose description names the model of a GUID's type; null when no description of it is
    /// visible.
    Morvel::Devicelore::CDeviceGuid namingGuid(Morvel::Devicelore::CDeviceGuid const & guid) const
    {
        // The member is protected; only a derived class may take its address.
        struct Catalogue : Morvel::Devicelore::CDriverCacheGuidItemList {
            static auto baseGuidsOf() { return &Catalogue::baseGuids; }
        };

        return (guidItems->*Catalogue::baseGuidsOf()).value(static_cast<unsigned char>(guid.value()));
    }

    /// The names of the open databases, in the order in which they are asked.
    QStringList const & databases() const { return connectionNames; }

    /// A filter that was named before; null when the speaker has none.
    Morvel::Devicelore::CDriverCacheFilterItem *
    filter(Morvel::Devicelore::CDeviceGuid const & guid,
           Morvel::Devicelore::CDeviceChannelInfo const & channel, int number)
    {
        return filterItems->item({guid, &channel, static_cast<unsigned char>(number)});
    }

    bool wasAskedForObject = false; ///< whoever wants to know clears it first
};

/// The library with all databases open that the user named.
class Inspector {
public:
    /// Opens the databases beside the tool and then those of the folders. Throws Failure with ExitDatabase
    /// that names the folder or file, also when there is no database at all.
    Inspector(QStringList const & databaseFolders, unsigned char accessLevel);

    Morvel::Devicelore::CDevicelore & facade() { return *library; }

    InspectorCache & cache() { return *ownedByLibrary; }

private:
    void openFolder(QString const & path);
    void rememberFiles(QDir const & folder);

    InspectorCache * ownedByLibrary;
    std::unique_ptr<Morvel::Devicelore::CDevicelore> library;
    QStringList fileNames; ///< of all databases, to refuse two of one name
};

} // namespace kestrova::inspector
