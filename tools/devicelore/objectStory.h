#pragma once

#include "common/answer.h"
#include "inspector.h"
#include "objectArgument.h"

namespace kestrova::inspector {

/// The way of an object from its row to the application, or why there is none: as the sections of a text, and
/// as a JSON object. Not found when the application gets nothing.
tools::Answer objectStory(Inspector & inspector, Morvel::Devicelore::CDeviceGuid const & guid,
                          ObjectQuestion const & question,
                          Morvel::Devicelore::CDeviceChannelInfo const * channel);

} // namespace kestrova::inspector
