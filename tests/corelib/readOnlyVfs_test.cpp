#include "sampleDatabase.h"

#include "sqlcipher/readOnlyFile.h"
#include "sqlcipher/readOnlyVfs.h"

#include <sqlite3.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrova::test {

namespace {

int openWithVfs(QString const & path, int flags)
{
    sqlite3 * handle = nullptr;
    int const opened = sqlite3_open_v2(path.toUtf8().constData(), &handle, flags, sqlcipher::readOnlyVfs());
    sqlite3_close(handle);
    return opened;
}

TEST(ReadOnlyVfs, IsRegisteredUnderItsNameAndNotAsTheDefault)
{
    char const * const name = sqlcipher::readOnlyVfs();
    EXPECT_EQ(std::string(name).rfind("kestrova-readonly-", 0), 0U) << name;
    EXPECT_NE(sqlite3_vfs_find(name), nullptr);
    EXPECT_STRNE(sqlite3_vfs_find(nullptr)->zName, name);
}

TEST(ReadOnlyVfs, OpensDatabasesForReadingOnly)
{
    QTemporaryDir const folder;
    QString const file = folder.filePath(QStringLiteral("sample.db3"));
    makeEncryptedSample(file);
    EXPECT_EQ(openWithVfs(file, SQLITE_OPEN_READONLY), SQLITE_OK);
    EXPECT_EQ(openWithVfs(file, SQLITE_OPEN_READWRITE), SQLITE_CANTOPEN);
    EXPECT_EQ(openWithVfs(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE), SQLITE_CANTOPEN);
}

TEST(ReadOnlyVfs, HidesAWriteAheadLogAndShowsEveryOtherVersionOfTheFormat)
{
    struct Row {
        char const * name;
        QByteArray stored; ///< versions for writing and for reading, at offset 18 of the header
        char const * shown;
    };

    Row const rows[] = {
        {"a rollback journal", QByteArray("\1\1", 2), "0101"},
        {"a write-ahead log", QByteArray("\2\2", 2), "0101"},
        {"a log for reading only", QByteArray("\1\2", 2), "0101"},
        {"a log for writing only", QByteArray("\2\1", 2), "0101"},
        {"none", QByteArray("\0\0", 2), "0000"},
        {"of a later SQLite", QByteArray("\3\3", 2), "0303"},
    };
    QTemporaryDir const folder;
    QString const path = folder.filePath(QStringLiteral("sample.db3"));
    for (Row const & row : rows) {
        SCOPED_TRACE(row.name);
        makeEncryptedSample(path);
        changeHeader(path, sqlcipher::version4, 18, row.stored);
        sqlcipher::ReadOnlyFile file(*sqlite3_vfs_find(nullptr));
        ASSERT_EQ(file.open(path.toUtf8().constData(), SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_READONLY),
                  SQLITE_OK);
        QByteArray shown(2, '\xFF');
        ASSERT_EQ(file.read(reinterpret_cast<unsigned char *>(shown.data()), 2, 18), SQLITE_OK);
        EXPECT_EQ(shown.toHex().toStdString(), row.shown);
    }
}

TEST(ReadOnlyVfs, OpensNoTemporaryFilesAndDeletesNothing)
{
    QTemporaryDir const folder;
    QByteArray const path = folder.filePath(QStringLiteral("temporary")).toUtf8();
    sqlite3_vfs * const vfs = sqlite3_vfs_find(sqlcipher::readOnlyVfs());
    std::vector<char> memory(static_cast<std::size_t>(vfs->szOsFile));
    auto * const handle = reinterpret_cast<sqlite3_file *>(memory.data());
    for (int const kind : {SQLITE_OPEN_TEMP_DB, SQLITE_OPEN_TRANSIENT_DB, SQLITE_OPEN_MAIN_JOURNAL,
                           SQLITE_OPEN_TEMP_JOURNAL, SQLITE_OPEN_SUBJOURNAL, SQLITE_OPEN_WAL}) {
        int const flags = kind | SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
        EXPECT_EQ(vfs->xOpen(vfs, path.constData(), handle, flags, nullptr), SQLITE_CANTOPEN) << kind;
        EXPECT_EQ(handle->pMethods, nullptr);
    }
    EXPECT_FALSE(QFile::exists(QString::fromUtf8(path)));

    QFile file(QString::fromUtf8(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(vfs->xDelete(vfs, path.constData(), 0), SQLITE_IOERR_DELETE);
    EXPECT_TRUE(file.exists());
}

} // namespace

} // namespace kestrova::test
