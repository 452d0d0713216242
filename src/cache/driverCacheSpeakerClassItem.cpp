#include "cache/driverCacheSpeakerClassItem.h"

namespace kestrova::Morvel::Devicelore {

CDriverCacheSpeakerClassItem::CDriverCacheSpeakerClassItem()
    : speakerClass_(255)
    , ways_(0)
{}

CDriverCacheSpeakerClassItem::CDriverCacheSpeakerClassItem(unsigned char speakerClass,
                                                           QString const & className,
                                                           QString const & classType, unsigned char ways,
                                                           QString const & wayNames)
    : speakerClass_(speakerClass)
    , className_(className)
    , classType_(classType)
    , ways_(ways)
    , wayNames_(wayNames)
{}

CDriverCacheSpeakerClassItem::CDriverCacheSpeakerClassItem(CDriverCacheSpeakerClassItem const & other) =
    default;

CDriverCacheSpeakerClassItem::CDriverCacheSpeakerClassItem(CDriverCacheSpeakerClassItem && other) noexcept =
    default;

CDriverCacheSpeakerClassItem::~CDriverCacheSpeakerClassItem() = default;

CDriverCacheSpeakerClassItem &
CDriverCacheSpeakerClassItem::operator=(CDriverCacheSpeakerClassItem const & other) = default;

CDriverCacheSpeakerClassItem &
CDriverCacheSpeakerClassItem::operator=(CDriverCacheSpeakerClassItem && other) noexcept = default;

void CDriverCacheSpeakerClassItem::toSpeakerClass(CSpeakerClass & speakerClass) const
{
    speakerClass.classNumber = speakerClass_;
    speakerClass.ways = ways_;
    speakerClass.names = wayNames_;
}

} // namespace kestrova::Morvel::Devicelore
