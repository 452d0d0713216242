#include "toolFixture.h"

using namespace kestrova::test;

namespace {

// As many rows as a real database has: 60 devices of 300 objects each, of which every tenth device has its
// own.
QByteArray const fillSql = R"sql(
CREATE TEMP TABLE Numbers AS WITH RECURSIVE n (i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 2999)
    SELECT i FROM n;
INSERT INTO Guids (GUID, DeviceType) SELECT printf('C70000%02X', i + 4), 'Model ' || i FROM Numbers WHERE i < 60;
INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format)
    SELECT i, 'Object_' || (i % 300), i % 300 / 50, i % 50, '%1U' FROM Numbers;
INSERT INTO guidsandobjects (objectid, guid)
    SELECT o.i, printf('C70000%02X', d.i + 4) FROM Numbers o, Numbers d WHERE d.i < 60 AND o.i / 300 = d.i % 10;
INSERT INTO Speakers (SpeakerId, Name, Class, DisplayNameShort) SELECT i, 'S' || i, 0, 's' FROM Numbers WHERE i < 100;
INSERT INTO GuidsSpeakersFilters (GUID, SpeakerId, FilterId)
    SELECT printf('C70000%02X', d.i + 4), s.i, f.i * 10
    FROM Numbers d, Numbers s, Numbers f WHERE d.i < 60 AND s.i < 100 AND f.i < 7;
INSERT INTO Filters (Id, Number) SELECT i, i / 10 FROM Numbers WHERE i < 80;
INSERT INTO TextsObjectValues (TextOffset, Value, TextShort_en_US) SELECT i / 4, i % 4, 'text' FROM Numbers;
INSERT INTO SpeakerData SELECT printf('C70000%02X', d.i + 4), s.i, 'Model', 'S', '1', zeroblob(2000), ''
    FROM Numbers d, Numbers s WHERE d.i < 20 AND s.i < 100;
DROP TABLE Numbers;
)sql";

struct PlanRow {
    char const * statement;
    char const * plan; ///< in SQLite's words, steps separated by " / "
};

// Every statement of the library. Catalogues that are read whole are scanned; all else is searched by an
// index.
PlanRow const plans[] = {
    {"SELECT * from Version", "SCAN Version"},
    {"SELECT Guids.GUID,Guids.DeviceType,Guids.Version,Guids.Access,Guids.OnoType FROM Guids "
     "WHERE Guids.GUID LIKE'C7%'",
     "SCAN Guids"},
    {"SELECT Guids.GUID,Guids.DeviceType,Guids.Version,Guids.Access FROM Guids WHERE Guids.GUID LIKE'C7%'",
     "SCAN Guids"},
    {"SELECT Type,DeviceType FROM Hardwaretypes", "SCAN Hardwaretypes"},
    {"SELECT Id, OcaClassId, Description FROM ObjectClasses", "SCAN ObjectClasses"},
    {"SELECT Class,Name,Type,Ways,WayNames FROM SpeakerClasses", "SCAN SpeakerClasses"},
    {"SELECT SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, CablefitMaxCount, WfActive FROM "
     "Speakers",
     "SCAN Speakers"},
    {"SELECT DISTINCT SpeakerId from GuidsSpeakersFilters where GUID = ? AND Access <= ?",
     "SEARCH GuidsSpeakersFilters USING INDEX GuidsSpeakersFiltersByGuid (GUID=?)"},
    {"SELECT FilterId FROM GuidsSpeakersFilters WHERE GUID = ? AND SpeakerId = ?",
     "SEARCH GuidsSpeakersFilters USING INDEX GuidsSpeakersFiltersByGuid (GUID=? AND SpeakerId=?)"},
    {"SELECT Id, Number, Type, Min, Max, DisplayNameShort,TextOffset, StateTexts FROM Filters WHERE Id = ?",
     "SEARCH Filters USING INDEX FiltersById (Id=?)"},
    {"SELECT * FROM objects,guidsandobjects WHERE objects.Name = ? AND guidsandobjects.objectid = objects.id "
     "AND guidsandobjects.guid = ?",
     "SEARCH objects USING INDEX ObjectsByName (Name=?) / "
     "SEARCH guidsandobjects USING COVERING INDEX GuidsAndObjectsByObject (objectid=? AND guid=?)"},
    {"SELECT * FROM Objects,guidsandobjects WHERE objects.BoxNumber = ? AND objects.ObjectNumber = ? "
     "AND guidsandobjects.objectid = objects.id AND guidsandobjects.guid = ?",
     "SEARCH Objects USING INDEX ObjectsByNumber (ObjectNumber=? AND BoxNumber=?) / "
     "SEARCH guidsandobjects USING COVERING INDEX GuidsAndObjectsByObject (objectid=? AND guid=?)"},
    {"SELECT * FROM Objects,guidsandobjects WHERE objects.objectnumber = ? AND guidsandobjects.objectid = "
     "objects.id "
     "AND guidsandobjects.guid = ?",
     "SEARCH Objects USING INDEX ObjectsByNumber (ObjectNumber=?) / "
     "SEARCH guidsandobjects USING COVERING INDEX GuidsAndObjectsByObject (objectid=? AND guid=?)"},
    {"SELECT FilterName,Expression,Access FROM DevicePropertyFilter", "SCAN DevicePropertyFilter"},
    {"SELECT FilterName,Expression FROM DevicePropertyFilter", "SCAN DevicePropertyFilter"},
    {"SELECT Value,TextShort_en_US FROM TextsObjectValues WHERE TextOffset = 12",
     "SEARCH TextsObjectValues USING INDEX TextsObjectValuesByOffset (TextOffset=?)"},
    {"SELECT DeviceType, SpeakerName, SpeakerVersion, BlobData, BlobDataMD5 FROM SpeakerData WHERE GUID = ? "
     "AND "
     "SpeakerId = ?",
     "SEARCH SpeakerData USING INDEX SpeakerDataByGuid (GUID=? AND SpeakerId=?)"},
};

struct NewDatabase : ToolFixture {};

} // namespace

TEST_F(NewDatabase, AnswersEveryQuestionOfTheLibraryByAGoodPlan)
{
    make("new plain.db");
    ProgramResult const filled =
        runProgram(QStringLiteral("sqlite3"), {path(QStringLiteral("plain.db")), QString::fromUtf8(fillSql)});
    ASSERT_EQ(filled.exitCode, 0) << filled.messages.toStdString();
    make("encrypt plain.db out.db3");

    for (PlanRow const & row : plans) {
        SCOPED_TRACE(row.statement);
        QString statement = QString::fromUtf8(row.statement);
        statement.replace(QLatin1Char('?'), QLatin1Char('1')); // Qt runs nothing with a parameter left open
        QString const steps = QString::fromStdString(
            rowsThroughCore(QStringLiteral("out.db3"), QStringLiteral("EXPLAIN QUERY PLAN ") + statement));
        QStringList words;
        for (QString const & step : steps.split(QLatin1Char('\n')))
            words.append(step.section(QLatin1Char('|'), 3));
        EXPECT_EQ(words.join(QLatin1String(" / ")), QString::fromUtf8(row.plan));
    }
}
