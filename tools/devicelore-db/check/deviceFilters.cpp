#include "check/deviceFilters.h"

#include "check/check.h"
#include "core/deviceGuid.h"

namespace kestrova::authoring {

namespace {

quint64 keyOf(QString const & guid, int speaker, int slot)
{
    quint64 const device = Solvane::DataTypes::CDeviceGuid(guid).value();
    return device << 32 | quint64(speaker & 0xFFFF) << 16 | quint64(slot & 0xFFFF);
}

} // namespace

void DeviceFilters::add(QString const & file, Table const & filterTable, Table const & fittings)
{
    QHash<QString, int> firstOfId;
    for (int row = 0; row < filterTable.rowCount(); ++row) {
        QString const id = filterTable.text(row, "Id");
        if (!firstOfId.contains(id))
            firstOfId.insert(id, static_cast<int>(all.size()));
        all.push_back({{file, filterTable.name, filterTable.rowNumber(row), QStringLiteral("TextOffset"),
                        subjectOf(filterTable, row)},
                       id,
                       filterTable.number(row, "Id") / 10,
                       filterTable.number(row, "Min"),
                       filterTable.number(row, "Max"),
                       qt5::toInt64(filterTable.value(row, "TextOffset"))});
    }

    QSet<quint64> seen; // of several rows for a slot the first one stands, even where it leads nowhere
    for (int row = 0; row < fittings.rowCount(); ++row) {
        QString const guid = fittings.text(row, "GUID");
        int const number = fittings.number(row, "FilterId");
        quint64 const key = keyOf(guid, fittings.number(row, "SpeakerId"), number / 10);
        if (!isGuidText(guid) || decided.contains(key) || seen.contains(key))
            continue;
        seen.insert(key);
        auto const found = firstOfId.constFind(fittings.text(row, "FilterId"));
        if (number < 0 || found == firstOfId.constEnd())
            continue; // the next database is asked
        decided.insert(key);
        Filter & filter = all[static_cast<std::size_t>(*found)];
        if (filter.id == QLatin1String("---"))
            continue; // deliberately none
        filter.isUsed = true;
        ofDevice[guid].insert(*found);
    }
}

} // namespace kestrova::authoring
