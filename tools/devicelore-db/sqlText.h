#pragma once

#include <QByteArray>
#include <QString>

namespace kestrova::authoring {

/// The content of the plain SQLite file that the statements of \a sql make. The statements reach no other
/// file. Throws Failure with ExitDatabase that names \a name, the line and what SQLite says of it.
QByteArray databaseFromSql(QByteArray const & sql, QString const & name);

} // namespace kestrova::authoring
