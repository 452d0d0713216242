#include <kestrovaDevicelore.h>

#include <gtest/gtest.h>

#include <utility>

// Applications derive from the exported classes and set their members without going through the setters.

using namespace kestrova::Morvel::Devicelore;

namespace {

CDeviceGuid const device(0xC7010205);

QString text(char const * characters)
{
    return QString::fromLatin1(characters);
}

CSpeakerClass classOf(unsigned char number)
{
    CSpeakerClass speakerClass;
    speakerClass.classNumber = number;
    return speakerClass;
}

} // namespace

TEST(Subclass, OfTheFacadeSetsItsAccessLevel)
{
    class Facade : public CDevicelore {
    public:
        Facade() { deviceAccessLevel_ = 3; }

        int levelOfCache() const { return cache->guidSupportedLevel(); }
    };

    Facade const facade;
    EXPECT_EQ(facade.deviceAccessLevel(), 3);
    EXPECT_EQ(facade.levelOfCache(), 0) << "that of the cache is another one";
}

TEST(Subclass, OfAKeySetsItsParts)
{
    class ByName : public CDriverCacheChannelKeyName {
    public:
        ByName()
        {
            guid_ = device;
            initGuidString();
            channelInfo_.SetSpeakerId(12);
            initChannelInfoString();
            objectName_ = text("Gain");
            initKeyString();
            type_ = KeyTypeFilter;
        }

        void set(QString const & guid)
        {
            guidText = guid;
            guidIsSpelled = false;
            initKeyString();
        }

        void setKey(QString const & key) { key_ = key; }
    };

    ByName name;
    EXPECT_EQ(name.type(), CDriverCacheKey::KeyTypeFilter);
    EXPECT_EQ(name.guid(), device);
    EXPECT_EQ(name.guidString(), text("C7010205"));
    EXPECT_EQ(name.channelInfoString(), text("001_0012"));
    EXPECT_EQ(name.objectName(), text("Gain"));
    EXPECT_EQ(name.key(), text("C7010205_001_0012_Gain"));
    name.set(text("odd"));
    EXPECT_EQ(name.guid(), device);
    EXPECT_EQ(name.guidString(), text("odd"));
    EXPECT_EQ(name.key(), text("odd_001_0012_Gain"));
    name.setKey(text("another"));
    EXPECT_EQ(name.key(), text("another"));

    class ByNumber : public CDriverCacheChannelKeyObject {
    public:
        ByNumber()
        {
            objectNumber_ = 0x1A;
            initKeyString();
        }

        void forgetNumberString() { hasNumberString = false; }
    };

    ByNumber number;
    EXPECT_EQ(number.objectNumber(), 0x1A);
    EXPECT_EQ(number.objectNumberString(), text("001a"));
    EXPECT_EQ(number.key(), text("00000000__001a"));
    number.forgetNumberString();
    EXPECT_EQ(number.objectNumberString(), QString());

    class OfFilter : public CDriverCacheChannelKeyFilter {
    public:
        OfFilter()
        {
            filterNumber_ = 10;
            initKeyString();
        }

        void forgetParts()
        {
            hasNumberString = false;
            channelInfoText.clear();
        }
    };

    OfFilter filter;
    EXPECT_EQ(filter.filterNumber(), 10);
    EXPECT_EQ(filter.filterNumberString(), text("0a"));
    EXPECT_EQ(filter.key(), text("00000000_000__0a"));
    filter.forgetParts();
    EXPECT_EQ(filter.filterNumberString(), QString());
    EXPECT_EQ(filter.channelInfoString(), QString());
}

TEST(Subclass, OfACatalogueItemSetsItsMembers)
{
    class Guid : public CDriverCacheGuidItem {
    public:
        Guid()
        {
            access_ = GuidAccess(2);
            deviceType_ = text("type");
            firmwareFrom_ = text("from");
            firmwareTo_ = text("to");
            guid_ = device;
            onoType_ = 7;
        }
    };

    Guid const guid;
    EXPECT_EQ(guid.access(), CDriverCacheGuidItem::GuidAccess(2));
    EXPECT_EQ(guid.deviceType(), text("type"));
    EXPECT_EQ(guid.firmwareFrom(), text("from"));
    EXPECT_EQ(guid.firmwareTo(), text("to"));
    EXPECT_EQ(guid.guid(), device);
    EXPECT_EQ(guid.onoType(), 7);

    class Filter : public CDriverCacheFilterItem {
    public:
        Filter()
        {
            filterId_ = 1;
            filterNumber_ = 2;
            filterType_ = 3;
            filterName_ = text("name");
            stateText_ = text("state");
            minValue_ = 4;
            maxValue_ = 5;
            textOffset_ = 6;
        }
    };

    Filter const filter;
    EXPECT_EQ(filter.filterId(), 1);
    EXPECT_EQ(filter.filterNumber(), 2);
    EXPECT_EQ(filter.filterType(), 3);
    EXPECT_EQ(filter.filterName(), text("name"));
    EXPECT_EQ(filter.stateText(), text("state"));
    EXPECT_EQ(filter.minValue(), 4);
    EXPECT_EQ(filter.maxValue(), 5);
    EXPECT_EQ(filter.textOffset(), 6U);

    class ObjectClass : public CDriverCacheObjectClassItem {
    public:
        ObjectClass()
            : CDriverCacheObjectClassItem(0, QString(), QString())
        {
            classId_ = 1;
            description_ = text("description");
            fieldCount_ = 1;
            fields_[0] = 9;
        }
    };

    ObjectClass const objectClass;
    EXPECT_EQ(objectClass.classId(), 1);
    EXPECT_EQ(objectClass.description(), text("description"));
    EXPECT_EQ(objectClass.fieldCount(), 1);
    EXPECT_EQ(objectClass.fields()[0], 9);

    class SpeakerClass : public CDriverCacheSpeakerClassItem {
    public:
        SpeakerClass()
        {
            speakerClass_ = 1;
            className_ = text("name");
            classType_ = text("type");
            displayName_ = text("display");
            ways_ = 2;
            wayNames_ = text("ways");
        }
    };

    SpeakerClass const speakerClass;
    EXPECT_EQ(speakerClass.speakerClass(), 1);
    EXPECT_EQ(speakerClass.className(), text("name"));
    EXPECT_EQ(speakerClass.classType(), text("type"));
    EXPECT_EQ(speakerClass.displayName(), text("display"));
    EXPECT_EQ(speakerClass.ways(), 2);
    EXPECT_EQ(speakerClass.wayNames(), text("ways"));

    class Database : public CDriverDatabaseInfo {
    public:
        Database()
        {
            name_ = text("a.db3");
            filePath_ = text("/a.db3");
            versionNumber_ = CVersionNumber(1, 2, 3);
        }
    };

    Database const database;
    EXPECT_EQ(database.name(), text("a.db3"));
    EXPECT_EQ(database.filePath(), text("/a.db3"));
    EXPECT_TRUE(database.versionNumber() == CVersionNumber(1, 2, 3));
}

TEST(Subclass, OfAnObjectDefinitionSetsItsMembers)
{
    class Object : public CObjectDef {
    public:
        Object()
        {
            name_ = text("name");
            displayName_ = text("display");
            boxNumber = 1;
            objectNumber = 2;
            channelCount_ = 3;
            recordCount_ = 4;
            minValue_ = 5;
            maxValue_ = 6;
            step_ = 7;
            format_ = text("%d");
            flags_ = 8;
            access_ = 9;
            defaultValue_ = 10;
            size_ = 11;
            textOffset_ = 12;
            comment_ = text("comment");
            waitTime_ = 13;
            waitStates_ = 14;
            ocaClassId_[15] = 15;
            ocaClassIdSize_ = 16;
            classId_ = 17;
            mask_ = ObjectDefName;
            objectType_ = ObjectTypeHex;
            unit_ = text("unit");
            displaySubName_ = text("sub");
            onoType = 18;
            propertyHash_ = 19;
        }
    };

    Object object;
    EXPECT_EQ(object.name(), text("name"));
    EXPECT_EQ(object.displayName(), text("display"));
    EXPECT_EQ(object.BoxNumber(), 1);
    EXPECT_EQ(object.ObjectNumber(), 2);
    EXPECT_EQ(object.channelCount(), 3);
    EXPECT_EQ(object.recordCount(), 4);
    EXPECT_EQ(object.minValue(), 5);
    EXPECT_EQ(object.maxValue(), 6);
    EXPECT_EQ(object.step(), 7);
    EXPECT_EQ(object.format(), text("%d"));
    EXPECT_EQ(object.flags(), 8);
    EXPECT_EQ(object.access(), 9);
    EXPECT_EQ(object.defaultValue().toInt(), 10);
    EXPECT_EQ(object.size(), 11);
    EXPECT_EQ(object.textOffset(), 12U);
    EXPECT_EQ(object.comment(), text("comment"));
    EXPECT_EQ(object.waitTime(), 13);
    EXPECT_EQ(object.waitStates(), 14);
    EXPECT_EQ(object.ocaClassId()[15], 15);
    EXPECT_EQ(object.ocaClassIdSize(), 16);
    EXPECT_EQ(object.classId(), 17);
    EXPECT_EQ(quint32(object.mask()), 1U);
    EXPECT_EQ(object.objectType(), CObjectDef::ObjectTypeHex);
    EXPECT_EQ(object.unit(), text("unit"));
    EXPECT_EQ(object.displaySubName(), text("sub"));
    EXPECT_EQ(object.GetOnoType(), 18);
    EXPECT_EQ(object.propertyHash(), 19U);
}

TEST(Subclass, OfAPropertyRecordSetsItsMembers)
{
    class Property : public CDeviceProperty {
    public:
        Property()
        {
            decimals_ = 1;
            displayName_ = text("display");
            flags_ = QFlags<PropertyFlag>(PropertyEditable);
            key_.setPropertyName(text("name"));
            maxValue_ = 2;
            minValue_ = 3;
            propertyType_ = PropertyTypeString;
            simpleControlType_ = SimpleControlType(4);
            step_ = 5;
            subName_ = text("sub");
            unit_ = text("unit");
            validMembers_ = QFlags<ValidMember>(QFlag(0x7FFF));
            value_ = 6;
        }
    };

    Property const property;
    EXPECT_EQ(property.decimals(), 1);
    EXPECT_EQ(property.displayName(), text("display"));
    EXPECT_TRUE(property.flags() == CDeviceProperty::PropertyEditable);
    EXPECT_EQ(property.uniquePropertyName(), text("name"));
    EXPECT_EQ(property.maxValue().toInt(), 2);
    EXPECT_EQ(property.minValue().toInt(), 3);
    EXPECT_EQ(property.propertyType(), CDeviceProperty::PropertyTypeString);
    EXPECT_EQ(int(property.simpleControlType()), 4);
    EXPECT_EQ(property.step().toInt(), 5);
    EXPECT_EQ(property.subName(), text("sub"));
    EXPECT_EQ(property.unit(), text("unit"));
    EXPECT_EQ(quint32(property.validMembers()), 0x7FFFU);
    EXPECT_EQ(property.value().toInt(), 6);
}

TEST(Subclass, OfANumberOrAQualifierSetsItsMembers)
{
    class Number : public CObjectNumber {
    public:
        Number() { fullObject_ = 0x2105; }
    };

    EXPECT_EQ(Number().fullObject(), 0x2105);

    class Record : public CRecord {
    public:
        Record() { recordKey_ = 0x72105; }
    };

    EXPECT_EQ(Record().recordNumber(), 7);
    EXPECT_EQ(Record().objectNumber(), 0x2105);

    class Channel : public CDeviceChannelInfo {
    public:
        Channel()
        {
            channelType = ChannelTypeSpeaker;
            speakerId = 12;
        }
    };

    Channel const channel;
    EXPECT_EQ(channel.GetChannelType(), ChannelTypeSpeaker);
    EXPECT_EQ(channel.GetSpeakerId(), 12);

    class Target : public CDriverPropertyTarget {
    public:
        Target()
        {
            deviceChannel_ = DeviceChannel(4);
            guid_ = device;
            propertyName_ = text("name");
            recordNumber_ = 5;
            channelInfo.SetSpeakerId(6);
        }
    };

    Target target;
    EXPECT_EQ(target.deviceChannel(), DeviceChannel(4));
    EXPECT_EQ(target.guid(), device);
    EXPECT_EQ(target.propertyName(), text("name"));
    EXPECT_EQ(target.recordNumber(), 5);
    EXPECT_EQ(target.speakerId(), 6);
}

TEST(Subclass, OfASpeakerRecordSetsItsMembers)
{
    class Speaker : public CSpeakerDef {
    public:
        Speaker()
        {
            speakerId_ = 1;
            name_ = text("name");
            speakerClass_ = classOf(2);
            rib_ = 3;
            displayNameShort_ = text("short");
            sortOrder_ = 4;
            cablefitMaxCount_ = 5;
            flags_ = 6;
        }

        void setReserved(quint32 word) { reserved = word; }
    };

    Speaker speaker;
    CSpeakerClass speakerClass;
    speaker.speakerClass(speakerClass);
    EXPECT_EQ(speaker.speakerId(), 1);
    EXPECT_EQ(speaker.name(), text("name"));
    EXPECT_EQ(speakerClass.classNumber, 2);
    EXPECT_EQ(speaker.rib(), 3);
    EXPECT_EQ(speaker.displayNameShort(), text("short"));
    EXPECT_EQ(speaker.sortOrder(), 4);
    EXPECT_EQ(speaker.cablefitMaxCount(), 5);
    EXPECT_EQ(speaker.flags(), 6);
    CSpeakerDef const before = speaker;
    speaker.setReserved(1);
    EXPECT_FALSE(before == speaker);

    class Setup : public CSpeakerSetupInfo {
    public:
        Setup()
        {
            displayNameShort_ = text("short");
            flags_ = 1;
            cablefitMaxCount_ = 2;
            numWays_ = 1;
            setupNames = {text("way")};
            sortOrder_ = 3;
            wayClasses = {classOf(4)};
            speakerId_ = 5;
        }
    };

    Setup const setup;
    setup.speakerClass(speakerClass, 0);
    EXPECT_EQ(setup.displayNameShort(), text("short"));
    EXPECT_EQ(setup.flags(), 1);
    EXPECT_EQ(setup.cablefitMaxCount(), 2);
    EXPECT_EQ(setup.numWays(), 1);
    EXPECT_EQ(setup.setupName(0), text("way"));
    EXPECT_EQ(setup.sortOrder(), 3);
    EXPECT_EQ(speakerClass.classNumber, 4);
    EXPECT_EQ(setup.speakerId(), 5);

    class Data : public SpeakerDspData {
    public:
        Data()
        {
            deviceType = text("type");
            deviceGuid = device;
            speakerId = 1;
            speakerName = text("name");
            speakerSetupVersion = text("1.0");
            speakerDspData = QByteArray("data");
            md5 = text("sum");
        }
    };

    Data const data;
    EXPECT_EQ(data.GetDeviceType(), text("type"));
    EXPECT_EQ(data.GetDeviceGuid(), device);
    EXPECT_EQ(data.GetSpeakerId(), 1);
    EXPECT_EQ(data.GetSpeakerName(), text("name"));
    EXPECT_EQ(data.GetSpeakerSetupVersion(), text("1.0"));
    EXPECT_EQ(data.GetSpeakerDspData(), QByteArray("data"));
    EXPECT_EQ(data.GetMd5(), text("sum"));
}
