-- amplifiers.db3: the four-channel amplifiers.
--
-- First of the four device databases in name order, so wherever the first row of several wins, the row
-- here does. Rows that a careful author would call a mistake are there to show what becomes of them;
-- each of them is marked "on purpose".
--
-- In every table below the order of the rows is part of the description: rows are read in the order in
-- which they were inserted, and for several catalogues the first or the last one decides.

BEGIN;

CREATE TABLE Version (
    Major  INTEGER,
    Minor  INTEGER,
    Bugfix INTEGER
);

INSERT INTO Version VALUES (3, 2, 17);


-- ---------------------------------------------------------------------------------------------------
-- Devices
-- ---------------------------------------------------------------------------------------------------
-- C7 rr vv tt: prefix, reserved byte, version of the description, device type.
-- Version is the firmware from which the description holds; OnoType the numbering of remote objects.

CREATE TABLE Guids (
    GUID       TEXT,
    DeviceType TEXT,
    Version    TEXT,
    Access     INTEGER,
    OnoType    INTEGER
);

INSERT INTO Guids (GUID, DeviceType, Version, Access, OnoType) VALUES
    ('C7000010', 'Sarni',  '1.00', 1, 1),
    ('C7000110', 'Sarni',  '1.20', 1, 1),
    ('C7000011', 'Murel',  '1.00', 1, 1),
    ('C7000111', 'Murel',  '1.04', 1, 1),
    ('C7000211', 'Murel',  '2.00', 1, 2),

    -- Versions 0, 1 and 3: a device that reports version 2 gets the description of version 3, not that
    -- of 1. C7000112 stands in updates.db3 as well; this row is read first and wins.
    ('C7000012', 'Hesko',  '1.00', 1, 1),
    ('C7000112', 'Hesko',  '1.10', 1, 1),
    ('C7000312', 'Hesko',  '2.05', 1, 2),
    -- On purpose: the newest Hesko needs level 2, so the newest one for a caller at level 1 is version 3.
    ('C7000412', 'Hesko',  '3.00', 2, 2),

    ('C7000013', 'Vesni',  '1.00', 1, 1),
    ('C7000213', 'Vesni',  '1.31', 1, 1),

    -- On purpose: two version 1 rows that differ in the reserved byte. The first one stays the newest.
    -- The last row of a type names its version 0 row, reserved byte included, so C7000114 has to come
    -- last: after C7010114 nothing would be found under C7010014 and Kalom would have no name.
    ('C7000014', 'Kalom',  '1.00', 1, 1),
    ('C7010114', 'Kalom',  '1.50', 1, 1),
    ('C7000114', 'Kalom',  '1.51', 1, 1),

    -- On purpose: no version 0 row. Nurix can be found by its name, but its GUIDs give no name.
    ('C7000115', 'Nurix',  '1.02', 1, 1),
    ('C7000215', 'Nurix',  '1.10', 1, 1),

    -- Version 1 of Orvan comes from updates.db3; each version takes its objects from its own database.
    ('C7000016', 'Orvan',  '1.00', 1, 1),

    -- On purpose: version 1 in lower case. It counts as a known version, but everything that is asked
    -- for it is asked under C7000117, and no other table holds that text.
    ('C7000017', 'Lumbo',  '1.00', 1, 1),
    ('c7000117', 'Lumbo',  '1.08', 1, 1),
    ('C7000217', 'Lumbo',  '1.12', 1, 1),

    -- On purpose: five rows that leave no trace. Types 0 to 3 are no devices, type A0 is skipped, the
    -- prefix is not C7, the text is no number; the lower-case one is a GUID that is known by then.
    ('C7000002', 'Loader', '0.90', 1, 1),
    ('C70001A0', 'Loader', '0.91', 1, 1),
    ('C6000012', 'Loader', '0.92', 1, 1),
    ('C7HESKO1', 'Loader', '0.93', 1, 1),
    ('c7000012', 'Loader', '0.94', 1, 1);


-- The number by which a device names its hardware. There is no 4, which gives an empty name.

CREATE TABLE Hardwaretypes (
    Type       INTEGER,
    DeviceType TEXT
);

INSERT INTO Hardwaretypes (Type, DeviceType) VALUES
    (1, 'Sarni'),
    (2, 'Murel'),
    (3, 'Hesko'),
    (5, 'Vesni'),
    (6, 'Kalom'),
    (7, 'Nurix'),
    -- On purpose: wrong. updates.db3 says Orvan, and the last row read wins.
    (8, 'Kalom'),
    (9, 'Lumbo');


-- ---------------------------------------------------------------------------------------------------
-- Objects
-- ---------------------------------------------------------------------------------------------------
-- id is box times 100 plus number; ids from 901 are rows that one model has in place of the common one.
--
-- Min, Max, Step and DefaultValue are values as the device holds them. A float object ('f') holds the
-- number itself: ChStatus_Gain goes from -57.5 to 6 dB. An integer object holds a code, and the decimals
-- of its format are an implied point: -1200 of ChStatus_Trim is -12.00 dB. Without decimals the code is
-- the number. For a text the range counts characters and is of no use to anyone.
--
-- The range of a float object must not be converted: the conversion cuts each number to an integer and
-- takes its bits for those of a float. There is no need to, as device and user hold the same number.
--
-- Flags: 0x1 readable, 0x2 writeable, 0x20 moves in single steps whatever Step says, 0x400 the text is
-- not converted, 0x2000 not on the CAN bus. Access: tens digit the level to read, units digit to write.

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

-- Box 0: the device as a whole.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    -- An on/off value without texts is a toggle, or an indicator (23) if it cannot be written; with texts
    -- it is a choice (3), or a readout (24).
    ( 1, 'Setup_PowerOn',         0,  1, '%1U',             0,          1,  1,  1,   0x03, 11, '0',          0, 'Power'),
    -- 31 characters and the terminator.
    ( 2, 'Setup_DeviceName',      0,  2, '%1s',             0,         31,  1, 32,   0x03, 11, 'Amplifier',  0, 'Device name'),
    ( 3, 'Setup_ButtonLock',      0,  3, '%1U',             0,          1,  1,  1,   0x03, 11, '0',         20, 'Button lock'),
    -- On purpose: text offset 1. Group 1 has texts and lists them, yet the object remains a toggle,
    -- because the offsets 0 and 1 both stand for "no texts" when the kind of control is chosen.
    ( 4, 'Setup_Identify',        0,  4, '%1U',             0,          1,  1,  1,   0x03, 11, '0',          1, 'Identify lamp'),
    -- Flag 0x20 with a step above 1: applications get the step 1.
    ( 5, 'Setup_SleepTime',       0,  5, '%3u s',           0,        600, 30,  2,   0x23, 11, '120',        0, 'Sleep after'),
    -- On purpose: no default. Zero is out of range, so the minimum stands in.
    ( 6, 'Setup_NetworkPort',     0,  6, '%5u',          1024,      32767,  1,  2, 0x2003, 12, '',           0, 'Network port'),
    -- Read from level 2 on, although writing needs level 1 only.
    -- On purpose: the default is no number. Zero is in range and stands in.
    ( 7, 'Setup_PanelBrightness', 0,  7, '%3U%%',           0,        100,  5,  1,   0x03, 21, 'half',       0, 'Panel brightness'),
    ( 8, 'Setup_PresetName',      0,  8, '%1s',             0,         16,  1, 17,   0x03, 12, 'Empty',      0, 'Preset name'),
    (13, 'Info_Firmware',         0, 13, '%1s',             0,         15,  1, 16,   0x01, 11, '',           0, 'Firmware'),
    -- Flag 0x400: the conversion from the device's form refuses this text.
    (14, 'Info_SerialNumber',     0, 14, '%1s',             0,         15,  1, 16, 0x0401, 11, '',           0, 'Serial number'),
    (15, 'Info_HardwareId',       0, 15, '%04X',            0,      32767,  1,  2,   0x01, 11, '0',          0, 'Hardware id'),
    -- A dump of six bytes. Its values are never validated and no kind of control fits.
    (16, 'Info_MacAddress',       0, 16, '%6H',             0,        255,  1,  6,   0x01, 11, '',           0, 'MAC address'),
    -- On purpose: no default. Zero is in range and stands in.
    (17, 'Status_Temperature',    0, 17, '%5.1d °C',     -200,       1200,  1,  2,   0x01, 11, '',           0, 'Temperature'),
    -- On purpose: the decimals are looked for behind the last point, which here is one of the unit, so
    -- the format that prints 230.4 claims to have none.
    (18, 'Status_MainsVoltage',   0, 18, '%5.1u V a.c.',    0,       3000,  1,  2,   0x01, 11, '0',          0, 'Mains voltage'),
    (19, 'Status_Uptime',         0, 19, '%10I32u s',       0, 2147483647,  1,  4,   0x01, 11, '0',          0, 'Running for'),
    (23, 'Status_MainsOk',        0, 23, '%1U',             0,          1,  1,  1,   0x01, 11, '1',          0, 'Mains good'),
    (24, 'Status_Fan',            0, 24, '%1U',             0,          1,  1,  1,   0x01, 11, '0',         25, 'Fan'),
    (25, 'Status_FanDuty',        0, 25, '%03U%%',          0,        100,  1,  1,   0x01, 11, '0',          0, 'Fan duty');

-- Box 1: the four output channels.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (101, 'ChStatus_Gain',              1,  1, '%5.1f dB',           -57.5,    6, 0.5,  4, 0x03, 11, '0',        0, 'Gain'),
    (102, 'ChStatus_Mute',              1,  2, '%1U',                    0,    1,   1,  1, 0x03, 11, '0',        0, 'Mute'),
    -- On a Wavefold speaker (12) the minimum and the default are 6.2 ms.
    (103, 'ChStatus_MsDelay',           1,  3, '%5.1f ms',             0.3,  500, 0.1,  4, 0x03, 11, '0.3',      0, 'Delay'),
    (104, 'ChStatus_Polarity',          1,  4, '%1U',                    0,    1,   1,  1, 0x03, 11, '0',       30, 'Polarity'),
    (105, 'ChStatus_Name',              1,  5, '%1s',                    0,   15,   1, 16, 0x03, 11, 'Channel',  0, 'Channel name'),
    (106, 'ChStatus_OutputLevel',       1,  6, '%+6.1d dBu',         -1200,  300,   1,  2, 0x01, 11, '-1200',    0, 'Output level'),
    (107, 'ChStatus_Headroom',          1,  7, '%3u%%',                  0,  100,   1,  2, 0x01, 11, '100',      0, 'Headroom'),
    (108, 'ChStatus_Signal',            1,  8, '%1U',                    0,    3,   1,  1, 0x01, 11, '0',       35, 'Signal'),
    -- An integer with an implied point: the code -1200 is -12.00 dB, the step 25 a quarter of a decibel.
    (109, 'ChStatus_Trim',              1,  9, '%+6.2d dB',          -1200, 1200,  25,  2, 0x03, 11, '0',        0, 'Trim'),
    -- Left-justified: the blanks of the field stand behind the number, before the unit.
    (110, 'ChStatus_Phase',             1, 10, '%-4d°',               -180,  180,  15,  2, 0x03, 11, '0',        0, 'Phase'),
    (111, 'ChStatus_Balance',           1, 11, '%+05d',               -100,  100,   1,  2, 0x03, 11, '0',        0, 'Balance'),
    -- Objects named ChStatus_Cablefit... exist on speakers with a Cablefit count only.
    -- The character 129 behind the conversion is the devices' Ohm sign; it is read as the unit Ohm.
    (112, 'ChStatus_CablefitImpedance', 1, 12, '%5.1u' || char(129),    10, 2000,   1,  2, 0x01, 11, '80',       0, 'Line impedance'),
    (113, 'ChStatus_CablefitState',     1, 13, '%1U',                    0,    2,   1,  1, 0x01, 11, '0',       36, 'Line check');

-- Box 2: what is connected, and how.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (201, 'Config_OutputMode',            2,  1, '%1U', 0,   8, 1, 1, 0x03, 11, '0',  10, 'Output mode'),
    -- A control of its own kind where it can be written, from level 2 on; a readout below.
    (202, 'Config_SpeakerId',             2,  2, '%3u', 0, 511, 1, 2, 0x03, 12, '71',  0, 'Speaker'),
    -- On a speaker the maximum is that speaker's Cablefit count; on 71, which has none, both ends are 0.
    (203, 'Config_CablefitSpeakerCount',  2,  3, '%2U', 1,  20, 1, 1, 0x03, 11, '1',   0, 'Speakers in line'),
    -- Known by the hash of its name, 261647397: always shown as fixed, though it may be written. Other names
    -- have this hash too; this is the one that the samples use.
    (204, 'Config_InputRateLevel_Enable', 2,  4, '%1U', 0,   1, 1, 1, 0x03, 11, '0',   0, 'Input rate follows level'),
    -- The seven filter slots. On a speaker each takes name and limits of the speaker's filter.
    (211, 'Config_Filter1',               2, 11, '%1U', 0,   1, 1, 1, 0x03, 11, '0',   0, 'Filter 1'),
    (212, 'Config_Filter2',               2, 12, '%1U', 0,   1, 1, 1, 0x03, 11, '0',   0, 'Filter 2'),
    -- A toggle here, a number on speakers whose filter goes from 0 to 5.
    (213, 'Config_Filter3',               2, 13, '%1U', 0,   1, 1, 1, 0x03, 11, '0',   0, 'Filter 3'),
    -- A number here, a toggle on speakers whose filter goes from 0 to 1.
    (214, 'Config_Filter4',               2, 14, '%1U', 0,   8, 1, 1, 0x03, 11, '0',   0, 'Filter 4'),
    (215, 'Config_Filter5',               2, 15, '%1U', 0,   9, 1, 1, 0x03, 11, '0',   0, 'Filter 5'),
    (216, 'Config_Filter6',               2, 16, '%1U', 0,   1, 1, 1, 0x03, 11, '0',   0, 'Filter 6'),
    (217, 'Config_Filter7',               2, 17, '%1U', 0,   1, 1, 1, 0x03, 11, '0',   0, 'Filter 7'),
    -- On purpose: one character too many for a slot. No speaker changes it; whether it is supported is
    -- still asked of the filter that its last digit names.
    (221, 'Config_Filter21',              2, 21, '%1U', 0,   1, 1, 1, 0x03, 11, '0',   0, 'Second filter 1');

-- Box 3: the equaliser, sixteen bands a channel. The models' own defaults win over these: a band starts
-- at 1000 Hz, whatever is said here.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (301, 'Eq_Bypass', 3,  1, '%1U',         0,     1,   1, 1, 0x03, 11, '0',    0, 'Bypass'),
    (302, 'Eq_Type',   3,  2, '%1U',         0,     3,   1, 1, 0x03, 11, '0',   40, 'Band type'),
    (303, 'Eq_Fg',     3,  3, '%7.1f Hz',   20, 20000, 0.1, 4, 0x03, 11, '500',  0, 'Frequency'),
    (304, 'Eq_Q',      3,  4, '%4.1f',     0.1,    25, 0.1, 4, 0x03, 11, '1',    0, 'Quality'),
    (305, 'Eq_Vdb',    3,  5, '%+5.1f dB', -18,    12, 0.5, 4, 0x03, 11, '0',    0, 'Gain'),
    (306, 'Eq_Order',  3,  6, '%1U',         1,     4,   1, 1, 0x03, 11, '2',    0, 'Order'),
    (307, 'Eq_Fg2',    3,  7, '%7.1f Hz',   20, 20000, 0.1, 4, 0x03, 11, '500',  0, 'Upper frequency'),
    (308, 'Eq_Q2',     3,  8, '%4.1f',     0.1,    25, 0.1, 4, 0x03, 11, '1',    0, 'Upper quality'),
    (309, 'Eq_Vdb2',   3,  9, '%+5.1f dB', -18,    12, 0.5, 4, 0x03, 11, '0',    0, 'Upper gain'),
    (310, 'Eq_Order2', 3, 10, '%1U',         1,     4,   1, 1, 0x03, 11, '2',    0, 'Upper order');

-- Box 4: the eight inputs.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (401, 'Input_Gain',       4, 1, '%+5.1d dB',         -600,    240,  5,  2, 0x03, 11, '0',      0, 'Input gain'),
    (402, 'Input_Source',     4, 2, '%1U',                  0,      2,  1,  1, 0x03, 11, '0',     50, 'Source'),
    (403, 'Input_Name',       4, 3, '%1s',                  0,     15,  1, 16, 0x03, 11, 'Input',  0, 'Input name'),
    (404, 'Input_Level',      4, 4, '%+6.1d dBu',       -1200,    300,  1,  2, 0x01, 11, '-1200',  0, 'Input level'),
    -- Three bytes.
    (405, 'Input_SampleRate', 4, 5, '%6I24u Hz',        32000, 192000, 50,  3, 0x01, 11, '48000',  0, 'Sample rate'),
    (406, 'Input_ClockDrift', 4, 6, '%+7ld ppb',      -100000, 100000,  1,  4, 0x01, 11, '0',      0, 'Clock drift'),
    (407, 'Input_Delay',      4, 7, '%5I16u samples',       0,   9600,  8,  2, 0x03, 11, '0',      0, 'Delay'),
    (408, 'Input_Tilt',       4, 8, '%+3I8d dB',          -12,     12,  1,  1, 0x03, 11, '0',      0, 'Tilt');

-- Box 5: Wavefold. Objects named Wavefold_... exist on Wavefold speakers only.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (501, 'Wavefold_Enable',  5, 1, '%1U',         0,   1, 1, 1, 0x03, 11, '0',  0, 'Wavefold'),
    -- On purpose: no default. Zero is out of range, so the minimum stands in.
    (502, 'Wavefold_Width',   5, 2, '%3u°',       30, 120, 5, 2, 0x03, 11, '',   0, 'Width'),
    (503, 'Wavefold_Focus',   5, 3, '%+5.1d m', -500, 500, 5, 2, 0x03, 11, '0',  0, 'Focus distance'),
    -- Neither read nor written at level 1.
    (504, 'Wavefold_Shading', 5, 4, '%1U',         0,   3, 1, 1, 0x03, 22, '1', 60, 'Shading');

-- Box 6: for service. Here stand the formats that few objects have.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    -- On purpose: a single character prints, but it is no number, and no text makes one of it.
    (601, 'Service_PanelLetter', 6,  1, '%1c',          65,               90,    1, 1, 0x03, 11, '65',      0, 'Panel letter'),
    -- On purpose: the conversion T prints nothing and reads nothing.
    (602, 'Service_Reserved',    6,  2, '%T',            0,                1,    1, 2, 0x01, 11, '0',       0, 'Reserved'),
    -- Bit patterns. With "+" they are grouped by four. They are no numbers and have no kind of control.
    (603, 'Service_PanelKeys',   6,  3, '%+9I8b',        0,              255,    1, 1, 0x01, 11, '0',       0, 'Keys'),
    (604, 'Service_ErrorBits',   6,  4, '%32I32b',       0,       2147483647,    1, 4, 0x01, 11, '0',       0, 'Error bits'),
    (605, 'Service_ErrorWord',   6,  5, '%08lX',         0,       2147483647,    1, 4, 0x01, 11, '0',       0, 'Error word'),
    -- On purpose: one byte without sign, but texts are read with one. Above 127 a value that goes to the
    -- user and back returns negative, though with the same bits.
    (606, 'Service_LoadIndex',   6,  6, '%3U',           0,              200,    1, 1, 0x03, 11, '0',       0, 'Load index'),
    -- On purpose: eight bytes. Conversions hand over four, so these two are never converted.
    (607, 'Service_Energy',      6,  7, '%16I64u Wh',    0, 9007199254740991,    1, 8, 0x01, 11, '0',       0, 'Energy used'),
    (608, 'Service_Latency',     6,  8, '%8.2Lf µs',     0,            10000, 0.01, 8, 0x01, 11, '0',       0, 'Latency'),
    -- Hexadecimal and writeable, for level 3 only. Its values are not checked against the range.
    (609, 'Service_AccessCode',  6,  9, '%04x',          0,            32767,    1, 2, 0x03, 33, '0',       0, 'Access code'),
    -- On purpose: the default is no number, and zero is out of range: the minimum stands in.
    (610, 'Service_BiasOffset',  6, 10, '%4D mV',     -100,              -20,    1, 1, 0x03, 22, 'factory', 0, 'Bias offset');

-- Kalom drives less: the same object as 101, with another range.

INSERT INTO Objects (id, Name, BoxNumber, ObjectNumber, Format, Min, Max, Step, Size, Flags, Access, DefaultValue, TextOffset, Description) VALUES
    (901, 'ChStatus_Gain', 1, 1, '%5.1f dB', -40, 0, 0.5, 4, 0x03, 11, '-20', 0, 'Gain');

-- How often an object is there.

UPDATE Objects SET ChannelCount = 4 WHERE BoxNumber IN (1, 2, 3, 5);
UPDATE Objects SET ChannelCount = 8 WHERE BoxNumber = 4;
UPDATE Objects SET ChannelCount = 1 WHERE Name = 'Config_OutputMode';
UPDATE Objects SET RecordCount = 16 WHERE BoxNumber = 3;
UPDATE Objects SET RecordCount = 10 WHERE Name = 'Setup_PresetName';

-- Changes that take their time: milliseconds, and how many of the states passed on the way to wait for.

UPDATE Objects SET WaitTime = 2000, WaitStates = 3 WHERE Name = 'Setup_PowerOn';
UPDATE Objects SET WaitTime = 500, WaitStates = 1 WHERE Name IN ('Config_OutputMode', 'Config_SpeakerId');

UPDATE Objects SET Comment = 'Changing the mode may change the speaker of every channel.'
WHERE Name = 'Config_OutputMode';
UPDATE Objects SET Comment = 'Acts on the output of this channel only.' WHERE Name = 'ChStatus_Mute';

-- What sort of thing an object is, for controllers that go by class.

CREATE TABLE ObjectClasses (
    Id          INTEGER,
    OcaClassId  TEXT,
    Description TEXT
);

INSERT INTO ObjectClasses (Id, OcaClassId, Description) VALUES
    -- On purpose: class 0 is skipped; an object of class 0 has none.
    (0, '1',       'No class'),
    (1, '1.2.3',   'Switch'),
    (2, '1.2.5',   'Gain'),
    (3, '1.2.7',   'Delay'),
    (4, '1.2.9.4', 'Equaliser band'),
    (5, '1.6.1',   'Level sensor'),
    (6, '1.6.2',   'Temperature sensor');

UPDATE Objects SET ClassId = 1 WHERE Name IN ('Setup_PowerOn', 'ChStatus_Mute', 'ChStatus_Polarity', 'Eq_Bypass', 'Wavefold_Enable');
UPDATE Objects SET ClassId = 2 WHERE Name IN ('ChStatus_Gain', 'ChStatus_Trim', 'Input_Gain');
UPDATE Objects SET ClassId = 3 WHERE Name IN ('ChStatus_MsDelay', 'Input_Delay');
UPDATE Objects SET ClassId = 4 WHERE Name LIKE 'Eq!_%' ESCAPE '!' AND Name <> 'Eq_Bypass';
UPDATE Objects SET ClassId = 5 WHERE Name IN ('ChStatus_OutputLevel', 'Input_Level');
UPDATE Objects SET ClassId = 6 WHERE Name = 'Status_Temperature';


-- ---------------------------------------------------------------------------------------------------
-- Which device has which objects
-- ---------------------------------------------------------------------------------------------------

CREATE TABLE guidsandobjects (
    objectid INTEGER,
    guid     TEXT
);

CREATE INDEX GuidsAndObjectsByGuid ON guidsandobjects (guid, objectid);
CREATE INDEX GuidsAndObjectsByObject ON guidsandobjects (objectid);

-- All of them: the device, its channels, its configuration, the first curve of the equaliser, the inputs.
-- The GUID text goes over as it is written, so that the lower-case Lumbo is linked in lower case.
INSERT INTO guidsandobjects (objectid, guid)
SELECT Objects.id, Guids.GUID
FROM Guids, Objects
WHERE Guids.DeviceType <> 'Loader'
  AND (Objects.id BETWEEN 1 AND 306 OR Objects.id BETWEEN 401 AND 499)
  AND NOT (Guids.DeviceType = 'Kalom' AND Objects.Name = 'ChStatus_Gain');

INSERT INTO guidsandobjects (objectid, guid)
SELECT 901, GUID FROM Guids WHERE DeviceType = 'Kalom';

-- The second curve came with version 1 of the Hesko; all others always had it.
INSERT INTO guidsandobjects (objectid, guid)
SELECT Objects.id, Guids.GUID
FROM Guids, Objects
WHERE Guids.DeviceType <> 'Loader' AND Guids.GUID <> 'C7000012'
  AND Objects.id BETWEEN 307 AND 310;

INSERT INTO guidsandobjects (objectid, guid)
SELECT Objects.id, Guids.GUID
FROM Guids, Objects
WHERE Guids.DeviceType IN ('Hesko', 'Vesni', 'Sarni') AND Objects.BoxNumber = 5;

INSERT INTO guidsandobjects (objectid, guid)
SELECT Objects.id, Guids.GUID
FROM Guids, Objects
WHERE Guids.DeviceType = 'Hesko' AND Objects.BoxNumber = 6;


-- ---------------------------------------------------------------------------------------------------
-- Speakers
-- ---------------------------------------------------------------------------------------------------
-- The class decides for which channel and output mode a speaker is offered: 0, 1 and 10 on a single or
-- first channel, 2 on a single or second channel, 9 on a single channel in mode 0 only, any other on a
-- pair of channels. A class is worth what the first database says that has it.

CREATE TABLE SpeakerClasses (
    Class    INTEGER,
    Name     TEXT,
    Type     TEXT,
    Ways     INTEGER,
    WayNames TEXT
);

INSERT INTO SpeakerClasses (Class, Name, Type, Ways, WayNames) VALUES
    ( 0, 'Point source',             'Passive', 1, 'Full'),
    ( 1, 'Line source',              'Passive', 1, 'Full'),
    ( 2, 'Bass speaker',             'Passive', 1, 'Sub'),
    ( 3, 'Two-way active, low way',  'Active',  2, 'Low'),
    ( 4, 'Two-way active, high way', 'Active',  2, 'High'),
    ( 5, 'Cardioid bass',            'Active',  2, 'Front'),
    ( 9, 'Column',                   'Passive', 1, 'Full'),
    (10, 'Stage monitor',            'Passive', 1, 'Full');

-- Speakers are found by the low byte of their id, and the row read last stands in front. The two ways of
-- a two-way speaker are two ids that share it, 256 apart. The way that devices list by its id has to be
-- read last, or the lists would hold the id of the other one.

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
    -- The speakers that a channel takes by default; which one depends on model, mode and channel.
    ( 71, 'Linear',                 0,  0, 'Linear',      10, 0, 0),
    ( 68, 'Linear bass',            2,  0, 'Lin bass',    20, 0, 0),
    (267, 'Ostel 12 active high',   4,  1, 'Ostel 12',    30, 0, 0),
    ( 11, 'Ostel 12 active low',    3,  1, 'Ostel 12',    30, 0, 0),
    -- Vesni has this one where the others have 11.
    (293, 'Ostel 15 active high',   4,  2, 'Ostel 15',    40, 0, 0),
    ( 37, 'Ostel 15 active low',    3,  2, 'Ostel 15',    40, 0, 0),

    -- On purpose: updates.db3 has a 261, which shares the low byte of 5 and is read later. Asked for
    -- Pirro 8, the library answers with 261 in front, and lists hold 261 in its place.
    (  5, 'Pirro 8',                0,  3, 'Pirro 8',    100, 4, 0),
    -- On purpose: updates.db3 defines 9 differently. Both rows stay, the later one in front.
    (  9, 'Pirro 12',               0,  4, 'Pirro 12',   110, 2, 0),

    -- Wavefold, from level 1 on, and Cablefit with up to six speakers.
    ( 12, 'Varn 3 line',            1,  5, 'Varn 3',     120, 6, 1),
    -- Cablefit only.
    ( 13, 'Varn 3 arc',             1,  5, 'Varn 3 arc', 130, 6, 0),
    -- Wavefold from level 2 on: at level 1 the speaker does not exist.
    ( 14, 'Varn 5 line',            1,  6, 'Varn 5',     140, 3, 2),

    ( 20, 'Tolm 15',                2,  7, 'Tolm 15',    200, 2, 0),
    ( 21, 'Tolm 18',                2,  8, 'Tolm 18',    210, 1, 0),
    ( 30, 'Quell 40 column',        9,  9, 'Quell 40',   300, 8, 0),
    ( 33, 'Nebb 12 monitor',       10, 10, 'Nebb 12',    310, 0, 0),
    ( 40, 'Tolm 18 cardioid',       5,  8, 'Tolm 18 C',  400, 0, 0),
    -- On purpose: class 12 is told by processors.db3, which is read after this row. The speaker keeps
    -- the class "none", 255.
    ( 41, 'Quell 10 ceiling',      12, 11, 'Quell 10',   410, 0, 0),
    -- On purpose: class 255 is "none" itself, and has no row anywhere.
    ( 50, 'Workshop load',        255,  0, 'Load',       900, 0, 0);


-- ---------------------------------------------------------------------------------------------------
-- Which device takes which speakers, with which filters
-- ---------------------------------------------------------------------------------------------------
-- The tens of FilterId are the filter slot, the whole is the key of Filters. A speaker without any row
-- is not offered by the device, so one without filters has at least a slot named "---".
--
-- FilterId, and Id of Filters, have no type, for the sake of the one text among them.

CREATE TABLE GuidsSpeakersFilters (
    GUID      TEXT,
    SpeakerId INTEGER,
    FilterId,
    Access    INTEGER
);

CREATE INDEX GuidsSpeakersFiltersByGuid ON GuidsSpeakersFilters (GUID, SpeakerId);

-- What all amplifiers take, but for 11 on Vesni.
WITH Fittings (SpeakerId, FilterId, Access) AS (VALUES
    (71,    19, 1),
    (68,    19, 1),
    (11,    11, 1),
    (11,    21, 1),
    ( 9,    11, 1),
    ( 9,    21, 1),
    ( 9,    31, 1),
    -- Slots 1 to 6; version 3 of Hesko gets a seventh from updates.db3.
    (12,    11, 1),
    (12,    21, 1),
    (12,    31, 1),
    (12,    41, 1),
    (12,    51, 1),
    (12,    61, 1),
    -- Offered from level 2 and from level 3 on.
    (13,    11, 2),
    (13,    31, 2),
    (14,    11, 2),
    (14,    31, 2),
    (20,    11, 1),
    (21,    11, 3),
    (30,    19, 1),
    -- On purpose: two filters for slot 2. The row read first is taken: "Near field".
    (33,    27, 1),
    (33,    21, 1),
    -- On purpose: a negative key. It counts as slot 0, and the search goes on in the next database.
    (40,    -5, 1),
    (40,    11, 1),
    (41,    19, 1),
    -- On purpose: no number, which counts as slot 0; see the row "---" of Filters.
    (50, '---', 1)
)
INSERT INTO GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access)
SELECT Guids.GUID, Fittings.SpeakerId, Fittings.FilterId, Fittings.Access
FROM Guids, Fittings
WHERE Guids.DeviceType <> 'Loader'
  AND NOT (Guids.DeviceType = 'Vesni' AND Fittings.SpeakerId = 11);

-- What only some of them take.
WITH Fittings (DeviceType, SpeakerId, FilterId, Access) AS (VALUES
    ('Vesni', 37, 11, 1),
    ('Vesni', 37, 21, 1),
    ('Murel',  5, 11, 1),
    ('Murel',  5, 31, 1)
)
INSERT INTO GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access)
SELECT Guids.GUID, Fittings.SpeakerId, Fittings.FilterId, Fittings.Access
FROM Guids JOIN Fittings USING (DeviceType);

CREATE TABLE Filters (
    Id,
    Number           INTEGER,
    Type             INTEGER,
    Min              NUMERIC,
    Max              NUMERIC,
    DisplayNameShort TEXT,
    TextOffset       INTEGER,
    StateTexts       TEXT
);

CREATE INDEX FiltersById ON Filters (Id);

INSERT INTO Filters (Id, Number, Type, Min, Max, DisplayNameShort, TextOffset, StateTexts) VALUES
    -- An Id that reads "---": deliberately no filter, and no other database is asked.
    ('---', 0, 0,    0,   0, 'No filter',   0, ''),
    (   11, 1, 1,    0,   1, 'Low cut',    70, 'off;on'),
    -- The name "---": there is a filter, but the slot shows as switched off for good.
    (   19, 1, 0,    0,   1, '---',         0, ''),
    (   21, 2, 2,    0,   1, 'Far field',  70, 'off;on'),
    (   27, 2, 2,    0,   1, 'Near field', 70, 'off;on'),
    -- Six values: turns the toggle Config_Filter3 into a number.
    (   31, 3, 3,    0,   5, 'Stack trim',  0, ''),
    -- Two values: turns the number Config_Filter4 into a toggle.
    (   41, 4, 1,    0,   1, 'Floor dip',  70, 'off;on'),
    -- On purpose: limits are whole numbers. This filter goes from 0 to 4.
    (   51, 5, 3, 0.25, 4.4, 'Air',         0, ''),
    -- On purpose: the empty name is a name, and the slot is supported.
    (   61, 6, 1,    0,   1, '',           70, 'off;on');


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
    ( 1, 0, 'Dark',                 'Dunkel'),
    ( 1, 1, 'Blinking',             'Blinkt'),

    (10, 0, 'Four channels, mixed', 'Vier Kanäle, gemischt'),
    (10, 1, 'Top/bass, two mixed',  'Top/Bass, zwei gemischt'),
    (10, 2, 'Two-way, two mixed',   'Zweiweg, zwei gemischt'),
    (10, 3, 'Two mixed, top/bass',  'Zwei gemischt, Top/Bass'),
    (10, 4, 'Two mixed, two-way',   'Zwei gemischt, Zweiweg'),
    (10, 5, 'Top/bass twice',       'Zweimal Top/Bass'),
    (10, 6, 'Two-way, top/bass',    'Zweiweg, Top/Bass'),
    (10, 7, 'Top/bass, two-way',    'Top/Bass, Zweiweg'),
    (10, 8, 'Two-way twice',        'Zweimal Zweiweg'),

    (20, 0, 'Unlocked',             'Frei'),
    (20, 1, 'Locked',               'Gesperrt'),

    (25, 0, 'Standing',             'Steht'),
    (25, 1, 'Running',              'Läuft'),

    (30, 0, 'Normal',               'Normal'),
    (30, 1, 'Inverted',             'Invertiert'),

    (35, 0, 'None',                 'Keins'),
    (35, 1, 'Present',              'Vorhanden'),
    (35, 2, 'Limiting',             'Begrenzt'),
    (35, 3, 'Overload',             'Übersteuert'),

    -- On purpose: two texts for 2. The one read last counts.
    (36, 0, 'Not measured',         'Nicht gemessen'),
    (36, 1, 'Good',                 'Gut'),
    (36, 2, 'Fault',                'Fehler'),
    (36, 2, 'Check the cable',      'Kabel prüfen'),

    (40, 0, 'Bell',                 'Glocke'),
    (40, 1, 'Notch',                'Kerbe'),
    (40, 2, 'Low shelf',            'Tiefen'),
    (40, 3, 'High shelf',           'Höhen'),

    (50, 0, 'Analogue',             'Analog'),
    (50, 1, 'Digital',              'Digital'),
    (50, 2, 'Network',              'Netzwerk'),

    (60, 0, 'Even',                 'Gleichmäßig'),
    (60, 1, 'Soft',                 'Weich'),
    (60, 2, 'Medium',               'Mittel'),
    (60, 3, 'Hard',                 'Hart'),

    (70, 0, 'Off',                  'Aus'),
    (70, 1, 'On',                   'Ein');


-- ---------------------------------------------------------------------------------------------------
-- Named groups of properties
-- ---------------------------------------------------------------------------------------------------
-- Each group is what its statement gives on this database, in that order.

CREATE TABLE DevicePropertyFilter (
    FilterName TEXT,
    Expression TEXT,
    Access     INTEGER
);

INSERT INTO DevicePropertyFilter (FilterName, Expression, Access) VALUES
    -- classics.db3 and updates.db3 add to this one what they have beyond it.
    ('Equaliser',   'SELECT Name FROM Objects WHERE Name LIKE ''Eq!_%'' ESCAPE ''!'' ORDER BY id',                   1),
    ('Channel',     'SELECT Name FROM Objects WHERE BoxNumber = 1 AND id < 900 ORDER BY id',                         1),
    -- On purpose: the group holds Status_MainsOk twice, as the statement gives it twice.
    ('Front panel', 'SELECT Name FROM Objects WHERE id IN (1, 23) UNION ALL SELECT Name FROM Objects WHERE id = 23', 1),
    ('Wavefold',    'SELECT Name FROM Objects WHERE BoxNumber = 5 ORDER BY id',                                      2),
    ('Service',     'SELECT Name FROM Objects WHERE BoxNumber = 6 OR Access / 10 > 1 ORDER BY id',                   3),
    -- On purpose: a faulty statement. The group exists and is empty.
    ('Forgotten',   'SELECT Nmae FROM Objects',                                                                      1);

COMMIT;
