#include "facade/devicelore.h"
#include "records/deviceProperty.h"
#include "records/driverPropertyTarget.h"
#include "records/speakerSetupInfo.h"
#include "support/databaseFolder.h"
#include "support/messageRecorder.h"
#include "support/qtPrint.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

#include <utility>
#include <vector>

using namespace kestrova::Morvel::Devicelore;
using kestrova::test::DatabaseFolder;
using kestrova::test::MessageRecorder;

// Any bytes may stand in any column. Whatever they are, every question ends, and Qt has nothing to say.

namespace {

struct Column {
    char const * name;
    char const * soundValue;
};

struct Table {
    char const * name;
    std::vector<Column> columns;
};

std::vector<Table> const & tables()
{
    static std::vector<Table> const all{
        {"Version", {{"Major", "1"}, {"Minor", "2"}, {"Bugfix", "3"}}},
        {"Guids",
         {{"GUID", "'C7000012'"},
          {"DeviceType", "'Hesko'"},
          {"Version", "'1'"},
          {"Access", "1"},
          {"OnoType", "1"}}},
        {"Hardwaretypes", {{"Type", "3"}, {"DeviceType", "'Hesko'"}}},
        {"Objects",
         {{"id", "1"},
          {"Name", "'Config_Filter1'"},
          {"BoxNumber", "1"},
          {"ObjectNumber", "5"},
          {"ChannelCount", "4"},
          {"RecordCount", "1"},
          {"Min", "0"},
          {"Max", "9"},
          {"Step", "1"},
          {"Format", "'%3U dB'"},
          {"Flags", "35"},
          {"Access", "11"},
          {"DefaultValue", "'4'"},
          {"Size", "1"},
          {"TextOffset", "30"},
          {"Description", "'Filter'"},
          {"Comment", "''"},
          {"ClassId", "2"},
          {"WaitTime", "1"},
          {"WaitStates", "1"}}},
        {"guidsandobjects", {{"objectid", "1"}, {"guid", "'C7000012'"}}},
        {"ObjectClasses", {{"Id", "2"}, {"OcaClassId", "'1.2.3'"}, {"Description", "''"}}},
        {"SpeakerClasses",
         {{"Class", "3"}, {"Name", "'Two-way'"}, {"Type", "''"}, {"Ways", "2"}, {"WayNames", "'Low,High'"}}},
        {"Speakers",
         {{"SpeakerId", "12"},
          {"Name", "'Wave'"},
          {"Class", "3"},
          {"Rib", "0"},
          {"DisplayNameShort", "'W'"},
          {"SortOrder", "1"},
          {"CablefitMaxCount", "6"},
          {"WfActive", "1"}}},
        {"GuidsSpeakersFilters",
         {{"GUID", "'C7000012'"}, {"SpeakerId", "12"}, {"FilterId", "10"}, {"Access", "0"}}},
        {"Filters",
         {{"Id", "10"},
          {"Number", "1"},
          {"Type", "2"},
          {"Min", "0"},
          {"Max", "5"},
          {"DisplayNameShort", "'Shelf'"},
          {"TextOffset", "40"},
          {"StateTexts", "'a;b'"}}},
        {"TextsObjectValues", {{"TextOffset", "30"}, {"Value", "1"}, {"TextShort_en_US", "'On'"}}},
        {"DevicePropertyFilter",
         {{"FilterName", "'F'"}, {"Expression", "'SELECT Name FROM Objects'"}, {"Access", "0"}}},
        {"SpeakerData",
         {{"GUID", "'C7000012'"},
          {"SpeakerId", "12"},
          {"DeviceType", "'Hesko'"},
          {"SpeakerName", "'Wave'"},
          {"SpeakerVersion", "'2.3'"},
          {"BlobData", "x'00ff'"},
          {"BlobDataMD5", "'m'"}}},
    };
    return all;
}

/// SQL of values that nobody expects: of every type, and at the ends of it.
std::vector<char const *> const oddValues{"NULL",
                                          "''",
                                          "'text'",
                                          "-1",
                                          "9223372036854775807",
                                          "-9223372036854775808",
                                          "1e308",
                                          "-1e-308",
                                          "9e999",
                                          "x''",
                                          "x'00ff80fe'",
                                          "char(0) || 'a'",
                                          "char(56320, 1114111, 55296)",
                                          "'%' || char(129) || '99999999999.99999999999I99999999999d'",
                                          "replace(hex(zeroblob(50000)), '0', '%')"};

/// A world of one row a table, in which one column holds another value than it should.
QString worldWith(QString const & oddColumn, char const * oddValue)
{
    QString sql;
    for (Table const & table : tables()) {
        QStringList names;
        QStringList values;
        for (Column const & column : table.columns) {
            bool const isOdd =
                oddColumn == QLatin1String(table.name) + QLatin1Char('.') + QLatin1String(column.name);
            names.append(QLatin1String(column.name));
            values.append(QLatin1String(isOdd ? oddValue : column.soundValue));
        }
        QString const name = QLatin1String(table.name);
        sql += QStringLiteral("CREATE TABLE %1 (%2);").arg(name, names.join(QLatin1Char(',')));
        sql += QLatin1String("INSERT INTO ") + name + QLatin1String(" VALUES (") +
               values.join(QLatin1Char(',')) + QLatin1String(");");
    }
    return sql;
}

/// A copy of a database, as the speaker DSP database beside this program while it lives.
class SpeakerDspDatabase {
public:
    explicit SpeakerDspDatabase(QString const & original)
    {
        folder.mkpath(QStringLiteral("."));
        QFile::copy(original, folder.filePath(QStringLiteral("DspData.sqlite")));
    }

    ~SpeakerDspDatabase() { folder.removeRecursively(); }

    SpeakerDspDatabase(SpeakerDspDatabase const &) = delete;
    SpeakerDspDatabase & operator=(SpeakerDspDatabase const &) = delete;

private:
    QDir folder{QCoreApplication::applicationDirPath() + QStringLiteral("/DspData")};
};

void askAboutTheDevice(CDevicelore & facade, CDeviceGuid const & guid)
{
    QString text;
    facade.deviceTypeOnGuid(guid);
    facade.deviceModelOnGuid(guid);
    facade.deviceTypeOnHardwaretype(3, text);
    facade.latestGuidOnDeviceType(QStringLiteral("Hesko"));
    facade.deviceChannelCount(guid, ChannelTypeSpeaker);
    facade.deviceModels();
    QList<unsigned short> ids;
    QList<QPair<unsigned short, QString>> names;
    facade.listSpeakersForDevice(guid, ids);
    facade.listSpeakersForDevice(guid, names);
    facade.listSpeakersForDevice(guid, ids, QFlags<SpeakerType>(QFlag(7)), OutputMode(2));
    facade.isSpeakerSupportedByDevice(12, guid);
    CSpeakerSetupInfo setup;
    if (facade.SpeakerSetupInfo(12, setup)) {
        CSpeakerClass speakerClass;
        for (int way = -1; way <= setup.numWays(); ++way)
            setup.speakerClass(speakerClass, way);
    }
    facade.GetConfigSpeakerData(guid, 12);
    for (QString const & filter : facade.enumDevicePropertyFilter())
        facade.devicePropertyFilter(filter);
    QList<CDriverDatabaseInfo> infos;
    facade.databaseInfos(infos);
}

void askAboutTheObject(CDevicelore & facade, CDeviceGuid const & guid, CDeviceChannelInfo const * channel)
{
    QString const name = QStringLiteral("Config_Filter1");
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    facade.GetObjectDef(guid, name, object, channel);
    facade.GetObjectDef(guid, 0x0105, object, channel);
    facade.objectName(guid, 0x0105);
    facade.objectNumber(guid, name);
    CDeviceProperty property;
    property.setPropertyName(name, QString());
    facade.devicePropertyInfo(guid, property, channel);
    facade.IsObjectSupported(guid, name, channel);
    facade.GetFilterName(guid, 1, channel);
    for (QVariant const & given : {QVariant(3), QVariant(3.7), QVariant(QStringLiteral("3"))}) {
        QVariant value = given;
        facade.deviceToReal(object, value);
        value = given;
        facade.realToDevice(object, value);
        value = given;
        facade.AdjustDeviceProperty(guid, name, value, channel);
    }
    facade.deviceToReal(object);
    facade.realToDevice(object);
    QList<QPair<int, QString>> texts;
    facade.listValueStrings(guid, static_cast<int>(object.textOffset()), texts);
    facade.objectValueString(guid, 30, 1);
    CDriverPropertyTarget const target(guid, name, ChannelFirst, 0, 12);
    facade.defaultPropertyValue(target);
    for (int mode = -1; mode <= 8; ++mode) {
        facade.defaultSpeakerId(target, OutputMode(mode));
        facade.validateSpeakerId(target, OutputMode(mode));
    }
}

/// The world is both kinds of database at once: each is asked for its own tables.
QStringList messagesOfASession(QString const & sql)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), sql);
    SpeakerDspDatabase const speakerDsp(folder.path(QStringLiteral("a.db3")));
    MessageRecorder const recorder;
    auto * const cache = new CDriverCache;
    EXPECT_EQ(cache->openDatabases(folder.dir()), 1);
    CDevicelore facade(QPointer<CDriverCache>(cache), nullptr);
    facade.setDeviceAccessLevel(2);
    CDeviceGuid const guid(0xC7000012);
    CDeviceChannelInfo speaker;
    speaker.SetSpeakerId(12);
    askAboutTheDevice(facade, guid);
    askAboutTheObject(facade, guid, nullptr);
    askAboutTheObject(facade, guid, &speaker);
    return recorder.messages();
}

} // namespace

TEST(UntrustedDatabase, AnswersWithoutAWordWhateverStandsInAColumn)
{
    QStringList const noWord;
    QStringList const noSuchSpeaker{
        QStringLiteral("warning: Entry not found for device guid = C7000012 and speaker id = 12")};
    EXPECT_EQ(messagesOfASession(worldWith(QString(), nullptr)), noWord);
    for (Table const & table : tables()) {
        for (Column const & column : table.columns) {
            QString const name = QLatin1String(table.name) + QLatin1Char('.') + QLatin1String(column.name);
            bool const namesTheSpeaker =
                name == QLatin1String("SpeakerData.GUID") || name == QLatin1String("SpeakerData.SpeakerId");
            for (char const * value : oddValues) {
                EXPECT_EQ(messagesOfASession(worldWith(name, value)),
                          namesTheSpeaker ? noSuchSpeaker : noWord)
                    << name.toStdString() << " = " << value;
            }
        }
    }
}

TEST(UntrustedDatabase, IsWholeInTheWorldThatTheOthersDepartFrom)
{
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"), worldWith(QString(), nullptr));
    SpeakerDspDatabase const speakerDsp(folder.path(QStringLiteral("a.db3")));
    auto * const cache = new CDriverCache;
    ASSERT_EQ(cache->openDatabases(folder.dir()), 1);
    CDevicelore facade(QPointer<CDriverCache>(cache), nullptr);
    facade.setDeviceAccessLevel(2);
    CDeviceGuid const guid(0xC7000012);
    CDeviceChannelInfo speaker;
    speaker.SetSpeakerId(12);
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    ASSERT_EQ(facade.GetObjectDef(guid, QStringLiteral("Config_Filter1"), object, &speaker), TharnNoError);
    EXPECT_EQ(object.displaySubName(), QStringLiteral("Shelf"));
    EXPECT_EQ(facade.objectValueString(guid, 30, 1), QStringLiteral("On"));
    EXPECT_EQ(facade.devicePropertyFilter(QStringLiteral("F")),
              QStringList{QStringLiteral("Config_Filter1")});
    EXPECT_TRUE(facade.GetConfigSpeakerData(guid, 12).IsValid());
}

TEST(UntrustedDatabase, GivesAnEmptyGroupForAStatementThatItsConnectionRefuses)
{
    QString const endless = QStringLiteral("WITH RECURSIVE c (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c) "
                                           "SELECT i FROM c");
    DatabaseFolder folder;
    folder.add(QStringLiteral("a.db3"),
               worldWith(QString(), nullptr) +
                   QStringLiteral("INSERT INTO DevicePropertyFilter VALUES"
                                  " ('Writing', 'DELETE FROM Objects', 0),"
                                  " ('Attaching', 'ATTACH '':memory:'' AS other', 0),"
                                  " ('Making', 'CREATE TEMP TABLE T (a)', 0),"
                                  " ('Loading', 'SELECT load_extension(''x'')', 0),"
                                  " ('Endless', '%1', 0);")
                       .arg(endless));
    auto * const cache = new CDriverCache;
    ASSERT_EQ(cache->openDatabases(folder.dir()), 1);
    CDevicelore facade(QPointer<CDriverCache>(cache), nullptr);
    MessageRecorder const recorder;
    QStringList groups = facade.enumDevicePropertyFilter();
    groups.sort();
    EXPECT_EQ(groups.join(QLatin1Char(' ')), QStringLiteral("Attaching Endless F Loading Making Writing"));
    for (QString const & group : std::as_const(groups)) {
        bool const isSound = group == QLatin1String("F");
        EXPECT_EQ(facade.devicePropertyFilter(group),
                  isSound ? QStringList{QStringLiteral("Config_Filter1")} : QStringList());
    }
    EXPECT_EQ(facade.devicePropertyFilterByExpression(endless), QStringList());
    EXPECT_EQ(facade.devicePropertyFilterByExpression(QStringLiteral("SELECT Name FROM Objects")),
              QStringList{QStringLiteral("Config_Filter1")});
    EXPECT_EQ(recorder.messages(), QStringList());
}
