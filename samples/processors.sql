-- processors.db3: what is no ordinary amplifier - a matrix, a speaker with an amplifier of its own, a
-- four-channel prototype, and the panel by which service staff reach them.
--
-- It has no property groups, and of texts, speakers and filters just what these devices need.

BEGIN;

CREATE TABLE Version (
    Major  INTEGER,
    Minor  INTEGER,
    Bugfix INTEGER
);

INSERT INTO Version VALUES (1, 0, 250);


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
    ('C7000040', 'Rabel',  '1.00', 1, 3),
    ('C7000140', 'Rabel',  '1.10', 1, 3),
    ('C7000030', 'Tovian', '1.00', 1, 2),
    -- A prototype: its second version is for level 2.
    ('C7000020', 'Fenra',  '0.30', 1, 2),
    ('C7000120', 'Fenra',  '0.41', 2, 2),
    -- On purpose: both at level 3. Below it the whole type is unknown, even by its exact GUID.
    ('C7000031', 'Quimo',  '1.00', 3, 2),
    ('C7000131', 'Quimo',  '1.01', 3, 2);

CREATE TABLE Hardwaretypes (
    Type       INTEGER,
    DeviceType TEXT
);

INSERT INTO Hardwaretypes (Type, DeviceType) VALUES
    (20, 'Rabel'),
    (21, 'Tovian'),
    (22, 'Fenra'),
    -- On purpose: below level 3 this is the name of a device that is not there.
    (23, 'Quimo');


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

-- Box 0: every device.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    ( 1, 'Setup_PowerOn',    0,  1, '%1U', 0,  1, 1,  1, 0x03, 11, '0',         0, 'Power'),
    ( 2, 'Setup_DeviceName', 0,  2, '%1s', 0, 31, 1, 32, 0x03, 11, 'Processor', 0, 'Device name'),
    (13, 'Info_Firmware',    0, 13, '%1s', 0, 15, 1, 16, 0x01, 11, '',          0, 'Firmware');

-- Boxes 1 to 3: Fenra, and of it Tovian the first seven. Neither model has defaults of its own, so all of
-- theirs are the ones here.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (101, 'ChStatus_Gain',     1,  1, '%5.1f dB',  -80,    12, 0.1, 4, 0x03, 11, '0',    0, 'Gain'),
    (102, 'ChStatus_Mute',     1,  2, '%1U',         0,     1,   1, 1, 0x03, 11, '1',    0, 'Mute'),
    (103, 'ChStatus_MsDelay',  1,  3, '%6.1f ms',  0.2,  2000, 0.1, 4, 0x03, 11, '0.2',  0, 'Delay'),
    (303, 'Eq_Fg',             3,  3, '%7.1f Hz',   20, 20000, 0.1, 4, 0x03, 11, '800',  0, 'Frequency'),
    (304, 'Eq_Q',              3,  4, '%4.1f',     0.1,    25, 0.1, 4, 0x03, 11, '1.4',  0, 'Quality'),
    (305, 'Eq_Vdb',            3,  5, '%+5.1f dB', -18,    12, 0.5, 4, 0x03, 11, '0',    0, 'Gain'),
    (306, 'Eq_Order',          3,  6, '%1U',         1,     4,   1, 1, 0x03, 11, '2',    0, 'Order'),

    (201, 'Config_OutputMode', 2,  1, '%1U',         0,     8,   1, 1, 0x03, 11, '0',   10, 'Output mode'),
    -- The default speaker of Fenra in every mode.
    (202, 'Config_SpeakerId',  2,  2, '%3u',         0,   511,   1, 2, 0x03, 11, '71',   0, 'Speaker'),
    (211, 'Config_Filter1',    2, 11, '%1U',         0,     1,   1, 1, 0x03, 11, '0',    0, 'Filter 1'),
    -- Tovian cannot choose: a readout.
    (902, 'Config_SpeakerId',  2,  2, '%3u',         0,   511,   1, 2, 0x01, 11, '6',    0, 'Speaker');

-- Box 10: the matrix of Rabel, 64 by 64. A channel has three bits in an object number, so inputs and
-- outputs are records: of the crossing points, record 64 times output plus input.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, RecordCount, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (1001, 'MatrixPoint_Gain',  10,  1, 4096, '%+6.1f dB',   -120,   10, 0.5,  4, 0x03, 11, '0',      0, 'Crossing gain'),
    (1002, 'MatrixPoint_On',    10,  2, 4096, '%1U',            0,    1,   1,  1, 0x03, 11, '0',      0, 'Crossing'),
    (1003, 'MatrixInput_Name',  10,  3,   64, '%1s',            0,   15,   1, 16, 0x03, 11, 'In',     0, 'Input name'),
    (1004, 'MatrixInput_Mute',  10,  4,   64, '%1U',            0,    1,   1,  1, 0x03, 11, '0',      0, 'Input mute'),
    (1005, 'MatrixInput_Level', 10,  5,   64, '%+6.1d dBu', -1200,  300,   1,  2, 0x01, 11, '-1200',  0, 'Input level'),
    (1006, 'MatrixOutput_Name', 10,  6,   64, '%1s',            0,   15,   1, 16, 0x03, 11, 'Out',    0, 'Output name'),
    (1007, 'MatrixOutput_Mute', 10,  7,   64, '%1U',            0,    1,   1,  1, 0x03, 11, '0',      0, 'Output mute'),
    (1008, 'MatrixOutput_Gain', 10,  8,   64, '%+6.1f dB',   -120,   10, 0.5,  4, 0x03, 11, '0',      0, 'Output gain'),
    (1009, 'Reverb_Room',       10,  9,    1, '%1U',            0,    3,   1,  1, 0x03, 11, '0',     80, 'Room'),
    (1010, 'Reverb_Time',       10, 10,    1, '%5.2u s',       10, 2000,   5,  2, 0x03, 11, '150',    0, 'Reverberation time');

-- Boxes 11 to 13: the three equalisers of Rabel, eight bands each on 64 lines. The model's own defaults
-- win over these; it has none for a plain Eq_Fg.

WITH
Equalisers (BoxNumber, Stem, Description) AS (VALUES
    (11, 'MatrixInputEq',           'Input EQ'),
    (12, 'MatrixOutputEq',          'Output EQ'),
    (13, 'ReverbInputProcessingEq', 'Reverb EQ')
),
Parameters (ObjectNumber, Name, Format, Min, Max, Step, Size, DefaultValue, Description) AS (VALUES
    ( 3, 'Fg',     '%7.1f Hz',   20, 20000, 0.1, 4, '500', 'frequency'),
    ( 4, 'Q',      '%4.1f',     0.1,    25, 0.1, 4, '1',   'quality'),
    ( 5, 'Vdb',    '%+5.1f dB', -18,    12, 0.5, 4, '0',   'gain'),
    ( 6, 'Order',  '%1U',         1,     4,   1, 1, '2',   'order'),
    ( 7, 'Fg2',    '%7.1f Hz',   20, 20000, 0.1, 4, '500', 'upper frequency'),
    ( 8, 'Q2',     '%4.1f',     0.1,    25, 0.1, 4, '1',   'upper quality'),
    ( 9, 'Vdb2',   '%+5.1f dB', -18,    12, 0.5, 4, '0',   'upper gain'),
    (10, 'Order2', '%1U',         1,     4,   1, 1, '2',   'upper order')
)
INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, RecordCount, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, Description)
SELECT BoxNumber * 100 + ObjectNumber, Stem || '_' || Parameters.Name, BoxNumber, ObjectNumber, 512, Format,
       Min, Max, Step, Size, 0x03, 11, DefaultValue, Equalisers.Description || ' ' || Parameters.Description
FROM Equalisers, Parameters
ORDER BY BoxNumber, ObjectNumber;

-- Box 20: Quimo, for level 3.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (2001, 'Panel_Brightness', 20, 1, '%3U%%', 0,   100, 5,  1, 0x03, 33, '50',    0, 'Brightness'),
    -- Hexadecimal: its values are not checked against the range.
    (2002, 'Panel_PinCode',    20, 2, '%04x',  0, 32767, 1,  2, 0x03, 33, '4660',  0, 'PIN code'),
    (2003, 'Panel_Greeting',   20, 3, '%1s',   0,    31, 1, 32, 0x03, 33, 'Hello', 0, 'Greeting');

UPDATE Objects SET ChannelCount = 4 WHERE BoxNumber BETWEEN 1 AND 3 AND id NOT IN (201, 902);
UPDATE Objects SET RecordCount = 16 WHERE BoxNumber = 3;

CREATE TABLE guidsandobjects (
    objectid INTEGER,
    guid     TEXT
);

CREATE INDEX GuidsAndObjectsByGuid ON guidsandobjects (guid, objectid);
CREATE INDEX GuidsAndObjectsByObject ON guidsandobjects (objectid);

WITH Equipment (DeviceType, FirstId, LastId) AS (VALUES
    ('Fenra',     1,  306),
    ('Tovian',    1,  103),
    ('Tovian',  303,  306),
    ('Tovian',  902,  902),
    ('Rabel',     1,   13),
    ('Rabel',  1001, 1310),
    ('Quimo',     1,   13),
    ('Quimo',  2001, 2003)
)
INSERT INTO guidsandobjects (objectid, guid)
SELECT Objects.id, Guids.GUID
FROM Guids JOIN Equipment USING (DeviceType), Objects
WHERE Objects.id BETWEEN FirstId AND LastId;


-- ---------------------------------------------------------------------------------------------------
-- Speakers and their filters
-- ---------------------------------------------------------------------------------------------------
-- Rabel and Quimo drive none.

CREATE TABLE SpeakerClasses (
    Class    INTEGER,
    Name     TEXT,
    Type     TEXT,
    Ways     INTEGER,
    WayNames TEXT
);

INSERT INTO SpeakerClasses (Class, Name, Type, Ways, WayNames) VALUES
    ( 0, 'Point source', 'Passive', 1, 'Full'),
    ( 2, 'Bass speaker', 'Passive', 1, 'Sub'),
    -- On purpose: 11 and 12 are none of the numbers for single channels, so their speakers are offered to
    -- pairs only, although they have one way.
    (11, 'Built-in',     'Active',  1, 'Full'),
    -- In time for 46 below, too late for 41 in amplifiers.db3.
    (12, 'Ceiling',      'Passive', 1, 'Full');

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
    -- The speaker that Tovian takes in every mode.
    ( 6, 'Tovian',            0, 30, 'Tovian',    90,  0, 0),
    (45, 'Tovian with bass', 11, 30, 'Tovian B',  95,  0, 0),
    (46, 'Quell 6 ceiling',  12, 11, 'Quell 6',  420, 10, 0),
    -- The same rows as in amplifiers.db3; they count once.
    (71, 'Linear',            0,  0, 'Linear',    10,  0, 0),
    (68, 'Linear bass',       2,  0, 'Lin bass',  20,  0, 0);

CREATE TABLE GuidsSpeakersFilters (
    GUID      TEXT,
    SpeakerId INTEGER,
    FilterId  INTEGER,
    Access    INTEGER
);

CREATE INDEX GuidsSpeakersFiltersByGuid ON GuidsSpeakersFilters (GUID, SpeakerId);

INSERT INTO GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access) VALUES
    ('C7000030',  6, 19, 1),
    ('C7000030', 45, 19, 1),
    ('C7000020', 71, 19, 1),
    ('C7000020', 68, 11, 1),
    ('C7000120', 71, 19, 1),
    ('C7000120', 68, 11, 1),
    ('C7000120', 46, 12, 1);

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
    (11, 1, 1, 0, 1, 'Low cut',    70, 'off;on'),
    (12, 1, 1, 0, 1, 'Voice only', 70, 'off;on'),
    (19, 1, 0, 0, 1, '---',         0, '');


-- ---------------------------------------------------------------------------------------------------
-- Texts of values
-- ---------------------------------------------------------------------------------------------------

CREATE TABLE TextsObjectValues (
    TextOffset      INTEGER,
    Value           INTEGER,
    TextShort_en_US TEXT,
    TextShort_de_DE TEXT
);

CREATE INDEX TextsByOffset ON TextsObjectValues (TextOffset);

INSERT INTO TextsObjectValues (TextOffset, Value, TextShort_en_US, TextShort_de_DE) VALUES
    (10, 0, 'Mode 0',    'Modus 0'),
    (10, 1, 'Mode 1',    'Modus 1'),
    (10, 2, 'Mode 2',    'Modus 2'),
    (10, 3, 'Mode 3',    'Modus 3'),
    (10, 4, 'Mode 4',    'Modus 4'),
    (10, 5, 'Mode 5',    'Modus 5'),
    (10, 6, 'Mode 6',    'Modus 6'),
    (10, 7, 'Mode 7',    'Modus 7'),
    (10, 8, 'Mode 8',    'Modus 8'),

    (70, 0, 'Off',       'Aus'),
    (70, 1, 'On',        'Ein'),

    (80, 0, 'Booth',     'Kabine'),
    (80, 1, 'Chamber',   'Kammer'),
    (80, 2, 'Hall',      'Saal'),
    (80, 3, 'Cathedral', 'Dom');

COMMIT;
