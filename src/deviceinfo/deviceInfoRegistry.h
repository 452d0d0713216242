#pragma once

#include <QHash>
#include <QString>

namespace kestrova::Morvel::Devicelore {

class ADeviceInfo;

/// The models of devices by their device type strings, exactly as the databases write them.
///
/// The objects are made at the first call, serve all caches, and are never deleted.
QHash<QString, ADeviceInfo *> const & deviceInfoRegistry();

} // namespace kestrova::Morvel::Devicelore
