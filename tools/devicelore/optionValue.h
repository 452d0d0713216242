#pragma once

#include "command.h"

#include <kestrovaDevicelore.h>

#include <memory>

namespace kestrova::inspector {

/// The number that was given with an option, or \a ifMissing. Throws Failure with ExitUsage.
int numberOption(Arguments const & arguments, char const * name, int lowest, int highest, int ifMissing);

/// The options by which a user says what is on a channel, for rows of commands().
std::vector<CommandOption> channelOptions();

/// What is on the channel; null when nothing was said. Throws Failure with ExitUsage.
std::unique_ptr<Morvel::Devicelore::CDeviceChannelInfo> channelOption(Arguments const & arguments);

/// " on speaker 12", " on the input side", " on the output side", or nothing.
QString channelText(Morvel::Devicelore::CDeviceChannelInfo const * channel);

/// The shortest text that reads as the same number.
QString numberText(double number);

} // namespace kestrova::inspector
