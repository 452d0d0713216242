#include "command.h"
#include "outputFile.h"
#include "sqlText.h"

#include <QFile>
#include <QFileInfo>

namespace kestrova::authoring {

namespace {

constexpr qint64 largestText = 500'000'000; // the database is made in memory

QByteArray readSqlFile(QString const & path)
{
    QFileInfo const info(path);
    if (!info.exists())
        throw Failure(ExitNotFound, QStringLiteral("there is no file '%1'").arg(path));
    if (!info.isFile())
        throw Failure(ExitUsage,
                      QStringLiteral("'%1' is not a file; name a text of SQL statements").arg(path));
    if (info.size() > largestText)
        throw Failure(ExitDatabase,
                      QStringLiteral("'%1' is larger than %2 MB; split the work with the sqlite3 tool")
                          .arg(path, QString::number(largestText / 1'000'000)));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(ExitDatabase, QStringLiteral("cannot read '%1': %2").arg(path, file.errorString()));
    return file.readAll();
}

QByteArray readSchema()
{
    QFile file(QStringLiteral(":/schema.sql")); // compiled in
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

} // namespace

Answer newDatabase(ParsedArguments const & arguments)
{
    QString const & path = arguments.words.first();
    checkOutput(path, arguments.isSet("force"));
    if (arguments.isSet("sql"))
        writeFile(path, databaseFromSql(readSqlFile(arguments.value("sql")), arguments.value("sql")));
    else
        writeFile(path, databaseFromSql(readSchema(), QStringLiteral("schema.sql")));
    return {};
}

} // namespace kestrova::authoring
