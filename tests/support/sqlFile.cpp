#include "support/sqlFile.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

namespace kestrova::test {

void makeSqlFile(QString const & path, QString const & sql)
{
    sqlite3 * handle = nullptr;
    // SQLite leaves a file without content empty. Nothing here need survive a power failure.
    QByteArray const statements =
        "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA user_version = 1;" + sql.toUtf8();
    int const opened = sqlite3_open(path.toUtf8().constData(), &handle);
    std::unique_ptr<sqlite3, decltype(&sqlite3_close)> const database(handle, sqlite3_close);
    if (opened != SQLITE_OK ||
        sqlite3_exec(handle, statements.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(path.toStdString() + ": " + sqlite3_errmsg(handle));
}

QString viewsWithinViews(int count)
{
    QString sql = QStringLiteral("CREATE TABLE v0 (a); INSERT INTO v0 VALUES (7);");
    for (int i = 1; i <= count; ++i)
        sql += QStringLiteral("CREATE VIEW v%1 AS SELECT * FROM v%2;").arg(i).arg(i - 1);
    return sql;
}

} // namespace kestrova::test
