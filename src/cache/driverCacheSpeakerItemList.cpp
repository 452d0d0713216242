#include "cache/driverCacheSpeakerItemList.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <set>
#include <tuple>
#include <utility>

namespace kestrova::Morvel::Devicelore {

namespace {

unsigned char keyOf(unsigned short speakerId)
{
    return static_cast<unsigned char>(speakerId & 0xFFU);
}

/// All that CSpeakerDef's == compares.
auto contentOf(CSpeakerDef const & speaker)
{
    CSpeakerClass speakerClass;
    speaker.speakerClass(speakerClass);
    return std::make_tuple(speaker.speakerId(), speaker.rib(), speaker.sortOrder(),
                           speaker.cablefitMaxCount(), speaker.flags(), speakerClass.classNumber,
                           speakerClass.ways, speaker.name(), speaker.displayNameShort(), speakerClass.names);
}

// One or the other: the lower bound starts at 0 and nothing is below it.
void widenBounds(unsigned short & lower, unsigned short & upper, unsigned short id)
{
    if (id < lower)
        lower = id;
    else if (id > upper)
        upper = id;
}

/// Which type a speaker of a class is, and up to which output mode it can be used, counted from `firstMode`.
struct ClassRule {
    unsigned char classNumber;
    SpeakerType type;
    unsigned firstMode;
    unsigned lastMode;
};

constexpr std::array<ClassRule, 5> classRules = {{
    {0, SpeakerTypeFirstChannel, 0, 1},
    {1, SpeakerTypeFirstChannel, 0, 1},
    {2, SpeakerTypeSecondChannel, 0, 1},
    {9, SpeakerTypeFirstChannel, 0, 0},
    {10, SpeakerTypeFirstChannel, 0, 1},
}};
constexpr ClassRule ruleOfOtherClasses = {255, SpeakerTypeTwoWay, 2, 2};

ClassRule const & ruleOf(unsigned char classNumber)
{
    auto const rule = std::find_if(classRules.begin(), classRules.end(),
                                   [&](ClassRule const & row) { return row.classNumber == classNumber; });
    return rule != classRules.end() ? *rule : ruleOfOtherClasses;
}

bool fits(CSpeakerDef const & speaker, QFlags<SpeakerType> types, OutputMode mode)
{
    CSpeakerClass speakerClass;
    speaker.speakerClass(speakerClass);
    ClassRule const & rule = ruleOf(speakerClass.classNumber);
    auto const modeNumber = static_cast<unsigned>(mode); // "no mode" becomes a large number and fits nothing
    return types.testFlag(rule.type) && modeNumber >= rule.firstMode && modeNumber <= rule.lastMode;
}

void addEachOnce(QMultiHash<CDeviceGuid, unsigned short> & list, CDeviceGuid const & guid,
                 QList<unsigned short> const & ids)
{
    QSet<unsigned short> known;
    for (unsigned short const id : list.values(guid))
        known.insert(id);
    for (unsigned short const id : ids) {
        if (known.contains(id))
            continue;
        known.insert(id);
        list.insert(guid, id);
    }
}

} // namespace

CDriverCacheSpeakerItemList::CDriverCacheSpeakerItemList() = default;

CDriverCacheSpeakerItemList::CDriverCacheSpeakerItemList(CDriverCacheSpeakerItemList const & other) = default;

CDriverCacheSpeakerItemList &
CDriverCacheSpeakerItemList::operator=(CDriverCacheSpeakerItemList const & other) = default;

CDriverCacheSpeakerItemList::~CDriverCacheSpeakerItemList()
{
    clear();
}

void CDriverCacheSpeakerItemList::addSpeakerClassItem(CDriverCacheSpeakerClassItem * item)
{
    classItems.insert(item->speakerClass(), item);
}

CDriverCacheSpeakerClassItem * CDriverCacheSpeakerItemList::speakerClassItem(unsigned char speakerClass) const
{
    return classItems.value(speakerClass);
}

bool CDriverCacheSpeakerItemList::addSpeakerItem(CSpeakerDef * speaker)
{
    unsigned short const id = speaker->speakerId();
    for (CSpeakerDef const * other : speakerItems.values(keyOf(id))) {
        if (*other == *speaker)
            return false;
    }
    speakerItems.insert(keyOf(id), speaker);
    widenBounds(minSpeakerId_, maxSpeakerId_, id);
    return true;
}

void CDriverCacheSpeakerItemList::addSpeakerItems(QList<CSpeakerDef> const & speakers)
{
    // In order, not hashed: no database can choose its speakers so that this becomes slow. And not kept: who
    // has a definition may change it, and who derives from this class may change speakerItems.
    std::set<decltype(contentOf(CSpeakerDef()))> known;
    for (CSpeakerDef const * speaker : std::as_const(speakerItems))
        known.insert(contentOf(*speaker));
    for (CSpeakerDef const & speaker : speakers) {
        if (!known.insert(contentOf(speaker)).second)
            continue;
        unsigned short const id = speaker.speakerId();
        speakerItems.insert(keyOf(id), new CSpeakerDef(speaker));
        widenBounds(minSpeakerId_, maxSpeakerId_, id);
    }
}

void CDriverCacheSpeakerItemList::addToSupportedList(CDeviceGuid const & guid, unsigned short speakerId)
{
    if (!supportedList.contains(guid, speakerId))
        supportedList.insert(guid, speakerId);
}

void CDriverCacheSpeakerItemList::addToNotSupportedList(CDeviceGuid const & guid, unsigned short speakerId)
{
    if (!notSupportedList.contains(guid, speakerId))
        notSupportedList.insert(guid, speakerId);
}

void CDriverCacheSpeakerItemList::addToSupportedList(CDeviceGuid const & guid,
                                                     QList<unsigned short> const & ids)
{
    addEachOnce(supportedList, guid, ids);
}

void CDriverCacheSpeakerItemList::addToNotSupportedList(CDeviceGuid const & guid,
                                                        QList<unsigned short> const & ids)
{
    addEachOnce(notSupportedList, guid, ids);
}

CDriverCacheSpeakerItemList::SpeakerSupported
CDriverCacheSpeakerItemList::isSpeakerSupportedByDevice(unsigned short speakerId,
                                                        CDeviceGuid const & guid) const
{
    if (supportedList.contains(guid, speakerId))
        return SpeakerIsSupported;
    return notSupportedList.contains(guid, speakerId) ? SpeakerNotSupported : SpeakerSupportedUnknown;
}

TharnError CDriverCacheSpeakerItemList::listSpeakersForDevice(CDeviceGuid const & guid,
                                                              QList<unsigned short> & ids) const
{
    if (!supportedList.contains(guid))
        return TharnNotFound;
    ids.clear();
    for (CSpeakerDef const * speaker : sortedDefinitions(guid))
        ids.append(speaker->speakerId());
    return TharnNoError;
}

TharnError CDriverCacheSpeakerItemList::listSpeakersForDevice(CDeviceGuid const & guid,
                                                              QList<unsigned short> & ids,
                                                              QFlags<SpeakerType> types,
                                                              OutputMode mode) const
{
    QList<unsigned short> all;
    TharnError const result = listSpeakersForDevice(guid, all);
    for (unsigned short const id : all) {
        if (fits(*latestDefinition(id), types, mode))
            ids.append(id);
    }
    return result;
}

TharnError
CDriverCacheSpeakerItemList::listSpeakersForDevice(CDeviceGuid const & guid,
                                                   QList<QPair<unsigned short, QString>> & speakers) const
{
    if (!supportedList.contains(guid))
        return TharnNotFound;
    for (CSpeakerDef const * speaker : sortedDefinitions(guid))
        speakers.append(qMakePair(speaker->speakerId(), speaker->displayNameShort()));
    return TharnNoError;
}

TharnError CDriverCacheSpeakerItemList::speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                                                   QFlags<SpeakerDefMask>) const
{
    QList<CSpeakerDef *> const found =
        speakerItems.values(keyOf(speakerId)); // the one added last stands first
    if (found.isEmpty())
        return TharnNotFound;
    for (CSpeakerDef const * speaker : found)
        definitions.append(*speaker);
    return TharnNoError;
}

QList<unsigned short> CDriverCacheSpeakerItemList::speakerIds() const
{
    QList<unsigned short> ids;
    for (CSpeakerDef const * speaker : speakerItems)
        ids.append(speaker->speakerId());
    return ids;
}

bool CDriverCacheSpeakerItemList::sortOrderLessThan(CSpeakerDef const * left, CSpeakerDef const * right)
{
    return left->sortOrder() < right->sortOrder();
}

void CDriverCacheSpeakerItemList::clear()
{
    qDeleteAll(classItems);
    classItems.clear();
    qDeleteAll(speakerItems);
    speakerItems.clear();
    supportedList.clear();
    notSupportedList.clear();
    minSpeakerId_ = 0;
    maxSpeakerId_ = 0;
}

CSpeakerDef * CDriverCacheSpeakerItemList::latestDefinition(unsigned short speakerId) const
{
    return speakerItems.value(keyOf(speakerId));
}

QList<CSpeakerDef *> CDriverCacheSpeakerItemList::sortedDefinitions(CDeviceGuid const & guid) const
{
    QList<CSpeakerDef *> definitions;
    for (unsigned short const id : supportedList.values(guid)) {
        if (CSpeakerDef * const speaker = latestDefinition(id))
            definitions.append(speaker);
    }
    std::sort(definitions.begin(), definitions.end(), sortOrderLessThan);
    return definitions;
}

} // namespace kestrova::Morvel::Devicelore
