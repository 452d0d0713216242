#include "deviceinfo/deviceInfoRegistry.h"

#include "deviceinfo/deviceInfoFenra.h"
#include "deviceinfo/deviceInfoLegacy.h"
#include "deviceinfo/deviceInfoQuimo.h"
#include "deviceinfo/deviceInfoRabel.h"
#include "deviceinfo/deviceInfoSarni.h"
#include "deviceinfo/deviceInfoTalvo.h"
#include "deviceinfo/deviceInfoTovian.h"

namespace kestrova::Morvel::Devicelore {

namespace {

template <typename Model>
ADeviceInfo * make()
{
    return new Model;
}

struct ModelRow {
    char const * deviceType;
    ADeviceInfo * (*make)();
};

// A new model is a row here, and a class of its own where it has rules of its own.
constexpr ModelRow modelRows[] = {
    {"Talvo", make<CDeviceInfoTalvo>},    {"Hesko", make<CDeviceInfoHesko>},
    {"Zerin", make<CDeviceInfoZerin>},    {"Yolsa", make<CDeviceInfoYolsa>},
    {"Murel", make<CDeviceInfoMurel>},    {"Vesni", make<CDeviceInfoVesni>},
    {"Kalom", make<CDeviceInfoKalom>},    {"Nurix", make<DeviceInfoNurix>},
    {"Orvan", make<DeviceInfoOrvan>},     {"Tovian", make<CDeviceInfoTovian>},
    {"Rabel", make<CDeviceInfoRabel>},    {"Quimo", make<DeviceInfoQuimo>},
    {"Fenra", make<DeviceInfoFenra>},     {"Sarni", make<DeviceInfoSarniProd>},
    {"Lumbo", make<DeviceInfoLumboProd>},
};

QHash<QString, ADeviceInfo *> makeModels()
{
    QHash<QString, ADeviceInfo *> models;
    for (ModelRow const & row : modelRows)
        models.insert(QLatin1String(row.deviceType), row.make());
    return models;
}

} // namespace

QHash<QString, ADeviceInfo *> const & deviceInfoRegistry()
{
    // Never destroyed, on purpose: a cache may be asked until the very end of the process, after the
    // destructors of static objects have begun to run.
    static auto const & models = *new QHash<QString, ADeviceInfo *>(makeModels());
    return models;
}

} // namespace kestrova::Morvel::Devicelore
