#pragma once

#include <QDir>
#include <QString>
#include <QTemporaryDir>

namespace kestrova::test {

/// A temporary folder of databases.
class DatabaseFolder {
public:
    DatabaseFolder();

    /// Makes the plain database \a fileName from SQL text.
    DatabaseFolder & add(QString const & fileName, QString const & sql);

    /// Makes a file of any content.
    DatabaseFolder & addFile(QString const & fileName, QByteArray const & content);

    QString path(QString const & fileName) const;

    /// The folder as the facade looks at the application's own.
    QDir dir() const;

private:
    QTemporaryDir folder;
};

} // namespace kestrova::test
