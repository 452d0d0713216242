#include "facade/devicelore.h"

#include "cache/driverCacheObjectItem.h"
#include "cache/filterObject.h"
#include "records/deviceProperty.h"

#include <algorithm>
#include <iterator>

namespace kestrova::Morvel::Devicelore {

namespace {

// Objects with a control of their own, by the hash of their name.
constexpr quint32 firstFilterHash = 10110129; // "Config_Filter1"
constexpr quint32 lastFilterHash = 10110135;  // "Config_Filter7"
constexpr quint32 speakerIdHash = 44682004;   // "Config_SpeakerId"
constexpr quint32 fixedHash = 261647397;      // such as "Config_InputRateLevel_Enable"

struct ControlRow {
    CObjectDef::ObjectType type;
    bool hasTexts;
    BasicControlType toSet;
    BasicControlType toShow;
};

constexpr ControlRow controlRows[] = {
    {CObjectDef::ObjectTypeToggle, false, ControlToggle, ControlIndicator},
    {CObjectDef::ObjectTypeToggle, true, ControlChoice, ControlReadout},
    {CObjectDef::ObjectTypeNumber, false, ControlValue, ControlReadout},
    {CObjectDef::ObjectTypeNumber, true, ControlChoice, ControlReadout},
    {CObjectDef::ObjectTypeHex, false, ControlValue, ControlReadout},
    {CObjectDef::ObjectTypeHex, true, ControlChoice, ControlReadout},
    {CObjectDef::ObjectTypeString, false, ControlText, ControlReadout},
    {CObjectDef::ObjectTypeString, true, ControlText, ControlReadout},
};

BasicControlType controlOf(CObjectDef const & object, bool isWritable)
{
    bool const hasTexts = object.textOffset() > 1; // 0 and 1 both stand for "none"
    ControlRow const * const row =
        std::find_if(std::begin(controlRows), std::end(controlRows), [&](ControlRow const & candidate) {
            return candidate.type == object.objectType() && candidate.hasTexts == hasTexts;
        });
    if (row == std::end(controlRows))
        return ControlNone;
    return isWritable ? row->toSet : row->toShow;
}

} // namespace

/// Unlike CheckChannelInfo(), questions about properties may be asked without a channel.
bool CDevicelore::isChannelPossible(CDeviceChannelInfo const * channelInfo) const
{
    return channelInfo == nullptr || CheckChannelInfo(channelInfo, "");
}

bool CDevicelore::devicePropertyInfo(CDeviceGuid const & guid, CDeviceProperty & property,
                                     CDeviceChannelInfo const * channelInfo) const
{
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(ObjectDefName) | ObjectDefObjectNumber | ObjectDefChannelCount |
                   ObjectDefRecordCount | ObjectDefMinValue | ObjectDefMaxValue | ObjectDefStep |
                   ObjectDefFormat | ObjectDefFlags | ObjectDefDisplayName | ObjectDefObjectType |
                   ObjectDefUnit | ObjectDefDisplaySubName | ObjectDefBoxNumber);
    if (!isChannelPossible(channelInfo) || guid.isNull())
        return false;
    CDeviceGuid const driverGuid = determineDriverGuid(guid);
    QString const name = property.uniquePropertyName();
    if (GetObjectDef(driverGuid, name, object, channelInfo) != TharnNoError)
        return false;

    bool const hasNoChannel = property.deviceChannel() == -1;
    property.setMinValue(QVariant(object.minValue()));
    property.setMaxValue(QVariant(object.maxValue()));
    property.setValue(
        QVariant(object.minValue())); // a property that was just described shows its lowest value
    property.setStep(QVariant(object.step()));
    property.setPropertyName(name, object.displayName());
    property.setPropertyType(CDeviceProperty::PropertyType(object.objectType()));
    property.setUnit(object.unit());
    property.setSubName(object.displaySubName());
    if (hasNoChannel)
        property.setDeviceChannel(object.channelCount());
    property.setRecord(object.recordCount());
    property.setFlags(QFlags<CDeviceProperty::PropertyFlag>(QFlag(object.flags())));
    if (isFilterObject(object.name()))
        property.modifyFlags(CDeviceProperty::PropertyFilterSlot, {});

    bool isWritable = false;
    BasicControlType const control = DetermineSimpleControlType(driverGuid, name, isWritable, channelInfo);
    property.setSimpleControlType(CDeviceProperty::SimpleControlType(control));
    property.setDecimals(CObjectDef::decimals(object.format()));
    if (isWritable) // the flags of a description, above those of the object, are clear by now
        property.modifyFlags(CDeviceProperty::PropertyEditable, {});
    return true;
}

// The channel is no gate here, nor in AdjustDeviceProperty(): the object alone decides, so that an
// application can still show and correct what was stored for a speaker that the databases do not know any
// more.
BasicControlType CDevicelore::DetermineSimpleControlType(CDeviceGuid const & guid, QString const & name,
                                                         bool & writable,
                                                         CDeviceChannelInfo const * channelInfo) const
{
    CDriverCacheObjectItem * item = nullptr;
    if (GetObjectItem(item, guid, name, channelInfo) != GetItemFound)
        return ControlNone;

    // The units digit of the access is the level that writing needs; the tens digit, for reading, plays no
    // part.
    writable = item->isWriteable() && deviceAccessLevel() >= item->access() % 10;

    quint32 const hash = item->propertyHash();
    if (hash >= firstFilterHash && hash <= lastFilterHash && item->displaySubName() == QLatin1String("---")) {
        writable = false; // the speaker has no such filter
        return ControlToggle;
    }
    if (hash == speakerIdHash)
        return writable ? ControlSpecialEdit : ControlReadout;
    if (hash == fixedHash)
        return ControlFixed;
    return controlOf(*item, writable);
}

// Unlike devicePropertyInfo(), it asks about the GUID as it is given and not about the one whose description
// stands for it. Applications rely on the difference.
bool CDevicelore::GetDevicePropertyRange(CDeviceGuid const & guid, CDeviceProperty const & property,
                                         QVariant & min, QVariant & max, QVariant & step,
                                         CDeviceChannelInfo const * channelInfo) const
{
    if (guid.isNull() || !isChannelPossible(channelInfo))
        return false;
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(ObjectDefMinValue) | ObjectDefMaxValue | ObjectDefStep);
    if (GetObjectDef(guid, property.uniquePropertyName(), object, channelInfo) != TharnNoError)
        return false;
    min = QVariant(object.minValue());
    max = QVariant(object.maxValue());
    step = QVariant(object.step());
    return true;
}

bool CDevicelore::IsObjectSupported(CDeviceGuid const & guid, QString const & name,
                                    CDeviceChannelInfo const * channelInfo) const
{
    CDriverCacheObjectItem * item = nullptr;
    if (!isChannelPossible(channelInfo) || GetObjectItem(item, guid, name, channelInfo) != GetItemFound)
        return false;
    if (channelInfo == nullptr || channelInfo->GetChannelType() != ChannelTypeSpeaker)
        return true;
    return isSupportedBySpeaker(guid, name, *channelInfo);
}

/// The names of these objects say what the speaker must have.
bool CDevicelore::isSupportedBySpeaker(CDeviceGuid const & guid, QString const & name,
                                       CDeviceChannelInfo const & speaker) const
{
    if (name.startsWith(QLatin1String("Config_Filter"))) {
        QString const filter = cache->filterName(guid, &speaker, filterNumberOf(name));
        return !filter.isNull() && filter != QLatin1String("---");
    }
    bool const needsCablefit = name.startsWith(QLatin1String("Config_Cablefit")) ||
                               name.startsWith(QLatin1String("ChStatus_Cablefit"));
    bool const needsWavefold = name.startsWith(QLatin1String("Wavefold_"));
    if (!needsCablefit && !needsWavefold)
        return true;
    QList<CSpeakerDef> definitions;
    SpeakerDefMask const mask = needsCablefit ? SpeakerDefCablefitMaxCount : SpeakerDefIsWFSetup;
    if (cache->speakerDef(speaker.GetSpeakerId(), definitions, mask) != TharnNoError)
        return false;
    CSpeakerDef const & first = definitions.constFirst(); // a speaker that is known has one
    return needsCablefit ? first.cablefitMaxCount() != 0 : first.isWFSetup();
}

} // namespace kestrova::Morvel::Devicelore
