#include "command.h"
#include "deviceArgument.h"
#include "guidParts.h"
#include "inspector.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPair>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

/// Why a description stands for the GUID asked.
enum class Reason { Exact, NewestVisible, NoVisibleDescription, UnknownType };

struct Description {
    CDeviceGuid asked;
    CDeviceGuid found; ///< null when there is none
    Reason reason = Reason::UnknownType;
    QString model;
    QList<int> knownVersions; ///< all that are described, hidden ones too, ascending
    QList<int> hiddenVersions;
    bool newerThanAllKnown = false; ///< judged by the visible versions, as an application can
};

Reason reasonFor(Description const & description)
{
    if (!description.found.isNull())
        return description.found == description.asked ? Reason::Exact : Reason::NewestVisible;
    return description.knownVersions.isEmpty() ? Reason::UnknownType : Reason::NoVisibleDescription;
}

void readVersions(InspectorCache & cache, Description & description)
{
    for (CDeviceGuid const & guid : cache.descriptions().guids()) {
        if (typeOf(guid) != typeOf(description.asked))
            continue;
        description.knownVersions.append(versionOf(guid));
        if (cache.deviceGuidAccessLevel(guid) > cache.descriptions().currentAccessLevel())
            description.hiddenVersions.append(versionOf(guid));
    }
    std::sort(description.knownVersions.begin(), description.knownVersions.end());
    std::sort(description.hiddenVersions.begin(), description.hiddenVersions.end());
}

Description describe(InspectorCache & cache, CDeviceGuid const & asked)
{
    Description description;
    description.asked = asked;
    description.found = cache.determineDriverGuid(asked);
    cache.deviceTypeOnGuid(asked, description.model);
    readVersions(cache, description);
    description.reason = reasonFor(description);
    description.newerThanAllKnown =
        !description.found.isNull() && versionOf(asked) > cache.descriptions().maxVersion(asked);
    return description;
}

QString reasonName(Reason reason)
{
    switch (reason) {
    case Reason::Exact:
        return QStringLiteral("exact");
    case Reason::NewestVisible:
        return QStringLiteral("newest visible");
    case Reason::NoVisibleDescription:
    case Reason::UnknownType:
        break;
    }
    return QStringLiteral("none");
}

QString reasonText(Description const & description)
{
    switch (description.reason) {
    case Reason::Exact:
        return QStringLiteral("exact: this very version is described");
    case Reason::NewestVisible:
        return QStringLiteral("newest visible: version %1 is not described")
            .arg(versionOf(description.asked));
    case Reason::NoVisibleDescription:
        return QStringLiteral("none: every description of the type is above the access level");
    case Reason::UnknownType:
        break;
    }
    return QStringLiteral("none: no database describes the type");
}

QString versionsText(Description const & description)
{
    QStringList texts;
    for (int const version : description.knownVersions) {
        bool const hidden = description.hiddenVersions.contains(version);
        texts.append(QString::number(version) + (hidden ? QStringLiteral(" (hidden)") : QString()));
    }
    return texts.isEmpty() ? QStringLiteral("none") : texts.join(QStringLiteral(", "));
}

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

QJsonArray numbers(QList<int> const & values)
{
    QJsonArray array;
    for (int const value : values)
        array.append(value);
    return array;
}

QJsonObject asJson(InspectorCache & cache, Description const & description)
{
    QJsonObject json{{QStringLiteral("asked"), description.asked.toString()},
                     {QStringLiteral("type"), typeOf(description.asked)},
                     {QStringLiteral("version"), versionOf(description.asked)},
                     {QStringLiteral("reason"), reasonName(description.reason)},
                     {QStringLiteral("model"), description.model},
                     {QStringLiteral("knownVersions"), numbers(description.knownVersions)},
                     {QStringLiteral("hiddenVersions"), numbers(description.hiddenVersions)},
                     {QStringLiteral("newerThanAllKnown"), description.newerThanAllKnown}};
    if (!description.found.isNull()) {
        json.insert(QStringLiteral("description"), description.found.toString());
        json.insert(QStringLiteral("database"), cache.connectionName(description.found));
        json.insert(QStringLiteral("accessLevel"), int(cache.deviceGuidAccessLevel(description.found)));
        json.insert(QStringLiteral("baseGuid"), withVersion(description.found, 0).toString());
    }
    return json;
}

} // namespace

Answer deviceAnswer(Inspector & inspector, Arguments const & arguments)
{
    InspectorCache & cache = inspector.cache();
    Description const description = describe(cache, guidOfArgument(cache, arguments.words.first()));
    Answer answer;
    answer.text = asText(cache, description);
    answer.json = asJson(cache, description);
    if (description.found.isNull()) {
        answer.exitCode = ExitNotFound;
        answer.complaint = QStringLiteral("there is no description of %1 (%2)")
                               .arg(description.asked.toString(), reasonText(description));
    }
    return answer;
}

} // namespace kestrova::inspector
