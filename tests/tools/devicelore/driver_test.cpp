#include "toolFolder.h"

#include <gtest/gtest.h>

using kestrova::test::DatabaseFolder;
using kestrova::test::ProgramResult;
using kestrova::test::ToolFolder;

namespace {

/// What the tool says, with a database beside it, when Qt looks for its plugins in that folder only.
ProgramResult runWithPlugins(ToolFolder & tool, QString const & folder)
{
    tool.add(QStringLiteral("a.db3"), QString());
    tool.addFile(QStringLiteral("qt.conf"), "[Paths]\nPlugins=" + folder.toUtf8() + '\n');
    return tool.run("databases");
}

QString complaint(QString const & found)
{
    return QStringLiteral(
               "kestrovaCore can open no database. Found: %1. Needed: SQLite 3.38 or newer, and the driver "
               "QSQLITE of Qt %2 on the same shared library of it. On Debian: apt-get install "
               "libqt%2sql%2-sqlite libsqlite3-0\n")
        .arg(found, QString::number(QT_VERSION_MAJOR));
}

QString complaintOfQt(QString const & trouble)
{
    return complaint(QStringLiteral("Qt %1 %2").arg(QLatin1String(qVersion()), trouble));
}

QString complaintOfTool(ToolFolder const & tool)
{
    return QStringLiteral("devicelore: cannot open the database '%1'; unless a message above tells why, "
                          "`devicelore-db info '%1'` does\n")
        .arg(tool.path(QStringLiteral("a.db3")));
}

} // namespace

TEST(DriverOfQt, ThatIsMissingIsNamedOnceWithWhatToInstall)
{
    ToolFolder tool;
    DatabaseFolder const noPlugins;
    ProgramResult const result = runWithPlugins(tool, noPlugins.dir().path());
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, QString());
    EXPECT_EQ(result.messages,
              complaintOfQt(QStringLiteral("without the database driver QSQLITE")) + complaintOfTool(tool));
}

TEST(DriverOfQt, WithASqliteOfItsOwnIsNamedOnceWithWhatToInstall)
{
    ToolFolder tool;
    ProgramResult const result = runWithPlugins(tool, QStringLiteral(KESTROVA_FOREIGN_PLUGINS));
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, QString());
    EXPECT_EQ(result.messages, complaintOfQt(QStringLiteral(
                                   "whose database driver QSQLITE has a SQLite " KESTROVA_SQLITE_VERSION
                                   " of its own, beside the system's SQLite " KESTROVA_SQLITE_VERSION)) +
                                   complaintOfTool(tool));
}

TEST(DriverOfQt, ThatCannotBeLoadedIsNamedOnceWithWhatToInstall)
{
    ToolFolder tool;
    ProgramResult const result = runWithPlugins(tool, QStringLiteral(KESTROVA_REFUSING_PLUGINS));
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, QString());
    // Qt has its own say about a driver that it finds and cannot use, each time.
    EXPECT_EQ(result.messages.count(
                  complaintOfQt(QStringLiteral("whose database driver QSQLITE cannot be loaded"))),
              1)
        << result.messages.toStdString();
    EXPECT_EQ(result.messages.count(QStringLiteral("kestrovaCore")), 1) << result.messages.toStdString();
    EXPECT_TRUE(result.messages.endsWith(complaintOfTool(tool))) << result.messages.toStdString();
}

#ifdef KESTROVA_OLD_SQLITE // which cannot be put in front of the sanitizers
ProgramResult runWithSqlite(ToolFolder & tool, char const * version)
{
    tool.add(QStringLiteral("a.db3"), QString());
    return tool.run("databases", {QStringLiteral("env"), QStringLiteral("LD_PRELOAD=" KESTROVA_OLD_SQLITE),
                                  QStringLiteral("PRETENDED_SQLITE=%1").arg(QLatin1String(version))});
}

TEST(SqliteOfTheSystem, ThatIsTooOldIsNamedOnceWithWhatToInstall)
{
    ToolFolder tool;
    ProgramResult const result = runWithSqlite(tool, "3037002");
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, QString());
    EXPECT_EQ(result.messages, complaint(QStringLiteral("SQLite 3.37.2")) + complaintOfTool(tool));
}

TEST(SqliteOfTheSystem, ThatIsTheOldestOneWillDo)
{
    ToolFolder tool;
    ProgramResult const result = runWithSqlite(tool, "3038000");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.contains(QStringLiteral("a.db3"))) << result.output.toStdString();
    EXPECT_EQ(result.messages, QString());
}
#endif
