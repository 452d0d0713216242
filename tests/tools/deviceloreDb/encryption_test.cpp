#include "toolFixture.h"

#include "sqlcipher/databaseFile.h"

#include "support/sqlFile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <csignal>

using namespace kestrova::test;

namespace {

/// A database with every kind of value, among them a blob with every byte.
QString sampleSql()
{
    QString allBytes;
    for (int byte = 0; byte < 256; ++byte)
        allBytes += QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0'));
    return QStringLiteral(
               "CREATE TABLE T (id INTEGER PRIMARY KEY, value); CREATE INDEX TByValue ON T (value);"
               "INSERT INTO T (value) VALUES (NULL), (-9223372036854775808), (0.1), ('Größe'), (''), (x'%1'),"
               "                             (zeroblob(70000));"
               "CREATE TABLE \"odd name\" (a); INSERT INTO \"odd name\" VALUES ('x'), ('y');"
               "CREATE VIEW V AS SELECT id FROM T;")
        .arg(allBytes);
}

QString const allRowsSql = QStringLiteral("SELECT id, typeof(value), quote(value) FROM T "
                                          "UNION ALL SELECT rowid, 'odd', a FROM \"odd name\" ORDER BY 2, 1");

QString const schemaSql =
    QStringLiteral("SELECT type, name, sql FROM sqlite_schema WHERE name NOT LIKE 'sqlite_stat%' "
                   "ORDER BY type, name");

struct Encryption : ToolFixture {
    Encryption() { makeSqlFile(path(QStringLiteral("plain.db")), sampleSql()); }
};

} // namespace

TEST_F(Encryption, MakesAFileThatApplicationsOpen)
{
    make("encrypt plain.db out.db3");
    EXPECT_EQ(names(), "out.db3 plain.db");
    EXPECT_EQ(rowsThroughCore(QStringLiteral("out.db3"), QStringLiteral("SELECT count(*) FROM T")), "7");
    EXPECT_EQ(
        rowsThroughCore(QStringLiteral("out.db3"), QStringLiteral("SELECT hex(value) FROM T WHERE id = 4")),
        "4772C3B6C39F65");
    EXPECT_EQ(rowsThroughCore(QStringLiteral("out.db3"), allRowsSql),
              rows(QStringLiteral("plain.db"), allRowsSql));
}

TEST_F(Encryption, HidesTheContent)
{
    make("encrypt plain.db out.db3");
    EXPECT_TRUE(content(QStringLiteral("plain.db")).contains("odd name"));
    QByteArray const encrypted = content(QStringLiteral("out.db3"));
    EXPECT_FALSE(encrypted.contains("odd name"));
    EXPECT_FALSE(encrypted.startsWith("SQLite format 3"));
}

TEST_F(Encryption, AddsStatistics)
{
    make("encrypt plain.db out.db3");
    EXPECT_EQ(rowsThroughCore(QStringLiteral("out.db3"),
                              QStringLiteral("SELECT tbl, idx, stat FROM sqlite_stat1 ORDER BY tbl DESC")),
              "odd name||2\nT|TByValue|7 1");
    EXPECT_EQ(
        rows(QStringLiteral("plain.db"), QStringLiteral("SELECT count(*) FROM sqlite_schema WHERE name LIKE "
                                                        "'sqlite_stat%'")),
        "0");
}

TEST_F(Encryption, WritesTheFormatAskedFor)
{
    struct Row {
        char const * arguments;
        char const * state;
    };

    Row const rows[] = {
        {"encrypt --force plain.db out.db3", "\nstate      encrypted, format version 4\npage size  4096\n"},
        {"encrypt --force --format 4 plain.db out.db3",
         "\nstate      encrypted, format version 4\npage size  4096\n"},
        {"encrypt --force --format 3 plain.db out.db3",
         "\nstate      encrypted, format version 3\npage size  1024\n"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        make(row.arguments);
        EXPECT_TRUE(run("info out.db3").output.contains(QLatin1String(row.state)));
        EXPECT_EQ(rowsThroughCore(QStringLiteral("out.db3"), QStringLiteral("SELECT count(*) FROM T")), "7");
    }
}

TEST_F(Encryption, GivesBackWhatWasEncrypted)
{
    for (char const * format : {"4", "3"}) {
        SCOPED_TRACE(format);
        make((std::string("encrypt --force plain.db out.db3 --format ") + format).c_str());
        make("decrypt --force out.db3 back.db");
        EXPECT_EQ(names(), "back.db out.db3 plain.db");
        EXPECT_EQ(rows(QStringLiteral("back.db"), allRowsSql), rows(QStringLiteral("plain.db"), allRowsSql));
        EXPECT_EQ(rows(QStringLiteral("back.db"), schemaSql), rows(QStringLiteral("plain.db"), schemaSql));
        EXPECT_EQ(rows(QStringLiteral("back.db"), QStringLiteral("PRAGMA integrity_check")), "ok");
    }
}

TEST_F(Encryption, TakesWhatWasDecryptedOnceMore)
{
    struct Row {
        char const * before;
        char const * after;
    };

    Row const formats[] = {{"4", "4"}, {"3", "3"}, {"3", "4"}};
    for (Row const & format : formats) {
        SCOPED_TRACE(std::string(format.before) + " to " + format.after);
        make((std::string("encrypt --force plain.db out.db3 --format ") + format.before).c_str());
        make("decrypt --force out.db3 back.db");
        make((std::string("encrypt --force back.db again.db3 --format ") + format.after).c_str());
        EXPECT_EQ(rowsThroughCore(QStringLiteral("again.db3"), allRowsSql),
                  rows(QStringLiteral("plain.db"), allRowsSql));
    }
}

TEST_F(Encryption, TakesADatabaseWithAWriteAheadLog)
{
    makeSqlFile(path(QStringLiteral("wal.db")),
                QStringLiteral("PRAGMA journal_mode = WAL; CREATE TABLE T (a); INSERT INTO T VALUES (5)"));
    make("encrypt wal.db out.db3");
    EXPECT_EQ(names(), "out.db3 plain.db wal.db");
    EXPECT_EQ(rowsThroughCore(QStringLiteral("out.db3"), QStringLiteral("SELECT a FROM T")), "5");
}

TEST_F(Encryption, LeavesTheSourceAlone)
{
    QByteArray const plain = content(QStringLiteral("plain.db"));
    make("encrypt plain.db out.db3");
    EXPECT_EQ(content(QStringLiteral("plain.db")), plain);
    QByteArray const encrypted = content(QStringLiteral("out.db3"));
    make("decrypt out.db3 back.db");
    EXPECT_EQ(content(QStringLiteral("out.db3")), encrypted);
}

TEST_F(Encryption, ReplacesAFileOnlyWhenForced)
{
    make("encrypt plain.db good.db3");
    for (char const * arguments : {"encrypt plain.db there", "decrypt good.db3 there"}) {
        SCOPED_TRACE(arguments);
        write(QStringLiteral("there"), "precious");
        ProgramResult const refused = run(arguments);
        EXPECT_EQ(refused.exitCode, 2);
        EXPECT_EQ(refused.messages,
                  QStringLiteral("devicelore-db: 'there' is there already; --force replaces it\n"));
        EXPECT_EQ(content(QStringLiteral("there")), "precious");

        make((std::string(arguments) + " --force").c_str());
        EXPECT_TRUE(run("info there").exitCode == 0);
        EXPECT_EQ(names(), "good.db3 plain.db there");
    }
}

TEST_F(Encryption, RefusesASourceThatIsTheTarget)
{
    make("encrypt plain.db good.db3");
    ASSERT_TRUE(QFile::link(path(QStringLiteral("plain.db")), path(QStringLiteral("link.db"))));

    struct Row {
        char const * arguments;
        char const * message;
    };

    Row const rows[] = {
        {"encrypt plain.db plain.db", "'plain.db' and 'plain.db' are the same file; name another"},
        {"encrypt plain.db ./plain.db --force",
         "'plain.db' and './plain.db' are the same file; name another"},
        {"encrypt link.db plain.db --force", "'link.db' and 'plain.db' are the same file; name another"},
        {"encrypt plain.db link.db --force", "'plain.db' and 'link.db' are the same file; name another"},
        {"decrypt good.db3 good.db3 --force", "'good.db3' and 'good.db3' are the same file; name another"},
    };
    QByteArray const plain = content(QStringLiteral("plain.db"));
    QByteArray const encrypted = content(QStringLiteral("good.db3"));
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = run(row.arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: %1\n").arg(QString::fromUtf8(row.message)));
    }
    EXPECT_EQ(content(QStringLiteral("plain.db")), plain);
    EXPECT_EQ(content(QStringLiteral("good.db3")), encrypted);
}

TEST_F(Encryption, RefusesWhatItCannotConvert)
{
    make("encrypt plain.db good.db3");
    make("encrypt plain.db damaged.db3");
    damage(QStringLiteral("damaged.db3"), 2 * pageSize + 17);
    make("encrypt plain.db short.db3");
    ASSERT_TRUE(QFile::resize(path(QStringLiteral("short.db3")), 3 * pageSize));
    kestrova::sqlcipher::Key otherKey = kestrova::sqlcipher::databaseKey;
    otherKey[0] ^= 1;
    kestrova::sqlcipher::encryptDatabase(path(QStringLiteral("plain.db")), path(QStringLiteral("other.db3")),
                                         kestrova::sqlcipher::version4, otherKey);
    make("decrypt good.db3 back.db");
    write(QStringLiteral("text"), "no database");
    write(QStringLiteral("empty"), "");
    std::string const before = names();

    struct Row {
        char const * arguments;
        char const * message; ///< its start
    };

    Row const rows[] = {
        {"encrypt none out", "none does not exist"},
        {"encrypt . out", ". is no regular file"},
        {"encrypt text out", "text is not a database"},
        {"encrypt empty out", "empty is empty"},
        {"encrypt good.db3 out", "good.db3 is encrypted already"},
        {"encrypt damaged.db3 out", "damaged.db3 is damaged in page 3"},
        {"encrypt back.db out --format 3", "back.db cannot take the page layout of version 3"},
        {"decrypt none out", "none does not exist"},
        {"decrypt . out", ". is no regular file"},
        {"decrypt text out", "text is not a database"},
        {"decrypt empty out", "empty is empty"},
        {"decrypt plain.db out", "plain.db is a plain database already"},
        {"decrypt damaged.db3 out", "damaged.db3 is damaged in page 3"},
        {"decrypt short.db3 out", "short.db3 is cut short"},
        {"decrypt other.db3 out", "other.db3 does not open with the key of this build"},
        {"encrypt plain.db none/out", "none/out cannot be written"},
        {"decrypt good.db3 none/out", "none/out cannot be written"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = run(row.arguments);
        EXPECT_EQ(result.exitCode, 4);
        EXPECT_EQ(result.output, QString());
        EXPECT_TRUE(
            result.messages.startsWith(QStringLiteral("devicelore-db: ") + QString::fromUtf8(row.message)))
            << result.messages.toStdString();
        EXPECT_EQ(names(), before);
    }
}

TEST_F(Encryption, KeepsTheOldTargetWhenItFails)
{
    write(QStringLiteral("there"), "precious");
    write(QStringLiteral("text"), "no database");
    EXPECT_EQ(run("encrypt --force text there").exitCode, 4);
    EXPECT_EQ(run("decrypt --force text there").exitCode, 4);
    EXPECT_EQ(content(QStringLiteral("there")), "precious");
    EXPECT_EQ(names(), "plain.db text there");
}

TEST_F(Encryption, RefusesATargetThatIsNoFile)
{
    make("encrypt plain.db good.db3");
    for (char const * arguments : {"encrypt --force plain.db .", "decrypt --force good.db3 ."}) {
        ProgramResult const result = run(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.messages,
                  QStringLiteral("devicelore-db: '.' is not a file; name a file to write\n"));
    }
}

TEST_F(Encryption, SaysThatAFolderCannotBeWritten)
{
    make("encrypt plain.db good.db3");
    ASSERT_TRUE(QFile::setPermissions(path(QString()), QFile::ReadOwner | QFile::ExeOwner));
    QStringList const commands[] = {
        {QStringLiteral("encrypt"), QStringLiteral("plain.db"), QStringLiteral("out")},
        {QStringLiteral("decrypt"), QStringLiteral("good.db3"), QStringLiteral("out")},
    };
    for (QStringList const & arguments : commands) {
        SCOPED_TRACE(arguments.first().toStdString());
        ProgramResult const result = run(arguments, underPermissions());
        EXPECT_EQ(result.exitCode, 4);
        EXPECT_TRUE(result.messages.startsWith(QLatin1String("devicelore-db: out cannot be written (")))
            << result.messages.toStdString();
    }
    EXPECT_EQ(names(), "good.db3 plain.db");
    QFile::setPermissions(path(QString()), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(Encryption, ShowsItsProgressOnATerminal)
{
    ProgramResult const result =
        runProgram(QStringLiteral("script"), {QStringLiteral("-qec"),
                                              QStringLiteral("cd '%1' && '%2' encrypt plain.db out.db3")
                                                  .arg(path(QString()), QStringLiteral(KESTROVA_TOOL)),
                                              QStringLiteral("/dev/null")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.endsWith(QLatin1String("\rencrypting 100 %\r\x1B[K")))
        << result.output.toStdString();
    EXPECT_EQ(names(), "out.db3 plain.db");
}

TEST_F(Encryption, LeavesNothingBehindWhenItIsInterrupted)
{
    makeSqlFile(path(QStringLiteral("large.db")),
                QStringLiteral("CREATE TABLE T (a); INSERT INTO T VALUES (randomblob(30000000))"));
    for (int const signal : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(signal);
        QProcess tool;
        tool.start(
            QStringLiteral(KESTROVA_TOOL),
            {QStringLiteral("encrypt"), path(QStringLiteral("large.db")), path(QStringLiteral("out.db3"))});
        ASSERT_TRUE(tool.waitForStarted());
        QElapsedTimer waiting;
        waiting.start();
        while (names() == "large.db plain.db" && waiting.elapsed() < 60000)
            QThread::msleep(1);
        ASSERT_NE(names(), "large.db plain.db") << "the work has not begun";
        kill(static_cast<pid_t>(tool.processId()), signal);
        ASSERT_TRUE(tool.waitForFinished(60000));
        EXPECT_EQ(tool.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(tool.exitCode(), 128 + signal);
        EXPECT_EQ(tool.readAllStandardError(), "devicelore-db: interrupted\n");
        EXPECT_EQ(names(), "large.db plain.db");
    }
}
