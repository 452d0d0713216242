#pragma once

#include "check/descriptionSet.h"

#include <QMap>
#include <QString>

namespace kestrova::authoring {

/// What an application can see of a thing, by the name of the member.
using Members = QMap<QString, QString>;

/// Things by their names, such as "object ChStatus_Gain" and "speaker 12".
using Things = QMap<QString, Members>;

/// What an application can see of a set of databases, at a level that sees everything.
struct SetView {
    Things things;                 ///< what belongs to no device: speakers, hardware types, property groups
    QMap<QString, Things> devices; ///< by GUID; the device itself is the thing "device"
};

SetView viewOf(DescriptionSet & set);

} // namespace kestrova::authoring
