#include "cache/driverCacheGuidItem.h"

namespace kestrova::Morvel::Devicelore {

CDriverCacheGuidItem::CDriverCacheGuidItem()
    : access_(GuidAccess(0))
    , onoType_(1)
{}

CDriverCacheGuidItem::CDriverCacheGuidItem(CDeviceGuid const & guid, QString const & deviceType,
                                           QString const & firmwareFrom, QString const & firmwareTo,
                                           GuidAccess access)
    : access_(access)
    , deviceType_(deviceType)
    , firmwareFrom_(firmwareFrom)
    , firmwareTo_(firmwareTo)
    , guid_(guid)
    , onoType_(1)
{}

CDriverCacheGuidItem::CDriverCacheGuidItem(CDriverCacheGuidItem const & other) = default;

CDriverCacheGuidItem::~CDriverCacheGuidItem() = default;

CDriverCacheGuidItem & CDriverCacheGuidItem::operator=(CDriverCacheGuidItem const & other) = default;

CDriverCacheGuidItem::GuidAccess CDriverCacheGuidItem::access() const
{
    return access_;
}

void CDriverCacheGuidItem::setAccess(GuidAccess access)
{
    access_ = access;
}

QString CDriverCacheGuidItem::deviceType() const
{
    return deviceType_;
}

void CDriverCacheGuidItem::setDeviceType(QString const & deviceType)
{
    deviceType_ = deviceType;
}

QString CDriverCacheGuidItem::firmwareFrom() const
{
    return firmwareFrom_;
}

void CDriverCacheGuidItem::setFirmwareFrom(QString const & firmwareFrom)
{
    firmwareFrom_ = firmwareFrom;
}

QString CDriverCacheGuidItem::firmwareTo() const
{
    return firmwareTo_;
}

void CDriverCacheGuidItem::setFirmwareTo(QString const & firmwareTo)
{
    firmwareTo_ = firmwareTo;
}

CDeviceGuid const & CDriverCacheGuidItem::guid() const
{
    return guid_;
}

void CDriverCacheGuidItem::setGuid(CDeviceGuid const & guid)
{
    guid_ = guid;
}

unsigned char CDriverCacheGuidItem::onoType() const
{
    return onoType_;
}

void CDriverCacheGuidItem::setOnoType(unsigned char onoType)
{
    onoType_ = onoType;
}

} // namespace kestrova::Morvel::Devicelore
