-- classics.db3: the amplifiers of one and two channels, as their description was written years ago.
--
-- Everything here has the form of that time: the devices have no OnoType, the objects no box number of
-- their own and no WaitStates, the property groups no access level, and all texts are in English. None of
-- it is wrong; a reader finds out by looking at the tables.

BEGIN;

CREATE TABLE Version (
    Major  INTEGER,
    Minor  INTEGER,
    Bugfix INTEGER
);

INSERT INTO Version VALUES (2, 9, 4);


-- ---------------------------------------------------------------------------------------------------
-- Devices
-- ---------------------------------------------------------------------------------------------------
-- Without OnoType every device has 1.

CREATE TABLE Guids (
    GUID       TEXT,
    DeviceType TEXT,
    Version    TEXT,
    Access     INTEGER
);

INSERT INTO Guids (GUID, DeviceType, Version, Access) VALUES
    ('C7000005', 'Talvo', '1.00', 1),
    ('C7000105', 'Talvo', '1.22', 1),
    ('C7000205', 'Talvo', '2.01', 1),
    ('C7000006', 'Zerin', '1.00', 1),
    ('C7000106', 'Zerin', '1.07', 1),
    ('C7000007', 'Yolsa', '1.00', 1);

CREATE TABLE Hardwaretypes (
    Type       INTEGER,
    DeviceType TEXT
);

INSERT INTO Hardwaretypes (Type, DeviceType) VALUES
    (10, 'Talvo'),
    (11, 'Zerin'),
    (12, 'Yolsa');


-- ---------------------------------------------------------------------------------------------------
-- Objects
-- ---------------------------------------------------------------------------------------------------
-- ObjectNumber holds the box in its high byte and the number in its low one. id is box times 100 plus
-- number, and 1000 more for the single channel of Yolsa.
--
-- As everywhere, ranges are values as the device holds them. These devices do without floats where they
-- can: ChStatus_Gain goes from the code -575, which is -57.5 dB, to 60.

CREATE TABLE Objects (
    id           INTEGER PRIMARY KEY,
    Name         TEXT,
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
    WaitTime     INTEGER DEFAULT 0
);

CREATE INDEX ObjectsByName ON Objects (Name);
CREATE INDEX ObjectsByNumber ON Objects (ObjectNumber);

-- The device.

INSERT INTO Objects (id, Name, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    ( 1, 'Setup_PowerOn',      0x0001, '%1U',      0,   1, 1,  1, 0x03, 11, '0',    0, 'Power'),
    ( 2, 'Setup_DeviceName',   0x0002, '%1s',      0,  15, 1, 16, 0x03, 11, 'Amp',  0, 'Device name'),
    ( 3, 'Setup_ButtonLock',   0x0003, '%1U',      0,   1, 1,  1, 0x03, 11, '0',   20, 'Button lock'),
    (13, 'Info_Firmware',      0x000D, '%1s',      0,   7, 1,  8, 0x01, 11, '',     0, 'Firmware'),
    (17, 'Status_Temperature', 0x0011, '%4D °C', -40, 120, 1,  1, 0x01, 11, '25',   0, 'Temperature'),
    (23, 'Status_MainsOk',     0x0017, '%1U',      0,   1, 1,  1, 0x01, 11, '1',    0, 'Mains good');

-- The channels.

INSERT INTO Objects (id, Name, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (101, 'ChStatus_Gain',               0x0101, '%+5.1d dB', -575,    60,   5, 2, 0x03, 11, '0',     0, 'Gain'),
    (102, 'ChStatus_Mute',               0x0102, '%1U',          0,     1,   1, 1, 0x03, 11, '0',     0, 'Mute'),
    (103, 'ChStatus_MsDelay',            0x0103, '%3d ms',       0,   300,   1, 2, 0x03, 11, '0',     0, 'Delay'),
    (104, 'ChStatus_Polarity',           0x0104, '%1U',          0,     1,   1, 1, 0x03, 11, '0',    30, 'Polarity'),
    (106, 'ChStatus_OutputLevel',        0x0106, '%+4d dBu',  -120,    30,   1, 2, 0x01, 11, '-120',  0, 'Output level'),
    -- Three modes; the later ones need four channels.
    (201, 'Config_OutputMode',           0x0201, '%1U',          0,     2,   1, 1, 0x03, 11, '0',    10, 'Output mode'),
    -- In mode 0 the default of Talvo, and always that of Zerin and Yolsa, comes from here.
    (202, 'Config_SpeakerId',            0x0202, '%3u',          0,   511,   1, 2, 0x03, 11, '7',     0, 'Speaker'),
    (203, 'Config_CablefitSpeakerCount', 0x0203, '%2U',          1,     4,   1, 1, 0x03, 11, '1',     0, 'Speakers in line'),
    (211, 'Config_Filter1',              0x020B, '%1U',          0,     1,   1, 1, 0x03, 11, '0',     0, 'Filter 1'),
    (212, 'Config_Filter2',              0x020C, '%1U',          0,     1,   1, 1, 0x03, 11, '0',     0, 'Filter 2'),
    (213, 'Config_Filter3',              0x020D, '%1U',          0,     1,   1, 1, 0x03, 11, '0',     0, 'Filter 3'),
    (301, 'Eq_Bypass',                   0x0301, '%1U',          0,     1,   1, 1, 0x03, 11, '0',     0, 'Bypass'),
    -- Frequency, quality and gain start as the models say, 1000 Hz at 0.7 and 0 dB; of the order they say
    -- nothing, and so its default is the one here.
    (303, 'Eq_Fg',                       0x0303, '%5u Hz',      20, 20000,   1, 2, 0x03, 11, '500',   0, 'Frequency'),
    (304, 'Eq_Q',                        0x0304, '%4.1f',      0.1,    25, 0.1, 4, 0x03, 11, '1',     0, 'Quality'),
    (305, 'Eq_Vdb',                      0x0305, '%+5.1f dB',  -18,    12, 0.5, 4, 0x03, 11, '0',     0, 'Gain'),
    (306, 'Eq_Order',                    0x0306, '%1U',          1,     4,   1, 1, 0x03, 11, '2',     0, 'Order'),
    (311, 'Eq_Presence',                 0x030B, '%1U',          0,     1,   1, 1, 0x03, 11, '0',     0, 'Presence'),
    (401, 'Input_Gain',                  0x0401, '%+5.1d dB', -600,   240,   5, 2, 0x03, 11, '0',     0, 'Input gain'),
    (402, 'Input_Source',                0x0402, '%1U',          0,     1,   1, 1, 0x03, 11, '0',    50, 'Source');

UPDATE Objects SET ChannelCount = 2 WHERE id BETWEEN 100 AND 499 AND Name <> 'Config_OutputMode';
UPDATE Objects SET RecordCount = 8 WHERE Name LIKE 'Eq!_%' ESCAPE '!';
UPDATE Objects SET WaitTime = 1000 WHERE Name IN ('Setup_PowerOn', 'Config_OutputMode');

-- There is no table of object classes; the numbers are those of amplifiers.db3.
UPDATE Objects SET ClassId = 1 WHERE Name IN ('Setup_PowerOn', 'ChStatus_Mute', 'ChStatus_Polarity', 'Eq_Bypass');
UPDATE Objects SET ClassId = 2 WHERE Name IN ('ChStatus_Gain', 'Input_Gain');

-- Yolsa: the same once more, for one channel, without output modes and with a speaker of its own.

INSERT INTO Objects
SELECT id + 1000, Name, ObjectNumber, 1, RecordCount, Min, Max, Step, Format, Flags, Access, DefaultValue,
       Size, TextOffset, Description, Comment, ClassId, WaitTime
FROM Objects
WHERE ChannelCount = 2;

UPDATE Objects SET DefaultValue = '42' WHERE id = 1202;

CREATE TABLE guidsandobjects (
    objectid INTEGER,
    guid     TEXT
);

CREATE INDEX GuidsAndObjectsByGuid ON guidsandobjects (guid, objectid);
CREATE INDEX GuidsAndObjectsByObject ON guidsandobjects (objectid);

INSERT INTO guidsandobjects (objectid, guid)
SELECT Objects.id, Guids.GUID
FROM Guids, Objects
WHERE Guids.DeviceType IN ('Talvo', 'Zerin') AND Objects.id < 1000;

INSERT INTO guidsandobjects (objectid, guid)
SELECT Objects.id, Guids.GUID
FROM Guids, Objects
WHERE Guids.DeviceType = 'Yolsa' AND (Objects.id < 100 OR Objects.id >= 1000);


-- ---------------------------------------------------------------------------------------------------
-- Speakers and their filters
-- ---------------------------------------------------------------------------------------------------

CREATE TABLE SpeakerClasses (
    Class    INTEGER,
    Name     TEXT,
    Type     TEXT,
    Ways     INTEGER,
    WayNames TEXT
);

INSERT INTO SpeakerClasses (Class, Name, Type, Ways, WayNames) VALUES
    (0, 'Point source',             'Passive', 1, 'Full'),
    (1, 'Line source',              'Passive', 1, 'Full'),
    -- On purpose: another name than in amplifiers.db3, which has class 2 first and is believed.
    (2, 'Bass bin',                 'Passive', 1, 'Sub'),
    (3, 'Two-way active, low way',  'Active',  2, 'Low'),
    (4, 'Two-way active, high way', 'Active',  2, 'High');

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
    -- The first and the second channel of Talvo in mode 1.
    (  7, 'Dorra 10 top',         0, 20, 'Dorra 10', 50, 0, 0),
    ( 25, 'Dorra 18 bass',        2, 21, 'Dorra 18', 60, 0, 0),
    ( 42, 'Dorra 6',              0, 22, 'Dorra 6',  70, 2, 0),
    ( 61, 'Dorra 4 delay',        1, 23, 'Dorra 4',  80, 4, 0),
    -- The same rows as in amplifiers.db3; they count once.
    ( 71, 'Linear',               0,  0, 'Linear',   10, 0, 0),
    (267, 'Ostel 12 active high', 4,  1, 'Ostel 12', 30, 0, 0),
    ( 11, 'Ostel 12 active low',  3,  1, 'Ostel 12', 30, 0, 0);

CREATE TABLE GuidsSpeakersFilters (
    GUID      TEXT,
    SpeakerId INTEGER,
    FilterId  INTEGER,
    Access    INTEGER
);

CREATE INDEX GuidsSpeakersFiltersByGuid ON GuidsSpeakersFilters (GUID, SpeakerId);

WITH Fittings (DeviceType, SpeakerId, FilterId, Access) AS (VALUES
    ('Talvo',  7, 11, 1),
    ('Talvo',  7, 21, 1),
    ('Talvo', 25, 11, 1),
    ('Talvo', 11, 11, 1),
    ('Talvo', 42, 11, 1),
    ('Talvo', 42, 31, 1),
    ('Talvo', 71, 19, 1),
    ('Zerin',  7, 11, 1),
    ('Zerin',  7, 21, 1),
    ('Zerin', 25, 11, 1),
    ('Zerin', 42, 11, 1),
    ('Yolsa', 42, 11, 1),
    ('Yolsa', 42, 31, 1),
    ('Yolsa', 61, 11, 1)
)
INSERT INTO GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access)
SELECT Guids.GUID, Fittings.SpeakerId, Fittings.FilterId, Fittings.Access
FROM Guids JOIN Fittings USING (DeviceType);

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
    (11, 1, 1, 0, 1, 'Low cut',   70, 'off;on'),
    (19, 1, 0, 0, 1, '---',        0, ''),
    (21, 2, 2, 0, 1, 'Voice',     70, 'off;on'),
    (31, 3, 2, 0, 1, 'Bass lift', 70, 'off;on');


-- ---------------------------------------------------------------------------------------------------
-- Texts of values, in one language
-- ---------------------------------------------------------------------------------------------------
-- On purpose: no German column. In German these devices have no texts at all, not the English ones.

CREATE TABLE TextsObjectValues (
    TextOffset      INTEGER,
    Value           INTEGER,
    TextShort_en_US TEXT
);

CREATE INDEX TextsByOffset ON TextsObjectValues (TextOffset);

INSERT INTO TextsObjectValues (TextOffset, Value, TextShort_en_US) VALUES
    (10, 0, 'Two channels'),
    (10, 1, 'Top/bass'),
    (10, 2, 'Two-way'),

    (20, 0, 'Unlocked'),
    (20, 1, 'Locked'),

    (30, 0, 'Normal'),
    (30, 1, 'Inverted'),

    (50, 0, 'Analogue'),
    (50, 1, 'Digital'),

    (70, 0, 'Off'),
    (70, 1, 'On');


-- ---------------------------------------------------------------------------------------------------
-- Named groups of properties
-- ---------------------------------------------------------------------------------------------------
-- Without Access they show at every level.

CREATE TABLE DevicePropertyFilter (
    FilterName TEXT,
    Expression TEXT
);

INSERT INTO DevicePropertyFilter (FilterName, Expression) VALUES
    -- These two join the groups of amplifiers.db3: Eq_Presence and Setup_ButtonLock are added behind.
    ('Equaliser',   'SELECT Name FROM Objects WHERE Name LIKE ''Eq!_%'' ESCAPE ''!'' AND id < 1000 ORDER BY id'),
    ('Front panel', 'SELECT Name FROM Objects WHERE id IN (1, 3) ORDER BY id'),
    ('Measured',    'SELECT Name FROM Objects WHERE Flags & 0x03 = 0x01 AND id < 1000 ORDER BY id');

COMMIT;
