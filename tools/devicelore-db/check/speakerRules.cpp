#include "check/check.h"

#include "core/qt5Conversions.h"
#include "records/speakerDef.h"

#include <QSet>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

QString classSubject(int number)
{
    return QStringLiteral("class %1").arg(number);
}

/// The number of ways of the channels that speakers of a class are offered to.
int waysThatAreListed(int speakerClass)
{
    switch (speakerClass) {
    case 0:
    case 1:
    case 2:
    case 9:
    case 10:
        return 1;
    default:
        return 2;
    }
}

/// Every column of a row, to tell whether two rows are equal.
QStringList contentOf(Table const & table, int row, std::initializer_list<char const *> columns)
{
    QStringList content;
    for (char const * const column : columns)
        content.append(table.text(row, column));
    return content;
}

} // namespace

void checkSpeakerClasses(Inspected const & inspected)
{
    Table const & classes = inspected.database.table("SpeakerClasses");
    for (int row = 0; row < classes.rowCount(); ++row) {
        int const number = classes.number(row, "Class") & 0xFF;
        int const ways = classes.number(row, "Ways") & 0xFF;
        QString const subject = classSubject(number);
        if (ways != waysThatAreListed(number))
            inspected.report("class-not-listed", classes, row, "Ways", subject,
                             QStringLiteral("Ways of class %1 is %2, and its speakers are offered to %3")
                                 .arg(QString::number(number), QString::number(ways),
                                      waysThatAreListed(number) == 1 ? QStringLiteral("single channels")
                                                                     : QStringLiteral("pairs of channels")));
        QStringList const content = contentOf(classes, row, {"Name", "Type", "Ways", "WayNames"});
        auto const earlier = inspected.seen.speakerClasses.constFind(number);
        if (earlier == inspected.seen.speakerClasses.constEnd())
            inspected.seen.speakerClasses.insert(
                number,
                {{inspected.database.file, classes.name, classes.rowNumber(row), {}, subject}, content});
        else if (earlier->content != content)
            inspected.report("speaker-class-twice", classes, row, "Class", subject,
                             QStringLiteral("it is \"%1\" here, and \"%2\" in %3, which counts")
                                 .arg(content.first(), earlier->content.first(), earlier->place.file));
    }
}

namespace {

/// The ways of a speaker are two ids 256 apart that are shown under one name.
bool areWaysOfOneSpeaker(QStringList const & left, QStringList const & right)
{
    constexpr int id = 0;
    constexpr int displayName = 4;
    return left.at(id) != right.at(id) && left.at(displayName) == right.at(displayName);
}

QString more(QVector<SeenRow> const & rows)
{
    return rows.size() == 1 ? QString() : QStringLiteral(" and %1 more").arg(rows.size() - 1);
}

void checkTwins(Inspected const & inspected, Table const & speakers, int row)
{
    QStringList const content = contentOf(speakers, row,
                                          {"SpeakerId", "Name", "Class", "Rib", "DisplayNameShort",
                                           "SortOrder", "CablefitMaxCount", "WfActive"});
    int const id = speakers.number(row, "SpeakerId") & 0xFFFF;
    QVector<SeenRow> & others = inspected.seen.speakers[id & 0xFF];
    for (SeenRow const & other : others) {
        if (other.content == content)
            return; // counts once
    }
    QString const subject = subjectOf(speakers, row);
    QVector<SeenRow> strangers; // that have nothing in common with this one but the low byte
    QVector<SeenRow> namesakes;
    for (SeenRow const & other : others) {
        if (other.content.first() == content.first())
            namesakes.append(other);
        else if (!areWaysOfOneSpeaker(other.content, content))
            strangers.append(other);
    }
    if (!namesakes.isEmpty())
        inspected.report(
            "speaker-redefined", speakers, row, "SpeakerId", subject,
            QStringLiteral("%1 of %2%3 has other contents")
                .arg(namesakes.last().place.subject, namesakes.last().place.file, more(namesakes)));
    if (!strangers.isEmpty()) {
        Place const & last = strangers.last().place;
        inspected.report("same-low-byte", speakers, row, "SpeakerId", subject,
                         QStringLiteral("it has the low byte %1, like %2 of %3%4")
                             .arg(QString::number(id & 0xFF), last.subject, last.file, more(strangers)));
    }
    others.append({{inspected.database.file, speakers.name, speakers.rowNumber(row), {}, subject}, content});
}

} // namespace

void checkSpeakers(Inspected const & inspected)
{
    Table const & speakers = inspected.database.table("Speakers");
    for (int row = 0; row < speakers.rowCount(); ++row) {
        int const speakerClass = speakers.number(row, "Class") & 0xFF;
        if (!inspected.seen.speakerClasses.contains(speakerClass))
            inspected.report("speaker-class-unknown", speakers, row, "Class", subjectOf(speakers, row),
                             QStringLiteral("there is no class %1 up to here").arg(speakerClass));
        checkTwins(inspected, speakers, row);
    }
}

// --- Speakers and filters of devices ---

namespace {

bool isNumber(QVariant const & value)
{
    bool ok = false;
    qt5::toInt(value, &ok);
    return ok;
}

/// The first row of Filters of each id that this database has.
QHash<QString, int> filterRows(Inspected const & inspected, Table const & filters)
{
    QHash<QString, int> rows;
    for (int row = 0; row < filters.rowCount(); ++row) {
        QString const id = filters.text(row, "Id");
        if (rows.contains(id))
            inspected.report("filter-row-twice", filters, row, "Id", subjectOf(filters, row),
                             QStringLiteral("the filter %1 stands in an earlier row already").arg(id));
        else
            rows.insert(id, row);
    }
    return rows;
}

void checkLimits(Inspected const & inspected, Table const & filters)
{
    for (int row = 0; row < filters.rowCount(); ++row) {
        if (filters.number(row, "Min") > filters.number(row, "Max"))
            inspected.report("filter-limits", filters, row, "Min", subjectOf(filters, row),
                             QStringLiteral("the range is %1 to %2")
                                 .arg(QString::number(filters.number(row, "Min")),
                                      QString::number(filters.number(row, "Max"))));
    }
}

struct Fittings {
    Inspected const & inspected;
    Table const & table;
    QHash<QString, int> filters;
    QSet<QString> usedFilters;
    QSet<QString> reported; ///< what is told once, however many rows have it
    QHash<QString, int> firstOfSlot;

    void reportOnce(char const * rule, int row, char const * column, QString const & subject,
                    QString const & message)
    {
        QString const key = QLatin1String(rule) + subject;
        if (reported.contains(key))
            return;
        reported.insert(key);
        inspected.report(rule, table, row, column, subject, message);
    }
};

void checkFitting(Fittings & fittings, int row)
{
    Table const & table = fittings.table;
    QString const guid = table.text(row, "GUID");
    int const speaker = table.number(row, "SpeakerId") & 0xFFFF;
    QVariant const filter = table.value(row, "FilterId");
    LibraryCache & cache = fittings.inspected.set.cache();

    // Filters are asked of every database, so that the device may belong to another.
    bool const isDescribed = isGuidText(guid) && !cache.connectionName(CDeviceGuid(guid)).isEmpty();
    if (!isDescribed)
        fittings.reportOnce("link-unknown-device", row, "GUID", guid,
                            QStringLiteral("no device is asked for as \"%1\"").arg(guid));
    if (!fittings.inspected.set.hasSpeaker(speaker))
        fittings.reportOnce("speaker-missing", row, "SpeakerId", QStringLiteral("speaker %1").arg(speaker),
                            QStringLiteral("no database defines the speaker %1").arg(speaker));

    QString const filterText = qt5::toText(filter);
    fittings.usedFilters.insert(filterText);
    if (isNumber(filter) && qt5::toInt(filter) < 0) {
        fittings.reportOnce("filter-negative", row, "FilterId", QStringLiteral("filter %1").arg(filterText),
                            QStringLiteral("the filter is %1").arg(filterText));
        return;
    }
    bool const isNone = isNumber(filter) && qt5::toInt(filter) == 0; // a speaker without filters
    if (!isNone && !fittings.filters.contains(filterText))
        fittings.reportOnce("filter-missing", row, "FilterId", QStringLiteral("filter %1").arg(filterText),
                            QStringLiteral("Filters has no row %1").arg(filterText));

    int const slot = qt5::toInt(filter) / 10;
    QString const place = QStringLiteral("%1/%2/%3").arg(guid).arg(speaker).arg(slot);
    auto const first = fittings.firstOfSlot.constFind(place);
    if (first == fittings.firstOfSlot.constEnd())
        fittings.firstOfSlot.insert(place, row);
    else if (table.text(*first, "FilterId") != filterText)
        fittings.reportOnce("filter-slot-twice", row, "FilterId",
                            QStringLiteral("speaker %1, slot %2").arg(speaker).arg(slot),
                            QStringLiteral("%1 has the filter %2 in slot %3 already, first for %4")
                                .arg(QStringLiteral("speaker %1").arg(speaker),
                                     table.text(*first, "FilterId"), QString::number(slot), guid));
}

} // namespace

void checkFilters(Inspected const & inspected)
{
    Table const & filters = inspected.database.table("Filters");
    Table const & table = inspected.database.table("GuidsSpeakersFilters");
    Fittings fittings{inspected, table, filterRows(inspected, filters), {}, {}, {}};
    checkLimits(inspected, filters);
    for (int row = 0; row < table.rowCount(); ++row)
        checkFitting(fittings, row);
    for (auto filter = fittings.filters.constBegin(); filter != fittings.filters.constEnd(); ++filter) {
        if (!fittings.usedFilters.contains(filter.key()))
            inspected.report("filter-unused", filters, *filter, "Id", subjectOf(filters, *filter),
                             QStringLiteral("GuidsSpeakersFilters does not have %1").arg(filter.key()));
    }
}

} // namespace kestrova::authoring
