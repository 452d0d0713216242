#pragma once

#include <QtGlobal>

namespace kestrova::Morvel::Devicelore {

/// The kind of control by which an application shows a property. The numbers that are missing are never
/// given.
enum BasicControlType : qint32 {
    ControlNone = 0,         ///< nothing known
    ControlChoice = 2,       ///< a value is chosen from texts
    ControlValue = 4,        ///< a number is set
    ControlToggle = 5,       ///< on or off is set
    ControlText = 6,         ///< a text is entered
    ControlFixed = 7,        ///< one certain object that is shown in a way of its own
    ControlIndicator = 9,    ///< on or off is shown
    ControlReadout = 10,     ///< any value is shown and cannot be changed
    ControlSpecialEdit = 11, ///< the choice of a channel's speaker
};

} // namespace kestrova::Morvel::Devicelore
