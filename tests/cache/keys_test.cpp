#include "cache/driverCacheChannelKeyFilter.h"
#include "cache/driverCacheChannelKeyName.h"
#include "cache/driverCacheChannelKeyObject.h"
#include "cache/getItemReturnValue.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::test::keys {

namespace {

CDeviceGuid const device(0xC7010205);
QString const filter1 = QStringLiteral("Config_Filter1");

CDeviceChannelInfo speakerChannel(unsigned short id)
{
    CDeviceChannelInfo channel;
    channel.SetSpeakerId(id);
    return channel;
}

template <typename Key>
class Exposed : public Key {
public:
    using Key::initGuidString;
    using Key::initKeyString;
    using Key::Key;
};

} // namespace

static_assert(std::is_abstract_v<CDriverCacheKey>);

TEST(CacheKey, TypesHaveTheirNumbers)
{
    EXPECT_EQ(int(CDriverCacheKey::KeyTypeNone), 0);
    EXPECT_EQ(int(CDriverCacheKeyName().type()), 1);
    EXPECT_EQ(int(CDriverCacheKeyObject().type()), 2);
    EXPECT_EQ(int(CDriverCacheChannelKeyName().type()), 1);
    EXPECT_EQ(int(CDriverCacheChannelKeyObject().type()), 2);
    EXPECT_EQ(int(CDriverCacheChannelKeyFilter().type()), 3);
}

TEST(CacheKey, TextsAreMadeOfTheirParts)
{
    CDeviceChannelInfo const speaker = speakerChannel(12);
    CDeviceChannelInfo const output(ChannelTypeOutput);
    CDeviceChannelInfo const input(ChannelTypeInput);
    CDeviceChannelInfo const none;

    struct Row {
        char const * name;
        QString key;
        char const * text;
    };

    Row const rows[] = {
        {"name", CDriverCacheKeyName(device, filter1).key(), "C7010205_Config_Filter1"},
        {"number", CDriverCacheKeyObject(device, 0x0123).key(), "C7010205_0123"},
        {"number in lower case", CDriverCacheKeyObject(device, 0xABCD).key(), "C7010205_abcd"},
        {"small number", CDriverCacheKeyObject(device, 0x1A).key(), "C7010205_001a"},
        {"name on a speaker", CDriverCacheChannelKeyName(device, &speaker, filter1).key(),
         "C7010205_001_0012_Config_Filter1"},
        {"name on the output", CDriverCacheChannelKeyName(device, &output, filter1).key(),
         "C7010205_003_OUT_Config_Filter1"},
        {"number on a speaker", CDriverCacheChannelKeyObject(device, &speaker, 0x0123).key(),
         "C7010205_001_0012_0123"},
        {"number on the input", CDriverCacheChannelKeyObject(device, &input, 0x0123).key(),
         "C7010205_002_IN_0123"},
        {"filter on a speaker", CDriverCacheChannelKeyFilter(device, &speaker, 10).key(),
         "C7010205_001_0012_0a"},
        {"a cleared qualifier", CDriverCacheChannelKeyName(device, &none, filter1).key(),
         "C7010205_000__Config_Filter1"},
        {"no qualifier, by name", CDriverCacheChannelKeyName(device, nullptr, filter1).key(),
         "C7010205__Config_Filter1"},
        {"no qualifier, by number", CDriverCacheChannelKeyObject(device, nullptr, 0x0123).key(),
         "C7010205__0123"},
        {"no qualifier, filter", CDriverCacheChannelKeyFilter(device, nullptr, 3).key(), "C7010205_000__03"},
        {"an empty name", CDriverCacheKeyName(device, QString()).key(), "C7010205_"},
        {"the null GUID", CDriverCacheKeyName(CDeviceGuid(0), filter1).key(), "00000000_Config_Filter1"},
        {"names keep their case", CDriverCacheKeyName(device, QStringLiteral("config")).key(),
         "C7010205_config"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.key, QString::fromLatin1(row.text));
    }
}

TEST(CacheKey, QualifiersAreSpelledByTypeAndId)
{
    CDeviceChannelInfo odd;

    struct Row {
        DeviceChannelType type;
        unsigned short speaker;
        char const * text;
    };

    Row const rows[] = {
        {ChannelTypeSpeaker, 0, "001_0000"},
        {ChannelTypeSpeaker, 12, "001_0012"},
        {ChannelTypeSpeaker, 65535, "001_65535"},
        {ChannelTypeInput, 0, "002_IN"},
        {ChannelTypeOutput, 0, "003_OUT"},
        {ChannelTypeNone, 0, "000_"},
        {ChannelTypeEnd, 0, "004_"},
        {DeviceChannelType(0x1234), 0, "1234_"},
        {DeviceChannelType(-1), 0, "ffffffffffffffff_"},
    };
    for (Row const & row : rows) {
        odd.SetSpeakerId(row.speaker);
        odd.SetDeviceChannelType(row.type);
        EXPECT_EQ(CDriverCacheChannelKey(&odd).channelInfoString(), QString::fromLatin1(row.text));
    }
    EXPECT_EQ(CDriverCacheChannelKey().channelInfoString(), QString());
    EXPECT_EQ(CDriverCacheChannelKey().channelInfo()->GetChannelType(), ChannelTypeNone);
}

TEST(CacheKey, OfATextEqualsThatOfTheGuid)
{
    CDeviceChannelInfo const speaker = speakerChannel(12);
    QString const text = QStringLiteral("c7010205");
    EXPECT_EQ(CDriverCacheKeyName(text, filter1).key(), CDriverCacheKeyName(device, filter1).key());
    EXPECT_EQ(CDriverCacheKeyObject(text, 7).key(), CDriverCacheKeyObject(device, 7).key());
    EXPECT_EQ(CDriverCacheChannelKeyName(text, &speaker, filter1).key(),
              CDriverCacheChannelKeyName(device, &speaker, filter1).key());
    EXPECT_EQ(CDriverCacheChannelKeyObject(text, &speaker, 7).key(),
              CDriverCacheChannelKeyObject(device, &speaker, 7).key());
    EXPECT_EQ(CDriverCacheChannelKeyFilter(text, &speaker, 7).key(),
              CDriverCacheChannelKeyFilter(device, &speaker, 7).key());
    EXPECT_EQ(CDriverCacheKeyName(text, filter1).guid(), device);
    EXPECT_EQ(CDriverCacheKeyName(text, filter1).guidString(), QStringLiteral("C7010205"));
}

TEST(CacheKey, OfATextThatIsNoGuidKeepsItUnchecked)
{
    CDriverCacheKeyName const key(QStringLiteral("no guid"), filter1);
    EXPECT_EQ(key.guidString(), QStringLiteral("NO GUID"));
    EXPECT_EQ(key.key(), QStringLiteral("NO GUID_Config_Filter1"));
    EXPECT_EQ(key.guid(), CDeviceGuid(0));
    EXPECT_EQ(CDriverCacheKeyObject(QString(), 1).key(), QStringLiteral("00000000_0001"))
        << "an empty text is filled from the GUID";
}

TEST(CacheKey, GivesItsPartsBack)
{
    CDeviceChannelInfo const speaker = speakerChannel(12);
    CDriverCacheChannelKeyName const name(device, &speaker, filter1);
    EXPECT_EQ(name.guid(), device);
    EXPECT_EQ(name.guidString(), QStringLiteral("C7010205"));
    EXPECT_EQ(name.objectName(), filter1);
    EXPECT_EQ(name.channelInfoString(), QStringLiteral("001_0012"));

    CDriverCacheKeyObject const number(device, 0x2105);
    EXPECT_EQ(number.objectNumber(), 0x2105) << "with its channel bits";
    EXPECT_EQ(number.objectNumberString(), QStringLiteral("2105"));

    CDriverCacheChannelKeyFilter const filter(device, &speaker, 0xFE);
    EXPECT_EQ(filter.filterNumber(), 0xFE);
    EXPECT_EQ(filter.filterNumberString(), QStringLiteral("fe"));
}

TEST(CacheKey, HoldsACopyOfTheQualifier)
{
    CDeviceChannelInfo speaker = speakerChannel(12);
    CDriverCacheChannelKeyName const key(device, &speaker, filter1);
    CDriverCacheKey const & base = key;
    ASSERT_NE(base.channelInfo(), nullptr);
    EXPECT_NE(base.channelInfo(), &speaker);
    EXPECT_EQ(*base.channelInfo(), speaker);
    speaker.SetSpeakerId(13);
    EXPECT_EQ(base.channelInfo()->GetSpeakerId(), 12);
    EXPECT_EQ(key.channelInfoString(), QStringLiteral("001_0012"));
}

TEST(CacheKey, HasAQualifierOnlyInItsChannelForms)
{
    EXPECT_EQ(CDriverCacheKeyName(device, filter1).channelInfo(), nullptr);
    EXPECT_EQ(CDriverCacheKeyObject(device, 1).channelInfo(), nullptr);
    EXPECT_NE(CDriverCacheChannelKeyName(device, nullptr, filter1).channelInfo(), nullptr);
    EXPECT_NE(CDriverCacheChannelKeyObject(device, nullptr, 1).channelInfo(), nullptr);
    EXPECT_NE(CDriverCacheChannelKeyFilter(device, nullptr, 1).channelInfo(), nullptr);
}

TEST(CacheKey, ByDefaultIsEmpty)
{
    CDriverCacheChannelKeyObject const number;
    EXPECT_EQ(number.key(), QString());
    EXPECT_EQ(number.guidString(), QString());
    EXPECT_EQ(number.objectNumber(), 0);
    EXPECT_EQ(number.objectNumberString(), QString());
    EXPECT_EQ(number.channelInfoString(), QString());
    EXPECT_EQ(CDriverCacheKeyName().objectName(), QString());
    CDriverCacheChannelKeyFilter const filter;
    EXPECT_EQ(filter.filterNumber(), 0);
    EXPECT_EQ(filter.filterNumberString(), QString());
}

TEST(CacheKey, FillsEmptyPartsWhenItsTextIsMade)
{
    Exposed<CDriverCacheKeyName> name;
    name.initKeyString();
    EXPECT_EQ(name.key(), QStringLiteral("00000000_"));
    EXPECT_EQ(name.guidString(), QStringLiteral("00000000"));

    Exposed<CDriverCacheChannelKeyObject> number;
    number.initKeyString();
    EXPECT_EQ(number.key(), QStringLiteral("00000000__0000")) << "the qualifier stays empty";

    Exposed<CDriverCacheChannelKeyFilter> filter;
    filter.initKeyString();
    EXPECT_EQ(filter.key(), QStringLiteral("00000000_000__00")) << "the qualifier is spelled";
}

TEST(CacheKey, ANewFilterNumberChangesNumberAndTextOnly)
{
    CDeviceChannelInfo const speaker = speakerChannel(12);
    CDriverCacheChannelKeyFilter key(device, &speaker, 3);
    key.SetFilterNumber(3);
    EXPECT_EQ(key.key(), QStringLiteral("C7010205_001_0012_03"));
    key.SetFilterNumber(26);
    EXPECT_EQ(key.filterNumber(), 26);
    EXPECT_EQ(key.filterNumberString(), QStringLiteral("1a"));
    EXPECT_EQ(key.key(), QStringLiteral("C7010205_001_0012_1a"));
    EXPECT_EQ(key.guidString(), QStringLiteral("C7010205"));
    EXPECT_EQ(key.channelInfoString(), QStringLiteral("001_0012"));

    CDriverCacheChannelKeyFilter untouched;
    untouched.SetFilterNumber(0);
    EXPECT_EQ(untouched.key(), QString()) << "the present number changes nothing, not even an empty text";
    untouched.SetFilterNumber(5);
    EXPECT_EQ(untouched.key(), QStringLiteral("00000000_000__05"));
    EXPECT_EQ(untouched.filterNumberString(), QStringLiteral("05"));
}

TEST(CacheKey, ANewFilterNumberIsSpelledBeforeASubclassMakesItsText)
{
    class Subclass : public CDriverCacheChannelKeyFilter {
    public:
        QString seen;

    protected:
        void initKeyString() override { seen = filterNumberString(); }
    };

    Subclass key;
    key.SetFilterNumber(26);
    EXPECT_EQ(key.seen, QStringLiteral("1a"));
    EXPECT_EQ(key.key(), QString()) << "the text is the subclass's own affair";
}

TEST(CacheKey, CopiesWhole)
{
    CDeviceChannelInfo const speaker = speakerChannel(12);
    CDriverCacheChannelKeyName const name(device, &speaker, filter1);
    CDriverCacheChannelKeyName nameCopy(name);
    EXPECT_EQ(nameCopy.key(), name.key());
    EXPECT_EQ(nameCopy.objectName(), filter1);
    EXPECT_EQ(*nameCopy.channelInfo(), speaker);

    CDriverCacheChannelKeyObject number;
    number = CDriverCacheChannelKeyObject(device, &speaker, 0x0123);
    EXPECT_EQ(number.key(), QStringLiteral("C7010205_001_0012_0123"));
    EXPECT_EQ(number.objectNumberString(), QStringLiteral("0123"));

    CDriverCacheKeyName assigned;
    assigned = CDriverCacheKeyName(QStringLiteral("odd"), filter1);
    EXPECT_EQ(assigned.guidString(), QStringLiteral("ODD"));
    EXPECT_EQ(assigned.key(), QStringLiteral("ODD_Config_Filter1"));
}

TEST(CacheKey, MovingTakesTheKeysOwnPartOnly)
{
    CDeviceChannelInfo const speaker = speakerChannel(12);
    CDriverCacheChannelKeyName name(device, &speaker, filter1);
    CDriverCacheChannelKeyName const movedName(std::move(name));
    EXPECT_EQ(movedName.objectName(), filter1);
    EXPECT_EQ(movedName.key(), QStringLiteral("C7010205_001_0012_Config_Filter1"));
    EXPECT_EQ(name.objectName(), QString());
    EXPECT_EQ(name.key(), movedName.key());
    EXPECT_EQ(name.channelInfoString(), QStringLiteral("001_0012"));

    CDriverCacheKeyObject number(device, 0x0123);
    CDriverCacheKeyObject movedNumber;
    movedNumber = std::move(number);
    EXPECT_EQ(movedNumber.objectNumberString(), QStringLiteral("0123"));
    EXPECT_EQ(number.objectNumberString(), QString());
    EXPECT_EQ(number.key(), QStringLiteral("C7010205_0123"));

    CDriverCacheChannelKeyFilter filter(device, &speaker, 3);
    CDriverCacheChannelKeyFilter const movedFilter(std::move(filter));
    EXPECT_EQ(movedFilter.filterNumberString(), QStringLiteral("03"));
    EXPECT_EQ(filter.filterNumberString(), QString());
}

TEST(CacheKey, LookupResultsHaveTheirNumbers)
{
    EXPECT_EQ(int(GetItemNotCached), 0);
    EXPECT_EQ(int(GetItemFound), 1);
    EXPECT_EQ(int(GetItemNotAvailable), 2);
}

} // namespace kestrova::test::keys
