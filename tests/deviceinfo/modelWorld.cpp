#include "modelWorld.h"

#include "cache/driverCacheKey.h"

#include <gtest/gtest.h>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::test {

namespace {

QString const tables = QStringLiteral(
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER);"
    "CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name TEXT, BoxNumber INTEGER, ObjectNumber INTEGER, "
    "Format TEXT, Access INTEGER, DefaultValue TEXT);"
    "CREATE TABLE guidsandobjects (objectid INTEGER, guid TEXT);"
    "CREATE TABLE SpeakerClasses (Class INTEGER, Name TEXT, Type TEXT, Ways INTEGER, WayNames TEXT);"
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort TEXT, "
    "SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
    "CREATE TABLE GuidsSpeakersFilters (GUID TEXT, SpeakerId INTEGER, FilterId INTEGER, Access INTEGER);");

QString const rows = QStringLiteral(
    "INSERT INTO Guids VALUES ('C7000005', 'Talvo', '', 0), ('C7000006', 'Zerin', '', 0),"
    " ('C7000007', 'Yolsa', '', 0), ('C7000010', 'Sarni', '', 0), ('C7000011', 'Murel', '', 0),"
    " ('C7000012', 'Hesko', '', 0), ('C7000013', 'Vesni', '', 0), ('C7000014', 'Kalom', '', 0),"
    " ('C7000015', 'Nurix', '', 0), ('C7000016', 'Orvan', '', 0), ('C7000017', 'Lumbo', '', 0),"
    " ('C7000020', 'Fenra', '', 0), ('C7000030', 'Tovian', '', 0), ('C7000031', 'Quimo', '', 0),"
    " ('C7000040', 'Rabel', '', 0), ('C7000077', 'Hesko II', '', 0);"
    "INSERT INTO Objects VALUES (1, 'Config_SpeakerId', 1, 1, '%3u', 0, '500'),"
    " (2, 'Volume', 1, 2, '%3d dB', 0, '-20'), (3, 'Eq_Fg', 1, 3, '%5d Hz', 0, '50'),"
    " (4, 'Eq_Order', 1, 4, '%1u', 0, '3');"
    "INSERT INTO guidsandobjects SELECT id, GUID FROM Objects, Guids;"
    "INSERT INTO SpeakerClasses VALUES (0, 'Full', '', 1, ''), (2, 'Bass', '', 1, ''),"
    " (9, 'Column', '', 1, ''), (5, 'Pair', '', 2, '');"
    "INSERT INTO Speakers VALUES (1, 'Full', 0, 0, 'F', 1, 0, 0), (2, 'Bass', 2, 0, 'B', 2, 0, 0),"
    " (3, 'Column', 9, 0, 'C', 3, 0, 0), (4, 'Pair', 5, 0, 'P', 4, 0, 0);"
    "INSERT INTO GuidsSpeakersFilters SELECT GUID, SpeakerId, 0, 0 FROM Guids, Speakers;");

} // namespace

std::vector<Model> const models = {
    {"Talvo", 0xC7000005}, {"Hesko", 0xC7000012},  {"Zerin", 0xC7000006}, {"Yolsa", 0xC7000007},
    {"Murel", 0xC7000011}, {"Vesni", 0xC7000013},  {"Kalom", 0xC7000014}, {"Nurix", 0xC7000015},
    {"Orvan", 0xC7000016}, {"Tovian", 0xC7000030}, {"Rabel", 0xC7000040}, {"Quimo", 0xC7000031},
    {"Fenra", 0xC7000020}, {"Sarni", 0xC7000010},  {"Lumbo", 0xC7000017},
};

GetItemReturnValue AskedCache::GetDriverObject(CDriverCacheObjectItem *& item, CDriverCacheKey * key)
{
    askedKeys.append(key->key());
    return ExposedCache::GetDriverObject(item, key);
}

ModelWorld::ModelWorld()
{
    folder.add(QStringLiteral("a.db3"), tables + rows);
    EXPECT_EQ(cache.openDatabases(folder.dir()), 1);
}

std::string said(QVariant const & answer)
{
    if (!answer.isValid())
        return "invalid";
    return std::string(answer.typeName()) + ' ' + answer.toString().toStdString();
}

} // namespace kestrova::test
