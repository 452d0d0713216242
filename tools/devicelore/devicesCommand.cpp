#include "command.h"
#include "guidParts.h"
#include "inspector.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

Answer devicesAnswer(Inspector & inspector, Arguments const &)
{
    InspectorCache & cache = inspector.cache();
    QList<CDeviceGuid> guids = cache.descriptions().guids();
    std::sort(guids.begin(), guids.end(), readsBefore);

    QVector<QStringList> rows;
    QJsonArray json;
    for (CDeviceGuid const & guid : guids) {
        QString model; // stays empty for a device without a description of version 0
        cache.deviceTypeOnGuid(guid, model);
        int const access = cache.deviceGuidAccessLevel(guid);
        bool const visible = access <= cache.descriptions().currentAccessLevel();
        QString const database = cache.connectionName(guid);
        rows.append({guid.toString(), model.isEmpty() ? QStringLiteral("-") : model,
                     QString::number(versionOf(guid)),
                     QString::number(access) + (visible ? QString() : QStringLiteral(" hidden")), database});
        json.append(QJsonObject{{QStringLiteral("guid"), guid.toString()},
                                {QStringLiteral("model"), model},
                                {QStringLiteral("type"), typeOf(guid)},
                                {QStringLiteral("version"), versionOf(guid)},
                                {QStringLiteral("accessLevel"), access},
                                {QStringLiteral("visible"), visible},
                                {QStringLiteral("onoType"), cache.descriptions().OnoType(guid)},
                                {QStringLiteral("database"), database}});
    }
    Answer answer;
    answer.text = tableText({QStringLiteral("GUID"), QStringLiteral("MODEL"), QStringLiteral("VERSION"),
                             QStringLiteral("ACCESS"), QStringLiteral("DATABASE")},
                            rows);
    answer.json = json;
    return answer;
}

} // namespace kestrova::inspector
