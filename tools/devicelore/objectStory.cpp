#include "objectStory.h"

#include "descriptionRows.h"
#include "nearMisses.h"
#include "objectChanges.h"
#include "objectText.h"
#include "optionValue.h"
#include "rawValue.h"
#include "storyText.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <memory>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

/// Everything that is told of one question.
struct Story {
    ObjectQuestion question; ///< the number without channel bits
    ObjectRows found;
    QStringList nearMisses;               ///< of a question without rows
    std::optional<ObjectStations> object; ///< of a question with rows
    QVector<Change> changes;
    int callersLevel = 0;
    int deviceLevel = 0;
    int objectLevel = 0; ///< of a question with rows
    TharnError result = TharnNoError;
    std::optional<CObjectDef> given; ///< with TharnNoError
};

std::unique_ptr<CDriverCacheKey> keyOf(CDeviceGuid const & guid, ObjectQuestion const & question,
                                       CDeviceChannelInfo const * channel)
{
    if (question.number && channel != nullptr)
        return std::make_unique<CDriverCacheChannelKeyObject>(guid, channel, *question.number);
    if (question.number)
        return std::make_unique<CDriverCacheKeyObject>(guid, *question.number);
    if (channel != nullptr)
        return std::make_unique<CDriverCacheChannelKeyName>(guid, channel, question.name);
    return std::make_unique<CDriverCacheKeyName>(guid, question.name);
}

/// The object at each station, whatever the level: what the cache makes is only then tested.
ObjectStations stationsOf(InspectorCache & cache, CDeviceGuid const & guid, Story const & story,
                          CDeviceChannelInfo const * channel)
{
    ObjectStations object{story.found.rows.first(), {}, {}, story.given};
    object.read.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    if (story.question.number)
        cache.objectFromDb(*story.question.number, guid.toString(), object.read);
    else
        cache.objectFromDb(story.question.name, guid.toString(), object.read);
    CDriverCacheObjectItem * made = nullptr;
    if (cache.createDriverCacheObjectItem(made, keyOf(guid, story.question, channel).get()))
        object.made = *std::unique_ptr<CDriverCacheObjectItem>(made);
    return object;
}

Story tell(Inspector & inspector, CDeviceGuid const & guid, ObjectQuestion const & question,
           CDeviceChannelInfo const * channel)
{
    InspectorCache & cache = inspector.cache();
    Story story;
    story.question = question;
    if (question.number)
        story.question.number = CObjectNumber(*question.number).objectNumber();
    story.found = objectRows(cache.connectionName(guid), guid, question);
    story.callersLevel = cache.guidSupportedLevel();
    story.deviceLevel = cache.deviceGuidAccessLevel(guid);
    CObjectDef given;
    story.result = findObject(inspector, guid, question, channel, given);
    if (story.result == TharnNoError)
        story.given = given;
    if (story.found.rows.isEmpty()) {
        story.nearMisses = nearMisses(cache, guid, question);
        return story;
    }
    story.object = stationsOf(cache, guid, story, channel);
    story.objectLevel = story.object->made.access() / 10;
    story.changes = changesOf(cache, *story.object, guid, channel);
    return story;
}

QString askedText(Story const & story, ObjectQuestion const & question)
{
    if (!story.question.number)
        return QStringLiteral("name %1, exact in case").arg(quoted(story.question.name));
    QString text = QStringLiteral("number ") + numberWithPartsText(*story.question.number);
    if (*story.question.number != *question.number)
        text += QStringLiteral(": the channel bits of %1 are dropped").arg(hexadecimal(*question.number, 4));
    return text;
}

/// The columns side by side, in lines of moderate length.
QString rowText(ObjectRow const & row)
{
    int const width = 96;
    QString text;
    QString line;
    for (auto const & [name, value] : row.columns) {
        QString const cell = QStringLiteral("%1 %2").arg(printable(name), rawText(value));
        if (!line.isEmpty() && line.size() + cell.size() > width) {
            text += line + QStringLiteral(",\n");
            line.clear();
        }
        line += (line.isEmpty() ? QStringLiteral("  ") : QStringLiteral(", ")) + cell;
    }
    return text + line + QLatin1Char('\n');
}

QStringList losingIds(Story const & story)
{
    QStringList ids;
    for (ObjectRow const & row : story.found.rows.mid(1))
        ids.append(row.id());
    return ids;
}

QString losersText(QStringList const & ids)
{
    if (ids.isEmpty())
        return {};
    return (ids.size() == 1 ? QStringLiteral("row %1") : QStringLiteral("rows %1"))
        .arg(printable(ids.join(QStringLiteral(", "))));
}

QString questionSection(Story const & story, ObjectQuestion const & question)
{
    StoryFields fields{{QStringLiteral("asked"), askedText(story, question)}};
    if (story.object)
        fields.append({QStringLiteral("answers"),
                       QStringLiteral("row %1 of Objects").arg(printable(story.object->row.id()))});
    else
        fields.append(
            {QStringLiteral("answers"), story.found.error.isEmpty()
                                            ? QStringLiteral("no row")
                                            : QStringLiteral("no row: ") + printable(story.found.error)});
    fields.append({QStringLiteral("never win"), losersText(losingIds(story))});
    for (QString const & miss : story.nearMisses)
        fields.append({QStringLiteral("near miss"), miss});
    return sectionText(QStringLiteral("object"), fields);
}

QString rowSection(ObjectRow const & row)
{
    QString text = QStringLiteral("row %1 as it stands\n").arg(printable(row.id())) + rowText(row);
    QStringList const missing = missingColumns(row);
    if (!missing.isEmpty())
        text += QStringLiteral("  missing, and read as empty: %1\n").arg(missing.join(QStringLiteral(", ")));
    return text;
}

QString changesSection(Story const & story)
{
    StoryFields fields;
    for (Change const & change : story.changes)
        fields.append({change.member, textOf(change)});
    return sectionText(QStringLiteral("on the way"), fields);
}

QString accessSection(Story const & story)
{
    StoryFields fields{{QStringLiteral("device"), neededText(story.deviceLevel, story.callersLevel)},
                       {QStringLiteral("object"), neededText(story.objectLevel, story.callersLevel)}};
    int const enough = std::max(story.deviceLevel, story.objectLevel);
    if (enough > story.callersLevel)
        fields.append({QStringLiteral("enough"), QStringLiteral("level %1").arg(enough)});
    return sectionText(QStringLiteral("access"), fields);
}

QString givenSection(Story const & story)
{
    QString const heading = QStringLiteral("the application gets");
    if (!story.given)
        return sectionText(heading,
                           {{QStringLiteral("nothing"),
                             QStringLiteral("error %1 (%2), remembered as missing until the level changes")
                                 .arg(int(story.result))
                                 .arg(story.result == TharnNotAvailable ? QStringLiteral("not available")
                                                                        : QStringLiteral("failed"))}});
    CObjectDef const & object = *story.given;
    return sectionText(
        heading, {{QStringLiteral("number"), numberWithPartsText(object.FullObjectNumber())},
                  {QStringLiteral("type"), typeName(object)},
                  {QStringLiteral("unit"), QLatin1Char('"') + printable(object.unit()) + QLatin1Char('"')},
                  {QStringLiteral("range"), rangeText(object)},
                  {QStringLiteral("default"), printable(valueText(object.defaultValue()))},
                  {QStringLiteral("rights"), rightsText(object)}});
}

QString textOf(Story const & story, ObjectQuestion const & question)
{
    QStringList sections{questionSection(story, question)};
    if (story.object)
        sections += {rowSection(story.object->row), changesSection(story), accessSection(story)};
    sections.append(givenSection(story));
    return sections.join(QLatin1Char('\n'));
}

QJsonObject rowJson(ObjectRow const & row)
{
    QJsonObject json;
    for (auto const & [name, value] : row.columns)
        json.insert(name, rawJson(value));
    return json;
}

QJsonObject givenJson(CObjectDef const & object)
{
    return {{QStringLiteral("name"), object.name()},
            {QStringLiteral("number"), object.FullObjectNumber()},
            {QStringLiteral("type"), typeName(object)},
            {QStringLiteral("unit"), object.unit()},
            {QStringLiteral("minimum"), object.minValue()},
            {QStringLiteral("maximum"), object.maxValue()},
            {QStringLiteral("step"), object.step()},
            {QStringLiteral("default"), QJsonValue::fromVariant(object.defaultValue())},
            {QStringLiteral("access"), object.access()}};
}

QJsonObject jsonOf(Story const & story)
{
    QJsonObject json{
        {QStringLiteral("askedName"), story.question.number ? QJsonValue() : story.question.name},
        {QStringLiteral("askedNumber"),
         story.question.number ? QJsonValue(*story.question.number) : QJsonValue()},
        {QStringLiteral("error"), int(story.result)},
        {QStringLiteral("nearMisses"), QJsonArray::fromStringList(story.nearMisses)},
        {QStringLiteral("sqlError"), story.found.error},
        {QStringLiteral("given"), story.given ? givenJson(*story.given) : QJsonValue()}};
    if (!story.object)
        return json;
    QJsonArray changes;
    for (Change const & change : story.changes)
        changes.append(jsonOf(change));
    json.insert(QStringLiteral("rowId"), story.object->row.id());
    json.insert(QStringLiteral("neverWin"), QJsonArray::fromStringList(losingIds(story)));
    json.insert(QStringLiteral("row"), rowJson(story.object->row));
    json.insert(QStringLiteral("missingColumns"),
                QJsonArray::fromStringList(missingColumns(story.object->row)));
    json.insert(QStringLiteral("changes"), changes);
    json.insert(QStringLiteral("deviceLevel"), story.deviceLevel);
    json.insert(QStringLiteral("objectLevel"), story.objectLevel);
    json.insert(QStringLiteral("sufficientLevel"), std::max(story.deviceLevel, story.objectLevel));
    return json;
}

} // namespace

Answer objectStory(Inspector & inspector, CDeviceGuid const & guid, ObjectQuestion const & question,
                   CDeviceChannelInfo const * channel)
{
    Story const story = tell(inspector, guid, question, channel);
    Answer answer;
    answer.text = textOf(story, question);
    answer.json = jsonOf(story);
    if (story.result != TharnNoError) {
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("an application gets no such object of %1%2 at access level %3")
                               .arg(guid.toString(), channelText(channel))
                               .arg(story.callersLevel);
    }
    return answer;
}

} // namespace kestrova::inspector
