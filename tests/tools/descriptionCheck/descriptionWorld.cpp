#include "descriptionWorld.h"

#include "support/sqlFile.h"

#include <QDir>

using namespace kestrova::authoring;

namespace kestrova::test {

namespace {

char const * const goodDatabase = R"(
CREATE TABLE Version (Major INTEGER, Minor INTEGER, Bugfix INTEGER);
CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER, OnoType INTEGER);
CREATE TABLE Hardwaretypes (Type INTEGER, DeviceType TEXT);
CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER,
    ChannelCount INTEGER DEFAULT 1, RecordCount INTEGER DEFAULT 1, Min REAL, Max REAL, Step REAL, Format TEXT,
    Flags INTEGER DEFAULT 3, Access INTEGER DEFAULT 11, DefaultValue TEXT, Size INTEGER,
    TextOffset INTEGER DEFAULT 0, Description TEXT, Comment TEXT, ClassId INTEGER DEFAULT 0,
    WaitTime INTEGER DEFAULT 0, WaitStates INTEGER DEFAULT 0);
CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);
CREATE TABLE ObjectClasses (Id INTEGER, OcaClassId TEXT, Description TEXT);
CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);
CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT,
    SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);
CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId, Access INTEGER);
CREATE TABLE Filters (Id, Number INTEGER, Type INTEGER, Min NUMERIC, Max NUMERIC, DisplayNameShort TEXT,
    TextOffset INTEGER, StateTexts TEXT);
CREATE TABLE TextsObjectValues (TextOffset INTEGER, Value INTEGER, TextShort_en_US TEXT, TextShort_de_DE TEXT);
CREATE TABLE DevicePropertyFilter (FilterName TEXT, Expression TEXT, Access INTEGER);

CREATE INDEX ObjectsByName ON Objects (Name);
CREATE INDEX ObjectsByNumber ON Objects (ObjectNumber, BoxNumber);
CREATE INDEX LinksByObject ON guidsandobjects (objectid, guid);
CREATE INDEX TextsByOffset ON TextsObjectValues (TextOffset);
CREATE INDEX FittingsByGuid ON GuidsSpeakersFilters (GUID, SpeakerId);
CREATE INDEX FiltersById ON Filters (Id);

INSERT INTO Version VALUES (1, 2, 3);
INSERT INTO Guids VALUES ('C7000012', 'Hesko', '1.00', 1, 1), ('C7000112', 'Hesko', '1.10', 1, 1);
INSERT INTO Hardwaretypes VALUES (3, 'Hesko');
INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, DefaultValue, TextOffset, ClassId)
VALUES (1,   'Power',            0,  1, '%1U',        0,     1,    1,   1,  '0',    0, 0),
       (2,   'DeviceName',       0,  2, '%1s',        0,     31,   1,   32, 'Rack', 0, 0),
       (101, 'Gain',             1,  1, '%5.1f dB', -57.5,   6,    0.5, 4,  '0',    0, 1),
       (102, 'Polarity',         1,  2, '%1U',        0,     1,    1,   1,  '0',   30, 0),
       (109, 'Trim',             1,  9, '%+6.2d dB', -1200, 1200, 25,   2,  '0',    0, 0),
       (202, 'Config_SpeakerId', 2,  2, '%3u',        0,    511,   1,   2,  '71',   0, 0);
INSERT INTO guidsandobjects SELECT id, GUID FROM Objects, Guids;
INSERT INTO ObjectClasses VALUES (1, '1.2.5', 'Gain');
INSERT INTO SpeakerClasses VALUES (0, 'Point source', 'Passive', 1, 'Full'), (2, 'Bass', 'Passive', 1, 'Sub'),
                                  (3, 'Low way', 'Active', 2, 'Low'), (4, 'High way', 'Active', 2, 'High');
INSERT INTO Speakers VALUES (71, 'Linear', 0, 0, 'Linear', 10, 0, 0), (68, 'Bass', 2, 0, 'Bass', 20, 0, 0),
                            (267, 'Ostel high', 4, 1, 'Ostel', 30, 0, 0), (11, 'Ostel low', 3, 1, 'Ostel', 30, 0, 0);
INSERT INTO Filters VALUES (11, 1, 1, 0, 1, 'Low cut', 70, 'off;on'), (19, 1, 0, 0, 1, '---', 0, '');
INSERT INTO GuidsSpeakersFilters SELECT GUID, 71, 19, 1 FROM Guids;
INSERT INTO GuidsSpeakersFilters SELECT GUID, 68, 19, 1 FROM Guids;
INSERT INTO GuidsSpeakersFilters SELECT GUID, 11, 11, 1 FROM Guids;
INSERT INTO TextsObjectValues VALUES (30, 0, 'Normal', 'Normal'), (30, 1, 'Inverted', 'Gedreht'),
                                     (70, 0, 'Off', 'Aus'), (70, 1, 'On', 'Ein');
INSERT INTO DevicePropertyFilter VALUES ('Channel', 'SELECT Name FROM Objects WHERE BoxNumber = 1', 1);
)";

QString analysed(QString const & sql)
{
    return sql + QStringLiteral("; ANALYZE;");
}

} // namespace

DescriptionWorld::DescriptionWorld(QString const & change)
{
    add(QStringLiteral("a.db3"), QString::fromUtf8(goodDatabase) + change);
}

DescriptionWorld & DescriptionWorld::add(QString const & fileName, QString const & sql)
{
    return addWithoutStatistics(fileName, analysed(sql));
}

DescriptionWorld & DescriptionWorld::addWithoutStatistics(QString const & fileName, QString const & sql)
{
    folder.add(fileName, sql);
    return *this;
}

DescriptionWorld & DescriptionWorld::addDspData(QString const & sql)
{
    QDir(path()).mkdir(QStringLiteral("DspData"));
    makeSqlFile(folder.path(QStringLiteral("DspData/DspData.sqlite")), analysed(sql));
    return *this;
}

DescriptionWorld & DescriptionWorld::addFile(QString const & fileName, QByteArray const & content)
{
    folder.addFile(fileName, content);
    return *this;
}

QString DescriptionWorld::path() const
{
    return folder.path(QString());
}

QVector<Finding> DescriptionWorld::findings() const
{
    DescriptionSet set({path()});
    return checkDescriptions(set).sorted();
}

QStringList DescriptionWorld::findingLines() const
{
    QStringList lines;
    for (Finding const & finding : findings())
        lines.append(QStringLiteral("%1, %2, %3, %4: %5 [%6]")
                         .arg(finding.place.file, finding.place.table, finding.place.column,
                              finding.place.subject, finding.message, QLatin1String(finding.rule->name)));
    return lines;
}

} // namespace kestrova::test
