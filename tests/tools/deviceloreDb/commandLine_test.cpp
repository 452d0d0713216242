#include "toolFixture.h"

#include <QFile>

using namespace kestrova::test;

namespace {

struct DatabaseTool : ToolFixture {};

QString golden(QString const & name)
{
    QFile file(QStringLiteral(KESTROVA_GOLDEN "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return QString::fromUtf8(file.readAll());
}

} // namespace

TEST_F(DatabaseTool, RefusesWrongUse)
{
    struct Row {
        char const * arguments;
        char const * message;
    };

    Row const rows[] = {
        {"", "which command?; see devicelore-db --help"},
        {"nonsense", "there is no command 'nonsense'; see devicelore-db --help"},
        {"Info a", "there is no command 'Info'; see devicelore-db --help"},
        {"info", "usage: devicelore-db info FILE; see devicelore-db --help"},
        {"info a b", "usage: devicelore-db info FILE; see devicelore-db --help"},
        {"new", "usage: devicelore-db new FILE; see devicelore-db --help"},
        {"encrypt a", "usage: devicelore-db encrypt PLAIN OUT; see devicelore-db --help"},
        {"decrypt a b c", "usage: devicelore-db decrypt IN PLAIN; see devicelore-db --help"},
        {"info --nonsense a", "Unknown option 'nonsense'; see devicelore-db --help"},
        {"info --force a", "--force is no option of 'info'; see devicelore-db --help"},
        {"new --json a", "--json is no option of 'new'; see devicelore-db --help"},
        {"decrypt --format 4 a b", "--format is no option of 'decrypt'; see devicelore-db --help"},
        {"encrypt --sql a b c", "--sql is no option of 'encrypt'; see devicelore-db --help"},
        {"new a --sql", "Missing value after '--sql'; see devicelore-db --help"},
        {"encrypt --format 2 a b", "--format takes 4 or 3, not '2'; see devicelore-db --help"},
        {"encrypt --format 04 a b", "--format takes 4 or 3, not '04'; see devicelore-db --help"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = run(row.arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, QString());
        EXPECT_EQ(result.messages, QStringLiteral("devicelore-db: %1\n").arg(QString::fromUtf8(row.message)));
        EXPECT_EQ(names(), "");
    }
}

TEST_F(DatabaseTool, ExplainsItselfAndEachCommand)
{
    struct Row {
        char const * arguments;
        char const * goldenFile;
    };

    Row const rows[] = {
        {"--help", "help.txt"},
        {"-h", "help.txt"},
        {"new --help", "help-new.txt"},
        {"encrypt --help", "help-encrypt.txt"},
        {"decrypt --help", "help-decrypt.txt"},
        {"info --help", "help-info.txt"},
        {"check --help", "help-check.txt"},
        {"diff --help", "help-diff.txt"},
        {"info a b c -h", "help-info.txt"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.arguments);
        ProgramResult const result = run(row.arguments);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.output, golden(QString::fromUtf8(row.goldenFile)));
        EXPECT_EQ(result.messages, QString());
    }
}

TEST_F(DatabaseTool, TellsItsVersion)
{
    ProgramResult const result = run("--version");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, QStringLiteral("devicelore-db 1.4.19\n"));
}

TEST_F(DatabaseTool, EndsInTroubleWhenItsAnswerCannotBeWritten)
{
    make("new a.db");
    std::string const before = names();
    for (char const * arguments :
         {"info a.db", "info a.db --json", "info none", "check a.db", "check a.db --json",
          "check a.db --sarif", "check --rules", "diff a.db a.db", "diff a.db a.db --json", "--help",
          "check --help", "--version", "--print-manual-page", "--print-completion"}) {
        SCOPED_TRACE(arguments);
        ProgramResult const result = run(QString::fromUtf8(arguments).split(QLatin1Char(' ')), onFullDisk());
        EXPECT_EQ(result.exitCode, 4);
        // What follows comes from the C library, in the language of the process.
        EXPECT_TRUE(
            result.messages.startsWith(QStringLiteral("devicelore-db: the answer cannot be written: ")))
            << result.messages.toStdString();
        EXPECT_EQ(result.messages.count(QLatin1Char('\n')), 1);
        EXPECT_EQ(names(), before);
    }
}

TEST_F(DatabaseTool, NeedsNoOutputForACommandThatPrintsNothing)
{
    for (char const * arguments : {"new a.db", "encrypt a.db a.db3", "decrypt a.db3 b.db"}) {
        SCOPED_TRACE(arguments);
        ProgramResult const result = run(QString::fromUtf8(arguments).split(QLatin1Char(' ')), onFullDisk());
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.messages, QString());
    }
    EXPECT_EQ(names(), "a.db a.db3 b.db");
}

TEST_F(DatabaseTool, TakesAnyFileName)
{
    for (char const * name : {"a b", "100%", "why?", "no#1", "Größe", "\xF0\x9F\x8E\xB5", "it's", "-dash"}) {
        SCOPED_TRACE(name);
        QString const plain = QString::fromUtf8(name) + QStringLiteral(".db");
        QString const encrypted = QString::fromUtf8(name) + QStringLiteral(".db3");
        QStringList const arguments{QStringLiteral("--"), plain};
        EXPECT_EQ(run(QStringList{QStringLiteral("new")} + arguments).exitCode, 0);
        EXPECT_EQ(run(QStringList{QStringLiteral("encrypt")} + arguments + QStringList{encrypted}).exitCode,
                  0);
        ProgramResult const result = run({QStringLiteral("info"), QStringLiteral("--"), encrypted});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_TRUE(
            result.output.startsWith(QStringLiteral("file       %1\nstate      encrypted").arg(encrypted)))
            << result.output.toStdString();
        EXPECT_EQ(names(), QStringLiteral("%1 %2").arg(plain, encrypted).toStdString());
        EXPECT_TRUE(QFile::remove(path(plain)));
        EXPECT_TRUE(QFile::remove(path(encrypted)));
    }
}

TEST_F(DatabaseTool, FindsUmlautsInALocaleThatHasNone)
{
    QStringList const inPosixLocale{QStringLiteral("env"), QStringLiteral("LC_ALL=C")};
    EXPECT_EQ(run({QStringLiteral("new"), QStringLiteral("Größe.db")}, inPosixLocale).exitCode, 0);
    EXPECT_EQ(run({QStringLiteral("encrypt"), QStringLiteral("Größe.db"), QStringLiteral("Höhe.db3")},
                  inPosixLocale)
                  .exitCode,
              0);
    EXPECT_EQ(run({QStringLiteral("info"), QStringLiteral("Höhe.db3")}, inPosixLocale).exitCode, 0);
    EXPECT_EQ(names(), "Größe.db Höhe.db3");
}
