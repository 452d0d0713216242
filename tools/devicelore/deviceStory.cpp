#include "deviceStory.h"

#include "descriptionRows.h"
#include "rawValue.h"
#include "storyText.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

/// A row of Guids behind the one that stands.
struct LosingRow {
    QString database;
    GuidRow row;
};

QVector<LosingRow> losingRows(InspectorCache & cache, CDeviceGuid const & guid)
{
    QVector<LosingRow> rows;
    for (QString const & database : cache.databases()) {
        for (GuidRow const & row : guidRows(database, guid))
            rows.append({database, row});
    }
    return rows.mid(1); // the first row of all stands
}

QString losersText(QVector<LosingRow> const & losers)
{
    QStringList texts;
    for (LosingRow const & loser : losers)
        texts.append(QStringLiteral("%1 (%2, level %3)")
                         .arg(loser.database, quoted(loser.row.model))
                         .arg(loser.row.access));
    return texts.join(QStringLiteral(", "));
}

/// The lowest level at which a description of the type is visible; of a type that has any.
int lowestLevel(InspectorCache & cache, Description const & description)
{
    QList<int> levels;
    for (CDeviceGuid const & guid : cache.descriptions().guids()) {
        if ((guid.value() & 0xFFU) == (description.asked.value() & 0xFFU))
            levels.append(cache.deviceGuidAccessLevel(guid));
    }
    return *std::min_element(levels.begin(), levels.end());
}

QString modelText(InspectorCache & cache, Description const & description)
{
    CDeviceGuid const naming = cache.namingGuid(description.found);
    if (!cache.descriptions().guids().contains(naming))
        return QStringLiteral("none: there is no description of version 0, %1").arg(naming.toString());
    if (description.model.isEmpty())
        return QStringLiteral("none: the description of version 0, %1, has none").arg(naming.toString());
    return QStringLiteral("%1, says the description of version 0, %2")
        .arg(printable(description.model), naming.toString());
}

QString channelsText(InspectorCache const & cache, CDeviceGuid const & guid)
{
    int const speakers = cache.DeviceChannelCount(guid, ChannelTypeSpeaker);
    if (speakers < 0)
        return QStringLiteral("unknown: the library does not know this model");
    return QStringLiteral("%1 for speakers, %2 inputs, %3 outputs")
        .arg(speakers)
        .arg(cache.DeviceChannelCount(guid, ChannelTypeInput))
        .arg(cache.DeviceChannelCount(guid, ChannelTypeOutput));
}

/// How many rows of objects a description has, and how many of them an application gets by name.
struct ObjectCount {
    int rows = 0;
    int given = 0;
};

ObjectCount objectCount(Inspector & inspector, CDeviceGuid const & guid)
{
    ObjectCount count;
    QSet<QString> asked;
    for (QString const & name : linkedNames(inspector.cache().connectionName(guid), guid)) {
        ++count.rows;
        if (asked.contains(name))
            continue; // of several rows of one name, one counts
        asked.insert(name);
        CObjectDef object;
        if (inspector.facade().GetObjectDef(guid, name, object, nullptr) == TharnNoError)
            ++count.given;
    }
    return count;
}

int speakerCount(InspectorCache & cache, CDeviceGuid const & guid)
{
    QList<unsigned short> ids;
    cache.listSpeakersForDevice(guid, ids);
    return static_cast<int>(ids.size());
}

StoryFields answerFields(Description const & description)
{
    return {{QStringLiteral("asked"), description.asked.toString()},
            {QStringLiteral("answers"),
             description.found.isNull() ? QStringLiteral("none") : description.found.toString()},
            {QStringLiteral("why"), reasonText(description)}};
}

StoryFields versionFields(Inspector & inspector, Description const & description)
{
    InspectorCache & cache = inspector.cache();
    StoryFields fields{{QStringLiteral("versions"), versionsText(description)}};
    if (description.reason == Reason::UnknownType)
        return fields;
    int const needed = description.found.isNull() ? lowestLevel(cache, description)
                                                  : int(cache.deviceGuidAccessLevel(description.found));
    fields.append({QStringLiteral("access"), neededText(needed, inspector.facade().deviceAccessLevel())});
    return fields;
}

StoryFields databaseFields(InspectorCache & cache, Description const & description)
{
    if (description.found.isNull())
        return {};
    return {{QStringLiteral("database"),
             QStringLiteral("%1, the first that has it").arg(cache.connectionName(description.found))},
            {QStringLiteral("never wins"), losersText(losingRows(cache, description.found))}};
}

} // namespace

QString briefDescriptionSection(InspectorCache & cache, Description const & description)
{
    return sectionText(QStringLiteral("description"),
                       answerFields(description) + databaseFields(cache, description));
}

QString descriptionSection(Inspector & inspector, Description const & description)
{
    InspectorCache & cache = inspector.cache();
    return sectionText(QStringLiteral("description"), answerFields(description) +
                                                          versionFields(inspector, description) +
                                                          databaseFields(cache, description));
}

QString modelAndContentSections(Inspector & inspector, Description const & description)
{
    InspectorCache & cache = inspector.cache();
    CDeviceGuid const & guid = description.found;
    ObjectCount const objects = objectCount(inspector, guid);
    return sectionText(QStringLiteral("model"),
                       {{QStringLiteral("name"), modelText(cache, description)},
                        {QStringLiteral("channels"), channelsText(cache, guid)},
                        {QStringLiteral("ONO type"), QString::number(cache.descriptions().OnoType(guid))}}) +
           QLatin1Char('\n') +
           sectionText(
               QStringLiteral("content at access level %1").arg(inspector.facade().deviceAccessLevel()),
               {{QStringLiteral("objects"),
                 QStringLiteral("%1 of %2 rows answer to their names").arg(objects.given).arg(objects.rows)},
                {QStringLiteral("speakers"), QString::number(speakerCount(cache, guid))}});
}

QJsonObject storyJson(Inspector & inspector, Description const & description, bool withContent)
{
    InspectorCache & cache = inspector.cache();
    QJsonObject json = jsonOf(cache, description);
    json.insert(QStringLiteral("callersLevel"), inspector.facade().deviceAccessLevel());
    if (description.reason == Reason::NoVisibleDescription)
        json.insert(QStringLiteral("sufficientLevel"), lowestLevel(cache, description));
    if (description.found.isNull())
        return json;
    CDeviceGuid const & guid = description.found;
    QJsonArray losers;
    for (LosingRow const & loser : losingRows(cache, guid))
        losers.append(QJsonObject{{QStringLiteral("database"), loser.database},
                                  {QStringLiteral("model"), loser.row.model},
                                  {QStringLiteral("accessLevel"), loser.row.access}});
    json.insert(QStringLiteral("neverWins"), losers);
    if (!withContent)
        return json;
    ObjectCount const objects = objectCount(inspector, guid);
    json.insert(QStringLiteral("namedBy"), cache.namingGuid(guid).toString());
    json.insert(QStringLiteral("channels"),
                QJsonObject{{QStringLiteral("speaker"), cache.DeviceChannelCount(guid, ChannelTypeSpeaker)},
                            {QStringLiteral("input"), cache.DeviceChannelCount(guid, ChannelTypeInput)},
                            {QStringLiteral("output"), cache.DeviceChannelCount(guid, ChannelTypeOutput)}});
    json.insert(QStringLiteral("onoType"), cache.descriptions().OnoType(guid));
    json.insert(QStringLiteral("objectRows"), objects.rows);
    json.insert(QStringLiteral("objects"), objects.given);
    json.insert(QStringLiteral("speakers"), speakerCount(cache, guid));
    return json;
}

} // namespace kestrova::inspector
