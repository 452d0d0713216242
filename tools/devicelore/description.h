#pragma once

#include "inspector.h"

#include <QJsonObject>
#include <QList>
#include <QString>

namespace kestrova::inspector {

/// Why a description stands for the GUID asked.
enum class Reason { Exact, NewestVisible, NoVisibleDescription, UnknownType };

/// The description that stands for a GUID.
struct Description {
    Morvel::Devicelore::CDeviceGuid asked;
    Morvel::Devicelore::CDeviceGuid found; ///< null when there is none
    Reason reason = Reason::UnknownType;
    QString model;
    QList<int> knownVersions; ///< all that are described, hidden ones too, ascending
    QList<int> hiddenVersions;
    bool newerThanAllKnown = false; ///< judged by the visible versions, as an application can
};

Description describe(InspectorCache & cache, Morvel::Devicelore::CDeviceGuid const & asked);

/// "exact: ...", "newest visible: ..." or "none: ...".
QString reasonText(Description const & description);

/// "0, 1, 3, 4 (hidden)", or "none".
QString versionsText(Description const & description);

QJsonObject jsonOf(InspectorCache & cache, Description const & description);

} // namespace kestrova::inspector
