#include "check/descriptionSet.h"

#include "check/columns.h"

#include "cache/driverCacheChannelKeyFilter.h"
#include "cache/driverCacheFilterItemList.h"
#include "cache/driverCacheObjectClassItemList.h"
#include "cache/driverCacheSpeakerItemList.h"

#include "common/failure.h"
#include "sqlcipher/inspection.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;
using namespace kestrova::tools;

namespace kestrova::authoring {

namespace {

constexpr unsigned char levelThatSeesEverything = 255;

} // namespace

bool LibraryCache::addDatabase(QString const & path, QString const & name)
{
    if (!OpenEncryptedSqliteDatabase(path, name))
        return false;
    connectionNames.append(name);
    connectionHasBoxNumber.insert(name,
                                  GetIndexOfColumn(QStringLiteral("BoxNumber"), QStringLiteral("Objects"),
                                                   QSqlDatabase::database(name, false)) >= 0);
    return true;
}

bool LibraryCache::hasObjectClass(unsigned short classId) const
{
    return objectClassItems->itemByClassId(classId) != nullptr;
}

QSet<int> LibraryCache::speakerIds() const
{
    QSet<int> ids;
    for (unsigned short const id : speakerItems->speakerIds())
        ids.insert(id);
    return ids;
}

int LibraryCache::largestCablefitCount() const
{
    int largest = 0;
    for (unsigned short const id : speakerItems->speakerIds()) {
        QList<CSpeakerDef> speakers;
        speakerItems->speakerDef(id, speakers, SpeakerDefCablefitMaxCount);
        if (!speakers.isEmpty())
            largest = std::max(largest, speakers.first().cablefitMaxCount());
    }
    return largest;
}

CDriverCacheFilterItem const * LibraryCache::filter(CDeviceGuid const & guid,
                                                    CDeviceChannelInfo const & channel, int number) const
{
    return filterItems->item({guid, &channel, static_cast<unsigned char>(number)});
}

Table const & Database::table(char const * name) const
{
    static Table const absent;
    auto const found = tables.constFind(QLatin1String(name));
    return found == tables.constEnd() ? absent : *found;
}

DescriptionSet::DescriptionSet(QStringList const & pathsToRead)
    : ownedByLibrary(new LibraryCache)
    , facade(std::make_unique<CDevicelore>(QPointer<CDriverCache>(ownedByLibrary), nullptr))
{
    ownedByLibrary->closeDatabases(); // those beside the tool are not the ones asked about
    facade->setDeviceAccessLevel(levelThatSeesEverything);
    for (QString const & one : pathsToRead) {
        QFileInfo const info(one);
        if (info.isDir())
            addFolder(one);
        else if (info.exists())
            addFile(info.absoluteFilePath());
        else
            throw Failure(ExitDatabase, QStringLiteral("there is no file or folder '%1'").arg(one));
    }
    openAll();
    rememberNames();
    rememberFilters();
}

void DescriptionSet::addFolder(QString const & folderPath)
{
    QDir folder(folderPath);
    folder.setNameFilters({QStringLiteral("*.db3")});
    folder.setFilter(
        QDir::Files); // also those that an application would not see, to tell that they are unreadable
    QFileInfoList const entries = folder.entryInfoList();
    QString const dspPath = folder.absoluteFilePath(QStringLiteral("DspData/DspData.sqlite"));
    bool const hasDsp = QFileInfo::exists(dspPath);
    if (entries.isEmpty() && !hasDsp)
        throw Failure(ExitDatabase, QStringLiteral("there are no databases (*.db3) in '%1'").arg(folderPath));
    for (QFileInfo const & entry : entries)
        addFile(entry.absoluteFilePath());
    if (hasDsp)
        addFile(dspPath);
}

void DescriptionSet::addFile(QString const & filePath)
{
    QString const name = QFileInfo(filePath).fileName();
    if (paths.contains(name))
        throw Failure(ExitUsage,
                      QStringLiteral("two of the databases are named '%1', and a name can be open only once: "
                                     "'%2' and '%3'")
                          .arg(name, paths.value(name), filePath));
    files.append(name);
    paths.insert(name, filePath);
}

void DescriptionSet::openAll()
{
    for (QString const & name : files) {
        if (ownedByLibrary->addDatabase(paths.value(name), name)) {
            open.append(name);
            continue;
        }
        // The core library decides, for it may know another cipher than the inspection.
        sqlcipher::Inspection const inspection = sqlcipher::inspectDatabase(paths.value(name));
        bool const isExplained =
            inspection.state != sqlcipher::FileState::DamagedPage && !inspection.isGood();
        unreadable.insert(name, isExplained ? inspection.message
                                            : QStringLiteral("%1 does not open").arg(paths.value(name)));
    }
    ownedByLibrary->readCatalogues();
}

void DescriptionSet::rememberNames()
{
    for (QString const & name :
         facade->devicePropertyFilterByExpression(QStringLiteral("SELECT DISTINCT Name FROM Objects")))
        objectNames.insert(name);
    speakerIds = ownedByLibrary->speakerIds();
}

void DescriptionSet::rememberFilters()
{
    for (QString const & name : open) {
        QSqlDatabase const connection = QSqlDatabase::database(name, false);
        filters.add(name, Table::read(connection, QStringLiteral("Filters")),
                    Table::read(connection, QStringLiteral("GuidsSpeakersFilters")));
    }
}

Database DescriptionSet::read(QString const & fileName) const
{
    Database database;
    database.file = fileName;
    database.connection = QSqlDatabase::database(fileName, false);
    auto const readOnce = [&](QString const & name) {
        if (!database.tables.contains(name))
            database.tables.insert(name, Table::read(database.connection, name));
    };
    for (KnownColumn const & column : knownColumns())
        readOnce(QLatin1String(column.table));
    return database;
}

} // namespace kestrova::authoring
