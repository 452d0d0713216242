#include "cache/driverCache.h"

#include "cache/databaseAccess.h"
#include "cache/databaseConnections.h"
#include "cache/driverCacheGuidItemList.h"
#include "cache/driverCacheObjectClassItemList.h"
#include "cache/objectQueries.h"
#include "core/qt5Conversions.h"
#include "records/objectDef.h"

#include <QVariant>

#include <utility>

namespace kestrova::Morvel::Devicelore {

namespace {

/// A row of Objects, whose columns are found by their exact names. A column that the table lacks reads as
/// empty.
class ObjectRow {
public:
    ObjectRow(QSqlQuery const & standingOnRow, QStringList const & columnNames)
        : query(standingOnRow)
        , columns(columnNames)
    {}

    bool has(QLatin1String column) const { return columns.contains(column); }

    QVariant value(QLatin1String column) const
    {
        int const position = static_cast<int>(columns.indexOf(column));
        return position < 0 ? QVariant() : query.value(position); // Qt would complain about the position -1
    }

    QString text(QLatin1String column) const { return qt5::toText(value(column)); }

    double real(QLatin1String column) const { return qt5::toDouble(value(column)); }

    template <typename Number>
    Number number(QLatin1String column) const
    {
        return static_cast<Number>(qt5::toInt(value(column)));
    }

private:
    QSqlQuery const & query;
    QStringList const & columns;
};

constexpr unsigned short boxMask = 0x1F; // of the high byte of a number; the bits above carry a channel

unsigned short withoutChannel(unsigned short number)
{
    return static_cast<unsigned short>(number & (boxMask << 8 | 0xFF));
}

/// What a default value becomes that is no number: zero if that is in range, and else the minimum.
double fallbackDefault(CObjectDef const & object)
{
    return object.maxValue() >= 0.0 && 0.0 >= object.minValue() ? 0.0 : object.minValue();
}

void convertDefaultValue(CObjectDef & object)
{
    QVariant const value = object.defaultValue();
    bool isNumber = false;
    double const number = qt5::toDouble(value, &isNumber);
    // A null value of another numeric type reads as 0 as well, but QVariant::convert() refuses it.
    bool const converts = isNumber && (!value.isNull() || value.userType() == QMetaType::Double);
    object.setDefaultValue(converts ? number : fallbackDefault(object));
}

} // namespace

template <typename FindRow>
TharnError CDriverCache::objectFromRow(QString const & guidString, CObjectDef & object, FindRow findRow)
{
    QFlags<ObjectDefMask> const mask = object.mask();
    CDeviceGuid const guid(guidString);
    QString const connection = connectionName(guid);
    QSqlDatabase const db = CDatabaseConnections::of(*this).connection(connection);
    if (!db.isValid())
        return TharnFailed;

    bool const hasBoxNumber = connectionHasBoxNumber.value(connection); // a subclass may change it any time
    std::shared_ptr<CObjectQueries> & queries = objectQueries[connection];
    bool const isPrepared = queries && queries->hasBoxNumber() == hasBoxNumber;
    QSqlQuery * row = isPrepared ? findRow(*queries) : nullptr;
    if (!isPrepared || queries->hasFailed()) {
        queries = std::make_shared<CObjectQueries>(db, hasBoxNumber);
        row = findRow(*queries);
    }
    if (row == nullptr)
        return TharnNotFound;
    takeQuery(*row, mask, queries->columns(), object);
    row->finish();

    if (mask.testFlag(ObjectDefOnoType)) {
        object.SetOnoType(guidItems->OnoType(guid));
        object.determineObjectType();
        if (object.objectType() != CObjectDef::ObjectTypeString)
            convertDefaultValue(object);
    }
    return TharnNoError;
}

TharnError CDriverCache::objectFromDb(QString const & name, QString const & guidString, CObjectDef & object)
{
    return objectFromRow(guidString, object,
                         [&](CObjectQueries & queries) { return queries.rowByName(name, guidString); });
}

TharnError CDriverCache::objectFromDb(unsigned short number, QString const & guidString, CObjectDef & object)
{
    return objectFromRow(guidString, object, [&](CObjectQueries & queries) {
        return queries.rowByNumber(withoutChannel(number), guidString); // a row stands for all channels
    });
}

void CDriverCache::takeQuery(QSqlQuery const & query, QFlags<ObjectDefMask> mask, QStringList const & columns,
                             CObjectDef & object) const
{
    ObjectRow const row(query, columns);
    auto const wants = [&](ObjectDefMask member) { return mask.testFlag(member); };
    // The older form of the table keeps box and object in one number.
    bool const hasBoxNumber = row.has(QLatin1String("BoxNumber"));
    auto const objectNumber = row.number<quint16>(QLatin1String("ObjectNumber"));

    if (wants(ObjectDefName))
        object.setName(row.text(QLatin1String("Name")));
    if (wants(ObjectDefBoxNumber))
        object.SetBoxNumber(hasBoxNumber ? row.number<quint16>(QLatin1String("BoxNumber"))
                                         : static_cast<quint16>(objectNumber >> 8));
    if (wants(ObjectDefObjectNumber))
        object.SetObjectNumber(hasBoxNumber ? objectNumber : static_cast<quint16>(objectNumber & 0xFF));
    if (wants(ObjectDefChannelCount))
        object.setChannelCount(row.number<quint8>(QLatin1String("ChannelCount")));
    if (wants(ObjectDefRecordCount))
        object.setRecordCount(row.number<quint16>(QLatin1String("RecordCount")));
    if (wants(ObjectDefMinValue))
        object.setMin(row.real(QLatin1String("Min")));
    if (wants(ObjectDefMaxValue))
        object.setMax(row.real(QLatin1String("Max")));
    if (wants(ObjectDefStep))
        object.setStep(row.real(QLatin1String("Step")));
    if (wants(ObjectDefFormat))
        object.setFormat(row.text(QLatin1String("Format")));
    if (wants(ObjectDefFlags))
        object.setFlags(row.number<quint16>(QLatin1String("Flags")));
    if (wants(ObjectDefAccess))
        object.setAccess(row.number<quint8>(QLatin1String("Access")));
    if (wants(ObjectDefDefaultValue))
        object.setDefaultValue(QVariant(row.text(QLatin1String("DefaultValue"))));
    if (wants(ObjectDefSize))
        object.setSize(row.number<quint16>(QLatin1String("Size")));
    if (wants(ObjectDefTextOffset))
        object.setTextOffset(row.number<quint32>(QLatin1String("TextOffset")));
    if (wants(ObjectDefDisplayName))
        object.setDisplayName(row.text(QLatin1String("Description")));
    if (wants(ObjectDefComment))
        object.setComment(row.text(QLatin1String("Comment")));
    if (wants(ObjectDefOcaClassId)) {
        auto const classId = row.number<quint16>(QLatin1String("ClassId"));
        if (CDriverCacheObjectClassItem const * const item = objectClassItems->itemByClassId(classId))
            object.setOcaClassId(item->fields(), item->fieldCount());
    }
    if (wants(ObjectDefClassId))
        object.setClassId(row.number<quint16>(QLatin1String("ClassId")));
    if (wants(ObjectDefPropertyHash))
        object.setPropertyHash(StringToHash(row.text(QLatin1String("Name"))));
    if (wants(ObjectDefWaitTime))
        object.setWaitTime(row.number<quint16>(QLatin1String("WaitTime")));
    if (wants(ObjectDefWaitStates))
        object.setWaitStates(row.number<quint16>(QLatin1String("WaitStates")));
}

void CDriverCache::fillOcaCLassIdList()
{
    if (objectClassItems == nullptr)
        return;
    // An id above 255 is cut, so that an item may take the place of another, which nobody deletes then.
    QHash<unsigned short, CDriverCacheObjectClassItem *> added;
    for (QString const & name : std::as_const(connectionNames)) {
        QSqlQuery rows = queryRows(CDatabaseConnections::of(*this).connection(name),
                                   QStringLiteral("SELECT Id, OcaClassId, Description FROM ObjectClasses"));
        while (rows.next()) {
            int const id = qt5::toInt(rows.value(0));
            if (id == 0 || objectClassItems->itemByClassId(static_cast<unsigned short>(id)) != nullptr)
                continue;
            auto * const item = new CDriverCacheObjectClassItem(
                static_cast<unsigned char>(id), qt5::toText(rows.value(1)), qt5::toText(rows.value(2)));
            objectClassItems->append(item);
            delete added.take(item->classId());
            added.insert(item->classId(), item);
        }
    }
}

} // namespace kestrova::Morvel::Devicelore
