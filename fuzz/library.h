#pragma once

#include "facade/devicelore.h"

#include <QDir>
#include <QStringList>

namespace kestrova::fuzz {

/// A library that answers from no database. Any message beyond the library's own five ends the program.
Morvel::Devicelore::CDevicelore & libraryWithoutDatabases();

/// Where the library looks for the speaker DSP database: beside this program, of which only one may write it
/// at a time.
QDir speakerDspFolder();

/// Opens the files of a folder, asks everything that can be asked of them, at level 1, and again at another
/// level and in another language, and closes them.
void askEverything(QString const & folder, QStringList const & objectNames, QStringList const & guids,
                   unsigned char otherLevel);

} // namespace kestrova::fuzz
