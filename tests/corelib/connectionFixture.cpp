#include "connectionFixture.h"

#include "core/encryptedDatabase.h"

#include <QSqlDatabase>
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

} // namespace kestrova::test
