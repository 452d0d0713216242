#include "check/report.h"

#include <QJsonArray>
#include <QStringList>
#include <QUrl>

namespace kestrova::authoring {

namespace {

QString locationText(Place const & place)
{
    QStringList parts{place.file};
    if (!place.table.isEmpty())
        parts.append(place.table);
    if (place.row != 0)
        parts.append(QStringLiteral("row %1").arg(place.row));
    if (!place.column.isEmpty())
        parts.append(place.column);
    return parts.join(QStringLiteral(", "));
}

QString findingText(Finding const & finding)
{
    Rule const & rule = *finding.rule;
    QString const subject =
        finding.place.subject.isEmpty() ? QString() : QStringLiteral("%1: ").arg(finding.place.subject);
    return QStringLiteral("%1: %2: %3%4 [%5]\n"
                          "    %6; the library: %7\n"
                          "    to do: %8\n")
        .arg(locationText(finding.place), QLatin1String(severityName(rule.severity)), subject,
             finding.message, QLatin1String(rule.name), QLatin1String(rule.summary),
             QLatin1String(rule.effect), QLatin1String(rule.advice));
}

QString plural(int count, char const * word)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(count), QLatin1String(word),
                                         count == 1 ? QString() : QStringLiteral("s"));
}

QString summaryText(FindingCounts const & counts)
{
    return QStringLiteral("%1, %2, %3\n")
        .arg(plural(counts.errors, "error"), plural(counts.warnings, "warning"),
             plural(counts.hints, "hint"));
}

QJsonObject findingJson(Finding const & finding)
{
    Rule const & rule = *finding.rule;
    Place const & place = finding.place;
    return {{QStringLiteral("rule"), QLatin1String(rule.name)},
            {QStringLiteral("severity"), QLatin1String(severityName(rule.severity))},
            {QStringLiteral("file"), place.file},
            {QStringLiteral("table"), place.table},
            {QStringLiteral("row"), place.row},
            {QStringLiteral("column"), place.column},
            {QStringLiteral("subject"), place.subject},
            {QStringLiteral("value"), finding.value},
            {QStringLiteral("message"), finding.message},
            {QStringLiteral("effect"), QLatin1String(rule.effect)},
            {QStringLiteral("advice"), QLatin1String(rule.advice)}};
}

QJsonObject textObject(QString const & text)
{
    return {{QStringLiteral("text"), text}};
}

QString sarifLevel(Severity severity)
{
    return severity == Severity::Hint ? QStringLiteral("note") : QLatin1String(severityName(severity));
}

QJsonObject sarifRule(Rule const & rule)
{
    return {{QStringLiteral("id"), QLatin1String(rule.name)},
            {QStringLiteral("shortDescription"), textObject(QLatin1String(rule.summary))},
            {QStringLiteral("fullDescription"),
             textObject(QStringLiteral("The library: %1.").arg(QLatin1String(rule.effect)))},
            {QStringLiteral("help"), textObject(QLatin1String(rule.advice))},
            {QStringLiteral("defaultConfiguration"),
             QJsonObject{{QStringLiteral("level"), sarifLevel(rule.severity)}}}};
}

QJsonObject sarifResult(Finding const & finding)
{
    Place const & place = finding.place;
    QString const name = QStringList{place.table, QString::number(place.row), place.column}.join(
        QLatin1Char('/')); // a database has no lines
    QJsonObject const location{
        {QStringLiteral("physicalLocation"),
         QJsonObject{{QStringLiteral("artifactLocation"),
                      QJsonObject{{QStringLiteral("uri"),
                                   QString::fromLatin1(QUrl::toPercentEncoding(place.file, "/"))}}}}},
        {QStringLiteral("logicalLocations"),
         QJsonArray{QJsonObject{{QStringLiteral("name"), place.subject},
                                {QStringLiteral("fullyQualifiedName"), name}}}}};
    return {{QStringLiteral("ruleId"), QLatin1String(finding.rule->name)},
            {QStringLiteral("level"), sarifLevel(finding.rule->severity)},
            {QStringLiteral("message"), textObject(finding.message)},
            {QStringLiteral("locations"), QJsonArray{location}}};
}

} // namespace

FindingCounts countOf(QVector<Finding> const & findings)
{
    FindingCounts counts;
    for (Finding const & finding : findings) {
        switch (finding.rule->severity) {
        case Severity::Error:
            ++counts.errors;
            break;
        case Severity::Warning:
            ++counts.warnings;
            break;
        case Severity::Hint:
            ++counts.hints;
            break;
        }
    }
    return counts;
}

QString findingsText(QVector<Finding> const & findings)
{
    QString text;
    for (Finding const & finding : findings)
        text += findingText(finding);
    return text + summaryText(countOf(findings));
}

QJsonObject findingsJson(QVector<Finding> const & findings)
{
    QJsonArray list;
    for (Finding const & finding : findings)
        list.append(findingJson(finding));
    FindingCounts const counts = countOf(findings);
    return {{QStringLiteral("findings"), list},
            {QStringLiteral("errors"), counts.errors},
            {QStringLiteral("warnings"), counts.warnings},
            {QStringLiteral("hints"), counts.hints}};
}

QJsonObject findingsSarif(QVector<Finding> const & findings)
{
    QJsonArray allRules;
    for (Rule const & rule : rules())
        allRules.append(sarifRule(rule));
    QJsonArray results;
    for (Finding const & finding : findings)
        results.append(sarifResult(finding));
    QJsonObject const driver{{QStringLiteral("name"), QStringLiteral("devicelore-db")},
                             {QStringLiteral("version"), QStringLiteral(KESTROVA_VERSION)},
                             {QStringLiteral("rules"), allRules}};
    QJsonObject const run{{QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
                          {QStringLiteral("results"), results}};
    return {{QStringLiteral("version"), QStringLiteral("2.1.0")}, {QStringLiteral("runs"), QJsonArray{run}}};
}

QString rulesText()
{
    QString text;
    for (Rule const & rule : rules())
        text += QStringLiteral("%1 (%2): %3\n    the library: %4\n    to do: %5\n")
                    .arg(QLatin1String(rule.name), QLatin1String(severityName(rule.severity)),
                         QLatin1String(rule.summary), QLatin1String(rule.effect), QLatin1String(rule.advice));
    return text;
}

QJsonArray rulesJson()
{
    QJsonArray list;
    for (Rule const & rule : rules())
        list.append(QJsonObject{{QStringLiteral("name"), QLatin1String(rule.name)},
                                {QStringLiteral("severity"), QLatin1String(severityName(rule.severity))},
                                {QStringLiteral("summary"), QLatin1String(rule.summary)},
                                {QStringLiteral("effect"), QLatin1String(rule.effect)},
                                {QStringLiteral("advice"), QLatin1String(rule.advice)}});
    return list;
}

} // namespace kestrova::authoring
