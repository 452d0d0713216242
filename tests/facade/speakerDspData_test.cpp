#include "facade/speakerDspData.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

namespace {

SpeakerDspData completeData()
{
    SpeakerDspData data;
    data.SetDeviceType(QStringLiteral("Hesko"));
    data.SetDeviceGuid(CDeviceGuid(0xC7000312));
    data.SetSpeakerId(12);
    data.SetSpeakerName(QStringLiteral("Varn 3"));
    data.SetSpeakerSetupVersion(QStringLiteral("2.3"));
    data.SetSpeakerDspData(QByteArray("\x00\x01", 2));
    data.SetMd5(QStringLiteral("abc"));
    return data;
}

void expectEmpty(SpeakerDspData const & data)
{
    EXPECT_TRUE(data.GetDeviceGuid().isNull());
    EXPECT_EQ(data.GetSpeakerId(), 0);
    EXPECT_TRUE(data.GetDeviceType().isEmpty());
    EXPECT_TRUE(data.GetSpeakerName().isEmpty());
    EXPECT_TRUE(data.GetSpeakerSetupVersion().isEmpty());
    EXPECT_TRUE(data.GetSpeakerDspData().isEmpty());
    EXPECT_TRUE(data.GetMd5().isEmpty());
    EXPECT_FALSE(data.IsValid());
}

void expectComplete(SpeakerDspData const & data)
{
    EXPECT_EQ(data.GetDeviceType(), QStringLiteral("Hesko"));
    EXPECT_EQ(data.GetDeviceGuid().value(), 0xC7000312U);
    EXPECT_EQ(data.GetSpeakerId(), 12);
    EXPECT_EQ(data.GetSpeakerName(), QStringLiteral("Varn 3"));
    EXPECT_EQ(data.GetSpeakerSetupVersion(), QStringLiteral("2.3"));
    EXPECT_EQ(data.GetSpeakerDspData(), QByteArray("\x00\x01", 2));
    EXPECT_EQ(data.GetMd5(), QStringLiteral("abc"));
    EXPECT_TRUE(data.IsValid());
}

} // namespace

TEST(SpeakerDspDataRecord, StartsEmptyAndWithNullTexts)
{
    SpeakerDspData const data;
    expectEmpty(data);
    EXPECT_TRUE(data.GetDeviceType().isNull());
    EXPECT_TRUE(data.GetSpeakerName().isNull());
    EXPECT_TRUE(data.GetSpeakerSetupVersion().isNull());
    EXPECT_TRUE(data.GetMd5().isNull());
}

TEST(SpeakerDspDataRecord, IsValidOnlyWithEveryMember)
{
    expectComplete(completeData());

    struct Row {
        char const * missing;
        void (*remove)(SpeakerDspData & data);
    };

    Row const rows[] = {
        {"GUID", [](SpeakerDspData & data) { data.SetDeviceGuid(CDeviceGuid()); }},
        {"device type", [](SpeakerDspData & data) { data.SetDeviceType(QString()); }},
        {"speaker id", [](SpeakerDspData & data) { data.SetSpeakerId(0); }},
        {"speaker name", [](SpeakerDspData & data) { data.SetSpeakerName(QString()); }},
        {"setup version", [](SpeakerDspData & data) { data.SetSpeakerSetupVersion(QString()); }},
        {"data", [](SpeakerDspData & data) { data.SetSpeakerDspData(QByteArray()); }},
        {"MD5", [](SpeakerDspData & data) { data.SetMd5(QString()); }},
    };
    for (Row const & row : rows) {
        SpeakerDspData data = completeData();
        row.remove(data);
        EXPECT_FALSE(data.IsValid()) << row.missing;
    }
}

TEST(SpeakerDspDataRecord, IsEmptyAfterClear)
{
    SpeakerDspData data = completeData();
    data.Clear();
    expectEmpty(data);
}

TEST(SpeakerDspDataRecord, IsCopiedAndMovedWhole)
{
    SpeakerDspData const original = completeData();
    SpeakerDspData const copy(original);
    expectComplete(copy);
    SpeakerDspData assigned;
    assigned = original;
    expectComplete(assigned);
    SpeakerDspData moved(std::move(assigned));
    expectComplete(moved);
    SpeakerDspData moveAssigned;
    moveAssigned = std::move(moved);
    expectComplete(moveAssigned);
    expectComplete(original);
}
