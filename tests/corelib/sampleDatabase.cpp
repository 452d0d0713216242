#include "sampleDatabase.h"

#include "sqlcipher/databaseFile.h"
#include "support/sqlFile.h"

#include <QFile>

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
