#include "cache/driverCache.h"

#include "cache/databaseAccess.h"
#include "cache/databaseConnections.h"
#include "cache/driverCacheChannelKeyFilter.h"
#include "cache/driverCacheFilterItemList.h"
#include "core/qt5Conversions.h"

#include <QVariant>

#include <memory>
#include <utility>

namespace kestrova::Morvel::Devicelore {

namespace {

/// The key of the device's filter of that number on the speaker, as the database has it; invalid when there
/// is none. The tens of the key are the number of the filter; of several keys the first row's stands.
QVariant filterIdFor(QSqlDatabase const & db, CDriverCacheChannelKeyFilter const & key)
{
    QSqlQuery rows = preparedQuery(
        db, QStringLiteral("SELECT FilterId FROM GuidsSpeakersFilters WHERE GUID = ? AND SpeakerId = ?"));
    rows.bindValue(0, key.guidString(), QSql::In);
    rows.bindValue(1, int(key.channelInfo()->GetSpeakerId()), QSql::In);
    executeWhole(rows);
    while (rows.next()) {
        QVariant filterId = rows.value(0);
        if (qt5::toInt(filterId) / 10 == key.filterNumber())
            return filterId;
    }
    return QVariant();
}

std::unique_ptr<CDriverCacheFilterItem> filterOfRow(QSqlQuery const & row)
{
    auto filter = std::make_unique<CDriverCacheFilterItem>();
    filter->setFilterId(static_cast<unsigned char>(qt5::toUInt(row.value(0))));
    filter->setFilterNumber(static_cast<unsigned char>(qt5::toInt(row.value(1))));
    filter->setFilterType(static_cast<unsigned char>(qt5::toInt(row.value(2))));
    filter->setMinValue(qt5::toInt(row.value(3))); // whole numbers: a fraction is lost
    filter->setMaxValue(qt5::toInt(row.value(4)));
    filter->setFilterName(qt5::toText(row.value(5)));
    filter->setTextOffset(static_cast<quint32>(qt5::toInt(row.value(6))));
    filter->setStateText(qt5::toText(row.value(7)));
    return filter;
}

} // namespace

QString CDriverCache::filterName(CDeviceGuid const & guid, CDeviceChannelInfo const * channel,
                                 unsigned char filterNumber)
{
    return filterName(CDriverCacheChannelKeyFilter(guid, channel, filterNumber));
}

QString CDriverCache::filterName(QString const & guid, CDeviceChannelInfo const * channel,
                                 unsigned char filterNumber)
{
    return filterName(CDriverCacheChannelKeyFilter(guid, channel, filterNumber));
}

QString CDriverCache::filterName(CDriverCacheChannelKeyFilter const & key)
{
    QString name;
    if (filterItems->filterName(key, name) == GetItemNotCached)
        return filterNameFromDatabase(key);
    return name;
}

QString CDriverCache::filterNameFromDatabase(CDriverCacheChannelKeyFilter const & key)
{
    CDeviceChannelInfo const * const channel = key.channelInfo();
    if (channel == nullptr || channel->GetChannelType() != ChannelTypeSpeaker || !channel->IsValid())
        return QString(); // not remembered

    for (QString const & connection : std::as_const(connectionNames)) {
        QSqlDatabase const db = CDatabaseConnections::of(*this).connection(connection);
        QVariant const filterId = filterIdFor(db, key);
        if (!filterId.isValid() || qt5::toInt(filterId) < 0)
            continue;
        QSqlQuery row = preparedQuery(
            db, QStringLiteral("SELECT Id, Number, Type, Min, Max, DisplayNameShort,TextOffset, "
                               "StateTexts FROM Filters WHERE Id = ?"));
        row.bindValue(0, filterId, QSql::In); // as it stands: made a number, "---" would not find its row
        row.exec();
        if (!row.next())
            continue;
        // Said of the key, not of the name: this speaker has no such filter, and no further database is
        // asked.
        if (qt5::toText(row.value(0)) == QLatin1String("---"))
            break;
        std::unique_ptr<CDriverCacheFilterItem> filter = filterOfRow(row);
        QString name = qt5::toText(row.value(5));
        addFilterItem(&key, filter.release());
        return name;
    }
    addFilterItem(&key, nullptr);
    return QString();
}

void CDriverCache::addFilterItem(CDriverCacheKey const * key, CDriverCacheFilterItem * item)
{
    filterItems->addFilterItem(key, item);
}

} // namespace kestrova::Morvel::Devicelore
