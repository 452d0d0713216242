#include "world.h"

#include "cache/driverCacheObjectItemList.h"
#include "sqlcipher/databaseFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace kestrova::bench {

using namespace Morvel::Devicelore;

namespace {

constexpr int databases = 8;
constexpr int devicesEach = 1250;
constexpr int speakersEach = 625;
constexpr int objectsEach = 60;

/// Fills a table: \a select gives the values of row number N, for the numbers from 0 on.
QString rows(char const * table, char const * select, int count)
{
    return QLatin1String("WITH RECURSIVE n(N) AS (SELECT 0 UNION ALL SELECT N + 1 FROM n WHERE N + 1 < ") +
           QString::number(count) + QLatin1String(") INSERT INTO ") + QLatin1String(table) +
           QLatin1String(" SELECT ") + QLatin1String(select) + QLatin1String(" FROM n;");
}

/// Thirty models of up to 42 versions each, in every database others.
QString contentOf(int database)
{
    QString sql =
        QStringLiteral("CREATE TABLE Version (Major, Minor, Bugfix); INSERT INTO Version VALUES (1, 2, 3);"
                       "CREATE TABLE Guids (GUID, DeviceType, Version, Access, OnoType);"
                       "CREATE TABLE Hardwaretypes (Type, DeviceType);"
                       "CREATE TABLE SpeakerClasses (Class, Name, Type, Ways, WayNames);"
                       "CREATE TABLE Speakers (SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, "
                       "CablefitMaxCount, WfActive);"
                       "CREATE TABLE ObjectClasses (Id, OcaClassId, Description);"
                       "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name, BoxNumber, ObjectNumber);");
    sql += rows("Guids",
                "printf('C7%02X%02X%02X', @, N % 42, 4 + N / 42 + 30 * @), "
                "'Model' || (N / 42 + 30 * @), '1.' || (N % 42), 1, 1",
                devicesEach);
    sql += rows("Hardwaretypes", "N + 30 * @, 'Model' || (N + 30 * @)", 30);
    sql += rows("SpeakerClasses", "N, 'Class ' || N, 'Type', 1 + N % 2, 'Low,High'", 12);
    sql += rows(
        "Speakers",
        "N + 625 * @, 'Speaker ' || N, N % 12, 0, 'S' || N, N, N % 7, CASE N % 9 WHEN 0 THEN 1 ELSE 0 END",
        speakersEach);
    sql += rows("ObjectClasses", "N + 1, '1.1.' || N, 'Class'", 40);
    sql += rows("Objects", "N, 'Config_Object' || N, N / 20, N % 20", objectsEach);
    return sql.replace(QLatin1Char('@'), QString::number(database));
}

void makePlainDatabase(QString const & path, QString const & sql)
{
    sqlite3 * handle = nullptr;
    int const opened = sqlite3_open(path.toUtf8().constData(), &handle);
    std::unique_ptr<sqlite3, decltype(&sqlite3_close)> const closer(handle, sqlite3_close);
    if (opened != SQLITE_OK || sqlite3_exec(handle, ("BEGIN;" + sql + "COMMIT;").toUtf8().constData(),
                                            nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(path.toStdString() + ": " + sqlite3_errmsg(handle));
}

} // namespace

QDir folderOf(QString const & path, QString const & pattern)
{
    QDir dir(path);
    dir.setNameFilters({pattern});
    dir.setFilter(QDir::Files | QDir::Readable);
    return dir;
}

namespace {

struct LargeWorld {
    QTemporaryDir folder;

    LargeWorld()
    {
        for (int database = 0; database < databases; ++database) {
            QString const name = folder.filePath(QStringLiteral("part%1").arg(database));
            makePlainDatabase(name + QStringLiteral(".plain"), contentOf(database));
            sqlcipher::encryptDatabase(name + QStringLiteral(".plain"), name + QStringLiteral(".db3"));
        }
    }
};

} // namespace

void SampleCache::forgetObjects()
{
    objectItems->clear();
}

namespace {

struct Samples {
    SampleCache * const cache = new SampleCache;
    CDevicelore * const facade = new CDevicelore(QPointer<CDriverCache>(cache), nullptr);

    Samples()
    {
        facade->setDeviceAccessLevel(9);
        QList<CDriverDatabaseInfo> databasesFound;
        facade->databaseInfos(databasesFound);
        if (databasesFound.size() < 5)
            throw std::runtime_error("the sample databases are missing beside this program, or do not open");
    }
};

Samples const & theSamples()
{
    static Samples const & samples = *new Samples;
    return samples;
}

} // namespace

SampleCache & samples()
{
    return *theSamples().cache;
}

CDevicelore const & facade()
{
    return *theSamples().facade;
}

CDeviceGuid guidOf(char const * model)
{
    CDeviceGuid const guid = facade().latestGuidOnDeviceType(QString::fromUtf8(model));
    if (guid == CDeviceGuid())
        throw std::runtime_error(std::string("the sample world has lost the model ") + model);
    return guid;
}

QString plainSamples()
{
    static QTemporaryDir const folder;
    QString const file = folder.filePath(QStringLiteral("plain"));
    if (!QFile::exists(file))
        sqlcipher::decryptDatabase(QCoreApplication::applicationDirPath() + QStringLiteral("/amplifiers.db3"),
                                   file);
    return file;
}

QString largeWorld()
{
    static LargeWorld const world;
    return world.folder.path();
}

} // namespace kestrova::bench
