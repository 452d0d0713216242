#include "core/deviceGuid.h"
#include "core/devicePropertyKey.h"
#include "core/deviceType.h"
#include "core/memoryException.h"
#include "core/propertyBaseKey.h"
#include "core/speakerClass.h"
#include "core/tharnError.h"
#include "core/versionNumber.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace kestrova::Solvane {

namespace {

struct GuidText {
    char const * name;
    QString text;
    quint32 value;
};

class GuidOfText : public ::testing::TestWithParam<GuidText> {};

TEST_P(GuidOfText, HasTheValueOfTheText)
{
    CDeviceGuid guid(0x12345678U);
    CDeviceGuid & assigned = guid = GetParam().text;
    EXPECT_EQ(guid.value(), GetParam().value);
    EXPECT_EQ(&assigned, &guid);
    EXPECT_EQ(CDeviceGuid(GetParam().text).value(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(DeviceGuid, GuidOfText,
                         ::testing::Values(GuidText{"UpperCase", QStringLiteral("C7010A0B"), 0xC7010A0BU},
                                           GuidText{"LowerCase", QStringLiteral("c7010a0b"), 0xC7010A0BU},
                                           GuidText{"LeadingZeros", QStringLiteral("00000001"), 1U},
                                           GuidText{"FewDigits", QStringLiteral("1F"), 0x1FU},
                                           GuidText{"LargestValue", QStringLiteral("FFFFFFFF"), 0xFFFFFFFFU},
                                           GuidText{"AboveThirtyTwoBits", QStringLiteral("1C7010A0B"), 0U},
                                           GuidText{"NoHexadecimalDigit", QStringLiteral("C7010A0G"), 0U},
                                           GuidText{"Words", QStringLiteral("no device"), 0U}, //
                                           GuidText{"EmptyText", QStringLiteral(""), 0U},      //
                                           GuidText{"NullText", QString(), 0U}),
                         [](auto const & row) { return row.param.name; });

struct GuidValue {
    char const * name;
    quint32 value;
    char const * text;
};

class TextOfGuid : public ::testing::TestWithParam<GuidValue> {};

TEST_P(TextOfGuid, HasEightDigitsInUpperCase)
{
    EXPECT_EQ(CDeviceGuid(GetParam().value).toString().toStdString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(DeviceGuid, TextOfGuid,
                         ::testing::Values(GuidValue{"Null", 0U, "00000000"}, //
                                           GuidValue{"One", 1U, "00000001"},  //
                                           GuidValue{"Letters", 0xC7ABCDEFU, "C7ABCDEF"},
                                           GuidValue{"Digits", 0x12345678U, "12345678"},
                                           GuidValue{"Largest", 0xFFFFFFFFU, "FFFFFFFF"}),
                         [](auto const & row) { return row.param.name; });

TEST(DeviceGuid, IsNullByDefault)
{
    CDeviceGuid const guid;
    EXPECT_EQ(guid.value(), 0U);
    EXPECT_TRUE(guid.isNull());
    EXPECT_FALSE(CDeviceGuid(0xC7000000U).isNull());
}

TEST(DeviceGuid, IsMadeAndAssignedFromANumber)
{
    CDeviceGuid guid = 0xC7010203U;
    EXPECT_EQ(guid.value(), 0xC7010203U);
    guid = 0;
    EXPECT_TRUE(guid.isNull());
}

TEST(DeviceGuid, IsCopiedAndComparedAsItsValue)
{
    CDeviceGuid const lower(0x80000000U);
    CDeviceGuid const higher(0xC7000001U);
    CDeviceGuid const copy(
        higher); // NOLINT(performance-unnecessary-copy-initialization): the copy is the subject
    EXPECT_TRUE(copy == higher);
    EXPECT_FALSE(copy != higher);
    EXPECT_TRUE(lower != higher);
    EXPECT_TRUE(lower < higher);
    EXPECT_FALSE(higher < lower);
    EXPECT_FALSE(higher < copy);
}

TEST(DeviceGuid, HashesToItsValue)
{
    EXPECT_EQ(qHash(CDeviceGuid(0xC7010203U)), 0xC7010203U);
}

TEST(VersionNumber, IsUnsetByDefault)
{
    EXPECT_TRUE(CVersionNumber() == CVersionNumber(0, 0, 0));
    EXPECT_EQ(CVersionNumber().bugfix(), 0);
}

TEST(VersionNumber, HoldsItsThreeNumbersUpToTheirLimits)
{
    CVersionNumber version(0, 0, 0);
    version.setMajor(255);
    version.setMinor(254);
    version.setBugfix(65535);
    EXPECT_EQ(version.major(), 255);
    EXPECT_EQ(version.minor(), 254);
    EXPECT_EQ(version.bugfix(), 65535);
}

TEST(VersionNumber, IsEqualOnlyInAllThreeNumbers)
{
    CVersionNumber const version(1, 2, 3);
    EXPECT_TRUE(version == CVersionNumber(1, 2, 3));
    EXPECT_FALSE(version == CVersionNumber(9, 2, 3));
    EXPECT_FALSE(version == CVersionNumber(1, 9, 3));
    EXPECT_FALSE(version == CVersionNumber(1, 2, 9));
    EXPECT_TRUE(version != CVersionNumber(1, 2, 9));
}

TEST(VersionNumber, TakesOverAllNumbersWhenAssigned)
{
    CVersionNumber version(0, 0, 0);
    CVersionNumber & assigned = version = CVersionNumber(4, 5, 600);
    EXPECT_TRUE(version == CVersionNumber(4, 5, 600));
    EXPECT_EQ(&assigned, &version);
}

CKey sampleKey()
{
    CKey key;
    key.setDeviceId(65535);
    key.setChannelNumber(-1);
    key.setRecordNumber(65534);
    key.setPropertyName(QStringLiteral("Eq_Fg"));
    return key;
}

TEST(Key, StartsWithZerosAndNoName)
{
    CKey const key;
    EXPECT_EQ(key.deviceId(), 0);
    EXPECT_EQ(key.channelNumber(), 0);
    EXPECT_EQ(key.recordNumber(), 0);
    EXPECT_EQ(key.propertyName().toStdString(), "");
}

TEST(Key, HoldsItsFourParts)
{
    CKey const key = sampleKey();
    EXPECT_EQ(key.deviceId(), 65535);
    EXPECT_EQ(key.channelNumber(), -1);
    EXPECT_EQ(key.recordNumber(), 65534);
    EXPECT_EQ(key.propertyName().toStdString(), "Eq_Fg");
}

TEST(Key, NamesThePropertyAloneInFormZero)
{
    EXPECT_EQ(sampleKey().toString(KeyType(0)).toStdString(), "$P/Eq_Fg");
    EXPECT_EQ(CKey().toString(KeyType(0)).toStdString(), "$P/");
}

TEST(Key, HasNoTextInAnotherForm)
{
    EXPECT_EQ(sampleKey().toString(KeyType(1)).toStdString(), "");
}

TEST(Key, IsEqualOnlyInAllFourParts)
{
    CKey const key = sampleKey();
    EXPECT_TRUE(key == sampleKey());

    CKey otherDevice = key;
    otherDevice.setDeviceId(1);
    EXPECT_FALSE(otherDevice == key);
    CKey otherChannel = key;
    otherChannel.setChannelNumber(1);
    EXPECT_FALSE(otherChannel == key);
    CKey otherRecord = key;
    otherRecord.setRecordNumber(1);
    EXPECT_FALSE(otherRecord == key);
    CKey otherName = key;
    otherName.setPropertyName(QStringLiteral("eq_fg"));
    EXPECT_FALSE(otherName == key);
    EXPECT_TRUE(otherName != key);
}

TEST(Key, TakesOverAllPartsWhenAssigned)
{
    CKey key;
    CKey & assigned = key = sampleKey();
    EXPECT_TRUE(key == sampleKey());
    EXPECT_EQ(&assigned, &key);
}

TEST(PropertyBaseKey, IsADefaultKeyAtFirst)
{
    CPropertyBaseKey const key;
    CKey const & part = key;
    EXPECT_TRUE(part == CKey());
}

TEST(PropertyBaseKey, SharesOneKeyWithWhateverItIsJoinedTo)
{
    struct Joined : CPropertyBaseKey, virtual CKey {};

    Joined joined;
    joined.setPropertyName(QStringLiteral("Eq_Fg"));
    CPropertyBaseKey const & base = joined;
    EXPECT_EQ(base.propertyName().toStdString(), "Eq_Fg");
}

TEST(DevicePropertyKey, IsUsableAsAKey)
{
    CDevicePropertyKey key;
    static_cast<CKey &>(key) = sampleKey();
    EXPECT_TRUE(key == sampleKey());
    EXPECT_EQ(key.toString(KeyType(0)).toStdString(), "$P/Eq_Fg");
}

TEST(DevicePropertyKey, KeepsTheDeviceBesideTheDeviceIdOfTheKey)
{
    CDevicePropertyKey key;
    EXPECT_TRUE(key.GetDevice() == CDeviceKey());
    key.setDeviceId(1);
    key.SetDevice(CDeviceKey(2));
    EXPECT_EQ(key.GetDevice().deviceId(), 2);
    EXPECT_EQ(key.deviceId(), 1);
}

TEST(DevicePropertyKey, CopiesDeviceAndProperty)
{
    CDevicePropertyKey key;
    static_cast<CKey &>(key) = sampleKey();
    key.SetDevice(CDeviceKey(7));
    CDevicePropertyKey const copy(key);
    EXPECT_TRUE(copy == sampleKey());
    EXPECT_EQ(copy.GetDevice().deviceId(), 7);
    CDevicePropertyKey assigned;
    assigned = key;
    EXPECT_TRUE(assigned == sampleKey());
    EXPECT_EQ(assigned.GetDevice().deviceId(), 7);
}

TEST(DevicePropertyKey, HasAVirtualDestructor)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<CDevicePropertyKey>);
}

TEST(SpeakerClass, IsNoClassByDefault)
{
    CSpeakerClass const none;
    EXPECT_EQ(none.classNumber, 255);
    EXPECT_EQ(none.ways, 0);
    EXPECT_EQ(none.names.toStdString(), "");
}

CSpeakerClass sampleSpeakerClass()
{
    CSpeakerClass result;
    result.classNumber = 3;
    result.ways = 2;
    result.names = QStringLiteral("LF/HF");
    return result;
}

TEST(SpeakerClass, GivesItsNamesAsWayNames)
{
    EXPECT_EQ(sampleSpeakerClass().wayNames().toStdString(), "LF/HF");
}

TEST(SpeakerClass, IsEqualOnlyInAllThreeFields)
{
    CSpeakerClass const sample = sampleSpeakerClass();
    EXPECT_TRUE(sample == sampleSpeakerClass());

    CSpeakerClass otherNumber = sample;
    otherNumber.classNumber = 4;
    EXPECT_FALSE(otherNumber == sample);
    CSpeakerClass otherWays = sample;
    otherWays.ways = 1;
    EXPECT_FALSE(otherWays == sample);
    CSpeakerClass otherNames = sample;
    otherNames.names = QStringLiteral("HF/LF");
    EXPECT_FALSE(otherNames == sample);
    EXPECT_TRUE(otherNames != sample);
}

TEST(SpeakerClass, TakesOverAllFieldsWhenCopied)
{
    CSpeakerClass const sample = sampleSpeakerClass();
    CSpeakerClass const copy(sample);
    EXPECT_TRUE(copy == sample);
    CSpeakerClass assigned;
    CSpeakerClass & result = assigned = sample;
    EXPECT_TRUE(assigned == sample);
    EXPECT_EQ(&result, &assigned);
}

TEST(MemoryException, IsCaughtAsItselfAndAsItsBases)
{
    EXPECT_THROW(throw CMemoryException(), CMemoryException);
    EXPECT_THROW(throw CMemoryException(), CException);
    EXPECT_THROW(throw CMemoryException(), std::exception);
    EXPECT_STREQ(CMemoryException().what(), "kestrova::Solvane::CMemoryException");
    EXPECT_STREQ(CException().what(), "kestrova::Solvane::CException");
}

TEST(MemoryException, HasAVirtualDestructor)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<CMemoryException>);
}

TEST(Enumerations, HaveTheNumbersThatCallersCompareWith)
{
    EXPECT_EQ(DeviceTypeNone, 0xC7000000U);
    EXPECT_EQ(Tharnex::TharnNoError, 0);
    EXPECT_EQ(Tharnex::TharnFailed, -32801);
    EXPECT_EQ(Tharnex::TharnNotFound, -32805);
    EXPECT_EQ(Tharnex::TharnNotAvailable, -32808);
}

} // namespace

} // namespace kestrova::Solvane
