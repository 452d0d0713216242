#include "cache/driverCache.h"

#include "cache/databaseAccess.h"
#include "cache/databaseConnections.h"
#include "cache/driverCacheGuidItemList.h"
#include "cache/driverCacheSpeakerItemList.h"
#include "core/qt5Conversions.h"

#include <QVariant>

#include <utility>

namespace kestrova::Morvel::Devicelore {

namespace {

CSpeakerDef speakerOfRow(QSqlQuery const & row, CSpeakerClass const & speakerClass)
{
    CSpeakerDef speaker;
    speaker.setSpeakerId(static_cast<unsigned short>(qt5::toInt(row.value(0))));
    speaker.setName(qt5::toText(row.value(1)));
    speaker.setSpeakerClass(speakerClass);
    speaker.setRib(qt5::toInt(row.value(3)));
    speaker.setDisplayNameShort(qt5::toText(row.value(4)));
    speaker.setSortOrder(qt5::toInt(row.value(5)));
    speaker.setCablefitMaxCount(qt5::toInt(row.value(6)));
    speaker.setIsWFSetup(qt5::toInt(row.value(7)) != 0);
    return speaker;
}

} // namespace

// Database by database: a speaker whose class only a later database defines stays without a class.
void CDriverCache::fillSpeakerList()
{
    for (QString const & name : std::as_const(connectionNames)) {
        QSqlDatabase const db = CDatabaseConnections::of(*this).connection(name);
        fillSpeakerClasses(db);
        fillSpeakers(db);
    }
}

void CDriverCache::fillSpeakerClasses(QSqlDatabase const & db)
{
    QSqlQuery rows =
        queryRows(db, QStringLiteral("SELECT Class,Name,Type,Ways,WayNames FROM SpeakerClasses"));
    while (rows.next()) {
        auto const number = static_cast<unsigned char>(qt5::toUInt(rows.value(0)));
        if (speakerClassItem(number) != nullptr)
            continue; // the first database that defines a class wins
        addSpeakerClassItem(new CDriverCacheSpeakerClassItem(
            number, qt5::toText(rows.value(1)), qt5::toText(rows.value(2)),
            static_cast<unsigned char>(qt5::toUInt(rows.value(3))), qt5::toText(rows.value(4))));
    }
}

void CDriverCache::fillSpeakers(QSqlDatabase const & db)
{
    QSqlQuery rows =
        queryRows(db, QStringLiteral("SELECT SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, "
                                     "CablefitMaxCount, WfActive FROM Speakers"));
    QList<CSpeakerDef> speakers;
    while (rows.next()) {
        // The column is a level and a flag at once: a speaker above the level is not known at all.
        if (qt5::toInt(rows.value(7)) > guidSupportedLevel_)
            continue;
        CSpeakerClass speakerClass;
        auto const classNumber = static_cast<unsigned char>(qt5::toInt(rows.value(2)));
        if (CDriverCacheSpeakerClassItem const * const item = speakerClassItem(classNumber))
            item->toSpeakerClass(speakerClass);
        speakers.append(speakerOfRow(rows, speakerClass));
    }
    speakerItems->addSpeakerItems(speakers);
}

void CDriverCache::fillGuidSpeakerList(CDeviceGuid const & guid)
{
    QSqlDatabase const db = CDatabaseConnections::of(*this).connection(connectionName(guid));
    if (!db.isValid())
        return;
    QSqlQuery rows = preparedQuery(
        db,
        QStringLiteral("SELECT DISTINCT SpeakerId from GuidsSpeakersFilters where GUID = ? AND Access <= ?"));
    rows.bindValue(0, guid.toString().toUpper(), QSql::In);
    rows.bindValue(1, int(guidSupportedLevel_), QSql::In);

    QList<unsigned short> supported;
    QHash<unsigned short, int> definitionsToSkip; // by id
    executeWhole(rows);
    while (rows.next()) {
        auto const id = static_cast<unsigned short>(qt5::toInt(rows.value(0)));
        supported.append(id);
        ++definitionsToSkip[id];
    }
    // A row takes one definition only: an id that is defined twice ends up in both lists.
    QList<unsigned short> others;
    for (unsigned short const id : speakerItems->speakerIds()) {
        auto const skip = definitionsToSkip.find(id);
        if (skip != definitionsToSkip.end() && *skip > 0)
            --*skip;
        else
            others.append(id);
    }
    speakerItems->addToSupportedList(guid, supported);
    speakerItems->addToNotSupportedList(guid, others);
}

void CDriverCache::addSpeakerClassItem(CDriverCacheSpeakerClassItem * item)
{
    speakerItems->addSpeakerClassItem(item);
}

bool CDriverCache::addSpeakerItem(CSpeakerDef * speaker)
{
    return speakerItems->addSpeakerItem(speaker);
}

CDriverCacheSpeakerClassItem * CDriverCache::speakerClassItem(unsigned char speakerClass) const
{
    return speakerItems->speakerClassItem(speakerClass);
}

unsigned short CDriverCache::minSpeakerId() const
{
    return speakerItems->minSpeakerId();
}

unsigned short CDriverCache::maxSpeakerId() const
{
    return speakerItems->maxSpeakerId();
}

TharnError CDriverCache::speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                                    QFlags<SpeakerDefMask> mask)
{
    return speakerItems->speakerDef(speakerId, definitions, mask);
}

bool CDriverCache::isSpeakerSupportedByDevice(unsigned short speakerId, CDeviceGuid const & guid) const
{
    using List = CDriverCacheSpeakerItemList;
    List::SpeakerSupported answer = speakerItems->isSpeakerSupportedByDevice(speakerId, guid);
    if (answer == List::SpeakerSupportedUnknown) {
        const_cast<CDriverCache *>(this)->fillGuidSpeakerList(guid);
        answer = speakerItems->isSpeakerSupportedByDevice(speakerId, guid);
    }
    return answer == List::SpeakerIsSupported;
}

/// Asks the catalogue and, when it fails for a known device, once more after the device's speakers have been
/// read.
template <typename Ask>
TharnError CDriverCache::withSpeakersOf(CDeviceGuid const & guid, Ask ask)
{
    TharnError const result = ask();
    if (result == TharnNoError || !guidItems->isKnownGuid(guid))
        return result;
    fillGuidSpeakerList(guid);
    return ask();
}

TharnError CDriverCache::listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids)
{
    return withSpeakersOf(guid, [&] { return speakerItems->listSpeakersForDevice(guid, ids); });
}

TharnError CDriverCache::listSpeakersForDevice(CDeviceGuid const & guid,
                                               QList<QPair<unsigned short, QString>> & speakers)
{
    return withSpeakersOf(guid, [&] { return speakerItems->listSpeakersForDevice(guid, speakers); });
}

TharnError CDriverCache::listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids,
                                               QFlags<SpeakerType> types, OutputMode mode)
{
    return withSpeakersOf(guid, [&] { return speakerItems->listSpeakersForDevice(guid, ids, types, mode); });
}

} // namespace kestrova::Morvel::Devicelore
