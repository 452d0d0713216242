#include "command.h"
#include "inspector.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

Answer databasesAnswer(Inspector & inspector, Arguments const &)
{
    QList<CDriverDatabaseInfo> infos;
    inspector.facade().databaseInfos(infos);

    QVector<QStringList> rows;
    QJsonArray json;
    for (CDriverDatabaseInfo const & info : infos) {
        CVersionNumber const number = info.versionNumber();
        QString const version =
            QStringLiteral("%1.%2.%3").arg(number.major()).arg(number.minor()).arg(number.bugfix());
        rows.append({info.name(), version, info.filePath()});
        json.append(QJsonObject{{QStringLiteral("name"), info.name()},
                                {QStringLiteral("version"), version},
                                {QStringLiteral("file"), info.filePath()}});
    }
    Answer answer;
    answer.text =
        tableText({QStringLiteral("DATABASE"), QStringLiteral("VERSION"), QStringLiteral("FILE")}, rows);
    answer.json = json;
    return answer;
}

} // namespace kestrova::inspector
