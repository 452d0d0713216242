#pragma once

#include <QtGlobal>

namespace kestrova::Morvel::Devicelore {

/// How the channels of a device, counted from 1, drive speakers. The modes are known by their numbers:
///
/// | Mode       | Channels 1 and 2  | Channels 3 and 4  |
/// |------------|-------------------|-------------------|
/// | -1         | no mode           | no mode           |
/// | 0, 1, 3, 5 | one speaker each  | one speaker each  |
/// | 2, 6       | one 2-way speaker | one speaker each  |
/// | 4, 7       | one speaker each  | one 2-way speaker |
/// | 8          | one 2-way speaker | one 2-way speaker |
///
/// Modes of one row differ in the speakers that the channels take by default.
enum OutputMode : qint32 {};

} // namespace kestrova::Morvel::Devicelore
