#include "toolFixture.h"

#include "core/encryptedDatabase.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <unistd.h>

#include <stdexcept>

namespace kestrova::test {

namespace {

QString const connectionName = QStringLiteral("devicelore-db-test");

QString rowText(QSqlQuery const & query)
{
    QStringList cells;
    for (int column = 0; column < query.record().count(); ++column)
        cells.append(query.value(column).toString());
    return cells.join(QLatin1Char('|'));
}

QString rowsOnConnection(QString const & sql)
{
    QSqlQuery query(QSqlDatabase::database(connectionName));
    query.exec(sql);
    QStringList lines;
    while (query.next())
        lines.append(rowText(query));
    if (query.lastError().isValid())
        return query.lastError().text();
    return lines.join(QLatin1Char('\n'));
}

std::string rowsAndClose(QString const & sql)
{
    QString const result = rowsOnConnection(sql);
    QSqlDatabase::removeDatabase(connectionName);
    return result.toStdString();
}

std::runtime_error fileError(QFile const & file)
{
    return std::runtime_error((file.fileName() + QStringLiteral(": ") + file.errorString()).toStdString());
}

} // namespace

ProgramResult ToolFixture::run(QStringList const & arguments, QStringList const & starter) const
{
    return runProgram(QStringLiteral("env"), QStringList{QStringLiteral("-C"), folder.path()} + starter +
                                                 QStringList{QStringLiteral(KESTROVA_TOOL)} + arguments);
}

ProgramResult ToolFixture::run(char const * arguments) const
{
    return run(QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

void ToolFixture::make(char const * arguments) const
{
    ProgramResult const result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << arguments;
    EXPECT_EQ(result.output, QString()) << arguments;
    EXPECT_EQ(result.messages, QString()) << arguments;
}

QByteArray ToolFixture::content(QString const & fileName) const
{
    QFile file(path(fileName));
    if (!file.open(QIODevice::ReadOnly))
        throw fileError(file);
    return file.readAll();
}

void ToolFixture::write(QString const & fileName, QByteArray const & content) const
{
    QFile file(path(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw fileError(file);
}

void ToolFixture::damage(QString const & fileName, qint64 offset) const
{
    QFile file(path(fileName));
    char byte = 0;
    if (!file.open(QIODevice::ReadWrite) || !file.seek(offset) || !file.getChar(&byte) ||
        !file.seek(offset) || !file.putChar(static_cast<char>(byte ^ 0x10)))
        throw fileError(file);
}

std::string ToolFixture::names() const
{
    auto const filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return QDir(folder.path()).entryList(filters, QDir::Name).join(QLatin1Char(' ')).toStdString();
}

std::string ToolFixture::rows(QString const & fileName, QString const & sql) const
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        database.setDatabaseName(path(fileName));
        if (!database.open())
            throw std::runtime_error(database.lastError().text().toStdString());
    }
    return rowsAndClose(sql);
}

std::string ToolFixture::rowsThroughCore(QString const & fileName, QString const & sql) const
{
    if (!Solvane::OpenEncryptedSqliteDatabase(path(fileName), connectionName))
        throw std::runtime_error("does not open: " + fileName.toStdString());
    return rowsAndClose(sql);
}

QStringList underPermissions()
{
    if (geteuid() != 0)
        return {};
    return {QStringLiteral("setpriv"), QStringLiteral("--bounding-set=-dac_override,-dac_read_search")};
}

} // namespace kestrova::test
