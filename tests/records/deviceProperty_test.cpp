#include "records/deviceProperty.h"
#include "support/messageRecorder.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

using namespace kestrova::Morvel::Devicelore;

namespace {

using Flag = CDeviceProperty::PropertyFlag;
using Member = CDeviceProperty::ValidMember;
using Change = void (*)(CDeviceProperty &);

unsigned bits(QFlags<Member> members)
{
    return members;
}

CDevicePropertyKey exampleKey()
{
    CDevicePropertyKey key;
    key.setDeviceId(17);
    key.setChannelNumber(2);
    key.setRecordNumber(9);
    key.setPropertyName(QStringLiteral("Eq_Fg"));
    key.SetDevice(CDeviceKey(99));
    return key;
}

CDeviceProperty described()
{
    CDeviceProperty property;
    property.setKey(exampleKey());
    property.setPropertyName(QStringLiteral("Eq_Fg"), QStringLiteral("Frequency"));
    property.setDecimals(1);
    property.setFlags(Flag(0x3));
    property.setRange(10.0, 20000.0, 0.5);
    property.setPropertyType(CDeviceProperty::PropertyTypeNumber);
    property.setSimpleControlType(CDeviceProperty::SimpleControlType(4));
    property.setSubName(QStringLiteral("sub"));
    property.setUnit(QStringLiteral(" Hz"));
    property.setValue(10.0);
    return property;
}

} // namespace

static_assert(std::is_convertible_v<QObject *, CDeviceProperty>);

TEST(DeviceProperty, StartsEmptyWithAValidRecord)
{
    QObject parent;
    CDeviceProperty const property(&parent);
    EXPECT_EQ(property.parent(), &parent);
    EXPECT_EQ(property.decimals(), 0);
    EXPECT_EQ(property.displayName(), QString());
    EXPECT_EQ(property.flags(), QFlags<Flag>());
    EXPECT_TRUE(property.key() == CDevicePropertyKey());
    EXPECT_FALSE(property.maxValue().isValid());
    EXPECT_FALSE(property.minValue().isValid());
    EXPECT_FALSE(property.step().isValid());
    EXPECT_FALSE(property.value().isValid());
    EXPECT_EQ(property.propertyType(), 255);
    EXPECT_EQ(property.subName(), QString());
    EXPECT_EQ(property.unit(), QString());
    EXPECT_EQ(bits(property.validMembers()), 0x100U);
    EXPECT_TRUE(property.CheckValidMembers(Member(0x100)));
    EXPECT_EQ(property.record(), 0);
}

TEST(DeviceProperty, RaisesTheBitsOfEachSetter)
{
    struct Row {
        char const * name;
        Change change;
        unsigned raised;
    };

    Row const rows[] = {
        {"setValue", [](CDeviceProperty & property) { property.setValue(1); }, 0x1},
        {"setMinValue", [](CDeviceProperty & property) { property.setMinValue(1); }, 0x2},
        {"setMaxValue", [](CDeviceProperty & property) { property.setMaxValue(1); }, 0x4},
        {"setStep", [](CDeviceProperty & property) { property.setStep(1); }, 0x8},
        {"setRange", [](CDeviceProperty & property) { property.setRange(1, 2, 3); }, 0xE},
        {"SetDevice", [](CDeviceProperty & property) { property.SetDevice(CDeviceKey(1)); }, 0x10},
        {"setDeviceId", [](CDeviceProperty & property) { property.setDeviceId(1); }, 0x10},
        {"setPropertyName",
         [](CDeviceProperty & property) { property.setPropertyName(QString(), QString()); }, 0x60},
        {"setDeviceChannel", [](CDeviceProperty & property) { property.setDeviceChannel(1); }, 0x80},
        {"setRecord", [](CDeviceProperty & property) { property.setRecord(1); }, 0x100},
        {"setKey", [](CDeviceProperty & property) { property.setKey(CDevicePropertyKey()); }, 0x1B0},
        {"setFlags", [](CDeviceProperty & property) { property.setFlags(Flag(1)); }, 0x200},
        {"setPropertyType",
         [](CDeviceProperty & property) { property.setPropertyType(CDeviceProperty::PropertyTypeHex); },
         0x400},
        {"setUnit", [](CDeviceProperty & property) { property.setUnit(QString()); }, 0x800},
        {"setSubName", [](CDeviceProperty & property) { property.setSubName(QString()); }, 0x1000},
        {"setSimpleControlType",
         [](CDeviceProperty & property) {
             property.setSimpleControlType(CDeviceProperty::SimpleControlType(1));
         },
         0x2000},
        {"setDecimals", [](CDeviceProperty & property) { property.setDecimals(1); }, 0x4000},
        {"modifyFlags", [](CDeviceProperty & property) { property.modifyFlags(Flag(1), Flag(2)); }, 0x0},
        {"setParent", [](CDeviceProperty & property) { property.setParent(nullptr); }, 0x0},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        CDeviceProperty bare;
        bare.setValidMembers(QFlags<Member>());
        row.change(bare);
        EXPECT_EQ(bits(bare.validMembers()), row.raised);

        CDeviceProperty full;
        full.setValidMembers(Member(0x8000));
        row.change(full);
        EXPECT_EQ(bits(full.validMembers()), row.raised | 0x8000) << "what was valid stays valid";
    }
}

TEST(DeviceProperty, KeepsWhatIsSet)
{
    CDeviceProperty const original = described();
    CDeviceProperty const copy(original);
    for (CDeviceProperty const * property : {&original, &copy}) {
        EXPECT_EQ(property->decimals(), 1);
        EXPECT_EQ(property->displayName(), QStringLiteral("Frequency"));
        EXPECT_EQ(property->flags(), QFlags<Flag>(Flag(0x3)));
        EXPECT_EQ(property->deviceId(), 17);
        EXPECT_EQ(property->deviceChannel(), 2);
        EXPECT_EQ(property->record(), 9);
        EXPECT_EQ(property->uniquePropertyName(), QStringLiteral("Eq_Fg"));
        EXPECT_EQ(property->minValue(), QVariant(10.0));
        EXPECT_EQ(property->maxValue(), QVariant(20000.0));
        EXPECT_EQ(property->step(), QVariant(0.5));
        EXPECT_EQ(property->value(), QVariant(10.0));
        EXPECT_EQ(property->propertyType(), CDeviceProperty::PropertyTypeNumber);
        EXPECT_EQ(property->simpleControlType(), 4);
        EXPECT_EQ(property->subName(), QStringLiteral("sub"));
        EXPECT_EQ(property->unit(), QStringLiteral(" Hz"));
        EXPECT_EQ(bits(property->validMembers()), 0x7FFFU);
    }
}

TEST(DeviceProperty, HoldsTheRecordInSixteenBits)
{
    struct Row {
        int set, got;
    };

    for (Row const & row : {Row{0, 0}, {65535, 65535}, {65536, 0}, {-1, 65535}, {0x12345, 0x2345}}) {
        CDeviceProperty property;
        property.setRecord(row.set);
        EXPECT_EQ(property.record(), row.got) << row.set;
        EXPECT_EQ(bits(property.validMembers()), 0x100U);
    }
}

TEST(DeviceProperty, HoldsAChannelThatIsNotChosen)
{
    CDeviceProperty property;
    property.setDeviceChannel(-1);
    EXPECT_EQ(property.deviceChannel(), -1);
}

TEST(DeviceProperty, TakesAKeyWithoutADisplayName)
{
    CDeviceProperty property;
    property.setKey(exampleKey());
    EXPECT_TRUE(property.CheckValidMembers(Member(0x20)));
    EXPECT_FALSE(property.CheckValidMembers(Member(0x40)));
    EXPECT_TRUE(property.key() == exampleKey());
    EXPECT_EQ(property.displayName(), QString());

    CDeviceProperty shown = described();
    shown.setKey(CDevicePropertyKey());
    EXPECT_EQ(shown.uniquePropertyName(), QString());
    EXPECT_EQ(shown.displayName(), QStringLiteral("Frequency")) << "which stays";
}

TEST(DeviceProperty, KeepsItsOwnDeviceWhenKeyOrRecordIsAssigned)
{
    CDeviceProperty property;
    property.SetDevice(CDeviceKey(5));
    property.setKey(exampleKey());
    EXPECT_EQ(property.GetDevice().deviceId(), 5);
    EXPECT_EQ(property.key().GetDevice().deviceId(), 5);
    EXPECT_EQ(property.deviceId(), 17) << "the device id is part of the key itself";

    CDeviceProperty assigned;
    assigned.SetDevice(CDeviceKey(6));
    assigned = property;
    EXPECT_EQ(assigned.GetDevice().deviceId(), 6);
    EXPECT_EQ(CDeviceProperty(property).GetDevice().deviceId(), 0);
}

TEST(DeviceProperty, ClearsFlagsAfterSettingThem)
{
    struct Row {
        char const * name;
        unsigned before, set, clear, after;
    };

    Row const rows[] = {
        {"sets", 0x1, 0x40000, 0x0, 0x40001},
        {"clears", 0x10003, 0x0, 0x10000, 0x3},
        {"clear wins", 0x0, 0x20000, 0x20000, 0x0},
        {"clear wins over what was there", 0x20000, 0x20000, 0x20000, 0x0},
        {"neither", 0x2001, 0x0, 0x0, 0x2001},
    };
    for (Row const & row : rows) {
        CDeviceProperty property;
        property.setFlags(Flag(row.before));
        property.modifyFlags(Flag(row.set), Flag(row.clear));
        EXPECT_EQ(unsigned(property.flags()), row.after) << row.name;
    }
}

TEST(DeviceProperty, ChecksThatAllAskedMembersAreValid)
{
    CDeviceProperty property;
    property.setValidMembers(Member(0x6));
    EXPECT_TRUE(property.CheckValidMembers(QFlags<Member>()));
    EXPECT_TRUE(property.CheckValidMembers(Member(0x2)));
    EXPECT_TRUE(property.CheckValidMembers(Member(0x6)));
    EXPECT_FALSE(property.CheckValidMembers(Member(0x7)));
    EXPECT_FALSE(property.CheckValidMembers(Member(0x1)));
}

TEST(DeviceProperty, WarnsOfAControlTypeThatIsNotValid)
{
    QString const warning =
        QStringLiteral("warning: Accessing non valid member 'simpleControlType' of CDeviceProperty!");
    kestrova::test::MessageRecorder const recorder;
    CDeviceProperty property;
    EXPECT_EQ(property.simpleControlType(), 0);
    EXPECT_EQ(recorder.messages(), QStringList{warning});

    property.setSimpleControlType(CDeviceProperty::SimpleControlType(11));
    EXPECT_EQ(property.simpleControlType(), 11);
    EXPECT_EQ(recorder.messages(), QStringList{warning}) << "valid now";
    EXPECT_EQ(recorder.sources(), QStringList{QString()}) << "no place is given";

    property.setValidMembers(QFlags<Member>());
    EXPECT_EQ(property.simpleControlType(), 11) << "returned all the same";
    EXPECT_EQ(property.simpleControlType(), 11);
    EXPECT_EQ(recorder.messages(), (QStringList{warning, warning, warning})) << "once per call";
}

TEST(DeviceProperty, WarnsOfNothingElse)
{
    kestrova::test::MessageRecorder const recorder;
    CDeviceProperty property;
    property.setValidMembers(QFlags<Member>());
    property.validMembers();
    property.key();
    property.GetDevice();
    property.deviceId();
    property.deviceChannel();
    property.record();
    property.uniquePropertyName();
    property.displayName();
    property.subName();
    property.value();
    property.minValue();
    property.maxValue();
    property.step();
    property.decimals();
    property.unit();
    property.propertyType();
    property.flags();
    EXPECT_TRUE(property == CDeviceProperty(property));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST(DeviceProperty, KeepsItsMembersWhateverIsValid)
{
    CDeviceProperty property = described();
    property.setValidMembers(QFlags<Member>());
    EXPECT_EQ(bits(property.validMembers()), 0U);
    property.setValidMembers(described().validMembers());
    EXPECT_TRUE(property == described());
}

TEST(DeviceProperty, IsUnequalWhenAnyMemberDiffers)
{
    EXPECT_TRUE(described() == described());
    std::vector<std::pair<char const *, Change>> const changes = {
        {"decimals", [](CDeviceProperty & property) { property.setDecimals(2); }},
        {"property type",
         [](CDeviceProperty & property) { property.setPropertyType(CDeviceProperty::PropertyTypeHex); }},
        {"control type",
         [](CDeviceProperty & property) {
             property.setSimpleControlType(CDeviceProperty::SimpleControlType(5));
         }},
        {"flags", [](CDeviceProperty & property) { property.modifyFlags(Flag(0x20000), Flag(0)); }},
        {"valid members", [](CDeviceProperty & property) { property.setValidMembers(Member(0x7FFE)); }},
        {"device id", [](CDeviceProperty & property) { property.setDeviceId(1); }},
        {"channel", [](CDeviceProperty & property) { property.setDeviceChannel(1); }},
        {"record", [](CDeviceProperty & property) { property.setRecord(1); }},
        {"name",
         [](CDeviceProperty & property) {
             property.setPropertyName(QStringLiteral("x"), property.displayName());
         }},
        {"display name",
         [](CDeviceProperty & property) {
             property.setPropertyName(property.uniquePropertyName(), QString());
         }},
        {"minimum", [](CDeviceProperty & property) { property.setMinValue(1.0); }},
        {"maximum", [](CDeviceProperty & property) { property.setMaxValue(1.0); }},
        {"step", [](CDeviceProperty & property) { property.setStep(1.0); }},
        {"value", [](CDeviceProperty & property) { property.setValue(1.0); }},
        {"unit", [](CDeviceProperty & property) { property.setUnit(QString()); }},
        {"sub name", [](CDeviceProperty & property) { property.setSubName(QString()); }},
    };
    for (auto const & [name, change] : changes) {
        CDeviceProperty changed = described();
        change(changed);
        EXPECT_TRUE(changed != described()) << name;
        EXPECT_FALSE(changed == described()) << name;
    }
}

TEST(DeviceProperty, IsCopiedWithoutItsParent)
{
    QObject parent;
    auto * const original = new CDeviceProperty(&parent);
    *original = described();
    EXPECT_EQ(original->parent(), &parent) << "assigning leaves the parent";

    CDeviceProperty const copy(*original);
    EXPECT_TRUE(copy == described());
    EXPECT_EQ(copy.parent(), nullptr);
}

TEST(PropertyType, HasTheNumbersOfTheObjectType)
{
    EXPECT_EQ(CDeviceProperty::PropertyTypeToggle, 0);
    EXPECT_EQ(CDeviceProperty::PropertyTypeNumber, 1);
    EXPECT_EQ(CDeviceProperty::PropertyTypeString, 2);
    EXPECT_EQ(CDeviceProperty::PropertyTypeHex, 3);
    EXPECT_EQ(CDeviceProperty::PropertyTypeHexDump, 4);
    EXPECT_EQ(CDeviceProperty::PropertyTypeUnknown, 255);
}

TEST(PropertyFlag, HasItsNumbers)
{
    EXPECT_EQ(CDeviceProperty::PropertyReadable, 0x1U);
    EXPECT_EQ(CDeviceProperty::PropertyWriteable, 0x2U);
    EXPECT_EQ(CDeviceProperty::PropertyNoCan, 0x2000U);
    EXPECT_EQ(CDeviceProperty::PropertyUndescribed, 0x10000U);
    EXPECT_EQ(CDeviceProperty::PropertyEditable, 0x20000U);
    EXPECT_EQ(CDeviceProperty::PropertyFilterSlot, 0x40000U);
}

TEST(ValidMember, HasItsNumbers)
{
    EXPECT_EQ(CDeviceProperty::ValidValue, 0x1U);
    EXPECT_EQ(CDeviceProperty::ValidMinValue, 0x2U);
    EXPECT_EQ(CDeviceProperty::ValidMaxValue, 0x4U);
    EXPECT_EQ(CDeviceProperty::ValidStep, 0x8U);
    EXPECT_EQ(CDeviceProperty::ValidDevice, 0x10U);
    EXPECT_EQ(CDeviceProperty::ValidPropertyName, 0x20U);
    EXPECT_EQ(CDeviceProperty::ValidDisplayName, 0x40U);
    EXPECT_EQ(CDeviceProperty::ValidDeviceChannel, 0x80U);
    EXPECT_EQ(CDeviceProperty::ValidRecord, 0x100U);
    EXPECT_EQ(CDeviceProperty::ValidFlags, 0x200U);
    EXPECT_EQ(CDeviceProperty::ValidPropertyType, 0x400U);
    EXPECT_EQ(CDeviceProperty::ValidUnit, 0x800U);
    EXPECT_EQ(CDeviceProperty::ValidSubName, 0x1000U);
    EXPECT_EQ(CDeviceProperty::ValidSimpleControlType, 0x2000U);
    EXPECT_EQ(CDeviceProperty::ValidDecimals, 0x4000U);
}
