#include "command.h"
#include "deviceArgument.h"
#include "optionValue.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

QList<CSpeakerDef> definitionsOf(Inspector & inspector, unsigned short id)
{
    QList<CSpeakerDef> definitions;
    inspector.facade().speakerDef(id, definitions, SpeakerDefAll);
    return definitions;
}

QString yesOrNo(bool is)
{
    return is ? QStringLiteral("yes") : QStringLiteral("no");
}

QStringList rowOf(CSpeakerDef const & speaker)
{
    CSpeakerClass speakerClass;
    speaker.speakerClass(speakerClass);
    return {QString::number(speaker.speakerId()),
            speaker.displayNameShort(),
            speaker.name(),
            QString::number(speakerClass.classNumber),
            QString::number(speakerClass.ways),
            QString::number(speaker.cablefitMaxCount()),
            yesOrNo(speaker.isWFSetup()),
            QString::number(speaker.rib()),
            QString::number(speaker.sortOrder())};
}

QJsonObject jsonOf(CSpeakerDef const & speaker)
{
    CSpeakerClass speakerClass;
    speaker.speakerClass(speakerClass);
    return {{QStringLiteral("id"), speaker.speakerId()},
            {QStringLiteral("name"), speaker.name()},
            {QStringLiteral("displayNameShort"), speaker.displayNameShort()},
            {QStringLiteral("class"), speakerClass.classNumber},
            {QStringLiteral("ways"), speakerClass.ways},
            {QStringLiteral("wayNames"), speaker.wayNameShort(0)},
            {QStringLiteral("cablefitMaxCount"), speaker.cablefitMaxCount()},
            {QStringLiteral("wavefold"), speaker.isWFSetup()},
            {QStringLiteral("rib"), speaker.rib()},
            {QStringLiteral("sortOrder"), speaker.sortOrder()}};
}

Answer tableOf(QList<CSpeakerDef> const & speakers)
{
    QVector<QStringList> rows;
    QJsonArray json;
    for (CSpeakerDef const & speaker : speakers) {
        rows.append(rowOf(speaker));
        json.append(jsonOf(speaker));
    }
    Answer answer;
    answer.text = tableText({QStringLiteral("ID"), QStringLiteral("SHORT"), QStringLiteral("NAME"),
                             QStringLiteral("CLASS"), QStringLiteral("WAYS"), QStringLiteral("CABLEFIT"),
                             QStringLiteral("WAVEFOLD"), QStringLiteral("RIB"), QStringLiteral("ORDER")},
                            rows);
    answer.json = json;
    return answer;
}

Answer notFound(QString const & complaint)
{
    Answer answer;
    answer.json = QJsonArray();
    answer.exitCode = ExitNotFound;
    answer.complaint = complaint;
    return answer;
}

bool isFiltered(Arguments const & arguments)
{
    return arguments.options.contains(QStringLiteral("mode")) ||
           arguments.options.contains(QStringLiteral("type"));
}

QList<unsigned short> speakerIds(Inspector & inspector, CDeviceGuid const & guid, Arguments const & arguments)
{
    QList<unsigned short> ids;
    if (!isFiltered(arguments)) {
        inspector.facade().listSpeakersForDevice(guid, ids);
        return ids;
    }
    auto const mode = OutputMode(numberOption(arguments, "mode", -1, 8, 0));
    int const allTypes = SpeakerTypeFirstChannel | SpeakerTypeSecondChannel | SpeakerTypeTwoWay;
    QFlags<SpeakerType> const types(QFlag(numberOption(arguments, "type", 0, allTypes, allTypes)));
    inspector.facade().listSpeakersForDevice(guid, ids, types, mode);
    return ids;
}

} // namespace

Answer speakersAnswer(Inspector & inspector, Arguments const & arguments)
{
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    QList<CSpeakerDef> speakers;
    for (unsigned short const id : speakerIds(inspector, guid, arguments)) {
        QList<CSpeakerDef> const definitions = definitionsOf(inspector, id);
        if (!definitions.isEmpty())
            speakers.append(definitions.first());
    }
    if (speakers.isEmpty())
        return notFound(QStringLiteral("%1 has no such speakers").arg(guid.toString()));
    return tableOf(speakers);
}

Answer speakerAnswer(Inspector & inspector, Arguments const & arguments)
{
    QString const text = arguments.words.first();
    bool isNumber = false;
    unsigned short const id = text.toUShort(&isNumber, 0);
    if (!isNumber)
        throw Failure(ExitUsage, QStringLiteral("a speaker is a number from 0 to 65535, not '%1'").arg(text));
    QList<CSpeakerDef> const definitions = definitionsOf(inspector, id);
    if (definitions.isEmpty())
        return notFound(QStringLiteral("there is no speaker %1 at access level %2")
                            .arg(id)
                            .arg(inspector.facade().deviceAccessLevel()));
    return tableOf(definitions);
}

Answer filterAnswer(Inspector & inspector, Arguments const & arguments)
{
    std::unique_ptr<CDeviceChannelInfo> const channel = channelOption(arguments);
    if (channel == nullptr)
        throw Failure(ExitUsage, QStringLiteral("filters belong to speakers: say --speaker ID"));
    CDeviceGuid const guid = descriptionOfArgument(inspector.cache(), arguments.words.first());
    QString const text = arguments.words.at(1);
    bool isNumber = false;
    int const number = text.toInt(&isNumber, 0);
    if (!isNumber || number < 0 || number > 255)
        throw Failure(ExitUsage, QStringLiteral("a filter is a number from 0 to 255, not '%1'").arg(text));

    QString const name = inspector.facade().GetFilterName(guid, number, channel.get());
    Answer answer;
    QJsonObject json{{QStringLiteral("guid"), guid.toString()},
                     {QStringLiteral("filter"), number},
                     {QStringLiteral("speaker"), channel->GetSpeakerId()},
                     {QStringLiteral("name"), name.isNull() ? QJsonValue() : QJsonValue(name)}};
    CDriverCacheFilterItem const * const filter = inspector.cache().filter(guid, *channel, number);
    if (filter == nullptr) {
        answer.json = json;
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("%1 has no filter %2%3")
                               .arg(guid.toString())
                               .arg(number)
                               .arg(channelText(channel.get()));
        return answer;
    }
    json.insert(QStringLiteral("id"), filter->filterId());
    json.insert(QStringLiteral("type"), filter->filterType());
    json.insert(QStringLiteral("minimum"), filter->minValue());
    json.insert(QStringLiteral("maximum"), filter->maxValue());
    json.insert(QStringLiteral("textOffset"), double(filter->textOffset()));
    json.insert(QStringLiteral("stateText"), filter->stateText());
    answer.json = json;
    answer.text = fieldsText(
        {{QStringLiteral("filter"), name},
         {QStringLiteral("id"), QString::number(filter->filterId())},
         {QStringLiteral("type"), QString::number(filter->filterType())},
         {QStringLiteral("range"),
          QStringLiteral("%1 to %2").arg(numberText(filter->minValue()), numberText(filter->maxValue()))},
         {QStringLiteral("text offset"), QString::number(filter->textOffset())},
         {QStringLiteral("state texts"), filter->stateText()}});
    return answer;
}

} // namespace kestrova::inspector
