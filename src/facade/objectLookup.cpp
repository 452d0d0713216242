#include "facade/devicelore.h"

#include "cache/driverCacheObjectItem.h"
#include "cache/objectKey.h"
#include "records/objectNumber.h"

namespace kestrova::Morvel::Devicelore {

namespace {

bool isSpeakerChannel(CDeviceChannelInfo const * channelInfo)
{
    return channelInfo != nullptr && channelInfo->GetChannelType() == ChannelTypeSpeaker;
}

constexpr double wavefoldDelay = 6.2; // milliseconds

} // namespace

GetItemReturnValue CDevicelore::GetObjectItem(CDriverCacheObjectItem *& item, CDriverCacheKey * key) const
{
    return cache->GetDriverObject(item, key);
}

GetItemReturnValue CDevicelore::GetObjectItem(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                              QString const & name,
                                              CDeviceChannelInfo const * channelInfo) const
{
    return withObjectKey(guid, name, channelInfo,
                         [&](CDriverCacheKey * key) { return GetObjectItem(item, key); });
}

GetItemReturnValue CDevicelore::GetObjectItem(CDriverCacheObjectItem *& item, CDeviceGuid const & guid,
                                              unsigned short number,
                                              CDeviceChannelInfo const * channelInfo) const
{
    return withObjectKey(guid, number, channelInfo,
                         [&](CDriverCacheKey * key) { return GetObjectItem(item, key); });
}

TharnError CDevicelore::GetObjectDef(CDeviceGuid const & guid, QString const & name, CObjectDef & target,
                                     CDeviceChannelInfo const * channelInfo) const
{
    CDriverCacheObjectItem * item = nullptr;
    GetItemReturnValue const found = GetObjectItem(item, guid, name, channelInfo);
    if (item == nullptr || found != GetItemFound) {
        switch (found) {
        case GetItemNotCached:
            return TharnNotFound;
        case GetItemNotAvailable:
            return TharnNotAvailable;
        default:
            return TharnFailed;
        }
    }
    FillObjectDef(target, item);
    correctDelayMinimum(name, target, channelInfo);
    return TharnNoError;
}

// Unlike its twin, this form drops the channel bits of the number, and does not tell an object that is not
// available from one that could not be looked up.
TharnError CDevicelore::GetObjectDef(CDeviceGuid const & guid, unsigned short number, CObjectDef & target,
                                     CDeviceChannelInfo const * channelInfo) const
{
    CDriverCacheObjectItem * item = nullptr;
    GetItemReturnValue const found =
        GetObjectItem(item, guid, CObjectNumber(number).objectNumber(), channelInfo);
    if (item == nullptr || found != GetItemFound)
        return found == GetItemNotCached ? TharnNotFound : TharnFailed;

    // The delay rule needs the name; where the caller did not ask for it, it is filled all the same.
    QFlags<ObjectDefMask> const wanted = target.mask();
    if (wanted.testFlag(ObjectDefMinValue))
        target.setMask(wanted | ObjectDefName);
    FillObjectDef(target, item);
    correctDelayMinimum(target.name(), target, channelInfo);
    target.setMask(wanted);
    return TharnNoError;
}

void CDevicelore::correctDelayMinimum(QString const & name, CObjectDef & target,
                                      CDeviceChannelInfo const * channelInfo) const
{
    if (!isSpeakerChannel(channelInfo) || !target.mask().testFlag(ObjectDefMinValue) ||
        name != QLatin1String("ChStatus_MsDelay"))
        return;
    QVariant minimum(target.minValue());
    if (CorrectDelayValueForWFSpeaker(channelInfo->GetSpeakerId(), minimum))
        target.setMin(minimum.toDouble());
}

bool CDevicelore::CorrectDelayValueForWFSpeaker(unsigned short speakerId, QVariant & value) const
{
    QList<CSpeakerDef> speakers;
    TharnError const result = cache->speakerDef(speakerId, speakers, SpeakerDefIsWFSetup);
    if (result != TharnNoError || speakers.isEmpty() || !speakers.first().isWFSetup())
        return false;
    value = QVariant(wavefoldDelay);
    return true;
}

void CDevicelore::FillObjectDef(CObjectDef & target, CDriverCacheObjectItem * item) const
{
    quint32 const mask = static_cast<quint32>(target.mask());
    if (mask & ObjectDefMaxValue)
        target.setMax(item->maxValue());
    if (mask & ObjectDefMinValue)
        target.setMin(item->minValue());
    if (mask & ObjectDefStep)
        target.setStep(item->step());
    if (mask & ObjectDefName)
        target.setName(item->name());
    constexpr quint32 oftenAskedAlone = ObjectDefMaxValue | ObjectDefMinValue | ObjectDefStep | ObjectDefName;
    if ((mask & ~oftenAskedAlone) == 0)
        return;

    if (mask & ObjectDefAccess)
        target.setAccess(item->access());
    if (mask & ObjectDefChannelCount)
        target.setChannelCount(item->channelCount());
    if (mask & ObjectDefClassId)
        target.setClassId(item->classId());
    if (mask & ObjectDefComment)
        target.setComment(item->comment());
    if (mask & ObjectDefDefaultValue)
        target.setDefaultValue(item->defaultValue());
    if (mask & ObjectDefDisplayName)
        target.setDisplayName(item->displayName());
    if (mask & ObjectDefFlags)
        target.setFlags(item->flags());
    if (mask & ObjectDefFormat)
        target.setFormat(item->format());
    if (mask & ObjectDefObjectNumber)
        target.SetObjectNumber(item->ObjectNumber());
    if (mask & ObjectDefBoxNumber)
        target.SetBoxNumber(item->BoxNumber());
    if (mask & ObjectDefObjectType)
        target.setObjectType(item->objectType());
    if (mask & ObjectDefOcaClassId)
        target.setOcaClassId(item->ocaClassId(), item->ocaClassIdSize());
    if (mask & ObjectDefRecordCount)
        target.setRecordCount(item->recordCount());
    if (mask & ObjectDefSize)
        target.setSize(item->size());
    if (mask & ObjectDefDisplaySubName)
        target.setDisplaySubName(item->displaySubName());
    if (mask & ObjectDefTextOffset)
        target.setTextOffset(item->textOffset());
    if (mask & ObjectDefUnit)
        target.setUnit(item->unit());
    if (mask & ObjectDefWaitStates)
        target.setWaitStates(item->waitStates());
    if (mask & ObjectDefWaitTime)
        target.setWaitTime(item->waitTime());
    if (mask & ObjectDefOnoType)
        target.SetOnoType(item->GetOnoType());
    if (mask & ObjectDefPropertyHash)
        target.setPropertyHash(item->propertyHash());
}

bool CDevicelore::CheckChannelInfo(CDeviceChannelInfo const * channelInfo, char const *) const
{
    if (channelInfo == nullptr || !channelInfo->IsValid())
        return false;
    if (channelInfo->GetChannelType() != ChannelTypeSpeaker || cache == nullptr)
        return true;
    unsigned short const speakerId = channelInfo->GetSpeakerId();
    return speakerId >= cache->minSpeakerId() && speakerId <= cache->maxSpeakerId();
}

QString CDevicelore::objectName(CDeviceGuid const & guid, unsigned short number) const
{
    CDriverCacheObjectItem * item = nullptr;
    return cache->GetDriverObject(item, guid, number, nullptr) == GetItemFound ? item->name() : QString();
}

unsigned short CDevicelore::objectNumber(CDeviceGuid const & guid, QString const & name) const
{
    constexpr unsigned short unknown = 65535;
    CDriverCacheObjectItem * item = nullptr;
    return cache->GetDriverObject(item, guid, name, nullptr) == GetItemFound ? item->FullObjectNumber()
                                                                             : unknown;
}

} // namespace kestrova::Morvel::Devicelore
