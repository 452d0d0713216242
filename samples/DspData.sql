-- DspData/DspData.sqlite: what the signal processors of the devices need for a speaker.
--
-- One blob for each device GUID and speaker id, with its MD5 beside it. The blobs here are an invented
-- form: the mark "SDSP", the speaker id, the number of coefficients, the coefficients; 16 bits each, low
-- byte first. GUIDs are in upper case, for they are compared as text.

BEGIN;

CREATE TABLE Version (
    Major  INTEGER,
    Minor  INTEGER,
    Bugfix INTEGER
);

INSERT INTO Version VALUES (1, 4, 2);

CREATE TABLE SpeakerData (
    GUID           TEXT,
    SpeakerId      INTEGER,
    DeviceType     TEXT,
    SpeakerName    TEXT,
    SpeakerVersion TEXT,
    BlobData       BLOB,
    BlobDataMD5    TEXT
);

CREATE INDEX SpeakerDataByGuid ON SpeakerData (GUID, SpeakerId);

INSERT INTO SpeakerData (GUID, SpeakerId, DeviceType, SpeakerName, SpeakerVersion, BlobData, BlobDataMD5) VALUES
    ('C7000312', 71, 'Hesko', 'Linear', '1.0',
        x'5344535047000400f70e59102d14731a',
        '9a362f0ad794fff356503a34e6b31b81'),
    ('C7000312', 12, 'Hesko', 'Varn 3 line', '2.3',
        x'534453500c001000cc2d2e2f0233483900422a4dc65ad46a547d4692aaa980c3c8df82feae1f4c43',
        '312aadb55d5069d7bd95fec919955ece'),
    ('C7000312', 11, 'Hesko', 'Ostel 12 active low', '1.4',
        x'534453500b000c00fb295d2b312f77352f3e5949f55603678379758ed9a5afbf',
        '02566f0e4a5e3e0e95a1a5c057c6f80d'),
    ('C7000312', 267, 'Hesko', 'Ostel 12 active high', '1.4',
        x'534453500b010c00fbfa5dfc310077062f0f591af5270338834a755fd976af90',
        '67216de06829967a6a7ce9fb43918654'),
    ('C7000213', 37, 'Vesni', 'Ostel 15 active low', '1.1',
        x'5344535025000c00358d978e6b92b19869a193ac2fba3dcabddcaff11309e922',
        'ff0b86db091e2178c62193111e5ef21f'),
    ('C7000205', 7, 'Talvo', 'Dorra 10 top', '3.0',
        x'5344535007000800b71a191ced1f3326eb2e153ab147bf57',
        '88b993ef3c956449ea0154888b957025'),
    ('C7000030', 6, 'Tovian', 'Tovian', '1.0',
        x'5344535006000600e61648181c1c62221a2b4436',
        '047c7ff4a303f6a77cf4035c4c0d0965'),
    -- On purpose: the MD5 is that of another blob. It is handed on as it stands, and the record is valid;
    -- whoever loads the data into a device has to compare.
    ('C7000312', 20, 'Hesko', 'Tolm 15', '1.2',
        x'5344535014000800544cb64d8a51d0578860b26b4e795c89',
        '795e4effb7ca35ffb4bce702d5cbd8ca'),
    -- On purpose: no version. The record is filled, but not valid.
    ('C7000312', 30, 'Hesko', 'Quell 40 column', '',
        x'534453501e0008007e72e073b477fa7db286dc91789f86af',
        'ed896416c8f19bd2ca91e3123f86e1db');

COMMIT;
