#include "check/check.h"

#include "core/qt5Conversions.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <vector>

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

/// The values that an object, or a filter, can have.
struct Range {
    double minimum;
    double maximum;

    bool holds(int value) const { return value >= minimum && value <= maximum; }
};

struct User {
    Table const * table;
    int row;
    QString subject;
    Range range;
};

/// Which objects and filters use which group.
QMap<qint64, std::vector<User>> usersOf(Inspected const & inspected)
{
    QMap<qint64, std::vector<User>> users;
    for (char const * const name : {"Objects", "Filters"}) {
        Table const & table = inspected.database.table(name);
        for (int row = 0; row < table.rowCount(); ++row) {
            qint64 const offset = qt5::toInt64(table.value(row, "TextOffset"));
            if (offset > 0)
                users[offset].push_back(
                    {&table,
                     row,
                     subjectOf(table, row),
                     {qt5::toDouble(table.value(row, "Min")), qt5::toDouble(table.value(row, "Max"))}});
        }
    }
    return users;
}

void checkUser(Inspected const & inspected, User const & user, qint64 offset, Group const & group)
{
    if (offset == offsetForNone) {
        inspected.report("texts-offset", *user.table, user.row, "TextOffset", user.subject,
                         QStringLiteral("%1 has the group 1").arg(user.subject));
        return;
    }
    if (group.isEmpty()) {
        inspected.report("texts-missing", *user.table, user.row, "TextOffset", user.subject,
                         QStringLiteral("there is no group %1 of texts").arg(offset));
        return;
    }
    bool const isListOfChoices =
        user.range.maximum - user.range.minimum < shownValues && std::abs(user.range.minimum) < largestValue;
    if (!isListOfChoices)
        return;
    QStringList missing;
    for (int value = qRound(std::ceil(user.range.minimum)); user.range.holds(value); ++value) {
        if (!group.contains(value))
            missing.append(QString::number(value));
    }
    if (!missing.isEmpty())
        inspected.report("value-text-missing", *user.table, user.row, "TextOffset", user.subject,
                         QStringLiteral("group %1 has no text for %2")
                             .arg(QString::number(offset), missing.join(QStringLiteral(", "))));
}

void checkGroup(Inspected const & inspected, Table const & texts, qint64 offset, Group const & group,
                std::vector<User> const & users)
{
    if (users.empty()) {
        inspected.report("texts-unused", texts, group.first(), "TextOffset", groupSubject(offset),
                         QStringLiteral("no object or filter has the TextOffset %1").arg(offset));
        return;
    }
    for (auto value = group.constBegin(); value != group.constEnd(); ++value) {
        bool const isPossible = std::any_of(users.begin(), users.end(),
                                            [&](User const & user) { return user.range.holds(value.key()); });
        if (!isPossible)
            inspected.report("text-out-of-range", texts, *value, "Value", valueSubject(offset, value.key()),
                             QStringLiteral("%1 is outside the range of %2")
                                 .arg(QString::number(value.key()), users.front().subject));
    }
}

} // namespace

void checkTexts(Inspected const & inspected)
{
    Table const & texts = inspected.database.table("TextsObjectValues");
    QMap<qint64, Group> const groups = readGroups(inspected, texts);
    QMap<qint64, std::vector<User>> const users = usersOf(inspected);
    checkTranslations(inspected, texts);
    for (auto user = users.constBegin(); user != users.constEnd(); ++user) {
        for (User const & one : *user)
            checkUser(inspected, one, user.key(), groups.value(user.key()));
    }
    for (auto group = groups.constBegin(); group != groups.constEnd(); ++group)
        checkGroup(inspected, texts, group.key(), *group, users.value(group.key()));
}

} // namespace kestrova::authoring
