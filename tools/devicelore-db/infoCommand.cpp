#include "command.h"
#include "databaseContent.h"
#include "longWork.h"

#include "sqlcipher/inspection.h"
#include "sqlcipher/pageFormat.h"
#include "sqlcipher/readOnlyVfs.h"

#include <QJsonObject>

#include <algorithm>

using namespace kestrova::sqlcipher;

namespace kestrova::authoring {

namespace {

/// All that is known of a file.
struct FileInfo {
    QString path;
    Inspection inspection;
    DatabaseContent content; ///< empty when the file cannot be opened

    bool isGood() const { return inspection.isGood() && content.trouble.isEmpty(); }
};

QString stateName(FileState state)
{
    switch (state) {
    case FileState::Plain:
        return QStringLiteral("plain");
    case FileState::Encrypted:
        return QStringLiteral("encrypted");
    case FileState::Missing:
        return QStringLiteral("missing");
    case FileState::NotAFile:
        return QStringLiteral("not a file");
    case FileState::Unreadable:
        return QStringLiteral("unreadable");
    case FileState::Empty:
        return QStringLiteral("empty");
    case FileState::NotADatabase:
        return QStringLiteral("not a database");
    case FileState::OtherSettings:
        return QStringLiteral("other settings");
    case FileState::WrongKey:
        return QStringLiteral("wrong key");
    case FileState::DamagedPage:
        return QStringLiteral("damaged");
    case FileState::CutShort:
        return QStringLiteral("cut short");
    }
    return {};
}

FileInfo examine(QString const & path)
{
    LongWork work(QStringLiteral("checking"));
    FileInfo file{path, inspectDatabase(path, databaseKey, work.progress()), {}};
    // A damaged page does not keep the tables on other pages from being counted.
    if (file.inspection.isGood() || file.inspection.state == FileState::DamagedPage)
        file.content = readContent(path, file.inspection.version == 0 ? nullptr : readOnlyVfs());
    return file;
}

/// Why the file is no good; empty if it is good.
QString reason(FileInfo const & file)
{
    if (!file.inspection.isGood())
        return file.inspection.message;
    if (file.content.trouble.isEmpty())
        return {};
    return QStringLiteral("%1 cannot be used: %2").arg(file.path, file.content.trouble);
}

QString stateText(Inspection const & inspection)
{
    QString state = stateName(inspection.state);
    if (inspection.version != 0)
        state += QStringLiteral(", format version %1").arg(inspection.version);
    return state;
}

/// Empty when the file reserves what its format uses, as most do.
QString reserveText(Inspection const & inspection)
{
    auto const format =
        std::find_if(pageFormats.begin(), pageFormats.end(),
                     [&](PageFormat const & candidate) { return candidate.version == inspection.version; });
    if (format == pageFormats.end() || inspection.reserve <= format->reserve)
        return {};
    return QStringLiteral("%1 bytes a page, of which the format uses %2")
        .arg(inspection.reserve)
        .arg(format->reserve);
}

QString factsText(FileInfo const & file)
{
    QVector<QPair<QString, QString>> facts{{QStringLiteral("file"), file.path},
                                           {QStringLiteral("state"), stateText(file.inspection)}};
    if (file.content.pageSize > 0)
        facts.append({QStringLiteral("page size"), QString::number(file.content.pageSize)});
    if (QString const reserve = reserveText(file.inspection); !reserve.isEmpty())
        facts.append({QStringLiteral("reserved"), reserve});
    if (file.inspection.pageCount > 0)
        facts.append({QStringLiteral("pages"), QString::number(file.inspection.pageCount)});
    if (file.content.pageSize > 0)
        facts.append({QStringLiteral("version"),
                      file.content.version.isNull() ? QStringLiteral("none") : file.content.version});
    return fieldsText(facts);
}

QString rowsText(TableContent const & table)
{
    if (!table.isPresent)
        return QStringLiteral("-");
    return table.rows ? QString::number(*table.rows) : QStringLiteral("unreadable");
}

QString variantText(TableContent const & table)
{
    if (!table.isPresent || table.optionalColumn.isEmpty())
        return {};
    return QStringLiteral("%1 %2").arg(
        table.hasOptionalColumn ? QStringLiteral("with") : QStringLiteral("without"), table.optionalColumn);
}

QString contentText(DatabaseContent const & content)
{
    QVector<QStringList> rows;
    for (TableContent const & table : content.tables)
        rows.append({table.name, rowsText(table), variantText(table)});
    return tableText({QStringLiteral("TABLE"), QStringLiteral("ROWS"), QStringLiteral("VARIANT")}, rows);
}

QJsonObject contentJson(DatabaseContent const & content)
{
    QJsonObject tables;
    for (TableContent const & table : content.tables) {
        QJsonObject entry{{QStringLiteral("present"), table.isPresent},
                          {QStringLiteral("rows"), table.rows ? QJsonValue(*table.rows) : QJsonValue()}};
        if (!table.optionalColumn.isEmpty())
            entry.insert(table.optionalColumn, table.hasOptionalColumn);
        tables.insert(table.name, entry);
    }
    return tables;
}

QJsonObject asJson(FileInfo const & file)
{
    return {{QStringLiteral("file"), file.path},
            {QStringLiteral("good"), file.isGood()},
            {QStringLiteral("state"), stateName(file.inspection.state)},
            {QStringLiteral("reason"), reason(file)},
            {QStringLiteral("formatVersion"), file.inspection.version},
            {QStringLiteral("pageSize"), file.content.pageSize},
            {QStringLiteral("reserve"), file.inspection.reserve},
            {QStringLiteral("pages"), file.inspection.pageCount},
            {QStringLiteral("damagedPage"), file.inspection.damagedPage},
            {QStringLiteral("version"), file.content.version},
            {QStringLiteral("tables"), contentJson(file.content)}};
}

} // namespace

Answer info(ParsedArguments const & arguments)
{
    FileInfo const file = examine(arguments.words.first());
    Answer answer;
    answer.text = factsText(file);
    if (file.content.pageSize > 0)
        answer.text += QLatin1Char('\n') + contentText(file.content);
    answer.json = asJson(file);
    if (!file.isGood()) {
        answer.exitCode = ExitDatabase;
        answer.complaint = reason(file);
    }
    return answer;
}

} // namespace kestrova::authoring
