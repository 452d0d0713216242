#pragma once

#include "support/program.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

/// How GoogleTest prints texts.
inline void PrintTo(QString const & text, std::ostream * stream)
{
    *stream << '"' << text.toStdString() << '"';
}

namespace kestrova::test {

constexpr qint64 pageSize = 4096; // of plain databases and of version 4

/// devicelore-db, run in a folder of its own.
class ToolFixture : public ::testing::Test {
protected:
    QString path(QString const & fileName) const { return folder.filePath(fileName); }

    /// Runs the tool in the folder. \a starter is a program, with arguments, that starts the tool in its
    /// turn.
    ProgramResult run(QStringList const & arguments, QStringList const & starter = {}) const;

    /// The arguments in one text, separated by blanks.
    ProgramResult run(char const * arguments) const;

    /// Runs the tool, which must succeed without a word.
    void make(char const * arguments) const;

    QByteArray content(QString const & fileName) const;
    void write(QString const & fileName, QByteArray const & content) const;

    /// Changes one byte of a file.
    void damage(QString const & fileName, qint64 offset) const;

    /// All names in the folder, hidden ones too, sorted and separated by blanks.
    std::string names() const;

    /// The rows that \a sql gives in a plain database, a line each, with "|" between the columns.
    std::string rows(QString const & fileName, QString const & sql) const;

    /// The same, with the database opened as applications open theirs.
    std::string rowsThroughCore(QString const & fileName, QString const & sql) const;

private:
    QTemporaryDir folder;
};

/// What starts a program so that the permissions of files hold for it, which they do not for root.
QStringList underPermissions();

} // namespace kestrova::test
