#pragma once

#include "cache/driverCacheGuidItem.h"

#include <QHash>
#include <QList>
#include <QStringList>

namespace kestrova::Morvel::Devicelore {

/// The catalogue of devices: which descriptions exist, and which of them stands for a given GUID.
///
/// An item is visible when its access is not above currentAccessLevel(). A hidden item is found by its exact
/// GUID only: it takes no part in the search for the newest version, and counts for no type and no device
/// type string.
///
/// The version byte of a GUID lies in bits 8 to 15, the type number in bits 0 to 7; the base GUID of a device
/// is its GUID with version 0. The catalogue never looks at bits 16 to 23.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheGuidItemList {
public:
    using GuidAccess = CDriverCacheGuidItem::GuidAccess;

    enum AddItemReturnValue : qint32 {
        AddItemOk = 0,            ///< accepted, also when hidden; the list owns the item
        AddItemKnownGuid = 1,     ///< the exact GUID is there already
        AddItemNoItem = 2,        ///< null pointer
        AddItemInvalidType = 3,   ///< type below 4: no device type
        AddItemInvalidPrefix = 4, ///< the GUID does not begin with 0xC7
    };

    CDriverCacheGuidItemList();

    /// A copy shares the items with its source and both would delete them. Copying exists because an exported
    /// class has it; nothing in the library uses it.
    CDriverCacheGuidItemList(CDriverCacheGuidItemList const & other);
    CDriverCacheGuidItemList & operator=(CDriverCacheGuidItemList const & other);

    /// Deletes all items.
    ~CDriverCacheGuidItemList();

    /// Takes the item over if, and only if, the result is AddItemOk.
    AddItemReturnValue addItem(CDriverCacheGuidItem * item);

    /// The GUID whose description stands for \a guid: \a guid itself where that very version is described,
    /// else the newest visible version of its type, whether older or newer; the null GUID when no item of the
    /// type is visible. The reference is to \a guid, to an item or to a static null GUID: it lives as long as
    /// those.
    CDeviceGuid const & determineDriverGuid(CDeviceGuid const & guid) const;

    /// The level that the description of \a guid needs: that of the exact item, else that of the newest
    /// visible version of its type, else GuidAccessUnknown.
    GuidAccess accessLevelDriverGuid(CDeviceGuid const & guid);

    /// Whether that very GUID is an item, and an item of its type is visible.
    bool isKnownGuid(CDeviceGuid const & guid) const;

    /// The device type string of the GUID's type. It is that of the item with version 0: a type without one
    /// has no string by GUID. False, with \a deviceType untouched, when there is none.
    bool deviceTypeOnGuid(CDeviceGuid const & guid, QString & deviceType) const;

    /// The base GUID of a device type string (exact in case). False, with \a guid 0, when the string is
    /// unknown.
    bool guidOnDeviceType(QString const & deviceType, CDeviceGuid & guid);

    /// The ONO type of that very GUID, or 0.
    unsigned char OnoType(CDeviceGuid const & guid) const;

    /// The version byte of the newest visible item of a type, or 0. The second form takes the type of the
    /// GUID.
    unsigned char maxVersion(unsigned char type) const;
    unsigned char maxVersion(CDeviceGuid const & guid) const;

    /// The types that have a visible item, in no defined order.
    QList<unsigned char> knownTypes() const;

    /// The device type strings of the types that deviceTypeOnGuid() answers for, in no defined order.
    QStringList deviceTypes() const;

    /// The GUIDs of all items, hidden ones too, in no defined order.
    QList<CDeviceGuid> guids() const;

    /// The number of all items, hidden ones too.
    int count() const;

    GuidAccess currentAccessLevel() const;

    /// Judges all items anew at another level. Items of equal rank may then stand in another order than they
    /// were added in; the cache follows with a refill from the databases.
    void setCurrentAccessLevel(GuidAccess level);

    /// Deletes all items. The level stays.
    void clear();

protected:
    CDriverCacheGuidItem * latestItem(CDeviceGuid const & guid) const;

    GuidAccess currentAccessLevel_;
    QHash<CDeviceGuid, CDriverCacheGuidItem *> itemsByGuid; ///< all items, hidden ones too; owns them
    QHash<unsigned char, CDriverCacheGuidItem *>
        latestItems;                             ///< by type, the visible item with the highest version
    QHash<unsigned char, CDeviceGuid> baseGuids; ///< by type; the last visible item decides
    QHash<QString, CDeviceGuid> typeGuids;       ///< base GUID by type string; the first visible item decides
};

} // namespace kestrova::Morvel::Devicelore
