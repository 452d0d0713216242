#include "diff/view.h"

#include "check/objectRows.h"

#include "cache/driverCacheFilterItem.h"
#include "core/qt5Conversions.h"
#include "records/driverPropertyTarget.h"

#include <QCryptographicHash>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

QString exactText(double number)
{
    return QString::number(number, 'g', 15);
}

/// The texts of each group: what "text LANGUAGE VALUE" says, by offset.
QHash<qint64, Members> readTexts(Table const & texts)
{
    QHash<qint64, Members> groups;
    for (int row = 0; row < texts.rowCount(); ++row) {
        Members & group = groups[qt5::toInt64(texts.value(row, "TextOffset"))];
        for (int column = 0; column < texts.columns.size(); ++column) {
            QString const & language = texts.columns.at(column);
            if (language.startsWith(QLatin1String("TextShort_")) && !qt5::isNull(texts.value(row, column)))
                group.insert(QStringLiteral("text %1 %2").arg(language.mid(10), texts.text(row, "Value")),
                             qt5::toText(texts.value(row, column)));
        }
    }
    return groups;
}

Members membersOf(CObjectDef const & object)
{
    return {{QStringLiteral("number"),
             QStringLiteral("%1/%2").arg(object.BoxNumber()).arg(object.ObjectNumber())},
            {QStringLiteral("channels"), QString::number(object.channelCount())},
            {QStringLiteral("records"), QString::number(object.recordCount())},
            {QStringLiteral("minimum"), exactText(object.minValue())},
            {QStringLiteral("maximum"), exactText(object.maxValue())},
            {QStringLiteral("step"), exactText(object.step())},
            {QStringLiteral("format"), object.format()},
            {QStringLiteral("flags"), QString::number(object.flags())},
            {QStringLiteral("access"), QString::number(object.access())},
            {QStringLiteral("default"), qt5::toText(object.defaultValue())},
            {QStringLiteral("size"), QString::number(object.size())},
            {QStringLiteral("name for people"), object.displayName()},
            {QStringLiteral("comment"), object.comment()},
            {QStringLiteral("class"), QString::number(object.classId())},
            {QStringLiteral("wait time"), QString::number(object.waitTime())},
            {QStringLiteral("wait states"), QString::number(object.waitStates())}};
}

/// An object, and the name by which it is found.
struct NamedObject {
    QString name;
    Members members;
};

/// The objects of a database in the order of their rows, with their texts. Devices that share a row share its
/// members.
QVector<NamedObject> readNamedObjects(DescriptionSet & set, Database const & database)
{
    QVector<NamedObject> objects;
    QHash<qint64, Members> const texts = readTexts(database.table("TextsObjectValues"));
    for (CObjectDef const & object : readObjects(set.cache(), database)) {
        Members members = membersOf(object);
        Members const group = texts.value(object.textOffset());
        for (auto text = group.constBegin(); text != group.constEnd(); ++text)
            members.insert(text.key(), text.value());
        objects.append({object.name(), members});
    }
    return objects;
}

bool isOwner(DescriptionSet & set, Database const & database, QString const & guid)
{
    return set.cache().connectionName(CDeviceGuid(guid)) == database.file;
}

/// A database of the older form has 1 for all.
QString onoType(Table const & guids, int row)
{
    return guids.column(QStringLiteral("OnoType")) < 0 ? QStringLiteral("1") : guids.text(row, "OnoType");
}

void viewDevices(DescriptionSet & set, Database const & database, SetView & view)
{
    Table const & guids = database.table("Guids");
    for (int row = 0; row < guids.rowCount(); ++row) {
        QString const guid = CDeviceGuid(guids.text(row, "GUID")).toString().toUpper();
        if (!isOwner(set, database, guid) || view.devices.contains(guid))
            continue;
        view.devices[guid].insert(QStringLiteral("device"),
                                  {{QStringLiteral("model"), guids.text(row, "DeviceType")},
                                   {QStringLiteral("firmware"), guids.text(row, "Version")},
                                   {QStringLiteral("level"), guids.text(row, "Access")},
                                   {QStringLiteral("remote numbering"), onoType(guids, row)}});
    }
}

void viewObjects(DescriptionSet & set, Database const & database, SetView & view)
{
    QVector<NamedObject> const objects = readNamedObjects(set, database);
    QHash<qint64, QVector<int>> const rowsOfId = rowsById(database.table("Objects"));
    Table const & links = database.table("guidsandobjects");
    for (int row = 0; row < links.rowCount(); ++row) {
        QString const guid = links.text(row, "guid");
        auto const device = view.devices.find(guid);
        if (device == view.devices.end() || !isOwner(set, database, guid))
            continue;
        for (int const object : rowsOfId.value(qt5::toInt64(links.value(row, "objectid")))) {
            if (object >= objects.size())
                break; // the table was read twice, and a damaged one may end earlier the second time
            QString const name = QStringLiteral("object ") + objects.at(object).name;
            if (!device->contains(name)) // the first row of a name is the one that is found
                device->insert(name, objects.at(object).members);
        }
    }
}

/// The lowest level at which a device has a speaker, by "GUID/speaker".
QHash<QString, int> supportLevels(Database const & database)
{
    QHash<QString, int> levels;
    Table const & table = database.table("GuidsSpeakersFilters");
    for (int row = 0; row < table.rowCount(); ++row) {
        QString const key = table.text(row, "GUID") + QLatin1Char('/') + table.text(row, "SpeakerId");
        int const level = table.number(row, "Access");
        levels.insert(key, std::min(level, levels.value(key, level)));
    }
    return levels;
}

void viewSpeakersOf(DescriptionSet & set, QHash<QString, int> const & levels, QString const & guid,
                    Things & device)
{
    CDeviceGuid const value(guid);
    QList<unsigned short> ids;
    set.library().listSpeakersForDevice(value, ids);
    for (unsigned short const id : ids) {
        Members & speaker = device[QStringLiteral("support of speaker %1").arg(id)];
        speaker.insert(QStringLiteral("level"),
                       QString::number(levels.value(QStringLiteral("%1/%2").arg(guid).arg(id))));
        CDeviceChannelInfo channel;
        channel.SetSpeakerId(id);
        for (int slot = 1; slot <= 7; ++slot) {
            QString const filter = set.library().GetFilterName(value, slot, &channel);
            if (filter.isNull())
                continue;
            speaker.insert(QStringLiteral("filter %1").arg(slot), filter);
            if (CDriverCacheFilterItem const * const item = set.cache().filter(value, channel, slot))
                speaker.insert(
                    QStringLiteral("filter %1 range").arg(slot),
                    QStringLiteral("%1 to %2").arg(exactText(item->minValue()), exactText(item->maxValue())));
        }
    }
}

void viewDefaultSpeakers(DescriptionSet & set, QString const & guid, Things & device)
{
    CDeviceGuid const value(guid);
    int const channels = set.library().deviceChannelCount(value, ChannelTypeSpeaker);
    Members defaults;
    for (int mode = 0; mode <= lastOutputMode; ++mode) {
        for (int channel = 1; channel <= channels; ++channel) {
            CDriverPropertyTarget const target(value, QStringLiteral("Config_SpeakerId"),
                                               DeviceChannel(channel), 0, nullptr);
            defaults.insert(QStringLiteral("mode %1 channel %2").arg(mode).arg(channel),
                            set.library().defaultSpeakerId(target, OutputMode(mode)).toString());
        }
    }
    if (channels > 0)
        device.insert(QStringLiteral("default speakers"), defaults);
}

/// The devices that this database supplies.
QStringList ownGuids(DescriptionSet & set, Database const & database, SetView const & view)
{
    QStringList own;
    for (QString const & guid : view.devices.keys()) {
        if (isOwner(set, database, guid))
            own.append(guid);
    }
    return own;
}

void viewSpeakers(Database const & database, SetView & view)
{
    Table const & speakers = database.table("Speakers");
    for (int row = 0; row < speakers.rowCount(); ++row) // of several rows the last one stands in front
        view.things.insert(QStringLiteral("speaker ") + speakers.text(row, "SpeakerId"),
                           {{QStringLiteral("name"), speakers.text(row, "Name")},
                            {QStringLiteral("class"), speakers.text(row, "Class")},
                            {QStringLiteral("rib"), speakers.text(row, "Rib")},
                            {QStringLiteral("short name"), speakers.text(row, "DisplayNameShort")},
                            {QStringLiteral("sort order"), speakers.text(row, "SortOrder")},
                            {QStringLiteral("Cablefit count"), speakers.text(row, "CablefitMaxCount")},
                            {QStringLiteral("Wavefold level"), speakers.text(row, "WfActive")}});
    Table const & hardware = database.table("Hardwaretypes");
    for (int row = 0; row < hardware.rowCount(); ++row)
        view.things.insert(QStringLiteral("hardware type ") + hardware.text(row, "Type"),
                           {{QStringLiteral("model"), hardware.text(row, "DeviceType")}});
}

void viewClasses(Database const & database, SetView & view)
{
    Table const & classes = database.table("SpeakerClasses");
    for (int row = 0; row < classes.rowCount(); ++row) {
        QString const name = QStringLiteral("class of speakers ") + classes.text(row, "Class");
        if (!view.things.contains(name)) // the first row counts
            view.things.insert(name, {{QStringLiteral("ways"), classes.text(row, "Ways")},
                                      {QStringLiteral("way names"), classes.text(row, "WayNames")}});
    }
    Table const & objectClasses = database.table("ObjectClasses");
    for (int row = 0; row < objectClasses.rowCount(); ++row) {
        QString const name = QStringLiteral("object class ") + objectClasses.text(row, "Id");
        if (!view.things.contains(name))
            view.things.insert(name, {{QStringLiteral("OCA class"), objectClasses.text(row, "OcaClassId")}});
    }
}

void viewDspData(Database const & database, SetView & view)
{
    Table const & data = database.table("SpeakerData");
    for (int row = 0; row < data.rowCount(); ++row) {
        QString const name = QStringLiteral("DSP data of %1, speaker %2")
                                 .arg(data.text(row, "GUID"), data.text(row, "SpeakerId"));
        QByteArray const hash =
            QCryptographicHash::hash(data.value(row, "BlobData").toByteArray(), QCryptographicHash::Sha256);
        if (!view.things.contains(name))
            view.things.insert(name, {{QStringLiteral("version"), data.text(row, "SpeakerVersion")},
                                      {QStringLiteral("hash"), QString::fromLatin1(hash.toHex())}});
    }
}

void viewGroups(Database const & database, SetView & view)
{
    Table const & groups = database.table("DevicePropertyFilter");
    for (int row = 0; row < groups.rowCount(); ++row) {
        Members & members = view.things[QStringLiteral("group ") + groups.text(row, "FilterName")];
        if (!members.contains(QStringLiteral("level")))
            members.insert(QStringLiteral("level"), QString::number(groups.number(row, "Access") & 0xFF));
    }
}

void viewGroupMembers(DescriptionSet & set, SetView & view)
{
    CDevicelore const & library = set.library();
    for (QString const & group : library.enumDevicePropertyFilter()) {
        Members & members = view.things[QStringLiteral("group ") + group];
        for (QString const & property : library.devicePropertyFilter(group))
            members.insert(QStringLiteral("property ") + property, QStringLiteral("yes"));
    }
}

} // namespace

SetView viewOf(DescriptionSet & set)
{
    SetView view;
    for (QString const & file : set.openFiles()) {
        Database const database = set.read(file);
        viewDevices(set, database, view);
        viewObjects(set, database, view);
        viewSpeakers(database, view);
        viewClasses(database, view);
        viewGroups(database, view);
        viewDspData(database, view);
        QHash<QString, int> const levels = supportLevels(database);
        for (QString const & guid : ownGuids(set, database, view)) {
            viewSpeakersOf(set, levels, guid, view.devices[guid]);
            viewDefaultSpeakers(set, guid, view.devices[guid]);
        }
    }
    set.cache().setDevicePropertyFilterAccessLevel(255);
    viewGroupMembers(set, view);
    return view;
}

} // namespace kestrova::authoring
