#include "check/check.h"
#include "check/columns.h"
#include "core/qt5Conversions.h"

#include <QSqlQuery>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrova::authoring {

namespace {

Place placeOf(Inspected const & inspected, Table const & table, QString const & column = {})
{
    return {inspected.database.file, table.name, 0, column, {}};
}

void checkTable(Inspected const & inspected, Table const & table)
{
    if (table.spelledName != table.name)
        inspected.findings.add("name-case", placeOf(inspected, table), table.spelledName,
                               QStringLiteral("the table is spelled \"%1\" here").arg(table.spelledName));
    if (!table.trouble.isEmpty())
        inspected.findings.add("damaged-table", placeOf(inspected, table), {}, table.trouble);
}

void reportMissing(Inspected const & inspected, Table const & table, KnownColumn const & known)
{
    QString const name = QLatin1String(known.name);
    if (known.need == Need::Statement)
        inspected.findings.add("column-missing", placeOf(inspected, table, name), {},
                               QStringLiteral("there is no column %1").arg(name));
    else if (known.need == Need::Row)
        inspected.findings.add("object-column-missing", placeOf(inspected, table, name), {},
                               QStringLiteral("there is no column %1").arg(name));
}

void checkColumn(Inspected const & inspected, Table const & table, KnownColumn const & known)
{
    if (known.need == Need::Position)
        return;
    QString const name = QLatin1String(known.name);
    int const position = table.column(name);
    if (position < 0) {
        reportMissing(inspected, table, known);
        return;
    }
    QString const & spelled = table.columns.at(position);
    if (spelled == name)
        return;
    bool const isCompared = known.need == Need::Row || known.need == Need::Optional;
    inspected.findings.add(isCompared ? "column-case" : "name-case", placeOf(inspected, table, name), spelled,
                           QStringLiteral("the column %1 is spelled \"%2\" here").arg(name, spelled));
}

void checkLanguages(Inspected const & inspected)
{
    Table const & texts = inspected.database.table("TextsObjectValues");
    QString const firstLanguage = QStringLiteral("TextShort_en_US");
    if (texts.isPresent() && texts.trouble.isEmpty() && texts.column(firstLanguage) < 0)
        inspected.findings.add("texts-language", placeOf(inspected, texts, firstLanguage), {},
                               QStringLiteral("there is no column TextShort_en_US"));
}

/// A column of the rows of a statement, with a value for its question mark if it has one.
QVector<QVariant> columnOf(Inspected const & inspected, QString const & statement, int column,
                           QVariant const & bound = {})
{
    QSqlQuery query(inspected.database.connection);
    query.setForwardOnly(true);
    QVector<QVariant> values;
    query.prepare(statement);
    if (bound.isValid())
        query.bindValue(0, bound);
    if (!query.exec())
        return values;
    while (query.next())
        values.append(query.value(column));
    return values;
}

QString quoted(QString name)
{
    return QStringLiteral("\"%1\"").arg(name.replace(QLatin1Char('"'), QLatin1String("\"\"")));
}

/// The ways to look for rows of a table: by its key, and by each of its indexes.
QStringList waysInto(Inspected const & inspected, Table const & table)
{
    QStringList ways{QString()};
    for (QVariant const & index :
         columnOf(inspected, QStringLiteral("PRAGMA index_list(%1)").arg(quoted(table.name)), 1))
        ways.append(QStringLiteral("INDEXED BY ") + quoted(qt5::toText(index)));
    return ways;
}

/// Whether SQLite can find the rows by that way. It is asked itself, with each index in turn: an index with a
/// condition, on an expression or with another collation than the column has does not serve, and among all of
/// them SQLite may leave a good one aside in a table as small as it is now.
bool finds(Inspected const & inspected, Table const & table, QString const & way, char const * column)
{
    QString const plan = QStringLiteral("EXPLAIN QUERY PLAN SELECT * FROM %1 %2 WHERE %3 = ?");
    QVector<QVariant> const steps =
        columnOf(inspected, plan.arg(quoted(table.name), way, QLatin1String(column)), 3, QStringLiteral("x"));
    return !steps.isEmpty() && qt5::toText(steps.first()).startsWith(QLatin1String("SEARCH"));
}

bool hasIndex(Inspected const & inspected, Table const & table, KnownIndex const & known)
{
    QStringList const ways = waysInto(inspected, table);
    return std::any_of(known.columns.begin(), known.columns.end(), [&](char const * column) {
        return std::any_of(ways.begin(), ways.end(),
                           [&](QString const & way) { return finds(inspected, table, way, column); });
    });
}

bool isView(Inspected const & inspected, Table const & table)
{
    QString const statement =
        QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'view' AND name = '%1' COLLATE NOCASE");
    return !columnOf(inspected, statement.arg(table.name), 0).isEmpty();
}

/// The columns of an index that the table can have: older databases lack BoxNumber.
QString columnsOf(Table const & table, KnownIndex const & known)
{
    QStringList columns;
    for (char const * const column : known.columns) {
        if (table.column(QLatin1String(column)) >= 0)
            columns.append(QLatin1String(column));
    }
    return columns.join(QStringLiteral(", "));
}

void checkIndexes(Inspected const & inspected)
{
    for (KnownIndex const & known : knownIndexes()) {
        Table const & table = inspected.database.table(known.table);
        if (table.rowCount() == 0 || isView(inspected, table) || hasIndex(inspected, table, known))
            continue;
        QString const columns = columnsOf(table, known);
        Place place = placeOf(inspected, table);
        place.subject = columns;
        inspected.findings.add(
            "index-missing", place, {},
            QStringLiteral("CREATE INDEX %1 ON %2 (%3)").arg(QLatin1String(known.name), table.name, columns));
    }
}

void checkStatistics(Inspected const & inspected)
{
    auto const & tables = inspected.database.tables;
    bool const isEmpty = std::all_of(tables.begin(), tables.end(), [](Table const & table) {
        return table.rowCount() == 0 || table.name == QLatin1String("Version"); // which every database has
    });
    QString const statement = QStringLiteral("SELECT 1 FROM sqlite_stat1 LIMIT 1");
    if (!isEmpty && columnOf(inspected, statement, 0).isEmpty())
        inspected.findings.add("statistics-missing", {inspected.database.file, {}, 0, {}, {}}, {},
                               QStringLiteral("ANALYZE has not been run"));
}

// --- Values ---

struct ColumnBounds {
    double lowest;
    double highest;
};

ColumnBounds boundsOf(Reading reading)
{
    switch (reading) {
    case Reading::Unsigned8:
    case Reading::FilterKey:
        return {0, 255};
    case Reading::Unsigned16:
        return {0, 65535};
    case Reading::Unsigned32:
        return {0, 4294967295.0};
    case Reading::Int:
    case Reading::FilterNumber:
        return {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    default:
        return {-std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    }
}

bool isDeliberatelyNoFilter(Reading reading, QVariant const & value)
{
    bool const isFilter = reading == Reading::FilterNumber || reading == Reading::FilterKey;
    return isFilter && qt5::toText(value) == QLatin1String("---");
}

/// The rule that a value breaks; null when it breaks none.
char const * brokenRule(QVariant const & value, KnownColumn const & known)
{
    if (qt5::isNull(value))
        return "null-value";
    bool isNumber = false;
    double const number = qt5::toDouble(value, &isNumber);
    bool const isWhole = known.reading != Reading::Real;
    if (isNumber && isWhole && value.userType() == QMetaType::QString)
        value.toString().toLongLong(&isNumber); // a text is read as a whole number, or as 0
    if (!isNumber || value.userType() == QMetaType::QByteArray)
        return "not-a-number";
    ColumnBounds const bounds = boundsOf(known.reading);
    if (number < bounds.lowest || number > bounds.highest)
        return "number-cut";
    if (isWhole && number != std::floor(number)) {
        bool const isLimitOfFilter = QLatin1String(known.table) == QLatin1String("Filters");
        return isLimitOfFilter ? "filter-fraction" : "number-fraction";
    }
    return nullptr;
}

QString messageOf(QVariant const & value, KnownColumn const & known)
{
    if (qt5::isNull(value))
        return QStringLiteral("%1 is NULL").arg(QLatin1String(known.name));
    QString is = QStringLiteral("%1 is %2").arg(QLatin1String(known.name), shownValue(value));
    switch (known.reading) {
    case Reading::Unsigned8:
    case Reading::FilterKey:
        return QStringLiteral("%1; 0 to 255 fit").arg(is);
    case Reading::Unsigned16:
        return QStringLiteral("%1; 0 to 65535 fit").arg(is);
    default:
        return is;
    }
}

void checkColumnValues(Inspected const & inspected, Table const & table, KnownColumn const & known)
{
    bool const isByPosition = known.need == Need::Position;
    int const column = isByPosition ? known.position : table.column(QLatin1String(known.name));
    if (column < 0 || column >= table.columns.size())
        return;
    int const rows = isByPosition ? std::min(1, table.rowCount()) : table.rowCount();
    for (int row = 0; row < rows; ++row) {
        QVariant const & value = table.value(row, column);
        if (isDeliberatelyNoFilter(known.reading, value))
            continue;
        if (char const * const rule = brokenRule(value, known))
            inspected.findings.add(rule,
                                   {inspected.database.file, table.name, table.rowNumber(row),
                                    QLatin1String(known.name), subjectOf(table, row)},
                                   shownValue(value), messageOf(value, known));
    }
}

} // namespace

void checkSchema(Inspected const & inspected)
{
    QStringList checked;
    for (KnownColumn const & known : knownColumns()) {
        Table const & table = inspected.database.table(known.table);
        if (!table.isPresent())
            continue;
        if (!checked.contains(table.name))
            checkTable(inspected, table);
        checked.append(table.name);
        if (!table.columns.isEmpty())
            checkColumn(inspected, table, known);
    }
    checkLanguages(inspected);
    checkIndexes(inspected);
    checkStatistics(inspected);
}

void checkValues(Inspected const & inspected)
{
    for (KnownColumn const & known : knownColumns()) {
        if (known.reading != Reading::Text && known.reading != Reading::Bytes)
            checkColumnValues(inspected, inspected.database.table(known.table), known);
    }
}

} // namespace kestrova::authoring
