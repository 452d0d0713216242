#include "facade/devicelore.h"
#include "records/deviceProperty.h"
#include "records/driverPropertyTarget.h"
#include "records/speakerSetupInfo.h"
#include "support/messageRecorder.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::MessageRecorder;

namespace {

/// Asks everything about everything, as no application would, and counts the answers.
class Questioner {
public:
    explicit Questioner(CDriverCache * cache)
        : facade(QPointer<CDriverCache>(cache), nullptr)
    {}

    void askEverything(unsigned char level)
    {
        facade.setDeviceAccessLevel(level);
        for (QString const & text :
             facade.devicePropertyFilterByExpression(QStringLiteral("SELECT GUID FROM Guids")))
            askAboutDevice(CDeviceGuid(text));
        for (QString const & filter : facade.enumDevicePropertyFilter())
            count(!facade.devicePropertyFilter(filter).isEmpty());
        for (int type = 0; type < 256; ++type) {
            QString model;
            count(facade.deviceTypeOnHardwaretype(static_cast<unsigned char>(type), model) == TharnNoError);
        }
    }

    int answers = 0;

private:
    void count(bool isAnswer) { answers += isAnswer ? 1 : 0; }

    void askAboutDevice(CDeviceGuid const & guid)
    {
        count(facade.deviceTypeOnGuid(guid) != DeviceTypeNone);
        count(!facade.deviceModelOnGuid(guid).isNull());
        QList<unsigned short> speakers;
        facade.listSpeakersForDevice(guid, speakers);
        for (unsigned short const id : std::as_const(speakers)) {
            CSpeakerSetupInfo setup;
            count(facade.SpeakerSetupInfo(id, setup));
        }
        QStringList const objects = facade.devicePropertyFilterByExpression(
            QStringLiteral("SELECT Name FROM Objects, guidsandobjects WHERE objectid = id AND guid = '%1'")
                .arg(guid.toString()));
        for (QString const & name : objects) {
            askAboutObject(guid, name, nullptr);
            CDeviceChannelInfo const input(ChannelTypeInput);
            askAboutObject(guid, name, &input);
            for (unsigned short const id : std::as_const(speakers)) {
                CDeviceChannelInfo speaker;
                speaker.SetSpeakerId(id);
                askAboutObject(guid, name, &speaker);
            }
        }
    }

    void askAboutObject(CDeviceGuid const & guid, QString const & name, CDeviceChannelInfo const * channel)
    {
        CDeviceProperty property;
        property.setPropertyName(name, QString());
        count(facade.devicePropertyInfo(guid, property, channel));
        count(facade.IsObjectSupported(guid, name, channel));
        CObjectDef object;
        object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
        if (facade.GetObjectDef(guid, name, object, channel) != TharnNoError)
            return;
        QList<QPair<int, QString>> texts;
        count(facade.listValueStrings(guid, static_cast<int>(object.textOffset()), texts) > 0);
        QVariant value(object.minValue());
        count(facade.AdjustDeviceProperty(guid, name, value, channel) == CDevicelore::Valid);
        for (int number = 0; number < 10; ++number)
            count(!facade.GetFilterName(guid, number, channel).isNull());
        CDriverPropertyTarget const target(guid, name, ChannelFirst, 0, 12);
        count(facade.defaultPropertyValue(target).isValid());
        count(facade.defaultSpeakerId(target, OutputMode(2)).isValid());
        count(facade.validateSpeakerId(target, OutputMode(1)).isValid());
    }

    CDevicelore facade;
};

} // namespace

TEST(SampleWorld, IsAskedEverythingWithoutAMessage)
{
    MessageRecorder const recorder;
    auto * const cache = new CDriverCache;
    QDir dir(QStringLiteral(KESTROVA_SAMPLES));
    dir.setNameFilters({QStringLiteral("*.db3")});
    ASSERT_EQ(cache->openDatabases(dir), 4);
    Questioner questioner(cache);
    for (int const level : {1, 2, 3, 0})
        questioner.askEverything(static_cast<unsigned char>(level));
    EXPECT_GT(questioner.answers, 100000);
    EXPECT_EQ(recorder.messages(), QStringList());
}
