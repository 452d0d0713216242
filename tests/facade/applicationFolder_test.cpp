#include "facade/devicelore.h"
#include "records/objectDef.h"
#include "support/messageRecorder.h"
#include "support/print.h"
#include "support/sqlFile.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::makeSqlFile;
using kestrova::test::MessageRecorder;

// What a facade finds in the application's own folder. The folder of this test program is its own for that
// reason, and the program's tests run one after the other.

namespace kestrova::test::applicationFolder {

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

    /// Makes a database of one device with one object.
    static void makeDatabase()
    {
        makeSqlFile(inApplicationFolder("a.db3"), QStringLiteral(R"sql(
            CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType);
            CREATE TABLE Objects (id, Name, BoxNumber, ObjectNumber, Format, Description);
            CREATE TABLE guidsandobjects (objectid, guid);
            INSERT INTO Guids VALUES ('C7000005', 'Talvo', '1', 0, 1);
            INSERT INTO Objects VALUES (1, 'Gain', 1, 2, '%3d', 'The gain'), (2, 'Mute', 1, 3, '%1d', 'The mute');
            INSERT INTO guidsandobjects VALUES (1, 'C7000005'), (2, 'C7000005');
        )sql"));
    }

    static std::string displayNameOf(Facade & facade, char const * object)
    {
        CObjectDef definition;
        definition.setMask(ObjectDefDisplayName);
        facade.GetObjectDef(CDeviceGuid(0xC7000005), QLatin1String(object), definition, nullptr);
        return definition.displayName().toStdString();
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
    for (char const * sql : {"CREATE TABLE Other (x);", "CREATE TABLE Version (a, b, c);"}) {
        removeAll();
        makeDspData(sql);
        Facade const facade;
        QList<CDriverDatabaseInfo> infos;
        facade.GetDspDataDatabaseInfos(infos);
        ASSERT_EQ(infos.size(), 1) << sql;
        EXPECT_EQ(infos.first().name(), dspConnection) << sql;
        EXPECT_EQ(infos.first().versionNumber(), CVersionNumber(0, 0, 0)) << sql;
    }
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

// --- The data of a speaker ---

namespace {

char const speakerDataTable[] =
    "CREATE TABLE SpeakerData (GUID, SpeakerId, DeviceType, SpeakerName, SpeakerVersion, BlobData, "
    "BlobDataMD5);"
    "INSERT INTO SpeakerData VALUES ('C70002AB', 12, 'Hesko', 'Varn 3', '2.3', x'0001ff', 'not its MD5'),"
    "                               ('C70002AB', 12, 'Hesko', 'Second row', '9', x'02', 'm'),"
    "                               ('c70002ac', 12, 'Hesko', 'Lower case', '1', x'02', 'm'),"
    "                               ('C70002AB', 0, 'Hesko', 'No speaker', '1', x'02', 'm'),"
    "                               ('C70002AB', 65535, 'Hesko', 'Last', '1', 'text', 5),"
    "                               ('C70002AB', 20, '', 'No type', '1', x'02', 'm'),"
    "                               ('C70002AB', 21, 'Hesko', NULL, '1', x'02', 'm'),"
    "                               ('C70002AB', 22, 'Hesko', 'No version', '', x'02', 'm'),"
    "                               ('C70002AB', 23, 'Hesko', 'No data', '1', x'', 'm'),"
    "                               ('C70002AB', 24, 'Hesko', 'No MD5', '1', x'02', NULL);";

} // namespace

TEST_F(ApplicationFolder, GivesTheDspDataOfASpeakerAsStored)
{
    makeDspData(speakerDataTable);
    CDevicelore facade;
    MessageRecorder const recorder;
    SpeakerDspData const data = facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AB), 12);
    EXPECT_EQ(data.GetDeviceType(), QStringLiteral("Hesko"));
    EXPECT_EQ(data.GetDeviceGuid(), CDeviceGuid(0xC70002AB));
    EXPECT_EQ(data.GetSpeakerId(), 12);
    EXPECT_EQ(data.GetSpeakerName(), QStringLiteral("Varn 3")) << "the first row";
    EXPECT_EQ(data.GetSpeakerSetupVersion(), QStringLiteral("2.3"));
    EXPECT_EQ(data.GetSpeakerDspData(), QByteArray::fromHex("0001ff"));
    EXPECT_EQ(data.GetMd5(), QStringLiteral("not its MD5"));
    EXPECT_TRUE(data.IsValid()) << "nobody compares the MD5";
    EXPECT_FALSE(QSqlDatabase::contains(dspConnection));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ApplicationFolder, GivesDspDataThatLacksSomethingAsInvalid)
{
    makeDspData(speakerDataTable);
    CDevicelore facade;
    MessageRecorder const recorder;
    for (int const number : {0, 20, 21, 22, 23, 24}) {
        auto const id = static_cast<unsigned short>(number);
        SpeakerDspData const data = facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AB), id);
        EXPECT_FALSE(data.IsValid()) << id;
        EXPECT_EQ(data.GetSpeakerId(), id);
        EXPECT_EQ(data.GetDeviceGuid(), CDeviceGuid(0xC70002AB)) << id;
    }
    SpeakerDspData const last = facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AB), 65535);
    EXPECT_TRUE(last.IsValid());
    EXPECT_EQ(last.GetSpeakerDspData(), QByteArray("text"));
    EXPECT_EQ(last.GetMd5(), QStringLiteral("5"));
    EXPECT_EQ(recorder.messages(), QStringList());
}

TEST_F(ApplicationFolder, WarnsOfDspDataThatIsNotThere)
{
    makeDspData(speakerDataTable);
    CDevicelore facade;
    MessageRecorder const recorder;
    EXPECT_FALSE(facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AB), 13).IsValid());
    EXPECT_FALSE(facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AC), 12).IsValid());
    SpeakerDspData const none = facade.GetConfigSpeakerData(CDeviceGuid(), 65535);
    EXPECT_EQ(none.GetSpeakerId(), 0) << "an empty record, without the question";
    EXPECT_EQ(
        recorder.messages(),
        (QStringList{
            QStringLiteral("warning: Entry not found for device guid = C70002AB and speaker id = 13"),
            QStringLiteral("warning: Entry not found for device guid = C70002AC and speaker id = 12"),
            QStringLiteral("warning: Entry not found for device guid = 00000000 and speaker id = 65535")}));
    EXPECT_EQ(recorder.sources(), (QStringList{QString(), QString(), QString()})) << "no place is given";
    EXPECT_FALSE(QSqlDatabase::contains(dspConnection));
}

TEST_F(ApplicationFolder, WarnsWhenADspDatabaseLacksTableOrColumn)
{
    QString const warning =
        QStringLiteral("warning: Entry not found for device guid = C70002AB and speaker id = 12");
    for (char const * sql :
         {"CREATE TABLE Other (A);",
          "CREATE TABLE SpeakerData (GUID, SpeakerId, DeviceType, SpeakerName, SpeakerVersion, BlobData);"
          "INSERT INTO SpeakerData VALUES ('C70002AB', 12, 'Hesko', 'Varn 3', '2.3', x'00');"}) {
        removeAll();
        makeDspData(sql);
        CDevicelore facade;
        MessageRecorder const recorder;
        EXPECT_FALSE(facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AB), 12).IsValid());
        EXPECT_EQ(recorder.messages(), QStringList{warning}) << sql;
        EXPECT_FALSE(QSqlDatabase::contains(dspConnection));
    }
}

TEST_F(ApplicationFolder, IsSilentAboutDspDataWithoutADatabase)
{
    CDevicelore facade;
    MessageRecorder const recorder;
    EXPECT_FALSE(facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AB), 12).IsValid());
    ASSERT_TRUE(QDir(QCoreApplication::applicationDirPath()).mkdir(QStringLiteral("DspData")));
    QFile damaged(inApplicationFolder("DspData/DspData.sqlite"));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no database");
    damaged.close();
    EXPECT_FALSE(facade.GetConfigSpeakerData(CDeviceGuid(0xC70002AB), 12).IsValid());
    EXPECT_EQ(recorder.messages(), QStringList());
    EXPECT_FALSE(QSqlDatabase::contains(dspConnection));
}

TEST_F(ApplicationFolder, ServesFacadesThatDieInAnyOrder)
{
    makeDatabase();
    MessageRecorder recorder;
    std::vector<int> order{0, 1, 2};
    do {
        SCOPED_TRACE(testing::PrintToString(order));
        std::vector<std::unique_ptr<Facade>> facades;
        for (int i = 0; i < 3; ++i) {
            facades.push_back(std::make_unique<Facade>());
            EXPECT_EQ(displayNameOf(*facades.back(), "Gain"), "The gain");
        }
        for (int const dying : order) {
            facades[static_cast<std::size_t>(dying)].reset();
            for (auto const & facade : facades) {
                if (facade) {
                    EXPECT_EQ(displayNameOf(*facade, "Mute"), "The mute");
                    facade->setDeviceAccessLevel(facade->deviceAccessLevel() == 1 ? 2 : 1);
                    EXPECT_EQ(displayNameOf(*facade, "Gain"), "The gain");
                }
            }
        }
        EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("a.db3")));
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(recorder.messages(), QStringList());
}

} // namespace kestrova::test::applicationFolder
