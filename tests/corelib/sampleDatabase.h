#pragma once

#include "sqlcipher/databaseKey.h"

#include <QString>

namespace kestrova::test {

/// The key of this build with one bit changed.
sqlcipher::Key wrongKey();

/// SQL text of the sample: a table Names of 3000 rows (id from 1, name "name of <id>", indexed), and a table
/// Blobs of one row (id 1) with the letters AB 10000 times, which run over several pages.
QString sampleSql();

void makePlainSample(QString const & path);

/// Makes the encrypted database \a path from \a sql, a text of any number of statements.
void makeEncryptedDatabase(QString const & path, QString const & sql,
                           sqlcipher::PageFormat const & format = sqlcipher::version4,
                           sqlcipher::Key const & key = sqlcipher::databaseKey);

/// Version 4 unless told otherwise. More than 20 pages in either version.
void makeEncryptedSample(QString const & path, sqlcipher::PageFormat const & format = sqlcipher::version4,
                         sqlcipher::Key const & key = sqlcipher::databaseKey);

QByteArray contentOf(QString const & path);
void writeContent(QString const & path, QByteArray const & content);

} // namespace kestrova::test
