#include "check/check.h"

#include "cache/databaseAccess.h"

#include <QSet>
#include <QSqlError>
#include <QSqlQuery>

#include <sqlite3.h>

#include <utility>

using namespace kestrova::Morvel::Devicelore;

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

QString reasonOf(QSqlError const & error)
{
    if (error.nativeErrorCode() == QString::number(SQLITE_MISUSE)) // of which SQLite says "not an error"
        return QStringLiteral("nothing may stand behind the first statement");
    return error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
}

/// Runs the statement as the library does. Why it fails; empty if it does not.
QString troubleOf(QSqlQuery & query, QString const & expression)
{
    if (expression.trimmed().isEmpty()) // of which Qt would complain
        return QStringLiteral("there is no statement");
    return executeWhole(query, expression) ? QString() : reasonOf(query.lastError());
}

void checkGroup(Inspected const & inspected, Table const & groups, int row)
{
    QString const group = groups.text(row, "FilterName");
    QString const expression = groups.text(row, "Expression");
    if (groups.column(QStringLiteral("Access")) >= 0 && (groups.number(row, "Access") & 0xFF) == 0)
        inspected.report("group-level", groups, row, "Access", group, QStringLiteral("Access is 0"));
    QSqlQuery query(inspected.database.connection);
    QString const trouble = troubleOf(query, expression);
    if (trouble.isEmpty())
        checkNames(inspected, groups, row, firstColumn(std::move(query)));
    else
        inspected.report("group-faulty", groups, row, "Expression", group, trouble);
}

} // namespace

void checkGroups(Inspected const & inspected)
{
    Table const & groups = inspected.database.table("DevicePropertyFilter");
    for (int row = 0; row < groups.rowCount(); ++row)
        checkGroup(inspected, groups, row);
}

} // namespace kestrova::authoring
