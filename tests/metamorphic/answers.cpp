#include "answers.h"

#include "records/deviceProperty.h"
#include "records/driverPropertyTarget.h"
#include "records/speakerSetupInfo.h"

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::test {

namespace {

QString wordsOf(QVariant const & value)
{
    return QStringLiteral("%1:%2").arg(value.userType()).arg(value.toString());
}

template <typename List>
QString wordsOfList(List const & list)
{
    QStringList words;
    for (auto const & value : list)
        words.append(QString::number(value));
    return words.join(QLatin1Char(' '));
}

/// Lists in no defined order are compared in the order of their words.
QString sorted(QStringList words)
{
    words.sort();
    return words.join(QLatin1Char(' '));
}

class Questions {
public:
    Questions(CDevicelore & asked, RandomWorld const & about)
        : library(asked)
        , world(about)
    {}

    QStringList ask()
    {
        add(QStringLiteral("models"), sorted(library.deviceModels()));
        add(QStringLiteral("groups"), sorted(library.enumDevicePropertyFilter()));
        add(QStringLiteral("group All"), sorted(library.devicePropertyFilter(QStringLiteral("All"))));
        for (int type = 0; type < 6; ++type) {
            QString model;
            add(QStringLiteral("hardware %1").arg(type),
                QString::number(library.deviceTypeOnHardwaretype(static_cast<unsigned char>(type), model)) +
                    model);
        }
        for (QString const & guid : world.guids())
            askDevice(guid);
        askDevice(QStringLiteral("C7007710")); // a version that is not described
        return answers;
    }

private:
    void add(QString const & question, QString const & answer)
    {
        answers.append(question + QStringLiteral(" = ") + answer);
    }

    void askDevice(QString const & text)
    {
        CDeviceGuid const guid(text);
        add(text + QStringLiteral(" driver"), library.determineDriverGuid(guid).toString());
        add(text + QStringLiteral(" level"), QString::number(library.deviceGuidAccessLevel(guid)));
        add(text + QStringLiteral(" model"), library.deviceModelOnGuid(guid));
        add(text + QStringLiteral(" channels"),
            QString::number(library.deviceChannelCount(guid, ChannelTypeSpeaker)));
        askSpeakers(guid);
        for (QString const & name : world.objectNames()) {
            askObject(guid, name, nullptr);
            for (int const id : {5, 12, 71, 99}) {
                CDeviceChannelInfo channel;
                channel.SetSpeakerId(static_cast<unsigned short>(id));
                askObject(guid, name, &channel);
            }
        }
    }

    void askObject(CDeviceGuid const & guid, QString const & name, CDeviceChannelInfo const * channel)
    {
        QString const question = QStringLiteral("%1 %2 %3")
                                     .arg(guid.toString(), name)
                                     .arg(channel != nullptr ? channel->GetSpeakerId() : -1);
        CObjectDef object;
        object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
        if (library.GetObjectDef(guid, name, object, channel) == TharnNoError)
            add(question, test::wordsOf(object));
        else
            add(question, QStringLiteral("none"));
        CDeviceProperty property;
        property.setPropertyName(name, QString());
        if (library.devicePropertyInfo(guid, property, channel))
            add(question + QStringLiteral(" property"),
                wordsOf(property.minValue()) + wordsOf(property.maxValue()) + property.unit());
        add(question + QStringLiteral(" supported"),
            QString::number(library.IsObjectSupported(guid, name, channel)));
        QVariant value(3.3);
        add(question + QStringLiteral(" adjusted"),
            QString::number(library.AdjustDeviceProperty(guid, name, value, channel)) + wordsOf(value));
        QList<QPair<int, QString>> texts;
        library.listValueStrings(guid, static_cast<int>(object.textOffset()), texts);
        QStringList words;
        for (auto const & [number, label] : texts)
            words.append(QString::number(number) + label);
        add(question + QStringLiteral(" texts"), sorted(words));
    }

    void askSpeakers(CDeviceGuid const & guid)
    {
        QList<unsigned short> ids;
        library.listSpeakersForDevice(guid, ids);
        std::sort(ids.begin(), ids.end()); // equal places in the display order have no order of their own
        add(guid.toString() + QStringLiteral(" speakers"), wordsOfList(ids));
        for (int mode = -1; mode <= 8; ++mode) {
            for (int channel = 1; channel <= 4; ++channel) {
                CDriverPropertyTarget const target(guid, QStringLiteral("Config_SpeakerId"),
                                                   DeviceChannel(channel), 0, 5);
                add(QStringLiteral("%1 mode %2 channel %3").arg(guid.toString()).arg(mode).arg(channel),
                    wordsOf(library.defaultSpeakerId(target, OutputMode(mode))) + QLatin1Char(' ') +
                        wordsOf(library.validateSpeakerId(target, OutputMode(mode))));
            }
        }
    }

    CDevicelore & library;
    RandomWorld const & world;
    QStringList answers;
};

} // namespace

QString wordsOf(CObjectDef const & object)
{
    return QStringList{
        object.name(),
        QString::number(object.BoxNumber()),
        QString::number(object.ObjectNumber()),
        QString::number(object.channelCount()),
        QString::number(object.recordCount()),
        QString::number(object.minValue()),
        QString::number(object.maxValue()),
        QString::number(object.step()),
        object.format(),
        QString::number(object.flags()),
        QString::number(object.access()),
        wordsOf(object.defaultValue()),
        QString::number(object.size()),
        QString::number(object.textOffset()),
        object.displayName(),
        object.displaySubName(),
        object.comment(),
        QString::number(object.classId()),
        wordsOfList(QList<int>{object.ocaClassId()[0], object.ocaClassId()[2], object.ocaClassIdSize()}),
        QString::number(object.waitTime()),
        QString::number(object.GetOnoType()),
        QString::number(object.objectType()),
        object.unit(),
        QString::number(object.propertyHash())}
        .join(QLatin1Char('|'));
}

QStringList answersOf(CDevicelore & library, RandomWorld const & world)
{
    return Questions(library, world).ask();
}

} // namespace kestrova::test
