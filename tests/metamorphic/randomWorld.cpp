#include "randomWorld.h"

#include <algorithm>
#include <numeric>

namespace kestrova::test {

namespace {

QString quoted(QString text)
{
    return QStringLiteral("'%1'").arg(text.replace(QLatin1Char('\''), QLatin1String("''")));
}

QString row(QString const & table, QStringList const & values)
{
    return QStringLiteral("INSERT INTO %1 VALUES (%2);\n").arg(table, values.join(QStringLiteral(", ")));
}

QString text(int number)
{
    return QString::number(number);
}

QString text(double number)
{
    return QString::number(number, 'g', 12);
}

/// What every database holds alike.
QString const commonSql = QStringLiteral(
    "CREATE TABLE ObjectClasses (Id, OcaClassId, Description);"
    "INSERT INTO ObjectClasses VALUES (1, '1.2.3', 'a'), (2, '1.2.5', 'b');"
    "CREATE TABLE SpeakerClasses (Class, Name, Type, Ways, WayNames);"
    "INSERT INTO SpeakerClasses VALUES (0, 'p', 't', 1, 'Full'), (2, 'b', 't', 1, 'Sub'), (4, 'w', 't', 2, "
    "'High'), (9, 'c', 't', 1, 'Full');"
    "CREATE TABLE Filters (Id, Number, Type, Min, Max, DisplayNameShort, TextOffset, StateTexts);"
    "INSERT INTO Filters VALUES (11, 1, 1, 0, 1, 'Cut', 0, ''), (21, 2, 1, 0, 5, 'Field', 0, ''), "
    "(19, 1, 0, 0, 1, '---', 0, '');"
    "CREATE TABLE TextsObjectValues (TextOffset, Value, TextShort_en_US, TextShort_de_DE);"
    "INSERT INTO TextsObjectValues VALUES (30, 0, 'Off', 'Aus'), (30, 1, 'On', 'Ein'), (40, 0, 'A', 'A'), "
    "(40, 2, 'C', 'C');"
    "CREATE TABLE Hardwaretypes (Type, DeviceType);"
    "INSERT INTO Hardwaretypes VALUES (1, 'Hesko'), (4, 'Talvo');\n");

} // namespace

RandomWorld::RandomWorld(unsigned seed)
    : random(seed)
{
    makeObjects();
    makeSpeakers();
    makeDevices();
}

void RandomWorld::makeObjects()
{
    static std::vector<QString> const names{QStringLiteral("Gain"),
                                            QStringLiteral("Mute"),
                                            QStringLiteral("Config_Filter1"),
                                            QStringLiteral("Config_Filter2"),
                                            QStringLiteral("Eq_Fg"),
                                            QStringLiteral("Config_CablefitSpeakerCount"),
                                            QStringLiteral("ChStatus_MsDelay"),
                                            QStringLiteral("Config_SpeakerId"),
                                            QStringLiteral("Wavefold_Width"),
                                            QStringLiteral("Name"),
                                            QStringLiteral("It's"),
                                            QStringLiteral("Größe")};
    int number = 1;
    for (QString const & name : names) {
        Object object;
        object.name = name;
        object.box = chance(0, 31);
        object.number = number++; // no two objects of a device share name or number
        object.minimum = chance(-200, 10);
        object.maximum = object.minimum + oneOf<int>({1, 1, 10, 200});
        object.step = oneOf<double>({1, 1, 5, 0.5});
        object.format =
            oneOf<QString>({QStringLiteral("%1U"), QStringLiteral("%5.1f dB"), QStringLiteral("%+6.2d"),
                            QStringLiteral("%1s"), QStringLiteral("%04X"), QStringLiteral("%3u%%")});
        object.flags = oneOf<int>({1, 3, 0x23, 0x403});
        object.access = oneOf<int>({0, 1, 11, 12, 21, 33});
        object.defaultValue =
            oneOf<QString>({QString(), QStringLiteral("0"), QStringLiteral("7.5"), QStringLiteral("x")});
        object.size = oneOf<int>({1, 2, 4, 16});
        object.textOffset = oneOf<int>({0, 1, 30, 40, 50});
        object.classId = chance(0, 3);
        objects.push_back(object);
    }
}

void RandomWorld::makeSpeakers()
{
    for (int const id : {5, 11, 12, 68, 71, 267})
        speakers.push_back(
            {id, oneOf<int>({0, 2, 4, 9, 77}), chance(0, 1000) * 10 + id % 7, chance(0, 6), chance(0, 2)});
}

void RandomWorld::makeDevices()
{
    static std::vector<QString> const models{QStringLiteral("Hesko"), QStringLiteral("Talvo"),
                                             QStringLiteral("Vesni"), QStringLiteral("Tovian"),
                                             QStringLiteral("Unknown")};
    for (int type = 0; type < 4; ++type) {
        int const versions = chance(1, 3);
        for (int version = 0; version < versions; ++version) {
            Device device;
            device.guid = QStringLiteral("C700%1%2")
                              .arg(version * 2, 2, 16, QLatin1Char('0'))
                              .arg(16 + type, 2, 16, QLatin1Char('0'))
                              .toUpper();
            device.model = models.at(static_cast<std::size_t>(type));
            device.access = chance(0, 2);
            for (int object = 0; object < static_cast<int>(objects.size()); ++object) {
                if (chance(0, 3) != 0)
                    device.objects.push_back(object);
            }
            for (int speaker = 0; speaker < static_cast<int>(speakers.size()); ++speaker) {
                if (chance(0, 1) != 0)
                    device.speakers.push_back(speaker);
            }
            devices.push_back(device);
        }
    }
    std::shuffle(devices.begin(), devices.end(), random);
}

QStringList RandomWorld::objectNames() const
{
    QStringList names;
    for (Object const & object : objects)
        names.append(object.name);
    return names;
}

QStringList RandomWorld::guids() const
{
    QStringList all;
    for (Device const & device : devices)
        all.append(device.guid);
    all.sort();
    return all;
}

QString RandomWorld::sql(Form form, std::size_t first, std::size_t last) const
{
    bool const isNew = form == Form::New;
    QString sql = commonSql;
    sql += QStringLiteral("CREATE TABLE Guids (GUID, DeviceType, Version, Access%1);")
               .arg(isNew ? QStringLiteral(", OnoType") : QString());
    sql +=
        QStringLiteral("CREATE TABLE Objects (id INTEGER PRIMARY KEY, Name, %1ObjectNumber, ChannelCount, "
                       "RecordCount, Min, Max, Step, Format, Flags, Access, DefaultValue, Size, TextOffset, "
                       "Description, Comment, ClassId, WaitTime, WaitStates);")
            .arg(isNew ? QStringLiteral("BoxNumber, ") : QString());
    sql += QStringLiteral("CREATE TABLE guidsandobjects (objectid, guid);"
                          "CREATE TABLE GuidsSpeakersFilters (GUID, SpeakerId, FilterId, Access);"
                          "CREATE TABLE DevicePropertyFilter (FilterName, Expression%1);")
               .arg(isNew ? QStringLiteral(", Access") : QString());
    sql += QStringLiteral("INSERT INTO DevicePropertyFilter VALUES ('All', 'SELECT Name FROM Objects', 0);")
               .replace(QStringLiteral(", 0)"), isNew ? QStringLiteral(", 0)") : QStringLiteral(")"));
    int id = 1;
    for (Object const & object : objects) {
        QStringList const address = isNew ? QStringList{text(object.box), text(object.number)}
                                          : QStringList{text(object.box * 256 + object.number)};
        sql +=
            row(QStringLiteral("Objects"),
                QStringList{text(id), quoted(object.name)} + address +
                    QStringList{QStringLiteral("4"), QStringLiteral("1"), text(object.minimum),
                                text(object.maximum), text(object.step), quoted(object.format),
                                text(object.flags), text(object.access), quoted(object.defaultValue),
                                text(object.size), text(object.textOffset), quoted(object.name.toUpper()),
                                quoted({}), text(object.classId), QStringLiteral("5"), QStringLiteral("1")});
        ++id;
    }
    if (first == 0) {
        sql +=
            QStringLiteral("CREATE TABLE Speakers (SpeakerId, Name, Class, Rib, DisplayNameShort, SortOrder, "
                           "CablefitMaxCount, WfActive);");
        for (Speaker const & speaker : speakers)
            sql += row(QStringLiteral("Speakers"),
                       {text(speaker.id), quoted(QStringLiteral("S%1").arg(speaker.id)),
                        text(speaker.speakerClass), QStringLiteral("0"),
                        quoted(QStringLiteral("s%1").arg(speaker.id)), text(speaker.sortOrder),
                        text(speaker.cablefitCount), text(speaker.wavefoldLevel)});
    }
    for (std::size_t i = first; i < last; ++i) {
        Device const & device = devices.at(i);
        QStringList values{quoted(device.guid), quoted(device.model), quoted(QStringLiteral("1.0")),
                           text(device.access)};
        if (isNew)
            values.append(QStringLiteral("1"));
        sql += row(QStringLiteral("Guids"), values);
        for (int const object : device.objects)
            sql += row(QStringLiteral("guidsandobjects"), {text(object + 1), quoted(device.guid)});
        for (int const speaker : device.speakers) {
            int const speakerId = speakers.at(static_cast<std::size_t>(speaker)).id;
            for (int const filter : {11 + 8 * (speakerId % 2), 21})
                sql += row(QStringLiteral("GuidsSpeakersFilters"),
                           {quoted(device.guid), text(speakerId), text(filter), text(speakerId % 3)});
        }
    }
    return sql;
}

} // namespace kestrova::test
