#include "sqlcipher/databaseFile.h"

#include "sqlcipher/bytes.h"
#include "sqlcipher/firstPage.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QUrl>

#include <openssl/rand.h>
#include <sqlite3.h>

#include <memory>

namespace kestrova::sqlcipher {

namespace {

/// A SQLite connection for the work on one plain file.
class Connection {
public:
    Connection(QString const & file, QString const & uriParameters, int flags)
        : path(file)
    {
        QByteArray const uri =
            "file:" + QUrl::toPercentEncoding(QFileInfo(file).absoluteFilePath()) + uriParameters.toUtf8();
        sqlite3 * handle = nullptr;
        int const opened = sqlite3_open_v2(uri.constData(), &handle, flags | SQLITE_OPEN_URI, nullptr);
        database.reset(handle);
        check(opened);
    }

    void execute(QByteArray const & sql)
    {
        check(sqlite3_exec(database.get(), sql.constData(), nullptr, nullptr, nullptr));
    }

    void reserveBytes(int count)
    {
        check(sqlite3_file_control(database.get(), "main", SQLITE_FCNTL_RESERVE_BYTES, &count));
    }

    void vacuumInto(QString const & target)
    {
        std::unique_ptr<char, decltype(&sqlite3_free)> const sql(
            sqlite3_mprintf("VACUUM INTO %Q", QFileInfo(target).absoluteFilePath().toUtf8().constData()),
            sqlite3_free);
        execute(sql.get());
    }

private:
    void check(int code)
    {
        if (code != SQLITE_OK)
            throw DatabaseFileError(QStringLiteral("%1: %2; check the database with the sqlite3 tool.")
                                        .arg(path, QString::fromUtf8(sqlite3_errmsg(database.get()))));
    }

    struct Close {
        void operator()(sqlite3 * handle) const { sqlite3_close(handle); }
    };

    QString path;
    std::unique_ptr<sqlite3, Close> database;
};

QString cannotWrite(QString const & path, QString const & reason)
{
    return QStringLiteral("%1 cannot be written (%2); check the folder's permissions and space.")
        .arg(path, reason);
}

void requireDifferentFiles(QString const & source, QString const & target)
{
    if (QFileInfo(source) == QFileInfo(target))
        throw DatabaseFileError(QStringLiteral("%1 would replace itself; name another file.").arg(source));
}

/// A journal or write-ahead log with a first byte other than 0 belongs to a transaction that is not in the
/// file yet.
void requireNoUnfinishedChanges(QString const & path)
{
    for (char const * const suffix : {"-journal", "-wal"}) {
        QFile file(path + QLatin1String(suffix));
        char firstByte = 0;
        if (file.open(QIODevice::ReadOnly) && file.getChar(&firstByte) && firstByte != 0)
            throw DatabaseFileError(
                QStringLiteral("%1 has changes waiting in %2; close the program that works on it, "
                               "or open and close it once with the sqlite3 tool.")
                    .arg(path, file.fileName()));
    }
}

/// Makes \a copy, an empty file, a compacted copy whose pages have the size and the free bytes of \a format.
void copyForEncryption(QString const & plainPath, QString const & copy, PageFormat const & format)
{
    // Immutable: not even a lock or a shared-memory file comes to lie beside the source.
    Connection(plainPath, QStringLiteral("?immutable=1"), SQLITE_OPEN_READONLY).vacuumInto(copy);

    Connection target(copy, QString(), SQLITE_OPEN_READWRITE);
    target.execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA temp_store = MEMORY");
    target.execute("ANALYZE"); // the planner chooses far better indexes with statistics
    target.execute("PRAGMA page_size = " + QByteArray::number(format.pageSize));
    target.reserveBytes(format.reserve); // in this order: setting the page size resets the reserve
    target.execute("VACUUM");
}

void requireLayout(QByteArray const & start, QString const & plainPath, PageFormat const & format)
{
    auto const header = start.size() < static_cast<int>(databaseHeaderSize)
                            ? std::nullopt
                            : readDatabaseHeader(bytesOf(start));
    if (!header || header->pageSize != format.pageSize || header->reserve != format.reserve)
        throw DatabaseFileError(
            QStringLiteral("%1 cannot take the page layout of version %2; dump it as SQL and make "
                           "it anew with the sqlite3 tool.")
                .arg(plainPath, QString::number(format.version)));
}

using PageConversion = bool (PageCodec::*)(quint32, unsigned char const *, unsigned char *);

/// Writes \a pageCount pages of \a source, each converted, to the file \a targetPath.
void convertPages(QFile & source, qint64 pageCount, PageCodec & codec, PageConversion convert,
                  QString const & targetPath, Progress const & progress)
{
    QSaveFile target(targetPath);
    if (!target.open(QIODevice::WriteOnly))
        throw DatabaseFileError(cannotWrite(targetPath, target.errorString()));
    int const pageSize = codec.format().pageSize;
    QByteArray converted(pageSize, '\0');
    for (qint64 number = 1; number <= pageCount; ++number) {
        QByteArray const page = source.read(pageSize);
        if (page.size() != pageSize || !(codec.*convert)(static_cast<quint32>(number), bytesOf(page),
                                                         reinterpret_cast<unsigned char *>(converted.data())))
            throw DatabaseFileError(QStringLiteral("%1 cannot be converted in page %2; try again.")
                                        .arg(source.fileName(), QString::number(number)));
        if (target.write(converted) != pageSize)
            throw DatabaseFileError(cannotWrite(targetPath, target.errorString()));
        if (progress)
            progress(number, pageCount);
    }
    if (!target.commit())
        throw DatabaseFileError(cannotWrite(targetPath, target.errorString()));
}

Salt randomSalt()
{
    Salt salt;
    if (RAND_bytes(salt.data(), saltSize) != 1)
        throw DatabaseFileError(QStringLiteral("The system gives no random numbers; try again."));
    return salt;
}

} // namespace

void encryptDatabase(QString const & plainPath, QString const & encryptedPath, PageFormat const & format,
                     Key const & key, Progress const & progress)
{
    Inspection const source = inspectDatabase(plainPath, key);
    if (source.state == FileState::Encrypted)
        throw DatabaseFileError(
            QStringLiteral("%1 is encrypted already; name a plain database.").arg(plainPath));
    if (source.state != FileState::Plain)
        throw DatabaseFileError(source.message);
    requireDifferentFiles(plainPath, encryptedPath);
    requireNoUnfinishedChanges(plainPath);

    QTemporaryFile copy(encryptedPath + QStringLiteral(".XXXXXX"));
    if (!copy.open())
        throw DatabaseFileError(cannotWrite(encryptedPath, copy.errorString()));
    copyForEncryption(plainPath, copy.fileName(), format);
    requireLayout(copy.peek(largestPageSize), plainPath, format);

    PageCodec codec(format, key, randomSalt());
    convertPages(copy, copy.size() / format.pageSize, codec, &PageCodec::encrypt, encryptedPath, progress);
}

void decryptDatabase(QString const & encryptedPath, QString const & plainPath, Key const & key,
                     Progress const & progress)
{
    Inspection const source = inspectDatabase(encryptedPath, key);
    if (source.state == FileState::Plain)
        throw DatabaseFileError(QStringLiteral("%1 is a plain database already.").arg(encryptedPath));
    if (source.state != FileState::Encrypted)
        throw DatabaseFileError(source.message);
    requireDifferentFiles(encryptedPath, plainPath);

    QFile file(encryptedPath);
    if (!file.open(QIODevice::ReadOnly))
        throw DatabaseFileError(
            QStringLiteral("%1 cannot be read (%2).").arg(encryptedPath, file.errorString()));
    QByteArray const start = file.peek(largestPageSize);
    auto const firstPage = readFirstPage(bytesOf(start), start.size(), key);
    if (!firstPage || !firstPage->codec)
        throw DatabaseFileError(QStringLiteral("%1 has changed meanwhile; try again.").arg(encryptedPath));
    convertPages(file, source.pageCount, *firstPage->codec, &PageCodec::decrypt, plainPath, progress);
}

} // namespace kestrova::sqlcipher
