#include "description.h"

#include "guidParts.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

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

QJsonArray numbers(QList<int> const & values)
{
    QJsonArray array;
    for (int const value : values)
        array.append(value);
    return array;
}

} // namespace

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

QJsonObject jsonOf(InspectorCache & cache, Description const & description)
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

} // namespace kestrova::inspector
