#pragma once

#include "support/messageRecorder.h"

#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

namespace kestrova::test {

/// A folder for database files, and connections that are gone after the test.
class ConnectionFixture : public ::testing::Test {
protected:
    ~ConnectionFixture() override;

    QString path(QString const & fileName) const { return folder.path() + QLatin1Char('/') + fileName; }

    /// Opens the file with the function under test.
    static bool open(QString const & filePath, QString const & connectionName = QStringLiteral("test"));

    /// The rows that \a sql gives on the connection, a line each, with "|" between the columns; "error" when
    /// the statement fails at its start or on the way.
    static std::string ask(QString const & sql, QString const & connectionName = QStringLiteral("test"));

    /// SQLite's own words for the failure of \a sql when it is prepared; empty when it does not fail.
    static std::string refusalOf(QString const & sql,
                                 QString const & connectionName = QStringLiteral("test"));

    /// SQLite's own handle of the connection.
    static sqlite3 * handle(QString const & connectionName = QStringLiteral("test"));

    /// What Qt's message logger was given since the start of the test.
    std::string messages() const { return recorder.messages().join(QLatin1Char('\n')).toStdString(); }

    QTemporaryDir folder;

private:
    MessageRecorder recorder;
};

} // namespace kestrova::test
