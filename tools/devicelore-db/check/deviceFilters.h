#pragma once

#include "check/finding.h"
#include "check/table.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

namespace kestrova::authoring {

/// A row of Filters.
struct Filter {
    Place place; ///< of its text offset
    QString id;
    int slot;
    int minimum;
    int maximum;
    qint64 textOffset;
    bool isUsed = false; ///< by any device
};

/// Which filters the devices have on their speakers. A device is asked about in every database, in order; the
/// first one that has a filter for device, speaker and slot decides, and the device may belong to another.
class DeviceFilters {
public:
    /// Takes those of the next database.
    void add(QString const & file, Table const & filterTable, Table const & fittings);

    /// All rows of Filters, of all databases.
    std::vector<Filter> const & filters() const { return all; }

    /// The positions of those that a device has on any speaker. The GUID is in upper case.
    QSet<int> positionsOf(QString const & guid) const { return ofDevice.value(guid); }

private:
    std::vector<Filter> all;
    QHash<QString, QSet<int>> ofDevice;
    QSet<quint64> decided; ///< device, speaker and slot
};

} // namespace kestrova::authoring
