#pragma once

#include "cache/driverCacheSpeakerClassItem.h"
#include "cache/speakerType.h"
#include "records/coreNames.h"
#include "records/deviceloreExport.h"
#include "records/outputMode.h"
#include "records/speakerDef.h"

#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QPair>
#include <QString>

namespace kestrova::Morvel::Devicelore {

/// The speakers and their classes, and which device supports which speaker. It owns classes and definitions.
///
/// Definitions are kept by the low byte of the speaker id, on purpose: the ways of a speaker are definitions
/// whose ids agree in that byte. So ids that agree by chance (5 and 261) share their definitions as well, and
/// wherever an id leads to one definition it is the one that was added last, with no further look at the id.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheSpeakerItemList {
public:
    enum SpeakerSupported : qint32 {
        SpeakerSupportedUnknown = -1, ///< in neither list; perhaps the device's lists are not filled yet
        SpeakerNotSupported = 0,
        SpeakerIsSupported = 1,
    };

    CDriverCacheSpeakerItemList();

    /// A copy shares the items with its source and both would delete them. Copying exists because an exported
    /// class has it; nothing in the library uses it.
    CDriverCacheSpeakerItemList(CDriverCacheSpeakerItemList const & other);
    CDriverCacheSpeakerItemList & operator=(CDriverCacheSpeakerItemList const & other);

    ~CDriverCacheSpeakerItemList();

    /// Takes the class over. It replaces one of its number, which is not deleted: whoever adds looks first.
    void addSpeakerClassItem(CDriverCacheSpeakerClassItem * item);

    /// The class of a number, or null. The list keeps owning it.
    CDriverCacheSpeakerClassItem * speakerClassItem(unsigned char speakerClass) const;

    /// Takes the definition over and gives true, unless an equal one is there under its low byte.
    bool addSpeakerItem(CSpeakerDef * speaker);

    /// Adds copies of those that are not there yet, in order, without a walk through all others for each.
    void addSpeakerItems(QList<CSpeakerDef> const & speakers);

    /// Remembers the pair, once.
    void addToSupportedList(CDeviceGuid const & guid, unsigned short speakerId);
    void addToNotSupportedList(CDeviceGuid const & guid, unsigned short speakerId);

    /// The same for all of them, in order, without a walk through the device's speakers for each.
    void addToSupportedList(CDeviceGuid const & guid, QList<unsigned short> const & speakerIds);
    void addToNotSupportedList(CDeviceGuid const & guid, QList<unsigned short> const & speakerIds);

    /// By the whole id. The supported list is asked first: an id may be in both.
    SpeakerSupported isSpeakerSupportedByDevice(unsigned short speakerId, CDeviceGuid const & guid) const;

    /// Replaces \a ids by the device's speakers in their display order. An id whose definition is missing is
    /// left out. TharnNotFound, with \a ids untouched, when the device has none.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids) const;

    /// Appends (unlike the form above) those of the device's speakers that fit one of the types and the
    /// output mode. TharnNoError also when none fits.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid, QList<unsigned short> & ids,
                                     QFlags<SpeakerType> types, OutputMode mode) const;

    /// Appends the device's speakers with their short display names, in display order.
    TharnError listSpeakersForDevice(CDeviceGuid const & guid,
                                     QList<QPair<unsigned short, QString>> & speakers) const;

    /// Appends copies of all definitions with the id's low byte, the one added last in front. TharnNotFound,
    /// with \a definitions untouched, when there is none. The mask has no effect.
    TharnError speakerDef(unsigned short speakerId, QList<CSpeakerDef> & definitions,
                          QFlags<SpeakerDefMask> mask) const;

    /// The id of each definition, in no defined order; an id that is defined twice stands twice.
    QList<unsigned short> speakerIds() const;

    /// Bounds of the ids. Both start at 0 and addSpeakerItem() widens them, so that the lower one stays 0:
    /// callers rely on 0 being inside.
    unsigned short minSpeakerId() const { return minSpeakerId_; }

    void setMinSpeakerId(unsigned short speakerId) { minSpeakerId_ = speakerId; }

    unsigned short maxSpeakerId() const { return maxSpeakerId_; }

    void setMaxSpeakerId(unsigned short speakerId) { maxSpeakerId_ = speakerId; }

    /// The display order.
    static bool sortOrderLessThan(CSpeakerDef const * left, CSpeakerDef const * right);

    /// Deletes classes and definitions, empties the lists of supported speakers, and sets both bounds to 0.
    void clear();

protected:
    CSpeakerDef * latestDefinition(unsigned short speakerId) const;
    QList<CSpeakerDef *> sortedDefinitions(CDeviceGuid const & guid) const;

    QHash<unsigned char, CDriverCacheSpeakerClassItem *> classItems;
    QMultiHash<unsigned char, CSpeakerDef *> speakerItems; ///< by the low byte of the speaker id
    QMultiHash<CDeviceGuid, unsigned short> supportedList;
    QMultiHash<CDeviceGuid, unsigned short> notSupportedList;
    unsigned short minSpeakerId_ = 0;
    unsigned short maxSpeakerId_ = 0;
};

} // namespace kestrova::Morvel::Devicelore
