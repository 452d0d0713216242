#include "connectionFixture.h"
#include "folderSnapshot.h"
#include "sampleDatabase.h"
#include "unfinishedChange.h"

#include <QFile>
#include <QSqlDatabase>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace kestrova::test {

namespace {

class UntouchedFolder : public ConnectionFixture {
protected:
    QString const file = path(QStringLiteral("sample.db3"));

    void readEverything()
    {
        EXPECT_EQ(ask(QStringLiteral("SELECT count(*), sum(id), max(name) FROM Names")),
                  "3000|4501500|name of 999");
        EXPECT_EQ(ask(QStringLiteral("PRAGMA integrity_check")), "ok");
    }

    /// Opens, reads and closes the sample and finds the folder unchanged at each step.
    void expectUntouchedByReading()
    {
        std::string const before = snapshotOf(folder.path());
        ASSERT_TRUE(open(file));
        EXPECT_EQ(snapshotOf(folder.path()), before);
        readEverything();
        EXPECT_EQ(snapshotOf(folder.path()), before);
        QSqlDatabase::removeDatabase(QStringLiteral("test"));
        EXPECT_EQ(snapshotOf(folder.path()), before);
        EXPECT_EQ(messages(), "");
    }
};

TEST_F(UntouchedFolder, WhenADatabaseIsRead)
{
    makeEncryptedSample(file);
    expectUntouchedByReading();
}

TEST_F(UntouchedFolder, WhenAHotJournalLiesBesideTheDatabase)
{
    makeEncryptedSample(file);
    writeContent(file + QStringLiteral("-journal"), changeWithHotJournal(path(QStringLiteral("work"))).log);
    expectUntouchedByReading();
}

TEST_F(UntouchedFolder, WhenAWriteAheadLogLiesBesideTheDatabase)
{
    makeEncryptedSample(file);
    writeContent(file + QStringLiteral("-wal"), changeInWriteAheadLog(path(QStringLiteral("work"))).log);
    expectUntouchedByReading();
}

TEST_F(UntouchedFolder, WhenTheFolderIsWriteProtected)
{
    makeEncryptedSample(file);
    QFile::setPermissions(file, QFile::ReadOwner);
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    expectUntouchedByReading();
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

class WritingStatement : public UntouchedFolder, public ::testing::WithParamInterface<char const *> {};

TEST_P(WritingStatement, FailsAndChangesNothing)
{
    makeEncryptedSample(file);
    std::string const before = snapshotOf(folder.path());
    ASSERT_TRUE(open(file));
    QString const sql = QString::fromLatin1(GetParam()).replace(QStringLiteral("FOLDER"), folder.path());
    EXPECT_EQ(ask(sql), "error");
    EXPECT_EQ(snapshotOf(folder.path()), before);
    readEverything();
}

INSTANTIATE_TEST_SUITE_P(Statements, WritingStatement,
                         ::testing::Values("INSERT INTO Names VALUES (3001, 'name of 3001')",
                                           "UPDATE Names SET name = 'other'",
                                           "DELETE FROM Names WHERE id = 1", "CREATE TABLE Other (a)",
                                           "DROP TABLE Names", "ANALYZE", "VACUUM",
                                           "VACUUM INTO 'FOLDER/copy.db3'", "REINDEX",
                                           "PRAGMA user_version = 7", "ATTACH 'FOLDER/new.db3' AS other",
                                           "ATTACH 'file:FOLDER/new.db3?mode=rwc' AS other"));

class HarmlessStatement : public UntouchedFolder, public ::testing::WithParamInterface<char const *> {};

TEST_P(HarmlessStatement, ChangesNothing)
{
    makeEncryptedSample(file);
    std::string const before = snapshotOf(folder.path());
    ASSERT_TRUE(open(file));
    ask(QString::fromLatin1(GetParam()));
    EXPECT_EQ(snapshotOf(folder.path()), before);
    readEverything();
    EXPECT_EQ(snapshotOf(folder.path()), before);
}

INSTANTIATE_TEST_SUITE_P(Statements, HarmlessStatement,
                         ::testing::Values("PRAGMA journal_mode = WAL", "PRAGMA journal_mode = PERSIST",
                                           "PRAGMA journal_mode = MEMORY", "PRAGMA locking_mode = EXCLUSIVE",
                                           "PRAGMA mmap_size = 1000000000", "PRAGMA page_size = 1024",
                                           "PRAGMA wal_checkpoint", "PRAGMA optimize", "BEGIN EXCLUSIVE",
                                           "CREATE TEMP TABLE Other AS SELECT * FROM Names"));

class LargeSort : public UntouchedFolder {
protected:
    /// Sorts more rows than fit into the cache, in a process that may not write to any file.
    bool succeedsWithoutWriting()
    {
        pid_t const child = fork();
        if (child == 0) {
            rlimit const nothing = {0, 0};
            setrlimit(RLIMIT_FSIZE, &nothing);
            std::signal(SIGXFSZ, SIG_IGN); // so that a write fails instead of ending the process
            std::string const sorted = ask(QStringLiteral(
                "SELECT count(*) FROM (SELECT a.name || b.name || a.name AS text FROM Names a JOIN Names b "
                "ON b.id <= 30 ORDER BY text LIMIT -1 OFFSET 1)"));
            _exit(sorted == "89999" ? 0 : 1);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
};

TEST_F(LargeSort, WritesNoTemporaryFile)
{
    makeEncryptedSample(file);
    ASSERT_TRUE(open(file));
    EXPECT_TRUE(succeedsWithoutWriting());
    sqlite3_set_authorizer(handle(), nullptr, nullptr); // which refuses the next statement
    ask(QStringLiteral("PRAGMA temp_store = FILE"));
    EXPECT_FALSE(succeedsWithoutWriting()); // so the sort is large enough to show the difference
}

} // namespace

} // namespace kestrova::test
