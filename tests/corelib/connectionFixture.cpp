#include "connectionFixture.h"

#include "core/encryptedDatabase.h"

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

namespace kestrova::test {

ConnectionFixture::~ConnectionFixture()
{
    auto const names = QSqlDatabase::connectionNames();
    for (QString const & name : names)
        QSqlDatabase::removeDatabase(name);
}

bool ConnectionFixture::open(QString const & filePath, QString const & connectionName)
{
    return Solvane::OpenEncryptedSqliteDatabase(filePath, connectionName);
}

std::string ConnectionFixture::ask(QString const & sql, QString const & connectionName)
{
    QSqlQuery query(QSqlDatabase::database(connectionName));
    query.setForwardOnly(true);
    if (!query.exec(sql))
        return "error";
    QStringList lines;
    while (query.next()) {
        QStringList columns;
        for (int i = 0; i < query.record().count(); ++i)
            columns += query.value(i).toString();
        lines += columns.join(QLatin1Char('|'));
    }
    return query.lastError().isValid() ? "error" : lines.join(QLatin1Char('\n')).toStdString();
}

std::string ConnectionFixture::refusalOf(QString const & sql, QString const & connectionName)
{
    sqlite3 * const database = handle(connectionName);
    sqlite3_stmt * statement = nullptr;
    int const prepared = sqlite3_prepare_v2(database, sql.toUtf8().constData(), -1, &statement, nullptr);
    std::string const words = prepared == SQLITE_OK ? "" : sqlite3_errmsg(database);
    sqlite3_finalize(statement);
    return words;
}

sqlite3 * ConnectionFixture::handle(QString const & connectionName)
{
    return *static_cast<sqlite3 * const *>(
        QSqlDatabase::database(connectionName, false).driver()->handle().constData());
}

} // namespace kestrova::test
