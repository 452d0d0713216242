#pragma once

#include <QByteArray>
#include <QString>

namespace kestrova::test {

/// What lies on the disk while a program is in the middle of a change to a plain sample database.
struct UnfinishedChange {
    QByteArray database;
    QByteArray log; ///< the -journal or the -wal
};

/// The change's rollback journal is hot: whoever opens the database normally rolls the change back first.
/// \a workPath is the path of a file to work on.
UnfinishedChange changeWithHotJournal(QString const & workPath);

/// A row more than the sample, number 3001, stands in the write-ahead log only.
UnfinishedChange changeInWriteAheadLog(QString const & workPath);

} // namespace kestrova::test
