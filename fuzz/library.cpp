#include "library.h"

#include "records/deviceProperty.h"
#include "records/driverPropertyTarget.h"
#include "records/speakerSetupInfo.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::fuzz {

namespace {

bool isOfLibrary(QString const & message)
{
    static char const * const own[] = {
        "Invalid value or type",
        "Entry not found for device guid = ",
        "Accessing non valid member 'simpleControlType' of CDeviceProperty!",
        "Invalid param 'key' (nullptr) in ",
        "Error ",
    };
    for (char const * const text : own) {
        if (message.startsWith(QLatin1String(text)))
            return true;
    }
    return false;
}

void endOnForeignMessages(QtMsgType, QMessageLogContext const &, QString const & message)
{
    if (isOfLibrary(message))
        return;
    std::fprintf(stderr, "message: %s\n", qPrintable(message));
    std::abort();
}

/// Qt wants an application, and that of the fuzzer has no arguments.
void startApplication()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char * argv[] = {name, nullptr};
    static QCoreApplication const application(argc, argv);
    qInstallMessageHandler(endOnForeignMessages);
}

QDir databasesIn(QString const & folder)
{
    QDir dir(folder);
    dir.setNameFilters({QStringLiteral("*.db3")});
    dir.setFilter(QDir::Files | QDir::Readable);
    return dir;
}

void askAboutObject(CDevicelore & library, CDeviceGuid const & guid, QString const & name,
                    CDeviceChannelInfo const * channel)
{
    CObjectDef object;
    object.setMask(QFlags<ObjectDefMask>(QFlag(~0U)));
    if (library.GetObjectDef(guid, name, object, channel) == TharnNoError) {
        CObjectDef again;
        again.setMask(object.mask());
        library.GetObjectDef(guid, object.FullObjectNumber(), again, channel);
        for (QVariant const & given : {QVariant(3), QVariant(-3.7), QVariant(QStringLiteral("3"))}) {
            QVariant value = given;
            library.deviceToReal(object, value);
            value = given;
            library.realToDevice(object, value);
            value = given;
            library.AdjustDeviceProperty(guid, name, value, channel);
        }
        QList<QPair<int, QString>> texts;
        library.listValueStrings(guid, static_cast<int>(object.textOffset()), texts);
        library.objectValueString(guid, static_cast<int>(object.textOffset()), 1);
    }
    library.objectName(guid, library.objectNumber(guid, name));
    CDeviceProperty property;
    property.setPropertyName(name, QString());
    QVariant min;
    QVariant max;
    QVariant step;
    library.GetDevicePropertyRange(guid, property, min, max, step, channel);
    if (library.devicePropertyInfo(guid, property, channel))
        property.minValue();
    bool isWritable = false;
    library.DetermineSimpleControlType(guid, name, isWritable, channel);
    library.IsObjectSupported(guid, name, channel);
}

void askAboutSpeaker(CDevicelore & library, unsigned short id)
{
    QList<CSpeakerDef> definitions;
    library.speakerDef(id, definitions, QFlags<SpeakerDefMask>(QFlag(~0U)));
    for (CSpeakerDef const & definition : std::as_const(definitions))
        definition.wayNameShort(0);
    CSpeakerSetupInfo setup;
    library.SpeakerSetupInfo(id, setup);
    for (int way = -1; way <= setup.numWays(); ++way)
        setup.wayNameShort(way);
}

void askAboutSpeakers(CDevicelore & library, CDeviceGuid const & guid)
{
    QList<QPair<unsigned short, QString>> names;
    library.listSpeakersForDevice(guid, names);
    QList<unsigned short> fitting;
    for (int mode = -1; mode <= 8; ++mode)
        library.listSpeakersForDevice(guid, fitting, QFlags<SpeakerType>(QFlag(7)), OutputMode(mode));
    QList<unsigned short> ids;
    library.listSpeakersForDevice(guid, ids);
    for (unsigned short const id : std::as_const(ids)) {
        askAboutSpeaker(library, id);
        library.isSpeakerSupportedByDevice(id, guid);
        CDriverPropertyTarget const target(guid, QStringLiteral("Config_SpeakerId"), ChannelFirst, 0, id);
        for (int mode = -1; mode <= 8; ++mode) {
            library.defaultSpeakerId(target, OutputMode(mode));
            library.validateSpeakerId(target, OutputMode(mode));
        }
        library.defaultPropertyValue(target);
        library.GetConfigSpeakerData(guid, id);
        for (int filter = 0; filter <= 7; ++filter)
            library.GetFilterName(guid, filter, target.GetDeviceChannelInfo());
    }
}

void askAboutDevice(CDevicelore & library, CDeviceGuid const & asked, QStringList const & objectNames)
{
    CDeviceGuid const guid = library.determineDriverGuid(asked);
    library.deviceModelOnGuid(guid);
    library.latestGuidOnDeviceType(library.deviceTypeOnGuid(guid));
    library.deviceChannelCount(guid, ChannelTypeSpeaker);
    library.GetConfigSpeakerData(asked, 12);
    CDeviceChannelInfo speaker;
    speaker.SetSpeakerId(12);
    for (QString const & name : objectNames) {
        askAboutObject(library, guid, name, nullptr);
        askAboutObject(library, guid, name, &speaker);
    }
    askAboutSpeakers(library, guid);
}

void askAboutTypes(CDevicelore & library)
{
    for (QString const & model : library.deviceModels()) {
        library.guidOnDeviceType(model);
        library.latestGuidOnDeviceType(model);
    }
    for (int i = 0; i <= 255; ++i) {
        auto const number = static_cast<unsigned char>(i);
        QString model;
        library.deviceTypeOnHardwaretype(number, model);
        DeviceType type = DeviceTypeNone;
        library.deviceTypeOnHardwaretype(number, type);
    }
}

void askAll(CDevicelore & library, QStringList const & objectNames, QStringList const & guids)
{
    askAboutTypes(library);
    for (QString const & guid : guids)
        askAboutDevice(library, CDeviceGuid(guid), objectNames);
    for (QString const & group : library.enumDevicePropertyFilter())
        library.devicePropertyFilter(group);
    library.devicePropertyFilterByExpression(QStringLiteral("SELECT Name FROM Objects"));
    QList<CDriverDatabaseInfo> infos; // also of the speaker DSP database
    library.databaseInfos(infos);
}

} // namespace

CDevicelore & libraryWithoutDatabases()
{
    startApplication();
    static CDevicelore library;
    return library;
}

QDir speakerDspFolder()
{
    startApplication();
    return {QCoreApplication::applicationDirPath() + QStringLiteral("/DspData")};
}

void askEverything(QString const & folder, QStringList const & objectNames, QStringList const & guids,
                   unsigned char otherLevel)
{
    startApplication();
    auto * const cache = new CDriverCache;
    CDevicelore library(QPointer<CDriverCache>(cache), nullptr);
    cache->openDatabases(databasesIn(folder));
    library.setDeviceAccessLevel(1);
    askAll(library, objectNames, guids);
    library.setDeviceAccessLevel(otherLevel);
    cache->setDevicePropertyFilterAccessLevel(otherLevel);
    cache->setTextLanguage(QStringLiteral("TextShort_de_DE"));
    askAll(library, objectNames, guids);
}

} // namespace kestrova::fuzz
