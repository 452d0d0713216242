#pragma once

#include "common/toolInterface.h"

namespace kestrova::tools {

// What is made from the table that parses the arguments, so that it tells the truth.

/// For `TOOL --help`.
QString toolHelp(ToolInterface const & tool);

/// For `TOOL COMMAND --help`.
QString commandHelp(ToolInterface const & tool, CommandInterface const & command);

/// The manual page, in the macros of man.
QString manualPage(ToolInterface const & tool);

/// The completion of commands, options and file names, for bash.
QString bashCompletion(ToolInterface const & tool);

} // namespace kestrova::tools
