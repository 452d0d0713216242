#pragma once

#include <QByteArray>
#include <QString>

namespace kestrova::authoring {

/// Throws Failure with ExitUsage when the file \a path must not be written: it is there already and \a force
/// is not given, or it is something else than a file.
void checkOutput(QString const & path, bool force);

/// Writes the file \a path whole or not at all. Throws Failure with ExitDatabase.
void writeFile(QString const & path, QByteArray const & content);

} // namespace kestrova::authoring
