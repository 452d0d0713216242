#pragma once

#include "inspector.h"

namespace kestrova::inspector {

/// The GUID that the user wrote, as it stands; or that of the newest description of the model that he named.
/// Throws Failure with ExitNotFound for an unknown model.
Morvel::Devicelore::CDeviceGuid guidOfArgument(InspectorCache & cache, QString const & argument);

/// The GUID of the description that stands for the device. Throws Failure with ExitNotFound when none does.
Morvel::Devicelore::CDeviceGuid descriptionOfArgument(InspectorCache & cache, QString const & argument);

} // namespace kestrova::inspector
