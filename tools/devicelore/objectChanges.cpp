#include "objectChanges.h"

#include "core/qt5Conversions.h"
#include "objectText.h"
#include "optionValue.h"
#include "rawValue.h"

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

char const * const byReading = "reading";
char const * const byCache = "cache";
char const * const byFacade = "facade";

/// A column that holds a number, and what it is read as.
struct NumberColumn {
    char const * name;
    char const * readAs;
    double (*member)(CObjectDef const & object);
};

NumberColumn const numberColumns[] = {
    {"BoxNumber", "an integer of 16 bits",
     [](CObjectDef const & object) -> double { return object.BoxNumber(); }},
    {"ObjectNumber", "an integer of 16 bits",
     [](CObjectDef const & object) -> double { return object.ObjectNumber(); }},
    {"ChannelCount", "an integer of 8 bits",
     [](CObjectDef const & object) -> double { return object.channelCount(); }},
    {"RecordCount", "an integer of 16 bits",
     [](CObjectDef const & object) -> double { return object.recordCount(); }},
    {"Min", "a number", [](CObjectDef const & object) { return object.minValue(); }},
    {"Max", "a number", [](CObjectDef const & object) { return object.maxValue(); }},
    {"Step", "a number", [](CObjectDef const & object) { return object.step(); }},
    {"Flags", "an integer of 16 bits", [](CObjectDef const & object) -> double { return object.flags(); }},
    {"Access", "an integer of 8 bits", [](CObjectDef const & object) -> double { return object.access(); }},
    {"Size", "an integer of 16 bits", [](CObjectDef const & object) -> double { return object.size(); }},
    {"TextOffset", "an integer of 32 bits",
     [](CObjectDef const & object) -> double { return object.textOffset(); }},
    {"ClassId", "an integer of 16 bits",
     [](CObjectDef const & object) -> double { return object.classId(); }},
    {"WaitTime", "an integer of 16 bits",
     [](CObjectDef const & object) -> double { return object.waitTime(); }},
    {"WaitStates", "an integer of 16 bits",
     [](CObjectDef const & object) -> double { return object.waitStates(); }},
};

char const * const otherColumns[] = {"Name", "Format", "DefaultValue", "Description", "Comment"};

bool readsAs(QVariant const & stored, double number)
{
    bool isNumber = false;
    double const value = qt5::toDouble(stored, &isNumber);
    return isNumber && value == number;
}

/// The older form of the table has box and object in one number.
bool isOlderForm(ObjectRow const & row)
{
    return !row.has(QStringLiteral("BoxNumber"));
}

void addNumbers(QVector<Change> & changes, ObjectStations const & object)
{
    if (isOlderForm(object.row))
        changes.append({QStringLiteral("number"), rawText(object.row.value(QStringLiteral("ObjectNumber"))),
                        numberWithPartsText(object.read.FullObjectNumber()),
                        QStringLiteral("without a column BoxNumber, ObjectNumber holds both"), byReading});
    for (NumberColumn const & column : numberColumns) {
        QString const name = QLatin1String(column.name);
        double const number = column.member(object.read);
        bool const isTold = isOlderForm(object.row) && name == QLatin1String("ObjectNumber");
        if (object.row.has(name) && !isTold && !readsAs(object.row.value(name), number))
            changes.append({name, rawText(object.row.value(name)), numberText(number),
                            QStringLiteral("it is read as %1").arg(QLatin1String(column.readAs)), byReading});
    }
}

QString whyThisDefault(QString const & stored, CObjectDef const & read)
{
    bool isNumber = false;
    stored.toDouble(&isNumber);
    if (read.objectType() == CObjectDef::ObjectTypeString)
        return QStringLiteral("the object is a text");
    if (isNumber)
        return QStringLiteral("it is a number");
    if (read.minValue() <= 0.0 && 0.0 <= read.maxValue())
        return QStringLiteral("it is no number, and 0 is within the row's range");
    return QStringLiteral("it is no number, and 0 is out of the row's range: the minimum stands in");
}

void addDefault(QVector<Change> & changes, ObjectStations const & object)
{
    QVariant const stored = object.row.value(QStringLiteral("DefaultValue"));
    bool const isText = object.read.objectType() == CObjectDef::ObjectTypeString;
    changes.append(
        {QStringLiteral("default"), rawText(stored),
         isText ? quoted(qt5::toText(object.read.defaultValue())) : valueText(object.read.defaultValue()),
         whyThisDefault(qt5::toText(stored), object.read), byReading});
}

QString limitsText(CObjectDef const & object)
{
    return QStringLiteral("%1 to %2").arg(numberText(object.minValue()), numberText(object.maxValue()));
}

QLatin1String const filterPrefix = QLatin1String("Config_Filter");

/// "Config_Filter" and one more character, which is the number of the filter if it is a digit and else 0.
bool isFilterSlot(QString const & name)
{
    return name.size() == 14 && name.startsWith(filterPrefix);
}

int filterNumberOf(QString const & slot)
{
    int const digit = slot.back().unicode() - u'0';
    return digit >= 0 && digit <= 9 ? digit : 0;
}

/// "speaker 12". Of ids that share their low byte, the definition read last counts for all of them.
QString speakerText(CDeviceChannelInfo const & speaker, QList<CSpeakerDef> const & definitions)
{
    QString text = QStringLiteral("speaker %1").arg(speaker.GetSpeakerId());
    if (!definitions.isEmpty() && definitions.first().speakerId() != speaker.GetSpeakerId())
        text += QStringLiteral(", for which stands %1,").arg(definitions.first().speakerId());
    return text;
}

void addFilter(QVector<Change> & changes, InspectorCache & cache, ObjectStations const & object,
               CDeviceGuid const & guid, CDeviceChannelInfo const & speaker)
{
    if (!isFilterSlot(object.read.name())) {
        changes.append({QStringLiteral("range"), limitsText(object.read), limitsText(object.made),
                        QStringLiteral("a filter slot is named Config_Filter and one character"), byCache});
        return;
    }
    int const number = filterNumberOf(object.read.name());
    CDriverCacheFilterItem const * const filter = cache.filter(guid, speaker, number);
    if (filter == nullptr) {
        changes.append({QStringLiteral("range"), limitsText(object.read), limitsText(object.made),
                        QStringLiteral("speaker %1 has no filter %2").arg(speaker.GetSpeakerId()).arg(number),
                        byCache});
        return;
    }
    QString const source =
        QStringLiteral("so says filter %1 of speaker %2").arg(filter->filterId()).arg(speaker.GetSpeakerId());
    changes.append({QStringLiteral("display sub name"), quoted(QString()),
                    quoted(object.made.displaySubName()), source, byCache});
    changes.append(
        {QStringLiteral("range"), limitsText(object.read), limitsText(object.made), source, byCache});
    if (object.made.objectType() != object.read.objectType())
        changes.append({QStringLiteral("type"), typeName(object.read), typeName(object.made),
                        object.made.objectType() == CObjectDef::ObjectTypeToggle
                            ? QStringLiteral("that range has two states")
                            : QStringLiteral("that range has more than two states"),
                        byCache});
}

void addCablefitCount(QVector<Change> & changes, InspectorCache & cache, ObjectStations const & object,
                      CDeviceChannelInfo const & speaker)
{
    QList<CSpeakerDef> definitions;
    cache.speakerDef(speaker.GetSpeakerId(), definitions, SpeakerDefCablefitMaxCount);
    QString const reason = definitions.isEmpty() ? QStringLiteral("%1 is not known")
                                                 : QStringLiteral("%1 has that Cablefit count");
    changes.append({QStringLiteral("maximum"), numberText(object.read.maxValue()),
                    numberText(object.made.maxValue()), reason.arg(speakerText(speaker, definitions)),
                    byCache});
    if (object.made.minValue() != object.read.minValue())
        changes.append({QStringLiteral("minimum"), numberText(object.read.minValue()),
                        numberText(object.made.minValue()), QStringLiteral("it cannot be above the maximum"),
                        byCache});
}

void addDelay(QVector<Change> & changes, InspectorCache & cache, ObjectStations const & object,
              CDeviceChannelInfo const & speaker)
{
    QList<CSpeakerDef> definitions;
    cache.speakerDef(speaker.GetSpeakerId(), definitions, SpeakerDefIsWFSetup);
    QString reason = QStringLiteral("%1 is not known");
    if (!definitions.isEmpty())
        reason = definitions.first().isWFSetup() ? QStringLiteral("%1 is a Wavefold setup")
                                                 : QStringLiteral("%1 is no Wavefold setup");
    changes.append({QStringLiteral("minimum"), numberText(object.made.minValue()),
                    numberText(object.given->minValue()), reason.arg(speakerText(speaker, definitions)),
                    byFacade});
}

} // namespace

QStringList missingColumns(ObjectRow const & row)
{
    QStringList missing;
    for (char const * name : otherColumns) {
        if (!row.has(QLatin1String(name)))
            missing.append(QLatin1String(name));
    }
    for (NumberColumn const & column : numberColumns) {
        bool const isOptional = QLatin1String(column.name) == QLatin1String("BoxNumber");
        if (!isOptional && !row.has(QLatin1String(column.name)))
            missing.append(QLatin1String(column.name));
    }
    return missing;
}

QVector<Change> changesOf(InspectorCache & cache, ObjectStations const & object, CDeviceGuid const & guid,
                          CDeviceChannelInfo const * channel)
{
    QVector<Change> changes;
    addNumbers(changes, object);
    addDefault(changes, object);
    bool const isOnSpeaker = channel != nullptr && channel->GetChannelType() == ChannelTypeSpeaker;
    if (isOnSpeaker && object.read.name().startsWith(filterPrefix))
        addFilter(changes, cache, object, guid, *channel);
    if (isOnSpeaker && object.read.name() == QLatin1String("Config_CablefitSpeakerCount"))
        addCablefitCount(changes, cache, object, *channel);
    if (object.made.step() != object.read.step())
        changes.append({QStringLiteral("step"), numberText(object.read.step()),
                        numberText(object.made.step()), QStringLiteral("flag 0x20 is set"), byCache});
    if (isOnSpeaker && object.given && object.read.name() == QLatin1String("ChStatus_MsDelay"))
        addDelay(changes, cache, object, *channel);
    return changes;
}

QString textOf(Change const & change)
{
    if (change.before == change.after)
        return QStringLiteral("%1 stays: %2").arg(change.before, change.reason);
    return QStringLiteral("%1 becomes %2: %3 (%4)")
        .arg(change.before, change.after, change.reason, QLatin1String(change.by));
}

QJsonObject jsonOf(Change const & change)
{
    return {{QStringLiteral("member"), change.member},
            {QStringLiteral("before"), change.before},
            {QStringLiteral("after"), change.after},
            {QStringLiteral("reason"), change.reason},
            {QStringLiteral("by"), QLatin1String(change.by)}};
}

} // namespace kestrova::inspector
