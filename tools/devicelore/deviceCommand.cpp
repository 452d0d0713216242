#include "command.h"
#include "description.h"
#include "deviceArgument.h"
#include "guidParts.h"
#include "inspector.h"

#include <QPair>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

QString modelText(Description const & description)
{
    if (!description.model.isEmpty())
        return description.model;
    return description.knownVersions.contains(0) ? QStringLiteral("unknown")
                                                 : QStringLiteral("unknown: no description of version 0");
}

QString asText(InspectorCache & cache, Description const & description)
{
    QVector<QPair<QString, QString>> fields;
    fields.append({QStringLiteral("asked"), QStringLiteral("%1 (type %2, version %3)")
                                                .arg(description.asked.toString())
                                                .arg(typeOf(description.asked))
                                                .arg(versionOf(description.asked))});
    fields.append({QStringLiteral("description"),
                   description.found.isNull() ? QStringLiteral("none") : description.found.toString()});
    fields.append({QStringLiteral("why"), reasonText(description)});
    fields.append({QStringLiteral("model"), modelText(description)});
    if (!description.found.isNull()) {
        fields.append({QStringLiteral("database"), cache.connectionName(description.found)});
        fields.append({QStringLiteral("access level"),
                       QString::number(cache.deviceGuidAccessLevel(description.found))});
        fields.append({QStringLiteral("base GUID"), withVersion(description.found, 0).toString()});
    }
    fields.append({QStringLiteral("known versions"), versionsText(description)});
    fields.append({QStringLiteral("newer than all known"),
                   description.newerThanAllKnown ? QStringLiteral("yes") : QStringLiteral("no")});
    return fieldsText(fields);
}

} // namespace

Answer deviceAnswer(Inspector & inspector, Arguments const & arguments)
{
    InspectorCache & cache = inspector.cache();
    Description const description = describe(cache, guidOfArgument(cache, arguments.words.first()));
    Answer answer;
    answer.text = asText(cache, description);
    answer.json = jsonOf(cache, description);
    if (description.found.isNull()) {
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("there is no description of %1 (%2)")
                               .arg(description.asked.toString(), reasonText(description));
    }
    return answer;
}

} // namespace kestrova::inspector
