#pragma once

#include "byteReader.h"

#include <QStringList>

namespace kestrova::fuzz {

/// Makes the plain device database \a path as the decisions of \a reader say.
void writeRandomDatabase(QString const & path, ByteReader & reader);

/// The same for a speaker DSP database.
void writeRandomSpeakerDspDatabase(QString const & path, ByteReader & reader);

/// The names and GUIDs that the worlds are likely to hold.
QStringList const & objectNames();
QStringList const & deviceGuids();

} // namespace kestrova::fuzz
