#include "cache/driverCache.h"

#include "cache/databaseAccess.h"
#include "cache/driverCacheGuidItemList.h"
#include "cache/driverCacheSpeakerItemList.h"

#include <QVariant>

#include <memory>
#include <utility>

namespace kestrova::Morvel::Devicelore {

namespace {

std::unique_ptr<CSpeakerDef> speakerOfRow(QSqlQuery const & row, CSpeakerClass const & speakerClass)
{
    auto speaker = std::make_unique<CSpeakerDef>();
    speaker->setSpeakerId(static_cast<unsigned short>(row.value(0).toInt()));
    speaker->setName(row.value(1).toString());
    speaker->setSpeakerClass(speakerClass);
    speaker->setRib(row.value(3).toInt());
    speaker->setDisplayNameShort(row.value(4).toString());
    speaker->setSortOrder(row.value(5).toInt());
    speaker->setCablefitMaxCount(row.value(6).toInt());
    speaker->setIsWFSetup(row.value(7).toInt() != 0);
    return speaker;
}

} // namespace

// Database by database: a speaker whose class only a later database defines stays without a class.
void CDriverCache::fillSpeakerList()
{
    for (QString const & name : std::as_const(connectionNames)) {
        QSqlDatabase const db = openConnection(name);
        fillSpeakerClasses(db);
        fillSpeakers(db);
    }
}

void CDriverCache::fillSpeakerClasses(QSqlDatabase const & db)
{
    QSqlQuery rows =
        queryRows(db, QStringLiteral("SELECT Class,Name,Type,Ways,WayNames FROM SpeakerClasses"));
    while (rows.next()) {
        auto const number = static_cast<unsigned char>(rows.value(0).toUInt());
        if (speakerClassItem(number) != nullptr)
            continue; // the first database that defines a class wins
        addSpeakerClassItem(new CDriverCacheSpeakerClassItem(
            number, rows.value(1).toString(), rows.value(2).toString(),
            static_cast<unsigned char>(rows.value(3).toUInt()), rows.value(4).toString()));
    }
}

void CDriverCache::fillSpeakers(QSqlDatabase const & db)
{
    QSqlQuery rows =
        queryRows(db, QStringLiteral("SELECT SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, "
                                     "CablefitMaxCount, WfActive FROM Speakers"));
    while (rows.next()) {
        // The column is a level and a flag at once: a speaker above the level is not known at all.
        if (rows.value(7).toInt() > guidSupportedLevel_)
            continue;
        CSpeakerClass speakerClass;
        auto const classNumber = static_cast<unsigned char>(rows.value(2).toInt());
        if (CDriverCacheSpeakerClassItem const * const item = speakerClassItem(classNumber))
            item->toSpeakerClass(speakerClass);
        std::unique_ptr<CSpeakerDef> speaker = speakerOfRow(rows, speakerClass);
        if (addSpeakerItem(speaker.get()))
            static_cast<void>(speaker.release()); // the catalogue owns it now
    }
}

void CDriverCache::fillGuidSpeakerList(CDeviceGuid const & guid)
{
    QSqlDatabase const db = openConnection(connectionName(guid));
    if (!db.isValid())
        return;
    QSqlQuery rows = preparedQuery(
        db,
        QStringLiteral("SELECT DISTINCT SpeakerId from GuidsSpeakersFilters where GUID = ? AND Access <= ?"));
    rows.bindValue(0, guid.toString().toUpper(), QSql::In);
    rows.bindValue(1, int(guidSupportedLevel_), QSql::In);

    QList<unsigned short> others = speakerItems->speakerIds();
    executeWhole(rows);
    while (rows.next()) {
        auto const id = static_cast<unsigned short>(rows.value(0).toInt());
        speakerItems->addToSupportedList(guid, id);
        others.removeOne(id); // one only: an id that is defined twice ends up in both lists
    }
    for (unsigned short const id : std::as_const(others))
        speakerItems->addToNotSupportedList(guid, id);
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
