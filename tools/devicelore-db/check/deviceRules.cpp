#include "check/check.h"

#include "records/driverPropertyTarget.h"

#include <QRegularExpression>
#include <QSet>

#include <map>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

constexpr int typeThatIsSkipped = 0xA0;
constexpr int firstDeviceType = 4;

int typeOf(CDeviceGuid const & guid)
{
    return static_cast<int>(guid.value() & 0xFFU);
}

int versionOf(CDeviceGuid const & guid)
{
    return static_cast<int>((guid.value() >> 8U) & 0xFFU);
}

CDeviceGuid baseOf(CDeviceGuid const & guid)
{
    return CDeviceGuid(guid.value() & 0xFFFF00FFU);
}

QString hexByte(int byte)
{
    return QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0')).toUpper();
}

QString typeSubject(int type)
{
    return QStringLiteral("type %1").arg(hexByte(type));
}

/// Whether a row of Guids becomes a device; if not, says why.
bool isDevice(Inspected const & inspected, Table const & guids, int row)
{
    QString const text = guids.text(row, "GUID");
    CDeviceGuid const guid(text);
    if (!text.startsWith(QLatin1String("C7"), Qt::CaseInsensitive)) {
        inspected.report("guid-prefix", guids, row, "GUID", text,
                         QStringLiteral("\"%1\" does not begin with C7").arg(text));
        return false;
    }
    if (!isGuidText(text))
        inspected.report("guid-text", guids, row, "GUID", text,
                         guid.isNull()
                             ? QStringLiteral("\"%1\" is no GUID").arg(text)
                             : QStringLiteral("\"%1\" is not eight digits in upper case").arg(text));
    if ((guid.value() >> 24U) != 0xC7U)
        return false;
    if (typeOf(guid) == typeThatIsSkipped || typeOf(guid) < firstDeviceType) {
        inspected.report("guid-type", guids, row, "GUID", text,
                         QStringLiteral("the device type is %1").arg(hexByte(typeOf(guid))));
        return false;
    }
    return true;
}

QSet<QString> linkedGuids(Inspected const & inspected)
{
    Table const & links = inspected.database.table("guidsandobjects");
    QSet<QString> guids;
    for (int row = 0; row < links.rowCount(); ++row)
        guids.insert(links.text(row, "guid"));
    return guids;
}

} // namespace

bool isGuidText(QString const & text)
{
    static QRegularExpression const guid(QStringLiteral("^[0-9A-F]{8}\\z"));
    return guid.match(text).hasMatch();
}

void checkDevices(Inspected const & inspected)
{
    Table const & guids = inspected.database.table("Guids");
    QSet<QString> const linked = linkedGuids(inspected);
    QSet<quint32> here;
    for (int row = 0; row < guids.rowCount(); ++row) {
        if (!isDevice(inspected, guids, row))
            continue;
        CDeviceGuid const guid(guids.text(row, "GUID"));
        QString const text = guid.toString().toUpper();
        QString const owner = inspected.set.cache().connectionName(guid);
        if (here.contains(guid.value())) {
            inspected.report("device-twice", guids, row, "GUID", text,
                             QStringLiteral("%1 stands in an earlier row already").arg(text));
            continue;
        }
        here.insert(guid.value());
        if (owner != inspected.database.file) {
            inspected.report("older-description", guids, row, "GUID", text,
                             QStringLiteral("%1 is described by %2").arg(text, owner));
            continue;
        }
        if (!linked.contains(text))
            inspected.report("device-without-objects", guids, row, "GUID", text,
                             QStringLiteral("guidsandobjects has no row for %1").arg(text));
        inspected.seen.devices.push_back(
            {guid,
             guids.text(row, "DeviceType"),
             guids.number(row, "Access"),
             {inspected.database.file, guids.name, guids.rowNumber(row), QStringLiteral("GUID"), text}});
    }
}

void checkHardwareTypes(Inspected const & inspected)
{
    Table const & hardware = inspected.database.table("Hardwaretypes");
    for (int row = 0; row < hardware.rowCount(); ++row) {
        int const number = hardware.number(row, "Type") & 0xFF;
        QString const model = hardware.text(row, "DeviceType");
        auto const earlier = inspected.seen.hardwareTypes.constFind(number);
        if (earlier != inspected.seen.hardwareTypes.constEnd() && earlier->content.first() != model)
            inspected.findings.add("hardware-twice", earlier->place, earlier->content.first(),
                                   QStringLiteral("a later row, of %1, says \"%2\" in place of \"%3\"")
                                       .arg(inspected.database.file, model, earlier->content.first()));
        inspected.seen.hardwareTypes.insert(
            number, {{inspected.database.file, hardware.name, hardware.rowNumber(row),
                      QStringLiteral("DeviceType"), QStringLiteral("hardware type %1").arg(number)},
                     {model}});
    }
}

void checkHardwareModels(SeenBefore const & seen, DescriptionSet & set, Findings & findings)
{
    for (SeenRow const & hardware : seen.hardwareTypes) {
        QString const & model = hardware.content.first();
        CDeviceGuid guid;
        if (!set.cache().guidOnDeviceType(model, guid))
            findings.add("hardware-unknown", hardware.place, model,
                         QStringLiteral("no device is of the model \"%1\"").arg(model));
    }
}

// --- Types, over all databases ---

namespace {

using Device = SeenBefore::Device;

void checkModels(std::vector<Device const *> const & devices, Findings & findings)
{
    for (Device const * const device : devices) {
        QString const & first = devices.front()->model;
        if (device->model != first) {
            Place place = device->place;
            place.column = QStringLiteral("DeviceType");
            findings.add("type-two-models", place, device->model,
                         QStringLiteral("the model is \"%1\" here and \"%2\" in %3")
                             .arg(device->model, first, devices.front()->place.subject));
        }
    }
}

void checkReservedBits(std::vector<Device const *> const & devices, Findings & findings)
{
    std::map<int, Device const *> byVersion;
    for (Device const * const device : devices) {
        auto const [other, isFirst] = byVersion.emplace(versionOf(device->guid), device);
        if (!isFirst)
            findings.add("reserved-bits", device->place, device->place.subject,
                         QStringLiteral("%1 has version %2 too")
                             .arg(other->second->place.subject, QString::number(versionOf(device->guid))));
    }
}

void checkVersionZero(int type, std::vector<Device const *> const & devices, Findings & findings)
{
    CDeviceGuid const base = baseOf(devices.back()->guid);
    bool const hasBase = std::any_of(devices.begin(), devices.end(),
                                     [&](Device const * device) { return device->guid == base; });
    if (hasBase)
        return;
    Place place = devices.back()->place;
    place.subject = typeSubject(type);
    findings.add("version-0-missing", place, devices.back()->place.subject,
                 QStringLiteral("there is no %1").arg(base.toString().toUpper()));
}

void checkLevels(int type, std::vector<Device const *> const & devices, Findings & findings)
{
    auto const lowest =
        *std::min_element(devices.begin(), devices.end(), [](Device const * left, Device const * right) {
            return left->access < right->access;
        });
    if (lowest->access <= 1)
        return;
    Place place = lowest->place;
    place.column = QStringLiteral("Access");
    place.subject = typeSubject(type);
    findings.add("level-hides-type", place, QString::number(lowest->access),
                 QStringLiteral("devices of the type are seen from level %1 on").arg(lowest->access));
}

} // namespace

void checkDeviceTypes(SeenBefore const & seen, Findings & findings)
{
    std::map<int, std::vector<Device const *>> byType;
    for (Device const & device : seen.devices)
        byType[typeOf(device.guid)].push_back(&device);
    for (auto const & [type, devices] : byType) {
        checkModels(devices, findings);
        checkReservedBits(devices, findings);
        checkVersionZero(type, devices, findings);
        checkLevels(type, devices, findings);
    }
}

// --- Models and their default speakers ---

namespace {

void checkDefaultSpeaker(Device const & device, OutputMode mode, int channel, DescriptionSet & set,
                         QSet<int> & reported, Findings & findings)
{
    CDriverPropertyTarget const target(device.guid, QStringLiteral("Config_SpeakerId"),
                                       DeviceChannel(channel), 0, nullptr);
    QVariant const speaker = set.library().defaultSpeakerId(target, mode);
    if (!speaker.isValid() || reported.contains(speaker.toInt()))
        return;
    if (set.library().isSpeakerSupportedByDevice(static_cast<unsigned short>(speaker.toInt()), device.guid))
        return;
    reported.insert(speaker.toInt());
    findings.add(
        "default-speaker", device.place, speaker.toString(),
        QStringLiteral("%1 takes speaker %2 by default, first on channel %3 in output mode %4, and %5 "
                       "does not support it")
            .arg(device.model, speaker.toString(), QString::number(channel), QString::number(mode),
                 device.place.subject));
}

} // namespace

void checkDefaultSpeakers(SeenBefore const & seen, DescriptionSet & set, Findings & findings)
{
    for (Device const & device : seen.devices) {
        if (set.cache().getDeviceInfo(device.model) == nullptr) {
            Place place = device.place;
            place.column = QStringLiteral("DeviceType");
            findings.add("model-unknown", place, shownValue(device.model),
                         QStringLiteral("there is no model \"%1\"").arg(device.model));
            continue;
        }
        int const channels = set.library().deviceChannelCount(device.guid, ChannelTypeSpeaker);
        QSet<int> reported; // one finding a speaker, not one a mode and channel
        for (int mode = 0; mode <= lastOutputMode; ++mode) {
            for (int channel = 1; channel <= channels; ++channel)
                checkDefaultSpeaker(device, OutputMode(mode), channel, set, reported, findings);
        }
    }
}

} // namespace kestrova::authoring
