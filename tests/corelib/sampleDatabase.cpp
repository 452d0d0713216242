#include "sampleDatabase.h"

#include "sqlcipher/bytes.h"
#include "sqlcipher/databaseFile.h"
#include "sqlcipher/pageCodec.h"
#include "support/sqlFile.h"

#include <QFile>

#include <openssl/evp.h>
#include <sqlite3.h>

#include <algorithm>
#include <random>
#include <stdexcept>

namespace kestrova::test {

sqlcipher::Key wrongKey()
{
    sqlcipher::Key key = sqlcipher::databaseKey;
    key[31] ^= 1;
    return key;
}

QString sampleSql()
{
    return QStringLiteral(
        "CREATE TABLE Names (id INTEGER PRIMARY KEY, name TEXT);"
        "WITH RECURSIVE counter (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM counter WHERE i < 3000)"
        "  INSERT INTO Names SELECT i, 'name of ' || i FROM counter;"
        "CREATE INDEX NamesByName ON Names (name);"
        "CREATE TABLE Blobs (id INTEGER PRIMARY KEY, data BLOB);"
        "INSERT INTO Blobs VALUES (1, CAST(replace(hex(zeroblob(10000)), '00', 'AB') AS BLOB));");
}

void makePlainSample(QString const & path)
{
    makeSqlFile(path, sampleSql());
}

void makeEncryptedDatabase(QString const & path, QString const & sql, sqlcipher::PageFormat const & format,
                           sqlcipher::Key const & key)
{
    QString const plain = path + QStringLiteral(".plain");
    makeSqlFile(plain, sql);
    sqlcipher::encryptDatabase(plain, path, format, key);
    QFile::remove(plain);
}

void makeEncryptedSample(QString const & path, sqlcipher::PageFormat const & format,
                         sqlcipher::Key const & key)
{
    makeEncryptedDatabase(path, sampleSql(), format, key);
}

void makeReservedSample(QString const & path, int pageSize, int reserve)
{
    makePlainSample(path);
    sqlite3 * database = nullptr;
    bool const isMade =
        sqlite3_open(path.toUtf8().constData(), &database) == SQLITE_OK &&
        sqlite3_exec(database, ("PRAGMA page_size = " + QByteArray::number(pageSize)).constData(), nullptr,
                     nullptr, nullptr) == SQLITE_OK &&
        sqlite3_file_control(database, "main", SQLITE_FCNTL_RESERVE_BYTES, &reserve) == SQLITE_OK &&
        sqlite3_exec(database, "VACUUM", nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(database);
    if (!isMade)
        throw std::runtime_error("cannot make " + path.toStdString());
}

void encryptPages(QString const & path, QByteArray const & plain, sqlcipher::PageFormat const & format)
{
    sqlcipher::Salt salt;
    std::copy_n("0123456789abcdef", salt.size(), salt.begin());
    sqlcipher::PageCodec codec(format, sqlcipher::databaseKey, salt);
    QByteArray stored(plain.size(), '\0');
    for (int number = 1; number <= plain.size() / format.pageSize; ++number) {
        int const start = (number - 1) * format.pageSize;
        codec.encrypt(static_cast<quint32>(number), sqlcipher::bytesOf(plain) + start,
                      reinterpret_cast<unsigned char *>(stored.data()) + start);
    }
    writeContent(path, stored);
}

void makeSampleOfCompatibilityMode(QString const & path)
{
    QString const plain = path + QStringLiteral(".plain");
    makeReservedSample(plain, sqlcipher::version3.pageSize, 80);
    encryptPages(path, contentOf(plain), sqlcipher::version3);
    QFile::remove(plain);
}

void makeSampleOfPlainHeader(QString const & path, sqlcipher::PageFormat const & format)
{
    QString const plainPath = path + QStringLiteral(".plain");
    makeReservedSample(plainPath, format.pageSize, format.reserve);
    QByteArray const plain = contentOf(plainPath);
    QFile::remove(plainPath);
    encryptPages(path, plain, format);
    QByteArray stored = contentOf(path);
    constexpr int plainBytes = 32;
    int const end = format.pageSize - format.reserve;
    stored.replace(0, plainBytes, plain.left(plainBytes));
    int written = 0;
    EVP_CIPHER_CTX * const context = EVP_CIPHER_CTX_new();
    EVP_CipherInit_ex(context, EVP_aes_256_cbc(), nullptr, sqlcipher::databaseKey.data(),
                      sqlcipher::bytesOf(stored) + end, 1);
    EVP_CIPHER_CTX_set_padding(context, 0);
    EVP_CipherUpdate(context, reinterpret_cast<unsigned char *>(stored.data()) + plainBytes, &written,
                     sqlcipher::bytesOf(plain) + plainBytes, end - plainBytes);
    EVP_CIPHER_CTX_free(context);
    writeContent(path, stored);
}

void changeHeader(QString const & path, sqlcipher::PageFormat const & format, int offset,
                  QByteArray const & bytes)
{
    QByteArray content = contentOf(path);
    sqlcipher::Salt salt;
    std::copy_n(content.constBegin(), salt.size(), salt.begin());
    sqlcipher::PageCodec codec(format, sqlcipher::databaseKey, salt);
    QByteArray plain(format.pageSize, '\0');
    codec.decrypt(1, sqlcipher::bytesOf(content), reinterpret_cast<unsigned char *>(plain.data()));
    plain.replace(offset, bytes.size(), bytes);
    codec.encrypt(1, sqlcipher::bytesOf(plain), reinterpret_cast<unsigned char *>(content.data()));
    writeContent(path, content);
}

QByteArray randomBytes(int count)
{
    std::mt19937 generator(1); // NOLINT(cert-msc51-cpp): the same bytes in every run
    QByteArray bytes(count, '\0');
    for (char & byte : bytes)
        byte = static_cast<char>(generator());
    return bytes;
}

QByteArray contentOf(QString const & path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

void writeContent(QString const & path, QByteArray const & content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

} // namespace kestrova::test
