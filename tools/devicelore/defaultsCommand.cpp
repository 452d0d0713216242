#include "command.h"
#include "core/qt5Conversions.h"
#include "deviceArgument.h"
#include "optionValue.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

/// The property that holds a channel's speaker; where no table has a default speaker, its default counts.
QString const speakerProperty = QStringLiteral("Config_SpeakerId");

/// A default, and where it comes from.
struct Default {
    QVariant value;
    QString source;
};

using SpeakerQuestion = QVariant (CDevicelore::*)(CDriverPropertyTarget const &, OutputMode) const;

/// The description that stands for the device, as an application would look it up first.
CDeviceGuid describedGuid(InspectorCache & cache, QString const & argument)
{
    CDeviceGuid const asked = guidOfArgument(cache, argument);
    CDeviceGuid const described = cache.determineDriverGuid(asked);
    QString model;
    if (described.isNull() || !cache.deviceTypeOnGuid(described, model))
        throw Failure(ExitNotFound,
                      QStringLiteral("the model of %1 is not known; `devicelore device %1` tells what is")
                          .arg(asked.toString()));
    return described;
}

/// The channel that was asked for, else all that take speakers, but channel 1 at least.
QList<int> readChannels(CDevicelore const & library, CDeviceGuid const & guid, Arguments const & arguments)
{
    int const asked = numberOption(arguments, "channel", 0, 7, -1);
    if (asked >= 0)
        return {asked};
    QList<int> channels{1};
    for (int channel = 2; channel <= library.deviceChannelCount(guid, ChannelTypeSpeaker); ++channel)
        channels.append(channel);
    return channels;
}

// The tables need no objects. So a default for which no object was asked comes from a table; and it is that
// of the mode if the same question without a mode has to ask for one.
Default askSpeaker(Inspector & inspector, CDriverPropertyTarget const & target, OutputMode mode,
                   SpeakerQuestion ask)
{
    InspectorCache & cache = inspector.cache();
    cache.wasAskedForObject = false;
    QVariant const value = (inspector.facade().*ask)(target, mode);
    if (cache.wasAskedForObject)
        return {value, QStringLiteral("database")};
    (inspector.facade().*ask)(target, OutputMode(-1));
    return {value, cache.wasAskedForObject ? QStringLiteral("mode table") : QStringLiteral("model table")};
}

Default validatedSpeaker(Inspector & inspector, CDriverPropertyTarget const & target, OutputMode mode)
{
    Default const answer = askSpeaker(inspector, target, mode, &CDevicelore::validateSpeakerId);
    int const stored = target.speakerId();
    bool const stays = stored != 0 && answer.value == QVariant(stored);
    return stays ? Default{answer.value, QStringLiteral("stays")} : answer;
}

Default propertyDefault(Inspector & inspector, CDriverPropertyTarget const & target)
{
    InspectorCache & cache = inspector.cache();
    cache.wasAskedForObject = false;
    QVariant const known = cache.defaultPropertyValue(target);
    QVariant const value = inspector.facade().defaultPropertyValue(target);
    if (value != known)
        return {value, QStringLiteral("Wavefold speaker")}; // the facade's own rule
    if (cache.wasAskedForObject)
        return {value, value.isValid() ? QStringLiteral("database") : QStringLiteral("nowhere")};
    return {value, QStringLiteral("model table")};
}

QString textOf(Default const & found)
{
    return found.value.isValid() ? qt5::toText(found.value) : QStringLiteral("none");
}

QJsonObject jsonOf(Default const & found)
{
    return {{QStringLiteral("value"), QJsonValue::fromVariant(found.value)},
            {QStringLiteral("source"), found.source}};
}

void tellSpeakers(Inspector & inspector, CDeviceGuid const & guid, Arguments const & arguments,
                  Answer & answer, QJsonObject & json)
{
    auto const mode = OutputMode(numberOption(arguments, "mode", -1, 8, 0));
    auto const stored = static_cast<unsigned short>(numberOption(arguments, "speaker", 0, 65535, 0));
    QVector<QStringList> rows;
    QJsonArray speakers;
    for (int const channel : readChannels(inspector.facade(), guid, arguments)) {
        CDriverPropertyTarget const target(guid, speakerProperty, DeviceChannel(channel), 0, stored);
        Default const byDefault = askSpeaker(inspector, target, mode, &CDevicelore::defaultSpeakerId);
        Default const validated = validatedSpeaker(inspector, target, mode);
        rows.append({QString::number(channel), textOf(byDefault), byDefault.source, textOf(validated),
                     validated.source});
        speakers.append(QJsonObject{{QStringLiteral("channel"), channel},
                                    {QStringLiteral("default"), jsonOf(byDefault)},
                                    {QStringLiteral("validated"), jsonOf(validated)}});
    }
    QString const from = QStringLiteral("FROM");
    QString const validatedHeading =
        stored == 0 ? QStringLiteral("VALIDATED") : QStringLiteral("%1 BECOMES").arg(stored);
    answer.text += tableText(
        {QStringLiteral("CHANNEL"), QStringLiteral("DEFAULT SPEAKER"), from, validatedHeading, from}, rows);
    json.insert(QStringLiteral("mode"), int(mode));
    json.insert(QStringLiteral("speakers"), speakers);
}

void tellProperties(Inspector & inspector, CDeviceGuid const & guid, Arguments const & arguments,
                    Answer & answer, QJsonObject & json)
{
    auto const stored = static_cast<unsigned short>(numberOption(arguments, "speaker", 0, 65535, 0));
    QVector<QStringList> rows;
    QJsonObject properties;
    QStringList missing;
    for (QString const & property : arguments.words.mid(1)) {
        CDriverPropertyTarget const target(guid, property, ChannelFirst, 0, stored);
        Default const found = propertyDefault(inspector, target);
        rows.append({property, textOf(found), found.source});
        properties.insert(property, jsonOf(found));
        if (!found.value.isValid())
            missing.append(property);
    }
    if (!rows.isEmpty())
        answer.text +=
            QLatin1Char('\n') +
            tableText({QStringLiteral("PROPERTY"), QStringLiteral("DEFAULT"), QStringLiteral("FROM")}, rows);
    json.insert(QStringLiteral("properties"), properties);
    if (!missing.isEmpty()) {
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("%1 has no default of %2")
                               .arg(guid.toString(), missing.join(QStringLiteral(", ")));
    }
}

} // namespace

Answer defaultsAnswer(Inspector & inspector, Arguments const & arguments)
{
    CDeviceGuid const guid = describedGuid(inspector.cache(), arguments.words.first());
    Answer answer;
    QJsonObject json{{QStringLiteral("guid"), guid.toString()}};
    tellSpeakers(inspector, guid, arguments, answer, json);
    tellProperties(inspector, guid, arguments, answer, json);
    answer.json = json;
    return answer;
}

} // namespace kestrova::inspector
