#include "databaseContent.h"

#include "sqlite.h"

#include "common/failure.h"
#include "hardening/boundedFunctions.h"
#include "hardening/boundedViews.h"
#include "hardening/statementBudget.h"

#include <QFileInfo>
#include <QStringList>
#include <QUrl>

using namespace kestrova::tools;

namespace kestrova::authoring {

namespace {

struct KnownTable {
    char const * name;
    char const * optionalColumn; ///< empty if there is none
};

constexpr KnownTable knownTables[] = {
    {"Version", ""},          {"Guids", "OnoType"},      {"Hardwaretypes", ""},
    {"Objects", "BoxNumber"}, {"guidsandobjects", ""},   {"ObjectClasses", ""},
    {"SpeakerClasses", ""},   {"Speakers", ""},          {"GuidsSpeakersFilters", ""},
    {"Filters", ""},          {"TextsObjectValues", ""}, {"DevicePropertyFilter", "Access"},
    {"SpeakerData", ""},
};

QVector<TableContent> absentTables()
{
    QVector<TableContent> tables;
    for (KnownTable const & known : knownTables) {
        TableContent table;
        table.name = QLatin1String(known.name);
        table.optionalColumn = QLatin1String(known.optionalColumn);
        tables.append(table);
    }
    return tables;
}

/// Immutable: SQLite looks for no journal, takes no lock and makes no file beside the database.
DatabaseHandle openForReading(QString const & path, char const * vfs)
{
    QByteArray const uri =
        "file:" + QUrl::toPercentEncoding(QFileInfo(path).absoluteFilePath()) + "?immutable=1";
    return openDatabase(uri.constData(), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, vfs);
}

QString troubleOf(DatabaseHandle const & database)
{
    return sqlite3_errcode(database.get()) == SQLITE_INTERRUPT
               ? QStringLiteral("reading it takes too long, as if it had no end; make it anew")
               : errorText(database);
}

/// The first row that a statement gives, each column as text. Throws Failure with the reason.
std::optional<QStringList> firstRow(DatabaseHandle const & database, QByteArray const & sql,
                                    QVector<QByteArray> const & arguments = {})
{
    sqlite3_stmt * handle = nullptr;
    int code = sqlite3_prepare_v2(database.get(), sql.constData(), -1, &handle, nullptr);
    StatementHandle const statement(handle);
    if (code != SQLITE_OK)
        throw Failure(ExitDatabase, troubleOf(database));
    for (int index = 0; index < arguments.size(); ++index)
        sqlite3_bind_text(handle, index + 1, arguments.at(index).constData(), -1, SQLITE_STATIC);
    code = sqlite3_step(handle);
    if (code == SQLITE_DONE)
        return {};
    if (code != SQLITE_ROW)
        throw Failure(ExitDatabase, troubleOf(database));
    QStringList row;
    for (int column = 0; column < sqlite3_column_count(handle); ++column)
        row.append(QString::fromUtf8(reinterpret_cast<char const *>(sqlite3_column_text(handle, column))));
    return row;
}

/// Holds the database to what the library holds it to, but for its settings.
void prepareForUntrustedFile(DatabaseHandle const & database)
{
    sqlite3 * const handle = database.get();
    firstRow(database, "PRAGMA trusted_schema = OFF");
    firstRow(database, "PRAGMA cell_size_check = ON");
    if (!hardening::boundFunctions(handle))
        throw Failure(ExitDatabase, errorText(database));
    hardening::holdToOpening(handle);
    firstRow(database, "SELECT 1 FROM sqlite_schema"); // says why it cannot be read
    if (!hardening::hasBoundedViews(handle))
        throw Failure(ExitDatabase,
                      QStringLiteral("its views have more than 32 KiB together; make them shorter"));
    if (!hardening::holdToBudget(handle))
        throw Failure(ExitDatabase, errorText(database));
    firstRow(database, "PRAGMA temp_store = MEMORY"); // a large sort would otherwise make a file
}

/// What SQLite finds wrong in the structure of the database; empty if it finds nothing.
QString structureTrouble(DatabaseHandle const & database)
{
    QString const finding =
        firstRow(database, "PRAGMA quick_check(1)").value_or(QStringList{QString()}).first();
    if (finding == QLatin1String("ok"))
        return {};
    return finding.section(QLatin1Char('\n'), -1); // a heading stands above it
}

void readTable(DatabaseHandle const & database, TableContent & table)
{
    QByteArray const name = table.name.toUtf8();
    table.isPresent =
        firstRow(database,
                 "SELECT 1 FROM sqlite_schema WHERE name = ?1 COLLATE NOCASE AND type IN ('table', 'view')",
                 {name})
            .has_value();
    if (!table.isPresent)
        return;
    table.hasOptionalColumn = firstRow(database, "SELECT 1 FROM pragma_table_info(?1) WHERE name = ?2",
                                       {name, table.optionalColumn.toUtf8()})
                                  .has_value();
    table.rows = firstRow(database, "SELECT count(*) FROM " + name).value().first().toLongLong();
}

QString readVersion(DatabaseHandle const & database)
{
    auto const row = firstRow(database, "SELECT * FROM Version");
    if (!row)
        return {};
    QStringList numbers;
    for (int column = 0; column < 3; ++column)
        numbers.append(QString::number(row->value(column).toLongLong()));
    return numbers.join(QLatin1Char('.'));
}

/// Runs \a read, and remembers what it fails with if nothing has failed before.
template <typename Read>
void attempt(QString & trouble, Read const & read)
{
    try {
        read();
    } catch (Failure const & failure) {
        if (trouble.isEmpty())
            trouble = QString::fromUtf8(failure.what());
    }
}

} // namespace

DatabaseContent readContent(QString const & path, char const * vfs)
{
    DatabaseContent content;
    content.tables = absentTables();
    attempt(content.trouble, [&] {
        DatabaseHandle const database = openForReading(path, vfs);
        prepareForUntrustedFile(database);
        attempt(content.trouble, [&] { content.trouble = structureTrouble(database); });
        content.pageSize = firstRow(database, "PRAGMA page_size").value().first().toInt();
        for (TableContent & table : content.tables)
            attempt(content.trouble, [&] { readTable(database, table); });
        if (content.tables.first().isPresent)
            content.version = readVersion(database);
    });
    return content;
}

} // namespace kestrova::authoring
