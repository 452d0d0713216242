#include "check/check.h"
#include "check/objectFormat.h"
#include "check/objectRows.h"

#include "core/qt5Conversions.h"
#include "core/roundOnStep.h"

#include <QSet>

#include <algorithm>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

constexpr int highestBox = 31;
constexpr int highestObject = 255;

/// An object as the library reads it, and where it stands.
struct ObjectRow {
    Inspected const & inspected;
    Table const & table;
    int row;
    CObjectDef object;

    void report(char const * rule, char const * column, QString const & message) const
    {
        inspected.report(rule, table, row, column, subjectOf(table, row), message);
    }

    bool isNumber() const
    {
        return object.objectType() == CObjectDef::ObjectTypeNumber ||
               object.objectType() == CObjectDef::ObjectTypeToggle;
    }
};

void checkAddress(ObjectRow const & object)
{
    bool const hasBoxes = object.table.columns.contains(QStringLiteral("BoxNumber"));
    int const box = object.object.BoxNumber();
    int const number = object.object.ObjectNumber();
    if (box > highestBox)
        object.report("object-address", hasBoxes ? "BoxNumber" : "ObjectNumber",
                      QStringLiteral("the box is %1; 0 to 31 fit").arg(box));
    if (number > highestObject)
        object.report("object-address", "ObjectNumber",
                      QStringLiteral("the number is %1; 0 to 255 fit").arg(number));
}

void checkRange(ObjectRow const & row)
{
    CObjectDef const & object = row.object;
    double const range = object.maxValue() - object.minValue();
    if (range < 0)
        row.report("range-inverted", "Min",
                   QStringLiteral("the range is %1 to %2")
                       .arg(shownNumber(object.minValue()), shownNumber(object.maxValue())));
}

void checkStep(ObjectRow const & row)
{
    CObjectDef const & object = row.object;
    double const range = object.maxValue() - object.minValue();
    if (object.objectType() == CObjectDef::ObjectTypeToggle)
        return; // a toggle is never rounded
    if (object.step() <= 0)
        row.report("step-not-positive", "Step",
                   QStringLiteral("the step is %1").arg(shownNumber(object.step())));
    else if (range >= 0 && object.step() > range)
        row.report("step-too-large", "Step",
                   QStringLiteral("the step is %1, and the range %2 to %3")
                       .arg(shownNumber(object.step()), shownNumber(object.minValue()),
                            shownNumber(object.maxValue())));
}

void checkDefault(ObjectRow const & row)
{
    CObjectDef const & object = row.object;
    QString const text = qt5::toText(object.defaultValue());
    if (text.isEmpty()) {
        row.report("default-missing", "DefaultValue", QStringLiteral("there is no default value"));
        return;
    }
    bool isNumber = false;
    double const value = qt5::toDouble(object.defaultValue(), &isNumber);
    if (!isNumber)
        row.report("default-not-a-number", "DefaultValue", QStringLiteral("\"%1\" is no number").arg(text));
    else if (value < object.minValue() || value > object.maxValue())
        row.report("default-out-of-range", "DefaultValue",
                   QStringLiteral("%1 is not between %2 and %3")
                       .arg(text, shownNumber(object.minValue()), shownNumber(object.maxValue())));
    else if (roundOnStep(value, object.step()) != value)
        row.report("default-off-grid", "DefaultValue",
                   QStringLiteral("%1 is no multiple of %2").arg(text, shownNumber(object.step())));
}

/// Unlike that of a number, the default of a text may be empty.
void checkTextDefault(ObjectRow const & row)
{
    QString const text = qt5::toText(row.object.defaultValue());
    int const room = std::max(row.object.size() - 1, 0); // the terminator takes one byte
    if (text.size() > room)
        row.report(
            "default-out-of-range", "DefaultValue",
            QStringLiteral("it has %1 characters, and Size leaves room for %2").arg(text.size()).arg(room));
}

void checkUnchecked(ObjectRow const & row)
{
    if (row.object.objectType() == CObjectDef::ObjectTypeHexDump)
        row.report("values-unchecked", "Format", QStringLiteral("the object is a dump of bytes"));
    if (row.object.objectType() == CObjectDef::ObjectTypeHex && row.object.isWriteable())
        row.report("values-unchecked", "Format", QStringLiteral("the object is hexadecimal"));
}

} // namespace

void checkObjects(Inspected const & inspected)
{
    Table const & table = inspected.database.table("Objects");
    QVector<CObjectDef> const objects = readObjects(inspected.set.cache(), inspected.database);
    for (int row = 0; row < objects.size() && row < table.rowCount(); ++row) {
        ObjectRow const object{inspected, table, row, objects.at(row)};
        checkAddress(object);
        if (object.isNumber())
            checkRange(object);
        if (object.isNumber() && object.object.isWriteable()) {
            checkStep(object);
            checkDefault(object);
        }
        if (object.object.objectType() == CObjectDef::ObjectTypeString && object.object.isWriteable())
            checkTextDefault(object);
        checkUnchecked(object);
        for (FormatFault const & fault : formatFaults(object.object, inspected.set.library()))
            object.report(fault.rule, fault.column, fault.message);
    }
}

// --- Which device has which objects ---

namespace {

QString devicesText(QStringList const & guids)
{
    if (guids.size() == 1)
        return guids.first();
    return QStringLiteral("%1 and %2 more").arg(guids.first(), QString::number(guids.size() - 1));
}

/// Reports objects that have a name or a number in common with an earlier one of the same device.
void reportShadows(Inspected const & inspected, Table const & objects,
                   QHash<QString, QVector<int>> const & objectsOfDevice, char const * rule,
                   char const * column, QString (*keyOf)(Table const & objects, int row))
{
    // The GUIDs of the devices, by the rows of the hidden object and of the one before it.
    QMap<QPair<int, int>, QStringList> shadows;
    QStringList guids = objectsOfDevice.keys();
    guids.sort();
    for (QString const & guid : guids) {
        QHash<QString, int> firstRow;
        for (int const row : objectsOfDevice.value(guid)) {
            QString const key = keyOf(objects, row);
            auto const first = firstRow.constFind(key);
            if (first == firstRow.constEnd())
                firstRow.insert(key, row);
            else if (*first != row)
                shadows[{qMax(row, *first), qMin(row, *first)}].append(guid);
        }
    }
    for (auto shadow = shadows.constBegin(); shadow != shadows.constEnd(); ++shadow)
        inspected.report(rule, objects, shadow.key().first, column, subjectOf(objects, shadow.key().first),
                         QStringLiteral("%1 has it too, for %2")
                             .arg(subjectOf(objects, shadow.key().second), devicesText(*shadow)));
}

QString nameOf(Table const & objects, int row)
{
    return objects.text(row, "Name");
}

QString addressOf(Table const & objects, int row)
{
    return QStringLiteral("%1/%2").arg(objects.text(row, "BoxNumber"), objects.text(row, "ObjectNumber"));
}

/// A device that is linked to an id has all objects of that id.
void reportSharedIds(Inspected const & inspected, Table const & objects,
                     QHash<qint64, QVector<int>> const & rowsOfId)
{
    for (QVector<int> const & rows : rowsOfId) {
        for (int i = 1; i < rows.size(); ++i)
            inspected.report("object-id-twice", objects, rows.at(i), "id", subjectOf(objects, rows.at(i)),
                             QStringLiteral("%1 has the id too").arg(subjectOf(objects, rows.first())));
    }
}

} // namespace

void checkLinks(Inspected const & inspected)
{
    Table const & objects = inspected.database.table("Objects");
    Table const & links = inspected.database.table("guidsandobjects");
    QHash<qint64, QVector<int>> const rowsOfId = rowsById(objects);
    reportSharedIds(inspected, objects, rowsOfId);
    QHash<QString, QVector<int>> objectsOfDevice;
    QSet<QPair<QString, qint64>> seen;
    QSet<int> linkedObjects;
    QSet<QString> reportedGuids;
    for (int row = 0; row < links.rowCount(); ++row) {
        QString const guid = links.text(row, "guid");
        qint64 const id = qt5::toInt64(links.value(row, "objectid"));
        QString const subject = QStringLiteral("%1 - %2").arg(guid, QString::number(id));
        if (!inspected.supplies(guid) && !reportedGuids.contains(guid)) {
            reportedGuids.insert(guid); // one finding a GUID, not one a link
            QString const owner = inspected.set.cache().connectionName(CDeviceGuid(guid));
            inspected.report("link-unknown-device", links, row, "guid", guid,
                             owner.isEmpty() || !isGuidText(guid)
                                 ? QStringLiteral("no device is asked for as \"%1\"").arg(guid)
                                 : QStringLiteral("%1 is described by %2").arg(guid, owner));
        }
        auto const rows = rowsOfId.constFind(id);
        if (rows == rowsOfId.constEnd()) {
            inspected.report("link-missing-object", links, row, "objectid", subject,
                             QStringLiteral("there is no object with the id %1").arg(id));
            continue;
        }
        if (seen.contains({guid, id})) {
            inspected.report(
                "link-twice", links, row, "objectid", subject,
                QStringLiteral("%1 has %2 already").arg(guid, subjectOf(objects, rows->first())));
            continue;
        }
        seen.insert({guid, id});
        for (int const object : *rows) {
            linkedObjects.insert(object);
            objectsOfDevice[guid].append(object);
        }
    }
    for (int row = 0; row < objects.rowCount(); ++row) {
        if (!linkedObjects.contains(row))
            inspected.report("object-unlinked", objects, row, "id", subjectOf(objects, row),
                             QStringLiteral("guidsandobjects does not have %1").arg(subjectOf(objects, row)));
    }
    reportShadows(inspected, objects, objectsOfDevice, "object-name-twice", "Name", nameOf);
    reportShadows(inspected, objects, objectsOfDevice, "object-number-twice", "ObjectNumber", addressOf);
}

// --- Object classes ---

namespace {

bool isOcaClass(QString const & text)
{
    QStringList const parts = text.split(QLatin1Char('.'));
    return parts.size() <= 16 && std::all_of(parts.begin(), parts.end(), [](QString const & part) {
               bool isNumber = false;
               part.toUShort(&isNumber, 10);
               return isNumber;
           });
}

void checkObjectClass(Inspected const & inspected, Table const & classes, int row)
{
    int const id = classes.number(row, "Id");
    QString const subject = QStringLiteral("class %1").arg(id);
    if (id == 0) {
        inspected.report("class-zero", classes, row, "Id", subject,
                         QStringLiteral("the class has the number 0"));
        return;
    }
    if (id < 0 || id > 255)
        inspected.report("class-cut", classes, row, "Id", subject,
                         QStringLiteral("%1 is read as %2").arg(id).arg(id & 0xFF));
    QString const ocaClass = classes.text(row, "OcaClassId");
    if (!isOcaClass(ocaClass))
        inspected.report("oca-class", classes, row, "OcaClassId", subject,
                         QStringLiteral("\"%1\" is no OCA class").arg(ocaClass));
    QStringList const content{ocaClass, classes.text(row, "Description")};
    auto const earlier = inspected.seen.objectClasses.constFind(id);
    if (earlier == inspected.seen.objectClasses.constEnd())
        inspected.seen.objectClasses.insert(
            id, {{inspected.database.file, classes.name, classes.rowNumber(row), {}, subject}, content});
    else if (earlier->content != content)
        inspected.report("class-twice", classes, row, "Id", subject,
                         QStringLiteral("it is %1 here, and %2 in %3, which counts")
                             .arg(ocaClass, earlier->content.first(), earlier->place.file));
}

} // namespace

void checkObjectClasses(Inspected const & inspected)
{
    Table const & classes = inspected.database.table("ObjectClasses");
    for (int row = 0; row < classes.rowCount(); ++row)
        checkObjectClass(inspected, classes, row);
    Table const & objects = inspected.database.table("Objects");
    for (int row = 0; row < objects.rowCount(); ++row) {
        int const id = objects.number(row, "ClassId");
        if (id != 0 && !inspected.set.cache().hasObjectClass(static_cast<unsigned short>(id)))
            inspected.report("class-missing", objects, row, "ClassId", subjectOf(objects, row),
                             QStringLiteral("there is no class %1").arg(id));
    }
}

} // namespace kestrova::authoring
