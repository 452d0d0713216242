#include "unfinishedChange.h"

#include "sampleDatabase.h"

#include <sqlite3.h>

#include <QFile>

#include <memory>
#include <stdexcept>

namespace kestrova::test {

namespace {

/// Runs \a sql on a fresh plain sample and takes the files as they are then, before anything is closed.
UnfinishedChange filesAfter(char const * sql, QString const & workPath, QString const & logSuffix)
{
    QFile::remove(workPath);
    makePlainSample(workPath);
    sqlite3 * handle = nullptr;
    sqlite3_open(workPath.toUtf8().constData(), &handle);
    std::unique_ptr<sqlite3, decltype(&sqlite3_close)> const database(handle, sqlite3_close);
    if (sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(handle));
    return {contentOf(workPath), contentOf(workPath + logSuffix)};
}

} // namespace

UnfinishedChange changeWithHotJournal(QString const & workPath)
{
    // So small a cache overflows: changed pages reach the file before the end of the transaction.
    return filesAfter("PRAGMA cache_size = 5; BEGIN; UPDATE Names SET name = 'changed ' || id", workPath,
                      QStringLiteral("-journal"));
}

UnfinishedChange changeInWriteAheadLog(QString const & workPath)
{
    return filesAfter("PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0;"
                      "INSERT INTO Names VALUES (3001, 'name of 3001')",
                      workPath, QStringLiteral("-wal"));
}

} // namespace kestrova::test
