#pragma once

#include "check/check.h"

#include "support/databaseFolder.h"
#include "support/qtPrint.h"

#include <QStringList>

namespace kestrova::test {

/// A folder of databases that has nothing wrong, until a test breaks it.
class DescriptionWorld {
public:
    /// a.db3, with \a change behind the good statements.
    explicit DescriptionWorld(QString const & change = {});

    DescriptionWorld & add(QString const & fileName, QString const & sql);
    DescriptionWorld & addWithoutStatistics(QString const & fileName, QString const & sql);
    DescriptionWorld & addDspData(QString const & sql);
    DescriptionWorld & addFile(QString const & fileName, QByteArray const & content);

    QString path() const;

    QVector<authoring::Finding> findings() const;

    /// "file, table, column, subject: message [rule]" of each finding.
    QStringList findingLines() const;

private:
    DatabaseFolder folder;
};

} // namespace kestrova::test
