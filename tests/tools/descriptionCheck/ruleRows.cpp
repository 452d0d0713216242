#include "ruleRows.h"

#define GUIDS_TABLE                                                                                          \
    "CREATE TABLE Guids (GUID TEXT, DeviceType TEXT, Version TEXT, Access INTEGER, OnoType INTEGER);"
#define SPEAKERS_TABLE                                                                                       \
    "CREATE TABLE Speakers (SpeakerId INTEGER, Name TEXT, Class INTEGER, Rib INTEGER, DisplayNameShort "     \
    "TEXT, SortOrder INTEGER, CablefitMaxCount INTEGER, WfActive INTEGER);"
#define DSP_TABLE                                                                                            \
    "CREATE TABLE SpeakerData (GUID TEXT, SpeakerId INTEGER, DeviceType TEXT, SpeakerName TEXT, "            \
    "SpeakerVersion TEXT, BlobData BLOB, BlobDataMD5 TEXT); CREATE INDEX DataByGuid ON SpeakerData (GUID, "  \
    "SpeakerId);"

/// Objects with the same rows and indexes, but without a key.
#define OBJECTS_WITHOUT_KEY                                                                                  \
    "CREATE TABLE o AS SELECT * FROM Objects; DROP TABLE Objects; ALTER TABLE o RENAME TO Objects; "         \
    "CREATE INDEX ByName ON Objects (Name); CREATE INDEX ByNumber ON Objects (ObjectNumber);"
#define FILTER_OBJECT                                                                                        \
    "INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, DefaultValue, "   \
    "TextOffset) VALUES (211, 'Config_Filter1', 2, 11, '%1U', 0, 1, 1, 1, '0', 30); "                        \
    "INSERT INTO guidsandobjects SELECT 211, GUID FROM Guids;"
#define CABLEFIT_OBJECT                                                                                      \
    "INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, DefaultValue, "   \
    "TextOffset) VALUES (212, 'Config_CablefitSpeakerCount', 2, 12, '%1U', 0, 1, 1, 1, '0', 30); "           \
    "INSERT INTO guidsandobjects SELECT 212, GUID FROM Guids;"
/// A filter of another database for a device of the good one, with the texts 80.
#define FOREIGN_FILTER                                                                                       \
    "CREATE TABLE Filters (Id, Number, Type, Min, Max, DisplayNameShort, TextOffset, StateTexts);"           \
    "CREATE TABLE GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access);"                                 \
    "CREATE INDEX f ON Filters (Id); CREATE INDEX g ON GuidsSpeakersFilters (GUID);"                         \
    "INSERT INTO Filters VALUES (21, 2, 1, 0, 1, 'Far field', 80, '');"                                      \
    "INSERT INTO GuidsSpeakersFilters VALUES ('C7000012', 71, 21, 1);"
#define TEXTS_TABLE                                                                                          \
    "CREATE TABLE TextsObjectValues (TextOffset, Value, TextShort_en_US, TextShort_de_DE);"                  \
    "CREATE INDEX t ON TextsObjectValues (TextOffset);"
#define TEXTS_80 "INSERT INTO TextsObjectValues VALUES (80, 0, 'Near', 'Nah'), (80, 1, 'Far', 'Fern')"

namespace kestrova::test {

std::vector<BadRow> const & badRows()
{
    static std::vector<BadRow> const all{
        {"class-cut", "INSERT INTO ObjectClasses VALUES (257, '1.2', 'Far')", "", "",
         "a.db3, ObjectClasses, Id, class 257: 257 is read as 1 [class-cut]"},
        {"class-missing", "UPDATE Objects SET ClassId = 9 WHERE id = 1", "", "",
         "a.db3, Objects, ClassId, Power (id 1): there is no class 9 [class-missing]"},
        {"class-not-listed", "INSERT INTO SpeakerClasses VALUES (6, 'Horn', 'Passive', 1, 'Full')", "", "",
         "a.db3, SpeakerClasses, Ways, class 6: Ways of class 6 is 1, and its speakers are offered to pairs "
         "of "
         "channels [class-not-listed]"},
        {"class-not-listed", "UPDATE SpeakerClasses SET Ways = 2 WHERE Class = 0", "", "",
         "a.db3, SpeakerClasses, Ways, class 0: Ways of class 0 is 2, and its speakers are offered to single "
         "channels [class-not-listed]"},
        {"class-twice", "",
         "CREATE TABLE ObjectClasses (Id, OcaClassId, Description); INSERT INTO ObjectClasses VALUES (1, "
         "'1.2.6', 'Level')",
         "",
         "b.db3, ObjectClasses, Id, class 1: it is 1.2.6 here, and 1.2.5 in a.db3, which counts "
         "[class-twice]"},
        {"class-zero", "INSERT INTO ObjectClasses VALUES (0, '1', 'None')", "", "",
         "a.db3, ObjectClasses, Id, class 0: the class has the number 0 [class-zero]"},
        {"column-case", "ALTER TABLE Objects RENAME COLUMN Step TO step", "", "",
         "a.db3, Objects, Step, : the column Step is spelled \"step\" here [column-case]\n"
         "a.db3, Objects, Step, Power (id 1): the step is 0 [step-not-positive]\n"
         "a.db3, Objects, Step, Gain (id 101): the step is 0 [step-not-positive]\n"
         "a.db3, Objects, Step, Polarity (id 102): the step is 0 [step-not-positive]\n"
         "a.db3, Objects, Step, Trim (id 109): the step is 0 [step-not-positive]\n"
         "a.db3, Objects, Step, Config_SpeakerId (id 202): the step is 0 [step-not-positive]"},
        {"column-case", "ALTER TABLE Guids RENAME COLUMN OnoType TO ONOTYPE", "", "",
         "a.db3, Guids, OnoType, : the column OnoType is spelled \"ONOTYPE\" here [column-case]"},
        {"column-missing", "ALTER TABLE Speakers DROP COLUMN Rib", "", "",
         "a.db3, GuidsSpeakersFilters, SpeakerId, speaker 71: no database defines the speaker 71 "
         "[speaker-missing]\n"
         "a.db3, GuidsSpeakersFilters, SpeakerId, speaker 68: no database defines the speaker 68 "
         "[speaker-missing]\n"
         "a.db3, GuidsSpeakersFilters, SpeakerId, speaker 11: no database defines the speaker 11 "
         "[speaker-missing]\n"
         "a.db3, Speakers, Rib, : there is no column Rib [column-missing]"},
        {"default-missing", "UPDATE Objects SET DefaultValue = '' WHERE id = 109", "", "",
         "a.db3, Objects, DefaultValue, Trim (id 109): there is no default value [default-missing]"},
        {"default-not-a-number", "UPDATE Objects SET DefaultValue = 'half' WHERE id = 109", "", "",
         "a.db3, Objects, DefaultValue, Trim (id 109): \"half\" is no number [default-not-a-number]"},
        {"default-off-grid", "UPDATE Objects SET DefaultValue = '12' WHERE id = 109", "", "",
         "a.db3, Objects, DefaultValue, Trim (id 109): 12 is no multiple of 25 [default-off-grid]"},
        {"default-out-of-range", "UPDATE Objects SET DefaultValue = '1225' WHERE id = 109", "", "",
         "a.db3, Objects, DefaultValue, Trim (id 109): 1225 is not between -1200 and 1200 "
         "[default-out-of-range]"},
        {"default-out-of-range",
         "UPDATE Objects SET DefaultValue = 'Rack 1, lower half, on the right' WHERE id = 2", "", "",
         "a.db3, Objects, DefaultValue, DeviceName (id 2): it has 32 characters, and Size leaves room for 31 "
         "[default-out-of-range]"},
        {"default-speaker", "DELETE FROM GuidsSpeakersFilters WHERE GUID = 'C7000112' AND SpeakerId = 68", "",
         "",
         "a.db3, Guids, GUID, C7000112: Hesko takes speaker 68 by default, first on channel 2 in output mode "
         "1, and C7000112 does not support it [default-speaker]"},
        {"device-twice", "INSERT INTO Guids VALUES ('C7000112', 'Hesko', '2.00', 1, 1)", "", "",
         "a.db3, Guids, GUID, C7000112: C7000112 stands in an earlier row already [device-twice]"},
        {"device-without-objects", "DELETE FROM guidsandobjects WHERE guid = 'C7000112'", "", "",
         "a.db3, Guids, GUID, C7000112: guidsandobjects has no row for C7000112 [device-without-objects]"},
        {"dsp-incomplete", "", "",
         DSP_TABLE "INSERT INTO SpeakerData VALUES ('C7000012', 71, 'Hesko', 'Linear', '', 'abc', "
                   "'900150983cd24fb0d6963f7d28e17f72')",
         "DspData.sqlite, SpeakerData, SpeakerVersion, C7000012, speaker 71: SpeakerVersion is empty "
         "[dsp-incomplete]"},
        {"dsp-md5", "", "",
         DSP_TABLE "INSERT INTO SpeakerData VALUES ('C7000012', 71, 'Hesko', 'Linear', '1', 'abd', "
                   "'900150983cd24fb0d6963f7d28e17f72')",
         "DspData.sqlite, SpeakerData, BlobDataMD5, C7000012, speaker 71: the MD5 of the data is "
         "4911e516e5aa21d327512e0c8b197616 [dsp-md5]"},
        {"dsp-twice", "", "",
         DSP_TABLE "INSERT INTO SpeakerData VALUES ('C7000012', 71, 'Hesko', 'Linear', '1', 'abc', "
                   "'900150983cd24fb0d6963f7d28e17f72'), ('C7000012', 71, 'Hesko', 'Linear', '2', 'abc', "
                   "'900150983cd24fb0d6963f7d28e17f72')",
         "DspData.sqlite, SpeakerData, SpeakerId, C7000012, speaker 71: it stands in an earlier row already "
         "[dsp-twice]"},
        {"dsp-unknown-device", "", "",
         DSP_TABLE "INSERT INTO SpeakerData VALUES ('C7000212', 71, 'Hesko', 'Linear', '1', 'abc', "
                   "'900150983cd24fb0d6963f7d28e17f72')",
         "DspData.sqlite, SpeakerData, GUID, C7000212, speaker 71: no database describes C7000212 "
         "[dsp-unknown-device]"},
        {"dsp-unknown-speaker", "", "",
         DSP_TABLE "INSERT INTO SpeakerData VALUES ('C7000012', 72, 'Hesko', 'Linear', '1', 'abc', "
                   "'900150983cd24fb0d6963f7d28e17f72')",
         "DspData.sqlite, SpeakerData, SpeakerId, C7000012, speaker 72: no database defines the speaker 72 "
         "[dsp-unknown-speaker]"},
        {"filter-fraction", "UPDATE Filters SET Max = 1.4 WHERE Id = 19", "", "",
         "a.db3, Filters, Max, filter 19: Max is 1.4 [filter-fraction]"},
        {"filter-limits", "UPDATE Filters SET Min = 2 WHERE Id = 19", "", "",
         "a.db3, Filters, Min, filter 19: the range is 2 to 1 [filter-limits]"},
        {"filter-missing",
         "UPDATE GuidsSpeakersFilters SET FilterId = 12 WHERE GUID = 'C7000112' AND SpeakerId = 11", "", "",
         "a.db3, GuidsSpeakersFilters, FilterId, filter 12: Filters has no row 12 [filter-missing]"},
        {"filter-negative", "INSERT INTO GuidsSpeakersFilters VALUES ('C7000112', 71, -5, 1)", "", "",
         "a.db3, GuidsSpeakersFilters, FilterId, filter -5: the filter is -5 [filter-negative]"},
        {"filter-row-twice", "INSERT INTO Filters VALUES (19, 1, 0, 0, 1, 'Other', 0, '')", "", "",
         "a.db3, Filters, Id, filter 19: the filter 19 stands in an earlier row already [filter-row-twice]"},
        {"filter-slot-twice", "INSERT INTO GuidsSpeakersFilters VALUES ('C7000112', 71, 11, 1)", "", "",
         "a.db3, GuidsSpeakersFilters, FilterId, speaker 71, slot 1: speaker 71 has the filter 19 in slot 1 "
         "already, first for C7000112 [filter-slot-twice]"},
        {"filter-unused", "INSERT INTO Filters VALUES (31, 3, 0, 0, 1, 'Air', 0, '')", "", "",
         "a.db3, Filters, Id, filter 31: GuidsSpeakersFilters does not have 31 [filter-unused]"},
        {"format-not-latin1", "UPDATE Objects SET Format = '%+6.2d \u2126' WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"%+6.2d \u2126\" has characters beyond Latin-1 "
         "[format-not-latin1]"},
        {"format-size", "UPDATE Objects SET Size = 4 WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"%+6.2d dB\" has the size 2, and Size is 4 [format-size]"},
        {"format-size", "UPDATE Objects SET Format = '%s', Size = 15 WHERE id = 2", "", "",
         "a.db3, Objects, Format, DeviceName (id 2): \"%s\" takes 15 characters at least, and Size leaves "
         "room for 14 [format-size]"},
        {"format-size", "UPDATE Objects SET Format = '%1I64s', Size = 8 WHERE id = 2", "", "",
         "a.db3, Objects, Format, DeviceName (id 2): \"%1I64s\" takes 8 characters at least, and Size leaves "
         "room for 7 [format-size]"},
        {"format-size", "UPDATE Objects SET Size = 0, DefaultValue = '' WHERE id = 2", "", "",
         "a.db3, Objects, Size, DeviceName (id 2): a text takes one byte at least [format-size]"},
        {"format-size", "UPDATE Objects SET Size = 257 WHERE id = 2", "", "",
         "a.db3, Objects, Size, DeviceName (id 2): Size leaves room for 256 characters, and 255 are "
         "converted [format-size]"},
        {"format-step", "UPDATE Objects SET Step = 0.25 WHERE id = 101", "", "",
         "a.db3, Objects, Format, Gain (id 101): \"%5.1f dB\" has the precision 1, and the step is 0.25 "
         "[format-step]"},
        {"format-step", "UPDATE Objects SET Step = 2.5 WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"%+6.2d dB\" counts whole numbers, and the step is 2.5 "
         "[format-step]"},
        {"format-unparsable", "UPDATE Objects SET Format = 'dB' WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"dB\" has no % [format-unparsable]"},
        {"format-unparsable", "UPDATE Objects SET Format = 'is %6d' WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"is %6d\" does not begin with its conversion "
         "[format-unparsable]"},
        {"format-width", "UPDATE Objects SET Format = '%5.2d dB' WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"%5.2d dB\" is 5 wide, and -1200 takes 6 [format-width]"},
        {"format-without-size", "UPDATE Objects SET Format = '%.2f dB' WHERE id = 101", "", "",
         "a.db3, Objects, Format, Gain (id 101): \"%.2f dB\" names no conversion that has a size "
         "[format-without-size]"},
        {"group-faulty", "INSERT INTO DevicePropertyFilter VALUES ('Lost', 'SELECT Nmae FROM Objects', 1)",
         "", "", "a.db3, DevicePropertyFilter, Expression, Lost: no such column: Nmae [group-faulty]"},
        {"group-faulty", "INSERT INTO DevicePropertyFilter VALUES ('Empty', ' ', 1)", "", "",
         "a.db3, DevicePropertyFilter, Expression, Empty: there is no statement [group-faulty]"},
        {"group-faulty", "INSERT INTO DevicePropertyFilter VALUES ('Two', 'SELECT ''Gain''; SELECT 2', 1)",
         "", "",
         "a.db3, DevicePropertyFilter, Expression, Two: nothing may stand behind the first statement "
         "[group-faulty]"},
        {"group-faulty", "INSERT INTO DevicePropertyFilter VALUES ('One', 'SELECT ''Gain''; -- all', 1)", "",
         "",
         "a.db3, DevicePropertyFilter, Expression, One: nothing may stand behind the first statement "
         "[group-faulty]"},
        {"group-faulty", "INSERT INTO DevicePropertyFilter VALUES ('Asking', 'SELECT ?', 1)", "", "",
         "a.db3, DevicePropertyFilter, Expression, Asking: Parameter count mismatch [group-faulty]"},
        {"group-faulty",
         "INSERT INTO DevicePropertyFilter VALUES ('Named', 'SELECT coalesce(:x, ''Gain'')', 1)", "", "",
         "a.db3, DevicePropertyFilter, Expression, Named: Parameter count mismatch [group-faulty]"},
        {"group-faulty",
         "INSERT INTO DevicePropertyFilter VALUES ('Endless', 'WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL "
         "SELECT i + 1 FROM c) SELECT i FROM c', 1)",
         "", "", "a.db3, DevicePropertyFilter, Expression, Endless: interrupted [group-faulty]"},
        {"group-level", "UPDATE DevicePropertyFilter SET Access = 0", "", "",
         "a.db3, DevicePropertyFilter, Access, Channel: Access is 0 [group-level]"},
        {"group-name", "INSERT INTO DevicePropertyFilter VALUES ('Old', 'SELECT ''Treble''', 1)", "", "",
         "a.db3, DevicePropertyFilter, Expression, Old: no object is named \"Treble\" [group-name]"},
        {"group-twice",
         "INSERT INTO DevicePropertyFilter VALUES ('Twice', 'SELECT ''Gain'' UNION ALL SELECT ''Gain''', 1)",
         "", "", "a.db3, DevicePropertyFilter, Expression, Twice: it holds \"Gain\" twice [group-twice]"},
        {"guid-prefix", "INSERT INTO Guids VALUES ('C6000012', 'Hesko', '1', 1, 1)", "", "",
         "a.db3, Guids, GUID, C6000012: \"C6000012\" does not begin with C7 [guid-prefix]"},
        {"guid-text", "INSERT INTO Guids VALUES ('C7HESKO1', 'Hesko', '1', 1, 1)", "", "",
         "a.db3, Guids, GUID, C7HESKO1: \"C7HESKO1\" is no GUID [guid-text]"},
        {"guid-text", "UPDATE Guids SET GUID = 'c7000112' WHERE GUID = 'C7000112'", "", "",
         "a.db3, Guids, GUID, c7000112: \"c7000112\" is not eight digits in upper case [guid-text]"},
        {"guid-type",
         "INSERT INTO Guids VALUES ('C7000003', 'Hesko', '1', 1, 1), ('C70000A0', 'Hesko', '1', 1, 1)", "",
         "",
         "a.db3, Guids, GUID, C7000003: the device type is 03 [guid-type]\n"
         "a.db3, Guids, GUID, C70000A0: the device type is A0 [guid-type]"},
        {"hardware-twice",
         "DELETE FROM Hardwaretypes; INSERT INTO Hardwaretypes VALUES (3, 'Lumbo'), (3, 'Hesko')", "", "",
         "a.db3, Hardwaretypes, DeviceType, hardware type 3: a later row, of a.db3, says \"Hesko\" in place "
         "of \"Lumbo\" [hardware-twice]"},
        {"hardware-unknown", "INSERT INTO Hardwaretypes VALUES (4, 'Lumbo')", "", "",
         "a.db3, Hardwaretypes, DeviceType, hardware type 4: no device is of the model \"Lumbo\" "
         "[hardware-unknown]"},
        {"index-missing", "DROP INDEX TextsByOffset", "", "",
         "a.db3, TextsObjectValues, , TextOffset: CREATE INDEX TextsObjectValuesByOffset ON "
         "TextsObjectValues "
         "(TextOffset) [index-missing]"},
        {"index-missing",
         "DROP INDEX ObjectsByName; CREATE INDEX Some ON Objects (Name) WHERE Name <> 'Gain'", "", "",
         "a.db3, Objects, , Name: CREATE INDEX ObjectsByName ON Objects (Name) [index-missing]"},
        {"index-missing", "DROP INDEX ObjectsByName; CREATE INDEX Lower ON Objects (lower(Name), Name)", "",
         "", "a.db3, Objects, , Name: CREATE INDEX ObjectsByName ON Objects (Name) [index-missing]"},
        {"index-missing", "DROP INDEX ObjectsByName; CREATE INDEX AnyCase ON Objects (Name COLLATE NOCASE)",
         "", "", "a.db3, Objects, , Name: CREATE INDEX ObjectsByName ON Objects (Name) [index-missing]"},
        {"level-hides-type", "UPDATE Guids SET Access = 2", "", "",
         "a.db3, Guids, Access, type 12: devices of the type are seen from level 2 on [level-hides-type]"},
        {"link-missing-object", "INSERT INTO guidsandobjects VALUES (77, 'C7000112')", "", "",
         "a.db3, guidsandobjects, objectid, C7000112 - 77: there is no object with the id 77 "
         "[link-missing-object]"},
        {"link-twice", "INSERT INTO guidsandobjects VALUES (1, 'C7000112')", "", "",
         "a.db3, guidsandobjects, objectid, C7000112 - 1: C7000112 has Power (id 1) already [link-twice]"},
        {"link-unknown-device", "INSERT INTO guidsandobjects VALUES (1, 'C7000212')", "", "",
         "a.db3, guidsandobjects, guid, C7000212: no device is asked for as \"C7000212\" "
         "[link-unknown-device]"},
        {"link-unknown-device", "INSERT INTO GuidsSpeakersFilters VALUES ('C7000212', 71, 19, 1)", "", "",
         "a.db3, GuidsSpeakersFilters, GUID, C7000212: no device is asked for as \"C7000212\" "
         "[link-unknown-device]"},
        {"model-unknown",
         "UPDATE Guids SET DeviceType = 'hesko'; UPDATE Hardwaretypes SET DeviceType = 'hesko'", "", "",
         "a.db3, Guids, DeviceType, C7000012: there is no model \"hesko\" [model-unknown]\n"
         "a.db3, Guids, DeviceType, C7000112: there is no model \"hesko\" [model-unknown]"},
        {"name-case", "ALTER TABLE Hardwaretypes RENAME TO h; ALTER TABLE h RENAME TO hardwareTypes", "", "",
         "a.db3, Hardwaretypes, , : the table is spelled \"hardwareTypes\" here [name-case]"},
        {"name-case", "ALTER TABLE Filters RENAME COLUMN Number TO number", "", "",
         "a.db3, Filters, Number, : the column Number is spelled \"number\" here [name-case]"},
        {"not-a-number", "UPDATE Objects SET Size = 'two' WHERE id = 2", "", "",
         "a.db3, Objects, DefaultValue, DeviceName (id 2): it has 4 characters, and Size leaves room for 0 "
         "[default-out-of-range]\n"
         "a.db3, Objects, Size, DeviceName (id 2): a text takes one byte at least [format-size]\n"
         "a.db3, Objects, Size, DeviceName (id 2): Size is \"two\"; 0 to 65535 fit [not-a-number]"},
        {"null-value", "UPDATE Objects SET WaitTime = NULL WHERE id = 2", "", "",
         "a.db3, Objects, WaitTime, DeviceName (id 2): WaitTime is NULL [null-value]"},
        {"null-value",
         OBJECTS_WITHOUT_KEY
         "UPDATE Objects SET id = NULL WHERE id < 3; DELETE FROM guidsandobjects WHERE objectid < 3",
         "", "",
         "a.db3, Objects, id, Power (id ): id is NULL [null-value]\n"
         "a.db3, Objects, id, Power (id ): guidsandobjects does not have Power (id ) [object-unlinked]\n"
         "a.db3, Objects, id, DeviceName (id ): id is NULL [null-value]\n"
         "a.db3, Objects, id, DeviceName (id ): guidsandobjects does not have DeviceName (id ) "
         "[object-unlinked]"},
        {"number-cut", "UPDATE Objects SET ChannelCount = 256 WHERE id = 2", "", "",
         "a.db3, Objects, ChannelCount, DeviceName (id 2): ChannelCount is 256; 0 to 255 fit [number-cut]"},
        {"number-cut",
         "UPDATE Filters SET Id = 256 WHERE Id = 11; UPDATE GuidsSpeakersFilters SET FilterId = 256 WHERE "
         "FilterId = 11",
         "", "", "a.db3, Filters, Id, filter 256: Id is 256; 0 to 255 fit [number-cut]"},
        {"number-cut", "UPDATE Version SET Major = 256, Minor = -1, Bugfix = 65536", "", "",
         "a.db3, Version, Bugfix, 256: Bugfix is 65536; 0 to 65535 fit [number-cut]\n"
         "a.db3, Version, Major, 256: Major is 256; 0 to 255 fit [number-cut]\n"
         "a.db3, Version, Minor, 256: Minor is -1; 0 to 255 fit [number-cut]"},
        {"number-fraction", "UPDATE Speakers SET SortOrder = 10.5 WHERE SpeakerId = 71", "", "",
         "a.db3, Speakers, SortOrder, speaker 71 (Linear): SortOrder is 10.5 [number-fraction]"},
        {"object-address", "UPDATE Objects SET BoxNumber = 32 WHERE id = 1", "", "",
         "a.db3, Objects, BoxNumber, Power (id 1): the box is 32; 0 to 31 fit [object-address]"},
        {"object-address", "UPDATE Objects SET ObjectNumber = 256 WHERE id = 1", "", "",
         "a.db3, Objects, ObjectNumber, Power (id 1): the number is 256; 0 to 255 fit [object-address]"},
        {"object-column-missing", "ALTER TABLE Objects DROP COLUMN WaitStates", "", "",
         "a.db3, Objects, WaitStates, : there is no column WaitStates [object-column-missing]"},
        {"object-id-twice",
         OBJECTS_WITHOUT_KEY
         "UPDATE Objects SET id = 102 WHERE id = 109; DELETE FROM guidsandobjects WHERE objectid = 109",
         "", "", "a.db3, Objects, id, Trim (id 102): Polarity (id 102) has the id too [object-id-twice]"},
        {"object-id-twice",
         OBJECTS_WITHOUT_KEY
         "UPDATE Objects SET id = 102, Name = 'Polarity', BoxNumber = 3 WHERE id = 109; DELETE FROM "
         "guidsandobjects WHERE objectid = 109",
         "", "",
         "a.db3, Objects, Name, Polarity (id 102): Polarity (id 102) has it too, for C7000012 and 1 more "
         "[object-name-twice]\n"
         "a.db3, Objects, id, Polarity (id 102): Polarity (id 102) has the id too [object-id-twice]"},
        {"object-name-twice", "UPDATE Objects SET Name = 'Gain' WHERE id = 109", "", "",
         "a.db3, DevicePropertyFilter, Expression, Channel: it holds \"Gain\" twice [group-twice]\n"
         "a.db3, Objects, Name, Gain (id 109): Gain (id 101) has it too, for C7000012 and 1 more "
         "[object-name-twice]"},
        {"object-number-twice", "UPDATE Objects SET ObjectNumber = 1 WHERE id = 109", "", "",
         "a.db3, Objects, ObjectNumber, Trim (id 109): Gain (id 101) has it too, for C7000012 and 1 more "
         "[object-number-twice]"},
        {"object-unlinked", "DELETE FROM guidsandobjects WHERE objectid = 109", "", "",
         "a.db3, Objects, id, Trim (id 109): guidsandobjects does not have Trim (id 109) [object-unlinked]"},
        {"oca-class", "UPDATE ObjectClasses SET OcaClassId = '1.2.x'", "", "",
         "a.db3, ObjectClasses, OcaClassId, class 1: \"1.2.x\" is no OCA class [oca-class]"},
        {"oca-class", "UPDATE ObjectClasses SET OcaClassId = '1.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16.17'", "",
         "",
         "a.db3, ObjectClasses, OcaClassId, class 1: \"1.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16.17\" is no OCA "
         "class [oca-class]"},
        {"older-description", "", GUIDS_TABLE "INSERT INTO Guids VALUES ('C7000112', 'Hesko', '1.11', 1, 1)",
         "", "b.db3, Guids, GUID, C7000112: C7000112 is described by a.db3 [older-description]"},
        {"range-inverted", "UPDATE Objects SET Min = 1200, Max = -1200, DefaultValue = '' WHERE id = 109", "",
         "",
         "a.db3, Objects, DefaultValue, Trim (id 109): there is no default value [default-missing]\n"
         "a.db3, Objects, Min, Trim (id 109): the range is 1200 to -1200 [range-inverted]"},
        {"range-size", "UPDATE Objects SET Max = 40000 WHERE id = 109", "", "",
         "a.db3, Objects, Max, Trim (id 109): the range is -1200 to 40000, and \"%+6.2d dB\" holds -32768 to "
         "32767 [range-size]"},
        {"range-size", "UPDATE Objects SET Max = 1e300 WHERE id = 101", "", "",
         "a.db3, Objects, Max, Gain (id 101): the range is -57.5 to 1e+300, and \"%5.1f dB\" holds "
         "-3.40282346639e+38 to 3.40282346639e+38 [range-size]"},
        {"range-size", "UPDATE Objects SET Format = '%I64u', Size = 8, Min = -1 WHERE id = 1", "", "",
         "a.db3, Objects, Format, Power (id 1): \"%I64u\" has the conversion 'u' and the size 8 "
         "[values-unconverted]\n"
         "a.db3, Objects, Max, Power (id 1): the range is -1 to 1, and \"%I64u\" holds 0 to "
         "1.84467440737e+19 "
         "[range-size]"},
        {"reserved-bits", "INSERT INTO Guids VALUES ('C7010112', 'Hesko', '1.11', 1, 1)", "", "",
         "a.db3, Guids, GUID, C7010112: guidsandobjects has no row for C7010112 [device-without-objects]\n"
         "a.db3, Guids, GUID, C7010112: C7000112 has version 1 too [reserved-bits]\n"
         "a.db3, Guids, GUID, type 12: there is no C7010012 [version-0-missing]"},
        {"round-trip", "UPDATE Objects SET Format = '%+8.5d dB' WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): the device's -1191 is shown as -0.01191 and comes back as "
         "another [round-trip]"},
        {"round-trip", "UPDATE Objects SET Format = '%3U', Max = 200, Size = 4 WHERE id = 202", "", "",
         "a.db3, Objects, Format, Config_SpeakerId (id 202): \"%3U\" has the size 1, and Size is 4 "
         "[format-size]\n"
         "a.db3, Objects, Format, Config_SpeakerId (id 202): the device's 128 is shown as 128 and comes back "
         "as another [round-trip]"},
        {"same-low-byte", "",
         SPEAKERS_TABLE "INSERT INTO Speakers VALUES (327, 'Halm', 0, 0, 'Halm', 5, 0, 0)", "",
         "b.db3, Speakers, SpeakerId, speaker 327 (Halm): it has the low byte 71, like speaker 71 (Linear) "
         "of a.db3 [same-low-byte]"},
        {"speaker-class-twice", "",
         "CREATE TABLE SpeakerClasses (Class, Name, Type, Ways, WayNames); INSERT INTO SpeakerClasses VALUES "
         "(2, 'Bass bin', 'Passive', 1, 'Sub')",
         "",
         "b.db3, SpeakerClasses, Class, class 2: it is \"Bass bin\" here, and \"Bass\" in a.db3, which "
         "counts [speaker-class-twice]"},
        {"speaker-class-unknown", "INSERT INTO Speakers VALUES (80, 'Odd', 7, 0, 'Odd', 5, 0, 0)", "", "",
         "a.db3, Speakers, Class, speaker 80 (Odd): there is no class 7 up to here [speaker-class-unknown]"},
        {"speaker-missing", "INSERT INTO GuidsSpeakersFilters VALUES ('C7000112', 99, 19, 1)", "", "",
         "a.db3, GuidsSpeakersFilters, SpeakerId, speaker 99: no database defines the speaker 99 "
         "[speaker-missing]"},
        {"speaker-redefined", "",
         SPEAKERS_TABLE "INSERT INTO Speakers VALUES (71, 'Linear II', 0, 0, 'Linear', 10, 0, 0)", "",
         "b.db3, Speakers, SpeakerId, speaker 71 (Linear II): speaker 71 (Linear) of a.db3 has other "
         "contents [speaker-redefined]"},
        {"step-not-positive", "UPDATE Objects SET Step = 0 WHERE id = 109", "", "",
         "a.db3, Objects, Step, Trim (id 109): the step is 0 [step-not-positive]"},
        {"step-too-large", "UPDATE Objects SET Step = 2500 WHERE id = 109", "", "",
         "a.db3, Objects, Step, Trim (id 109): the step is 2500, and the range -1200 to 1200 "
         "[step-too-large]"},
        {"text-missing",
         "UPDATE TextsObjectValues SET TextShort_de_DE = NULL WHERE TextOffset = 30 AND Value = 1", "", "",
         "a.db3, TextsObjectValues, TextShort_de_DE, texts 30, value 1: there is no text in TextShort_de_DE "
         "[text-missing]"},
        {"text-out-of-range", "INSERT INTO TextsObjectValues VALUES (30, 2, 'Both', 'Beide')", "", "",
         "a.db3, TextsObjectValues, Value, texts 30, value 2: 2 is outside the range of Polarity (id 102) "
         "[text-out-of-range]"},
        {"text-out-of-range",
         FILTER_OBJECT
         "INSERT INTO TextsObjectValues VALUES (30, 2, 'Both', 'Beide'), (30, 3, 'All', 'Alle'); "
         "INSERT INTO Filters VALUES (12, 1, 0, 0, 2, 'Stack', 0, ''), (22, 2, 0, 0, 3, 'Air', 0, ''); "
         "UPDATE GuidsSpeakersFilters SET FilterId = 12 WHERE SpeakerId = 68; "
         "INSERT INTO GuidsSpeakersFilters VALUES ('C7000012', 71, 22, 1)",
         "", "",
         "a.db3, TextsObjectValues, Value, texts 30, value 3: 3 is outside the range of Polarity (id 102) "
         "[text-out-of-range]"},
        // "---" is no filter, and slot 0 has no other.
        {"text-out-of-range",
         "INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, "
         "DefaultValue, "
         "TextOffset) VALUES (210, 'Config_Filter0', 2, 10, '%1U', 0, 1, 1, 1, '0', 30); "
         "INSERT INTO guidsandobjects VALUES (210, 'C7000012'); "
         "INSERT INTO Filters VALUES ('---', 0, 0, 0, 9, 'None', 0, ''); INSERT INTO GuidsSpeakersFilters "
         "VALUES ('C7000012', 71, '---', 1); INSERT INTO TextsObjectValues VALUES (30, 9, 'Nine', 'Neun')",
         "", "",
         "a.db3, TextsObjectValues, Value, texts 30, value 9: 9 is outside the range of Polarity (id 102) "
         "[text-out-of-range]"},
        {"text-twice", "INSERT INTO TextsObjectValues VALUES (30, 1, 'Turned', 'Gedreht')", "", "",
         "a.db3, TextsObjectValues, Value, texts 30, value 1: the value 1 of group 30 has a later text "
         "[text-twice]"},
        {"texts-language", "ALTER TABLE TextsObjectValues DROP COLUMN TextShort_en_US", "", "",
         "a.db3, TextsObjectValues, TextShort_en_US, : there is no column TextShort_en_US [texts-language]"},
        {"texts-missing", "UPDATE Objects SET TextOffset = 31 WHERE id = 1", "", "",
         "a.db3, Objects, TextOffset, Power (id 1): there is no group 31 of texts [texts-missing]"},
        {"texts-missing", "UPDATE Filters SET TextOffset = 71 WHERE Id = 19", "", "",
         "a.db3, Filters, TextOffset, filter 19: there is no group 71 of texts [texts-missing]"},
        {"texts-missing", "",
         TEXTS_TABLE FOREIGN_FILTER GUIDS_TABLE
         "INSERT INTO Guids VALUES ('C7000012', 'Hesko', '1.00', 1, 1);" TEXTS_80,
         "",
         "b.db3, Filters, TextOffset, filter 21: there is no group 80 of texts in a.db3 [texts-missing]\n"
         "b.db3, Guids, GUID, C7000012: C7000012 is described by a.db3 [older-description]\n"
         "b.db3, TextsObjectValues, TextOffset, texts 80: no object or filter of its devices has the "
         "TextOffset 80 [texts-unused]"},
        // The first row of a slot leads nowhere, and so the next database is asked, not the next row.
        {"texts-missing",
         "INSERT INTO GuidsSpeakersFilters VALUES ('C7000012', 71, 22, 1), ('C7000012', 71, 29, 1); "
         "INSERT INTO Filters VALUES (29, 2, 0, 0, 1, 'Air', 0, '')",
         FOREIGN_FILTER, "",
         "a.db3, GuidsSpeakersFilters, FilterId, filter 22: Filters has no row 22 [filter-missing]\n"
         "a.db3, GuidsSpeakersFilters, FilterId, speaker 71, slot 2: speaker 71 has the filter 22 in slot 2 "
         "already, first for C7000012 [filter-slot-twice]\n"
         "b.db3, Filters, TextOffset, filter 21: there is no group 80 of texts in a.db3 [texts-missing]"},
        {"texts-offset", "UPDATE Objects SET TextOffset = 1 WHERE id = 1", "", "",
         "a.db3, Objects, TextOffset, Power (id 1): Power (id 1) has the group 1 [texts-offset]"},
        {"texts-unused", "INSERT INTO TextsObjectValues VALUES (40, 0, 'Off', 'Aus')", "", "",
         "a.db3, TextsObjectValues, TextOffset, texts 40: no object or filter of its devices has "
         "the TextOffset 40 [texts-unused]"},
        {"type-two-models", "UPDATE Guids SET DeviceType = 'Kalom' WHERE GUID = 'C7000112'", "", "",
         "a.db3, Guids, DeviceType, C7000112: the model is \"Kalom\" here and \"Hesko\" in C7000012 "
         "[type-two-models]"},
        {"unit-point", "UPDATE Objects SET Format = '%+6.2d V a.c.' WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"%+6.2d V a.c.\" prints with the precision 2 and says 0 "
         "[unit-point]"},
        {"value-text-missing", "DELETE FROM TextsObjectValues WHERE TextOffset = 30 AND Value = 1", "", "",
         "a.db3, Objects, TextOffset, Polarity (id 102): group 30 has no text for 1 [value-text-missing]"},
        {"value-text-missing",
         FILTER_OBJECT
         "UPDATE Filters SET Max = 3 WHERE Id = 11; INSERT INTO TextsObjectValues VALUES (70, 2, "
         "'Half', 'Halb'), (70, 3, 'Full', 'Ganz')",
         "", "",
         "a.db3, Objects, TextOffset, Config_Filter1 (id 211): group 30 has no text for 2, 3 "
         "[value-text-missing]"},
        {"value-text-missing", TEXTS_80 "; DELETE FROM TextsObjectValues WHERE TextOffset = 80 AND Value = 1",
         FOREIGN_FILTER, "",
         "b.db3, Filters, TextOffset, filter 21: group 80 in a.db3 has no text for 1 [value-text-missing]"},
        {"value-text-missing",
         CABLEFIT_OBJECT "UPDATE Speakers SET CablefitMaxCount = 2 WHERE SpeakerId = 71", "", "",
         "a.db3, Objects, TextOffset, Config_CablefitSpeakerCount (id 212): group 30 has no text for 2 "
         "[value-text-missing]"},
        {"values-unchecked", "UPDATE Objects SET Format = '%6H', Size = 6 WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): the object is a dump of bytes [values-unchecked]"},
        {"values-unchecked", "UPDATE Objects SET Format = '%04X', Max = 1200, Min = 0 WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): the object is hexadecimal [values-unchecked]"},
        {"values-unconverted", "UPDATE Objects SET Format = '%I64d', Size = 8 WHERE id = 109", "", "",
         "a.db3, Objects, Format, Trim (id 109): \"%I64d\" has the conversion 'd' and the size 8 "
         "[values-unconverted]"},
        {"values-unconverted", "UPDATE Objects SET Format = '%1c', Size = 1 WHERE id = 1", "", "",
         "a.db3, Objects, Format, Power (id 1): \"%1c\" has the conversion 'c' and the size 1 "
         "[values-unconverted]"},
        {"version-0-missing",
         "UPDATE Guids SET GUID = 'C7000212' WHERE GUID = 'C7000012'; UPDATE guidsandobjects SET guid = "
         "'C7000212' WHERE guid = 'C7000012'; UPDATE GuidsSpeakersFilters SET GUID = 'C7000212' WHERE GUID = "
         "'C7000012'",
         "", "", "a.db3, Guids, GUID, type 12: there is no C7000012 [version-0-missing]"},
    };
    return all;
}

std::vector<GoodRow> const & goodRows()
{
    static std::vector<GoodRow> const all{
        {"default-out-of-range",
         "UPDATE Objects SET DefaultValue = 'Rack 1, lower half, on the left' WHERE id = 2", ""},
        {"default-out-of-range",
         "UPDATE Objects SET DefaultValue = 'longer than sixteen', Size = 16, Flags = 1 WHERE id = 2", ""},
        {"format-size", "UPDATE Objects SET Format = '%s', Size = 16 WHERE id = 2", ""},
        {"format-size", "UPDATE Objects SET Size = 256 WHERE id = 2", ""},
        {"group-faulty", "UPDATE DevicePropertyFilter SET Expression = ' SELECT ''Gain'' ; '", ""},
        {"group-faulty", "UPDATE DevicePropertyFilter SET Expression = 'SELECT ''Gain'' /* doc:x */'", ""},
        {"index-missing", "DROP INDEX ObjectsByName; CREATE UNIQUE INDEX i ON Objects (Name DESC)", ""},
        {"index-missing", "DROP INDEX ObjectsByName; CREATE INDEX i ON Objects (Name) WHERE Name IS NOT NULL",
         ""},
        {"index-missing",
         "DROP INDEX TextsByOffset; ALTER TABLE TextsObjectValues RENAME TO t; CREATE TABLE "
         "TextsObjectValues "
         "(TextOffset INTEGER, Value INTEGER, TextShort_en_US TEXT, TextShort_de_DE TEXT, "
         "PRIMARY KEY (TextOffset, Value)) WITHOUT ROWID; INSERT INTO TextsObjectValues SELECT * FROM t",
         ""},
        {"index-missing",
         "DROP INDEX FiltersById; ALTER TABLE Filters RENAME TO f; CREATE TABLE Filters (Id INTEGER PRIMARY "
         "KEY, Number, Type, Min, Max, DisplayNameShort, TextOffset, StateTexts); INSERT INTO Filters SELECT "
         "* FROM f",
         ""},
        // All rows agree: SQLite leaves the index aside for now.
        {"index-missing",
         "WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n WHERE i < 90) INSERT INTO "
         "TextsObjectValues SELECT 30, i, 'x', 'x' FROM n; DELETE FROM TextsObjectValues WHERE TextOffset = "
         "70; UPDATE Filters SET TextOffset = 30, Max = 90 WHERE Id = 11",
         ""},
        {"number-cut", "UPDATE Version SET Major = 255, Minor = 0, Bugfix = 65535", ""},
        {"number-cut", "INSERT INTO Version VALUES (256, 256, 65536)", ""}, // only the first row counts
        {"number-cut",
         "UPDATE Filters SET Id = 255 WHERE Id = 11; UPDATE GuidsSpeakersFilters SET FilterId = 255 WHERE "
         "FilterId = 11",
         ""},
        {"object-id-twice", OBJECTS_WITHOUT_KEY, ""},
        {"object-id-twice",
         OBJECTS_WITHOUT_KEY
         "UPDATE Objects SET Name = 'Trim' WHERE id = 1; DELETE FROM guidsandobjects "
         "WHERE objectid = 1 AND guid = 'C7000112' OR objectid = 109 AND guid = 'C7000012'",
         ""},
        {"range-size", "UPDATE Objects SET Max = 3e38, Format = '%41.1f dB' WHERE id = 101", ""},
        {"round-trip", "UPDATE Objects SET Format = '%3U', Max = 200, Size = 1 WHERE id = 202", ""},
        {"round-trip", "UPDATE Objects SET Format = '%5u', Max = 65535 WHERE id = 202", ""},
        {"round-trip", "UPDATE Objects SET Format = '%I32u', Max = 4294967295, Size = 4 WHERE id = 202", ""},
        {"text-out-of-range",
         FILTER_OBJECT
         "UPDATE Filters SET Max = 2 WHERE Id = 11; INSERT INTO TextsObjectValues VALUES (30, 2, "
         "'Both', 'Beide'), (70, 2, 'Half', 'Halb')",
         ""},
        {"text-out-of-range",
         CABLEFIT_OBJECT "UPDATE Speakers SET CablefitMaxCount = 2 WHERE SpeakerId = 71; INSERT INTO "
                         "TextsObjectValues VALUES (30, 2, 'Both', 'Beide')",
         ""},
        {"texts-missing", TEXTS_80, FOREIGN_FILTER},
        // The first database has a filter for the slot, so that nobody asks for that of the second.
        {"texts-missing",
         "UPDATE GuidsSpeakersFilters SET FilterId = 29 WHERE SpeakerId = 71; INSERT INTO Filters VALUES "
         "(29, 2, 0, 0, 1, 'Air', 0, '')",
         TEXTS_TABLE FOREIGN_FILTER TEXTS_80},
        {"texts-offset",
         "UPDATE Filters SET TextOffset = 1 WHERE Id = 19; INSERT INTO TextsObjectValues VALUES (1, 0, "
         "'Off', 'Aus'), (1, 1, 'On', 'Ein')",
         ""},
    };
    return all;
}

} // namespace kestrova::test
