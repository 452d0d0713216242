-- The tables of a description database, in their newest form, and the indexes for the library's
-- questions. A database need not have them all: a table that is missing counts as empty.
-- docs/database-format.md tells what the columns mean.
--
-- The library takes rows in the order of their insertion, and for several tables the first or the last
-- one decides. So no table but Objects is stored by its key, and an index holds only the columns that are
-- asked by: rows that agree in them come in the order of insertion.

BEGIN;

-- One row: the version of this database.
CREATE TABLE Version (
    Major  INTEGER NOT NULL,
    Minor  INTEGER NOT NULL,
    Bugfix INTEGER NOT NULL
);

INSERT INTO Version (Major, Minor, Bugfix) VALUES (0, 0, 0);


-- Devices -----------------------------------------------------------------------------------------

-- One row a device and version of its description.
CREATE TABLE Guids (
    GUID       TEXT NOT NULL PRIMARY KEY,      -- eight hexadecimal digits in upper case, from C7 on
    DeviceType TEXT NOT NULL,                  -- the model
    Version    TEXT NOT NULL DEFAULT '',       -- the firmware from which the description holds
    Access     INTEGER NOT NULL DEFAULT 1,     -- the level from which the device is seen
    OnoType    INTEGER NOT NULL DEFAULT 1      -- the numbering of its remote objects
);

-- The numbers by which devices name their hardware.
CREATE TABLE Hardwaretypes (
    Type       INTEGER NOT NULL,
    DeviceType TEXT NOT NULL
);


-- Objects -----------------------------------------------------------------------------------------

-- One row a definition; devices share it through guidsandobjects.
CREATE TABLE Objects (
    id           INTEGER PRIMARY KEY,
    Name         TEXT NOT NULL,
    BoxNumber    INTEGER NOT NULL,
    ObjectNumber INTEGER NOT NULL,             -- within the box
    ChannelCount INTEGER NOT NULL DEFAULT 1,
    RecordCount  INTEGER NOT NULL DEFAULT 1,
    Min          REAL NOT NULL DEFAULT 0,
    Max          REAL NOT NULL DEFAULT 0,
    Step         REAL NOT NULL DEFAULT 1,
    Format       TEXT NOT NULL,
    Flags        INTEGER NOT NULL DEFAULT 0,   -- 0x1 readable, 0x2 writeable
    Access       INTEGER NOT NULL DEFAULT 11,  -- tens: the level to read, units: the level to write
    DefaultValue TEXT NOT NULL DEFAULT '',
    Size         INTEGER NOT NULL DEFAULT 0,   -- bytes
    TextOffset   INTEGER NOT NULL DEFAULT 0,   -- into TextsObjectValues
    Description  TEXT NOT NULL DEFAULT '',     -- the name for people
    Comment      TEXT NOT NULL DEFAULT '',
    ClassId      INTEGER NOT NULL DEFAULT 0,   -- into ObjectClasses; 0: none
    WaitTime     INTEGER NOT NULL DEFAULT 0,
    WaitStates   INTEGER NOT NULL DEFAULT 0
);

CREATE INDEX ObjectsByName ON Objects (Name);
CREATE INDEX ObjectsByNumber ON Objects (ObjectNumber, BoxNumber);

-- Which device has which objects.
CREATE TABLE guidsandobjects (
    objectid INTEGER NOT NULL,                 -- Objects.id
    guid     TEXT NOT NULL                     -- Guids.GUID
);

CREATE INDEX GuidsAndObjectsByObject ON guidsandobjects (objectid, guid);
-- For the expressions of property filters, which ask for all objects of a device.
CREATE INDEX GuidsAndObjectsByGuid ON guidsandobjects (guid);

CREATE TABLE ObjectClasses (
    Id          INTEGER NOT NULL,              -- from 1 on
    OcaClassId  TEXT NOT NULL,                 -- such as 1.1.4
    Description TEXT NOT NULL DEFAULT ''
);

-- The names of values, one column a language.
CREATE TABLE TextsObjectValues (
    TextOffset      INTEGER NOT NULL,
    Value           INTEGER NOT NULL,
    TextShort_en_US TEXT
);

CREATE INDEX TextsObjectValuesByOffset ON TextsObjectValues (TextOffset);

-- Named groups of objects.
CREATE TABLE DevicePropertyFilter (
    FilterName TEXT NOT NULL,
    Expression TEXT NOT NULL,                  -- a statement whose first column gives names of objects
    Access     INTEGER NOT NULL DEFAULT 0      -- the level from which the group is seen
);


-- Speakers ----------------------------------------------------------------------------------------

CREATE TABLE SpeakerClasses (
    Class    INTEGER NOT NULL,
    Name     TEXT NOT NULL,
    Type     TEXT NOT NULL DEFAULT '',
    Ways     INTEGER NOT NULL,
    WayNames TEXT NOT NULL DEFAULT ''
);

CREATE TABLE Speakers (
    SpeakerId        INTEGER NOT NULL,         -- the ways of a speaker agree in the low byte, and no others may
    Name             TEXT NOT NULL,
    Class            INTEGER NOT NULL,         -- SpeakerClasses.Class
    Rib              INTEGER NOT NULL DEFAULT 0,
    DisplayNameShort TEXT NOT NULL,
    SortOrder        INTEGER NOT NULL DEFAULT 0,
    CablefitMaxCount INTEGER NOT NULL DEFAULT 0,
    WfActive         INTEGER NOT NULL DEFAULT 0 -- not 0: a Wavefold setup, seen from that level on
);

-- Which device drives which speakers, through which filters.
CREATE TABLE GuidsSpeakersFilters (
    GUID      TEXT NOT NULL,                   -- Guids.GUID
    SpeakerId INTEGER NOT NULL,                -- Speakers.SpeakerId
    FilterId  INTEGER NOT NULL,                -- Filters.Id
    Access    INTEGER NOT NULL DEFAULT 0       -- the level from which the device has the speaker
);

CREATE INDEX GuidsSpeakersFiltersByGuid ON GuidsSpeakersFilters (GUID, SpeakerId);

CREATE TABLE Filters (
    Id               INTEGER NOT NULL,         -- ten times the number of the filter, and a variant 0 to 9
    Number           INTEGER NOT NULL,
    Type             INTEGER NOT NULL DEFAULT 0,
    Min              INTEGER NOT NULL DEFAULT 0,
    Max              INTEGER NOT NULL DEFAULT 0,
    DisplayNameShort TEXT NOT NULL DEFAULT '',
    TextOffset       INTEGER NOT NULL DEFAULT 0, -- into TextsObjectValues
    StateTexts       TEXT NOT NULL DEFAULT ''
);

CREATE INDEX FiltersById ON Filters (Id);


-- Speaker DSP database only -----------------------------------------------------------------------

CREATE TABLE SpeakerData (
    GUID           TEXT NOT NULL,
    SpeakerId      INTEGER NOT NULL,
    DeviceType     TEXT NOT NULL,
    SpeakerName    TEXT NOT NULL,
    SpeakerVersion TEXT NOT NULL,
    BlobData       BLOB NOT NULL,
    BlobDataMD5    TEXT NOT NULL               -- carried along, not compared
);

CREATE INDEX SpeakerDataByGuid ON SpeakerData (GUID, SpeakerId);

COMMIT;
