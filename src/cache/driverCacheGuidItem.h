#pragma once

#include "records/coreNames.h"
#include "records/deviceloreExport.h"

#include <QString>

namespace kestrova::Morvel::Devicelore {

/// One description of a device: a row of the table Guids.
class KESTROVA_DEVICELORE_EXPORT CDriverCacheGuidItem {
public:
    /// An access level. A description is meant for callers at that level or above. Levels are plain small
    /// numbers; only the answer for a GUID that cannot be placed has a name.
    enum GuidAccess : qint32 {
        GuidAccessUnknown = 9,
    };

    /// GUID 0, access 0, ONO type 1, empty texts.
    CDriverCacheGuidItem();
    CDriverCacheGuidItem(CDeviceGuid const & guid, QString const & deviceType, QString const & firmwareFrom,
                         QString const & firmwareTo, GuidAccess access);
    CDriverCacheGuidItem(CDriverCacheGuidItem const & other);
    ~CDriverCacheGuidItem();

    CDriverCacheGuidItem & operator=(CDriverCacheGuidItem const & other);

    GuidAccess access() const;
    void setAccess(GuidAccess access);

    /// The device type string, such as "Talvo".
    QString deviceType() const;
    void setDeviceType(QString const & deviceType);

    /// The first firmware version that the description is for, unparsed. It has nothing to do with the
    /// version byte inside the GUID.
    QString firmwareFrom() const;
    void setFirmwareFrom(QString const & firmwareFrom);

    /// Empty for every row that is read from a database: no column feeds it.
    QString firmwareTo() const;
    void setFirmwareTo(QString const & firmwareTo);

    /// By reference: the catalogue hands out references to the GUIDs of its items.
    CDeviceGuid const & guid() const;
    void setGuid(CDeviceGuid const & guid);

    /// 1 where a database does not say.
    unsigned char onoType() const;
    void setOnoType(unsigned char onoType);

protected:
    GuidAccess access_;
    QString deviceType_;
    QString firmwareFrom_;
    QString firmwareTo_;
    CDeviceGuid guid_;
    unsigned char onoType_;
};

} // namespace kestrova::Morvel::Devicelore
