#pragma once

#include "sqlcipher/databaseKey.h"
#include "sqlcipher/pageFormat.h"

#include <QByteArray>
#include <QString>

namespace kestrova::test {

/// The key of this build with one bit changed.
sqlcipher::Key wrongKey();

/// SQL text of the sample: a table Names of 3000 rows (id from 1, name "name of <id>", indexed), and a table
/// Blobs of one row (id 1) with the letters AB 10000 times, which run over several pages.
QString sampleSql();

void makePlainSample(QString const & path);

/// A plain sample with \a reserve bytes free at the end of each page.
void makeReservedSample(QString const & path, int pageSize, int reserve);

/// Makes the encrypted database \a path from \a sql, a text of any number of statements.
void makeEncryptedDatabase(QString const & path, QString const & sql,
                           sqlcipher::PageFormat const & format = sqlcipher::version4,
                           sqlcipher::Key const & key = sqlcipher::databaseKey);

/// Version 4 unless told otherwise. More than 20 pages in either version.
void makeEncryptedSample(QString const & path, sqlcipher::PageFormat const & format = sqlcipher::version4,
                         sqlcipher::Key const & key = sqlcipher::databaseKey);

/// Makes the encrypted file \a path from the bytes of a plain database as they are, with the salt
/// "0123456789abcdef".
void encryptPages(QString const & path, QByteArray const & plain, sqlcipher::PageFormat const & format);

/// The sample in version 3 as newer SQLCipher tools write it: its header reserves 80 bytes a page, as version
/// 4 needs, and 48 are used.
void makeSampleOfCompatibilityMode(QString const & path);

/// The sample with the first 32 bytes of its header left plain, as the setting cipher_plaintext_header_size =
/// 32 leaves them.
void makeSampleOfPlainHeader(QString const & path, sqlcipher::PageFormat const & format);

/// Puts \a bytes at \a offset of the header of an encrypted database. Its first page stays authentic.
void changeHeader(QString const & path, sqlcipher::PageFormat const & format, int offset,
                  QByteArray const & bytes);

/// The same ones in every run.
QByteArray randomBytes(int count);

QByteArray contentOf(QString const & path);
void writeContent(QString const & path, QByteArray const & content);

} // namespace kestrova::test
