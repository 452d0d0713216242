#include "nearMisses.h"

#include "descriptionRows.h"
#include "guidParts.h"
#include "rawValue.h"

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::inspector {

namespace {

/// A row of Objects with all devices that it is linked to.
struct LinkedRow {
    QString id;
    QString name;
    QStringList guids;
};

QVector<LinkedRow> linkedRows(QString const & database, ObjectQuestion const & question)
{
    QVector<LinkedRow> rows;
    for (ObjectLink const & link : linksOfObject(database, question)) {
        if (rows.isEmpty() || rows.last().id != link.id)
            rows.append({link.id, link.name, {}});
        if (!link.guid.isNull())
            rows.last().guids.append(link.guid);
    }
    return rows;
}

QString shortList(QStringList const & texts)
{
    int const shown = 4;
    QStringList list;
    for (QString const & text : texts.mid(0, shown))
        list.append(printable(text));
    int const hidden = static_cast<int>(texts.size()) - shown;
    QString const joined = list.join(QStringLiteral(", "));
    return hidden > 0 ? QStringLiteral("%1 and %2 more").arg(joined).arg(hidden) : joined;
}

QStringList ofSameType(QStringList const & guids, CDeviceGuid const & guid)
{
    QStringList same;
    for (QString const & text : guids) {
        if (typeOf(CDeviceGuid(text)) == typeOf(guid))
            same.append(text);
    }
    return same;
}

QString linkText(LinkedRow const & row, CDeviceGuid const & guid)
{
    if (row.guids.isEmpty())
        return QStringLiteral("is linked to no device");
    if (row.guids.contains(guid.toString(), Qt::CaseInsensitive))
        return QStringLiteral("is linked to %1, but GUIDs are asked for in upper case")
            .arg(guid.toString().toLower());
    QStringList const versions = ofSameType(row.guids, guid);
    if (!versions.isEmpty())
        return QStringLiteral("is linked to other versions: %1").arg(shortList(versions));
    return QStringLiteral("is linked to other devices: %1").arg(shortList(row.guids));
}

QString nearMiss(LinkedRow const & row, CDeviceGuid const & guid, ObjectQuestion const & question)
{
    QString const subject = QStringLiteral("row %1, %2, ").arg(printable(row.id), quoted(row.name));
    bool const isLinked = row.guids.contains(guid.toString());
    QString text = isLinked ? QString() : linkText(row, guid);
    if (!question.number && row.name != question.name)
        text += (isLinked ? QString() : QStringLiteral("; and it ")) +
                QStringLiteral("differs in upper and lower case");
    return subject + text;
}

} // namespace

QStringList nearMisses(InspectorCache & cache, CDeviceGuid const & guid, ObjectQuestion const & question)
{
    QString const asked = cache.connectionName(guid);
    QStringList misses;
    for (LinkedRow const & row : linkedRows(asked, question))
        misses.append(nearMiss(row, guid, question));
    for (QString const & other : cache.databases()) { // in the one that is asked there is none
        if (!objectRows(other, guid, question).rows.isEmpty())
            misses.append(QStringLiteral("%1 has the object for %2, but %3 describes that GUID")
                              .arg(other, guid.toString(), asked));
    }
    return misses;
}

} // namespace kestrova::inspector
