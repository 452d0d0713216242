#include "check/check.h"
#include "check/objectRows.h"

#include "cache/filterObject.h"
#include "core/qt5Conversions.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

constexpr qint64 offsetForNone = 1;  // this one and 0 stand for "no texts"
constexpr double shownValues = 256;  // a larger range is no list of choices
constexpr double largestValue = 1e9; // Value is an integer

/// The languages: all columns of the texts but the two that every database has.
QStringList languagesOf(Table const & texts)
{
    QStringList languages;
    for (QString const & column : texts.columns) {
        bool const isKey = column.compare(QLatin1String("TextOffset"), Qt::CaseInsensitive) == 0 ||
                           column.compare(QLatin1String("Value"), Qt::CaseInsensitive) == 0;
        if (!isKey && column.startsWith(QLatin1String("Text")))
            languages.append(column);
    }
    return languages;
}

/// A group of texts, by value, with the row that counts.
using Group = QMap<int, int>;

QString groupSubject(qint64 offset)
{
    return QStringLiteral("texts %1").arg(offset);
}

QString valueSubject(qint64 offset, int value)
{
    return QStringLiteral("texts %1, value %2").arg(QString::number(offset), QString::number(value));
}

QMap<qint64, Group> readGroups(Inspected const & inspected, Table const & texts)
{
    QMap<qint64, Group> groups;
    for (int row = 0; row < texts.rowCount(); ++row) {
        qint64 const offset = qt5::toInt64(texts.value(row, "TextOffset"));
        int const value = texts.number(row, "Value");
        Group & group = groups[offset];
        if (group.contains(value))
            inspected.report("text-twice", texts, group.value(value), "Value", valueSubject(offset, value),
                             QStringLiteral("the value %1 of group %2 has a later text")
                                 .arg(QString::number(value), QString::number(offset)));
        group.insert(value, row);
    }
    return groups;
}

void checkTranslations(Inspected const & inspected, Table const & texts)
{
    QStringList const languages = languagesOf(texts);
    for (int row = 0; row < texts.rowCount(); ++row) {
        for (QString const & language : languages) {
            if (!qt5::toText(texts.value(row, texts.column(language))).isEmpty())
                continue;
            qint64 const offset = qt5::toInt64(texts.value(row, "TextOffset"));
            inspected.report("text-missing", texts, row, language.toUtf8().constData(),
                             valueSubject(offset, texts.number(row, "Value")),
                             QStringLiteral("there is no text in %1").arg(language));
        }
    }
}

/// A range of values that an object, or a filter, can have.
struct Range {
    double minimum;
    double maximum;

    bool holds(int value) const { return value >= minimum && value <= maximum; }

    bool isListOfChoices() const
    {
        return maximum - minimum < shownValues && std::abs(minimum) < largestValue;
    }
};

/// An object or a filter with texts.
struct User {
    Place place;
    QString offset; ///< as the database has it
    std::vector<Range> ranges;

    bool holds(int value) const
    {
        return std::any_of(ranges.begin(), ranges.end(),
                           [value](Range const & range) { return range.holds(value); });
    }
};

/// Users by the group that they use.
using Users = QMap<qint64, std::vector<User>>;

/// The devices that are linked to filter objects, by the rows of these.
QHash<int, QStringList> devicesOfFilterObjects(Inspected const & inspected, Table const & objects)
{
    QHash<int, QStringList> devices;
    QHash<qint64, QVector<int>> const rowsOfId = rowsById(objects);
    Table const & links = inspected.database.table("guidsandobjects");
    for (int link = 0; link < links.rowCount(); ++link) {
        for (int const row : rowsOfId.value(qt5::toInt64(links.value(link, "objectid")))) {
            if (isFilterObject(objects.text(row, "Name")))
                devices[row].append(links.text(link, "guid"));
        }
    }
    return devices;
}

/// The limits that a filter object takes over on the speakers of these devices.
std::vector<Range> rangesOfFilters(DeviceFilters const & filters, QStringList const & devices, int slot)
{
    QSet<int> positions;
    for (QString const & guid : devices)
        positions += filters.positionsOf(guid);
    std::vector<Range> ranges;
    for (int const position : positions) {
        Filter const & filter = filters.filters()[static_cast<std::size_t>(position)];
        if (filter.slot == slot)
            ranges.push_back({double(filter.minimum), double(filter.maximum)});
    }
    return ranges;
}

void addObjects(Inspected const & inspected, Users & users)
{
    Table const & objects = inspected.database.table("Objects");
    QHash<int, QStringList> const devices = devicesOfFilterObjects(inspected, objects);
    for (int row = 0; row < objects.rowCount(); ++row) {
        QVariant const offset = objects.value(row, "TextOffset");
        if (qt5::toInt64(offset) <= 0)
            continue;
        QString const name = objects.text(row, "Name");
        Range const own{qt5::toDouble(objects.value(row, "Min")), qt5::toDouble(objects.value(row, "Max"))};
        std::vector<Range> ranges;
        if (devices.contains(row))
            ranges = rangesOfFilters(inspected.set.deviceFilters(), devices.value(row), filterNumberOf(name));
        else if (name == QLatin1String("Config_CablefitSpeakerCount"))
            ranges = {{own.minimum, double(inspected.set.cache().largestCablefitCount())}};
        ranges.push_back(own);
        users[qt5::toInt64(offset)].push_back({{inspected.database.file, objects.name, objects.rowNumber(row),
                                                QStringLiteral("TextOffset"), subjectOf(objects, row)},
                                               shownValue(offset),
                                               ranges});
    }
}

/// Texts are looked for in the database that supplies the device, whichever database has the filter. A filter
/// without a device is taken as one for the devices beside it.
void addFilters(Inspected const & inspected, Users & users)
{
    DeviceFilters const & filters = inspected.set.deviceFilters();
    Table const & guids = inspected.database.table("Guids");
    QSet<int> positions;
    for (int row = 0; row < guids.rowCount(); ++row) {
        QString const guid = guids.text(row, "GUID").toUpper();
        if (inspected.supplies(guid))
            positions += filters.positionsOf(guid);
    }
    for (std::size_t i = 0; i < filters.filters().size(); ++i) {
        Filter const & filter = filters.filters()[i];
        bool const isOwn = !filter.isUsed && filter.place.file == inspected.database.file;
        if (filter.textOffset > 0 && (isOwn || positions.contains(static_cast<int>(i))))
            users[filter.textOffset].push_back({filter.place,
                                                QString::number(filter.textOffset),
                                                {{double(filter.minimum), double(filter.maximum)}}});
    }
}

/// The numbers of all lists of choices that have no text.
QStringList valuesWithoutText(User const & user, Group const & group)
{
    std::set<int> missing;
    for (Range const & range : user.ranges) {
        if (!range.isListOfChoices())
            continue;
        for (int value = qRound(std::ceil(range.minimum)); range.holds(value); ++value) {
            if (!group.contains(value))
                missing.insert(value);
        }
    }
    QStringList texts;
    for (int const value : missing)
        texts.append(QString::number(value));
    return texts;
}

void checkUser(Inspected const & inspected, User const & user, qint64 offset, Group const & group)
{
    bool const isObject = user.place.table == QLatin1String("Objects"); // a filter may have the group 1
    if (isObject && offset == offsetForNone) {
        inspected.findings.add("texts-offset", user.place, user.offset,
                               QStringLiteral("%1 has the group 1").arg(user.place.subject));
        return;
    }
    QString const & file = inspected.database.file;
    QString const where = user.place.file == file ? QString() : QStringLiteral(" in %1").arg(file);
    if (group.isEmpty()) {
        inspected.findings.add("texts-missing", user.place, user.offset,
                               QStringLiteral("there is no group %1 of texts%2").arg(offset).arg(where));
        return;
    }
    QStringList const missing = valuesWithoutText(user, group);
    if (!missing.isEmpty())
        inspected.findings.add("value-text-missing", user.place, user.offset,
                               QStringLiteral("group %1%2 has no text for %3")
                                   .arg(QString::number(offset), where, missing.join(QStringLiteral(", "))));
}

void checkGroup(Inspected const & inspected, Table const & texts, qint64 offset, Group const & group,
                std::vector<User> const & users)
{
    if (users.empty()) {
        inspected.report(
            "texts-unused", texts, group.first(), "TextOffset", groupSubject(offset),
            QStringLiteral("no object or filter of its devices has the TextOffset %1").arg(offset));
        return;
    }
    for (auto value = group.constBegin(); value != group.constEnd(); ++value) {
        bool const isPossible = std::any_of(users.begin(), users.end(),
                                            [&](User const & user) { return user.holds(value.key()); });
        if (!isPossible)
            inspected.report("text-out-of-range", texts, *value, "Value", valueSubject(offset, value.key()),
                             QStringLiteral("%1 is outside the range of %2")
                                 .arg(QString::number(value.key()), users.front().place.subject));
    }
}

} // namespace

void checkTexts(Inspected const & inspected)
{
    Table const & texts = inspected.database.table("TextsObjectValues");
    QMap<qint64, Group> const groups = readGroups(inspected, texts);
    Users users;
    addObjects(inspected, users);
    addFilters(inspected, users);
    checkTranslations(inspected, texts);
    for (auto user = users.constBegin(); user != users.constEnd(); ++user) {
        for (User const & one : *user)
            checkUser(inspected, one, user.key(), groups.value(user.key()));
    }
    for (auto group = groups.constBegin(); group != groups.constEnd(); ++group)
        checkGroup(inspected, texts, group.key(), *group, users.value(group.key()));
}

} // namespace kestrova::authoring
