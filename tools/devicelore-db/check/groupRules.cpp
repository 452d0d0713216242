#include "check/check.h"

#include "core/qt5Conversions.h"

#include <QSet>
#include <QSqlError>
#include <QSqlQuery>

namespace kestrova::authoring {

namespace {

void checkNames(Inspected const & inspected, Table const & groups, int row, QStringList const & names)
{
    QString const group = groups.text(row, "FilterName");
    QSet<QString> seen;
    for (QString const & name : names) {
        if (seen.contains(name)) {
            inspected.report("group-twice", groups, row, "Expression", group,
                             QStringLiteral("it holds \"%1\" twice").arg(name));
            continue;
        }
        seen.insert(name);
        if (!inspected.set.hasObject(name))
            inspected.report("group-name", groups, row, "Expression", group,
                             QStringLiteral("no object is named \"%1\"").arg(name));
    }
}

void checkGroup(Inspected const & inspected, Table const & groups, int row)
{
    QString const group = groups.text(row, "FilterName");
    QString const expression = groups.text(row, "Expression");
    if (groups.column(QStringLiteral("Access")) >= 0 && (groups.number(row, "Access") & 0xFF) == 0)
        inspected.report("group-level", groups, row, "Access", group, QStringLiteral("Access is 0"));
    QSqlQuery query(inspected.database.connection);
    query.setForwardOnly(true);
    // Qt complains of an empty statement itself.
    if (expression.trimmed().isEmpty() || !query.exec(expression)) {
        inspected.report("group-faulty", groups, row, "Expression", group,
                         expression.trimmed().isEmpty() ? QStringLiteral("there is no statement")
                                                        : query.lastError().databaseText());
        return;
    }
    QStringList names;
    while (query.next())
        names.append(qt5::toText(query.value(0)));
    checkNames(inspected, groups, row, names);
}

} // namespace

void checkGroups(Inspected const & inspected)
{
    Table const & groups = inspected.database.table("DevicePropertyFilter");
    for (int row = 0; row < groups.rowCount(); ++row)
        checkGroup(inspected, groups, row);
}

} // namespace kestrova::authoring
