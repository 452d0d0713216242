#include "facade/devicelore.h"
#include "support/messageRecorder.h"
#include "support/print.h"
#include "support/sqlFile.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::makeSqlFile;
using kestrova::test::MessageRecorder;

// What a facade finds in the application's own folder. The folder of this test program is its own for that
// reason, and the program's tests run one after the other.

namespace {

class Facade : public CDevicelore {
public:
    using CDevicelore::cache;
    using CDevicelore::CDevicelore;
    using CDevicelore::CloseDspDataDatabase;
    using CDevicelore::GetDspDataDatabaseInfos;
    using CDevicelore::GetDspDataDatabasePath;
    using CDevicelore::OpenDspDataDatabase;
};

QString const dspConnection = QStringLiteral("DspDataDatabase");

QString inApplicationFolder(char const * name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

class ApplicationFolder : public ::testing::Test {
protected:
    void SetUp() override { removeAll(); }

    void TearDown() override { removeAll(); }

    static void removeAll()
    {
        QDir dir(QCoreApplication::applicationDirPath());
        for (QString const & name :
             dir.entryList({QStringLiteral("*.db3"), QStringLiteral("*.DB3")}, QDir::Files))
            ASSERT_TRUE(dir.remove(name));
        QDir dspData(inApplicationFolder("DspData"));
        if (dspData.exists()) {
            ASSERT_TRUE(dspData.removeRecursively());
        }
    }

    static void makeDspData(char const * sql)
    {
        ASSERT_TRUE(QDir(QCoreApplication::applicationDirPath()).mkdir(QStringLiteral("DspData")));
        makeSqlFile(inApplicationFolder("DspData/DspData.sqlite"), QLatin1String(sql));
    }
};

QStringList namesOf(CDevicelore const & facade)
{
    QList<CDriverDatabaseInfo> infos;
    facade.databaseInfos(infos);
    QStringList names;
    for (CDriverDatabaseInfo const & info : infos)
        names.append(info.name());
    return names;
}

} // namespace

TEST_F(ApplicationFolder, OpensTheDatabasesByNameIgnoringCase)
{
    for (char const * name : {"c.db3", "B.db3", "a.db3", "other.sqlite", "d.db3.bak"})
        makeSqlFile(inApplicationFolder(name), QString());
    CDevicelore const facade;
    EXPECT_EQ(namesOf(facade).join(QLatin1Char(' ')), QStringLiteral("a.db3 B.db3 c.db3"));
    QFile::remove(inApplicationFolder("other.sqlite"));
    QFile::remove(inApplicationFolder("d.db3.bak"));
}

TEST_F(ApplicationFolder, LooksAtFilesOnly)
{
    makeSqlFile(inApplicationFolder("a.db3"), QString());
    ASSERT_TRUE(QDir(QCoreApplication::applicationDirPath()).mkdir(QStringLiteral("folder.db3")));
    CDevicelore const facade;
    EXPECT_EQ(namesOf(facade), QStringList{QStringLiteral("a.db3")});
    QDir(QCoreApplication::applicationDirPath()).rmdir(QStringLiteral("folder.db3"));
}

TEST_F(ApplicationFolder, AFacadeWithADatabaseThatDoesNotOpenFindsNothing)
{
    makeSqlFile(inApplicationFolder("a.db3"), QString());
    QFile bad(inApplicationFolder("b.db3"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("no database");
    bad.close();
    MessageRecorder recorder;
    CDevicelore const facade;
    EXPECT_TRUE(namesOf(facade).isEmpty());
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ApplicationFolder, ScansOnceMoreForASecondFacadeOnOneCache)
{
    makeSqlFile(inApplicationFolder("a.db3"), QString());
    auto * const cache = new CDriverCache;
    CDevicelore const first(QPointer<CDriverCache>(cache), nullptr);
    Facade second(QPointer<CDriverCache>(cache), nullptr);
    EXPECT_EQ(namesOf(first).join(QLatin1Char(' ')), QStringLiteral("a.db3 a.db3"));
    second.cache = new CDriverCache; // one of the two facades only may destroy the shared cache
}

TEST_F(ApplicationFolder, NamesTheDspFolderBesideTheApplication)
{
    Facade const facade;
    EXPECT_EQ(facade.GetDspDataDatabasePath(), inApplicationFolder("DspData"));
}

TEST_F(ApplicationFolder, ListsTheDspDatabaseLast)
{
    makeSqlFile(inApplicationFolder("z.db3"), QString());
    makeDspData("CREATE TABLE Version (a, b, c); INSERT INTO Version VALUES (2, 3, 4);");
    Facade const facade;
    QList<CDriverDatabaseInfo> infos;
    facade.databaseInfos(infos);
    ASSERT_EQ(infos.size(), 2);
    EXPECT_EQ(infos.at(0).name(), QStringLiteral("z.db3"));
    EXPECT_EQ(infos.at(1).name(), dspConnection);
    EXPECT_EQ(infos.at(1).filePath(), inApplicationFolder("DspData/DspData.sqlite"));
    EXPECT_EQ(infos.at(1).versionNumber(), CVersionNumber(2, 3, 4));
    EXPECT_FALSE(QSqlDatabase::contains(dspConnection)) << "the connection lives within one call";
}

TEST_F(ApplicationFolder, ListsADspDatabaseWithoutVersionAsZero)
{
    makeDspData("CREATE TABLE Other (x);");
    Facade const facade;
    QList<CDriverDatabaseInfo> infos;
    facade.GetDspDataDatabaseInfos(infos);
    ASSERT_EQ(infos.size(), 1);
    EXPECT_EQ(infos.first().versionNumber(), CVersionNumber(0, 0, 0));
}

TEST_F(ApplicationFolder, WithoutADspDatabaseThereIsNoLine)
{
    MessageRecorder recorder;
    Facade const facade;
    QList<CDriverDatabaseInfo> infos{CDriverDatabaseInfo()};
    facade.GetDspDataDatabaseInfos(infos);
    EXPECT_EQ(infos.size(), 1);
    EXPECT_FALSE(QSqlDatabase::contains(dspConnection));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ApplicationFolder, OpensAndClosesTheDspDatabaseUnderTheNameGiven)
{
    makeDspData("CREATE TABLE Other (x);");
    MessageRecorder recorder;
    Facade const facade;
    EXPECT_TRUE(facade.OpenDspDataDatabase(QStringLiteral("mine")));
    EXPECT_TRUE(QSqlDatabase::database(QStringLiteral("mine"), false).isOpen());
    facade.CloseDspDataDatabase(QStringLiteral("mine"));
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("mine")));
    facade.CloseDspDataDatabase(QStringLiteral("mine"));
    EXPECT_EQ(recorder.messages(), QStringList());
}
