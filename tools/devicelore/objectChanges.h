#pragma once

#include "descriptionRows.h"
#include "inspector.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

#include <optional>

namespace kestrova::inspector {

/// What happened, or might have happened, to a member on the way from the row to the application.
struct Change {
    QString member;
    QString before;
    QString after; ///< the same as before when the member stays
    QString reason;
    char const * by; ///< "reading", "cache" or "facade"
};

/// An object on its way.
struct ObjectStations {
    ObjectRow row;
    Morvel::Devicelore::CObjectDef read;                 ///< as the row reads
    Morvel::Devicelore::CObjectDef made;                 ///< as the cache has made it for the channel
    std::optional<Morvel::Devicelore::CObjectDef> given; ///< as the facade gives it; none when refused
};

/// The columns that the library looks for and the table lacks; they read as empty.
QStringList missingColumns(ObjectRow const & row);

/// In the order in which they happen.
QVector<Change> changesOf(InspectorCache & cache, ObjectStations const & object,
                          Morvel::Devicelore::CDeviceGuid const & guid,
                          Morvel::Devicelore::CDeviceChannelInfo const * channel);

/// "0.3 becomes 6.2: the reason (facade)", or "20 stays: the reason".
QString textOf(Change const & change);

QJsonObject jsonOf(Change const & change);

} // namespace kestrova::inspector
