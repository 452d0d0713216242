-- updates.db3: what came after the other databases had gone out.
--
-- Last in name order. It shows who wins: a device and an object class stay as the first database has
-- them, a hardware type becomes what the last one says, of two speakers the later row stands in front,
-- filters are taken from the first database that has one, and property groups grow.
--
-- It has no table of speaker classes: all classes it needs are known.

BEGIN;

CREATE TABLE Version (
    Major  INTEGER,
    Minor  INTEGER,
    Bugfix INTEGER
);

INSERT INTO Version VALUES (3, 2, 18);


-- ---------------------------------------------------------------------------------------------------
-- Devices
-- ---------------------------------------------------------------------------------------------------

CREATE TABLE Guids (
    GUID       TEXT,
    DeviceType TEXT,
    Version    TEXT,
    Access     INTEGER,
    OnoType    INTEGER
);

INSERT INTO Guids (GUID, DeviceType, Version, Access, OnoType) VALUES
    -- The newest Orvan. Version 0 stays with amplifiers.db3, and so do its objects.
    ('C7000116', 'Orvan', '1.30', 1, 2),
    -- On purpose: amplifiers.db3 has this GUID, for level 1 and with OnoType 1. This row, and all that
    -- hangs on it below, is never seen.
    ('C7000112', 'Hesko', '1.11', 3, 4);

CREATE TABLE Hardwaretypes (
    Type       INTEGER,
    DeviceType TEXT
);

INSERT INTO Hardwaretypes (Type, DeviceType) VALUES
    -- Corrects amplifiers.db3, which says Kalom.
    (8, 'Orvan');


-- ---------------------------------------------------------------------------------------------------
-- Objects
-- ---------------------------------------------------------------------------------------------------
-- id is box times 100 plus number. Ranges are values as the device holds them.

CREATE TABLE Objects (
    id           INTEGER PRIMARY KEY,
    Name         TEXT,
    BoxNumber    INTEGER,
    ObjectNumber INTEGER,
    ChannelCount INTEGER DEFAULT 1,
    RecordCount  INTEGER DEFAULT 1,
    Min          REAL,
    Max          REAL,
    Step         REAL,
    Format       TEXT,
    Flags        INTEGER,
    Access       INTEGER,
    DefaultValue TEXT,
    Size         INTEGER,
    TextOffset   INTEGER DEFAULT 0,
    Description  TEXT,
    Comment      TEXT DEFAULT '',
    ClassId      INTEGER DEFAULT 0,
    WaitTime     INTEGER DEFAULT 0,
    WaitStates   INTEGER DEFAULT 0
);

CREATE INDEX ObjectsByName ON Objects (Name);
CREATE INDEX ObjectsByNumber ON Objects (BoxNumber, ObjectNumber);

-- Orvan, version 1.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (  1, 'Setup_PowerOn',               0,  1, '%1U',            0,     1,   1,  1, 0x03, 11, '0',          0, 'Power'),
    (  2, 'Setup_DeviceName',            0,  2, '%1s',            0,    31,   1, 32, 0x03, 11, 'Amplifier',  0, 'Device name'),
    -- New against version 0.
    (  9, 'Setup_LampColour',            0,  9, '%1U',            0,     2,   1,  1, 0x03, 11, '0',         90, 'Lamp colour'),
    -- 9 dB more than version 0 had 6.
    (101, 'ChStatus_Gain',               1,  1, '%5.1f dB',   -57.5,     9, 0.5,  4, 0x03, 11, '0',          0, 'Gain'),
    (102, 'ChStatus_Mute',               1,  2, '%1U',            0,     1,   1,  1, 0x03, 11, '0',          0, 'Mute'),
    (103, 'ChStatus_MsDelay',            1,  3, '%5.1f ms',     0.3,   500, 0.1,  4, 0x03, 11, '0.3',        0, 'Delay'),
    (201, 'Config_OutputMode',           2,  1, '%1U',            0,     8,   1,  1, 0x03, 11, '0',         10, 'Output mode'),
    (202, 'Config_SpeakerId',            2,  2, '%3u',            0,   511,   1,  2, 0x03, 11, '71',         0, 'Speaker'),
    (203, 'Config_CablefitSpeakerCount', 2,  3, '%2U',            1,    20,   1,  1, 0x03, 11, '1',          0, 'Speakers in line'),
    (211, 'Config_Filter1',              2, 11, '%1U',            0,     1,   1,  1, 0x03, 11, '0',          0, 'Filter 1'),
    (303, 'Eq_Fg',                       3,  3, '%7.1f Hz',      20, 20000, 0.1,  4, 0x03, 11, '500',        0, 'Frequency'),
    (304, 'Eq_Q',                        3,  4, '%4.1f',        0.1,    25, 0.1,  4, 0x03, 11, '1',          0, 'Quality'),
    (305, 'Eq_Vdb',                      3,  5, '%+5.1f dB',    -18,    12, 0.5,  4, 0x03, 11, '0',          0, 'Gain'),
    (312, 'Eq_Slope',                    3, 12, '%2U dB/oct',     6,    48,   6,  1, 0x03, 11, '24',         0, 'Slope'),

    -- On purpose: for the Hesko that is never seen. Hesko's gain ends at 6 dB, as amplifiers.db3 says.
    (901, 'ChStatus_Gain',               1,  1, '%5.1f dB',   -57.5,    99, 0.5,  4, 0x03, 11, '0',          0, 'Gain');

UPDATE Objects SET ChannelCount = 4 WHERE BoxNumber BETWEEN 1 AND 3 AND Name <> 'Config_OutputMode';
UPDATE Objects SET RecordCount = 16 WHERE BoxNumber = 3;
UPDATE Objects SET WaitTime = 2000, WaitStates = 3 WHERE Name = 'Setup_PowerOn';

CREATE TABLE ObjectClasses (
    Id          INTEGER,
    OcaClassId  TEXT,
    Description TEXT
);

INSERT INTO ObjectClasses (Id, OcaClassId, Description) VALUES
    -- On purpose: class 2 is 1.2.5 in amplifiers.db3, which is read first and wins.
    (2, '1.2.6', 'Level'),
    (7, '1.4.1', 'Lamp');

UPDATE Objects SET ClassId = 2 WHERE Name = 'ChStatus_Gain';
UPDATE Objects SET ClassId = 7 WHERE Name = 'Setup_LampColour';

CREATE TABLE guidsandobjects (
    objectid INTEGER,
    guid     TEXT
);

CREATE INDEX GuidsAndObjectsByGuid ON guidsandobjects (guid, objectid);
CREATE INDEX GuidsAndObjectsByObject ON guidsandobjects (objectid);

INSERT INTO guidsandobjects (objectid, guid)
SELECT id, 'C7000116' FROM Objects WHERE id < 900;

INSERT INTO guidsandobjects (objectid, guid)
SELECT id, 'C7000112' FROM Objects WHERE id = 901;


-- ---------------------------------------------------------------------------------------------------
-- Speakers and their filters
-- ---------------------------------------------------------------------------------------------------

CREATE TABLE Speakers (
    SpeakerId        INTEGER,
    Name             TEXT,
    Class            INTEGER,
    Rib              INTEGER,
    DisplayNameShort TEXT,
    SortOrder        INTEGER,
    CablefitMaxCount INTEGER,
    WfActive         INTEGER
);

INSERT INTO Speakers (SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, CablefitMaxCount, WfActive) VALUES
    -- The same row as in amplifiers.db3; it counts once.
    ( 71, 'Linear',                 0,  0, 'Linear',       10, 0, 0),
    -- On purpose: another row than in amplifiers.db3. It stands in front of that one for all devices.
    (  9, 'Pirro 12 second series', 0,  4, 'Pirro 12 II', 115, 3, 0),
    -- On purpose: 261 is 256 + 5, and so it stands in front of Pirro 8, with which it has nothing to do.
    -- A device that takes both lists 261 twice.
    (261, 'Halm 6 corridor',        1, 12, 'Halm 6',      500, 0, 0);

CREATE TABLE GuidsSpeakersFilters (
    GUID      TEXT,
    SpeakerId INTEGER,
    FilterId  INTEGER,
    Access    INTEGER
);

CREATE INDEX GuidsSpeakersFiltersByGuid ON GuidsSpeakersFilters (GUID, SpeakerId);

INSERT INTO GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access) VALUES
    ('C7000116',  71, 19, 1),
    ('C7000116',  68, 19, 1),
    ('C7000116',  11, 11, 1),
    ('C7000116',   9, 11, 1),
    ('C7000116',   5, 11, 1),
    ('C7000116', 261, 19, 1),
    -- Which speakers a device takes is asked of its own database, but filters are asked of every one:
    -- this gives the Hesko of amplifiers.db3 its slot 7.
    ('C7000312',  12, 71, 1),
    -- On purpose: for the Hesko that is never seen. It does not make C7000112 take the speaker.
    ('C7000112',  42, 11, 1);

CREATE TABLE Filters (
    Id               INTEGER,
    Number           INTEGER,
    Type             INTEGER,
    Min              INTEGER,
    Max              INTEGER,
    DisplayNameShort TEXT,
    TextOffset       INTEGER,
    StateTexts       TEXT
);

CREATE INDEX FiltersById ON Filters (Id);

INSERT INTO Filters (Id, Number, Type, Min, Max, DisplayNameShort, TextOffset, StateTexts) VALUES
    (11, 1, 1, 0, 1, 'Low cut', 70, 'off;on'),
    (19, 1, 0, 0, 1, '---',      0, ''),
    (71, 7, 2, 0, 1, 'Canopy',  70, 'off;on');


-- ---------------------------------------------------------------------------------------------------
-- Texts of values
-- ---------------------------------------------------------------------------------------------------
-- The offsets are this database's own: group 10 here has nothing to do with group 10 elsewhere.

CREATE TABLE TextsObjectValues (
    TextOffset      INTEGER,
    Value           INTEGER,
    TextShort_en_US TEXT,
    TextShort_de_DE TEXT
);

CREATE INDEX TextsByOffset ON TextsObjectValues (TextOffset);

INSERT INTO TextsObjectValues (TextOffset, Value, TextShort_en_US, TextShort_de_DE) VALUES
    (10, 0, 'A B C D',       'A B C D'),
    (10, 1, 'A/bass C D',    'A/Bass C D'),
    (10, 2, 'AB C D',        'AB C D'),
    (10, 3, 'A B C/bass',    'A B C/Bass'),
    (10, 4, 'A B CD',        'A B CD'),
    (10, 5, 'A/bass C/bass', 'A/Bass C/Bass'),
    (10, 6, 'AB C/bass',     'AB C/Bass'),
    (10, 7, 'A/bass CD',     'A/Bass CD'),
    (10, 8, 'AB CD',         'AB CD'),

    (70, 0, 'Off',           'Aus'),
    (70, 1, 'On',            'Ein'),

    (90, 0, 'White',         'Weiß'),
    (90, 1, 'Green',         'Grün'),
    (90, 2, 'Red',           'Rot');


-- ---------------------------------------------------------------------------------------------------
-- Named groups of properties
-- ---------------------------------------------------------------------------------------------------

CREATE TABLE DevicePropertyFilter (
    FilterName TEXT,
    Expression TEXT,
    Access     INTEGER
);

INSERT INTO DevicePropertyFilter (FilterName, Expression, Access) VALUES
    -- Joins the groups of the same name: Eq_Slope is added behind.
    ('Equaliser', 'SELECT Name FROM Objects WHERE BoxNumber = 3 ORDER BY id', 1),
    ('Lamps',     'SELECT Name FROM Objects WHERE ClassId = 7 ORDER BY id',   2);

COMMIT;
