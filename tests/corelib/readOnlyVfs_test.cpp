#include "sampleDatabase.h"

#include "sqlcipher/readOnlyVfs.h"

#include <sqlite3.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

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
    ASSERT_STREQ(name, "kestrova-readonly");
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

} // namespace

} // namespace kestrova::test
