#include "command.h"
#include "longWork.h"
#include "outputFile.h"

#include "check/baseline.h"
#include "check/check.h"
#include "check/report.h"

#include <QFile>

namespace kestrova::authoring {

namespace {

constexpr auto ExitFindings = static_cast<ExitCode>(1);

void refuseUnknownRules(QStringList const & names)
{
    for (QString const & name : names) {
        if (findRule(name.toUtf8().constData()) == nullptr)
            throw Failure(ExitUsage, QStringLiteral("there is no rule '%1'; `devicelore-db check --rules` "
                                                    "explains all")
                                         .arg(name));
    }
}

Baseline readBaseline(QString const & path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(ExitUsage, QStringLiteral("cannot read '%1': %2").arg(path, file.errorString()));
    return {file.readAll(), path};
}

QVector<Finding> withoutRules(QVector<Finding> const & findings, QStringList const & names)
{
    QVector<Finding> rest;
    for (Finding const & finding : findings) {
        if (!names.contains(QLatin1String(finding.rule->name)))
            rest.append(finding);
    }
    return rest;
}

QVector<Finding> notAccepted(QVector<Finding> const & findings, Baseline const & baseline)
{
    QVector<Finding> rest;
    for (Finding const & finding : findings) {
        if (!baseline.accepts(finding))
            rest.append(finding);
    }
    return rest;
}

QString outdatedText(QStringList const & lines, QString const & path)
{
    if (lines.isEmpty())
        return {};
    return QStringLiteral("%1 of %2 accept what is no longer there; write it anew with --write-baseline\n")
        .arg(lines.size() == 1 ? QStringLiteral("1 line") : QStringLiteral("%1 lines").arg(lines.size()),
             path);
}

ExitCode exitCodeOf(QVector<Finding> const & findings, bool isStrict)
{
    FindingCounts const counts = countOf(findings);
    return counts.errors > 0 || (isStrict && counts.warnings > 0) ? ExitFindings : ExitOk;
}

} // namespace

Answer check(ParsedArguments const & arguments)
{
    if (arguments.isSet("rules"))
        return {rulesText(), rulesJson(), ExitOk, {}};
    if (arguments.words.isEmpty())
        throw Failure(ExitUsage,
                      QStringLiteral("name the databases, or a folder of them; see devicelore-db check "
                                     "--help"));
    if (arguments.isSet("json") && arguments.isSet("sarif"))
        throw Failure(ExitUsage, QStringLiteral("--json and --sarif are two ways to print; give one"));
    refuseUnknownRules(arguments.values("ignore"));
    Baseline const baseline =
        arguments.isSet("baseline") ? readBaseline(arguments.value("baseline")) : Baseline();
    if (arguments.isSet("write-baseline"))
        checkOutput(arguments.value("write-baseline"), true);

    QVector<Finding> findings;
    {
        LongWork work(QStringLiteral("checking"), LongWork::WritesNothing);
        DescriptionSet set(arguments.words);
        findings = checkDescriptions(set, work.progress()).sorted();
    }
    QStringList const outdated = baseline.outdated(findings);
    findings = withoutRules(findings, arguments.values("ignore"));
    if (arguments.isSet("write-baseline"))
        writeFile(arguments.value("write-baseline"), Baseline::textOf(findings));
    findings = notAccepted(findings, baseline);

    Answer answer;
    answer.exitCode = exitCodeOf(findings, arguments.isSet("strict"));
    if (arguments.isSet("sarif"))
        answer.text = jsonText(findingsSarif(findings));
    else
        answer.text = findingsText(findings) + outdatedText(outdated, arguments.value("baseline"));
    answer.json = findingsJson(findings);
    return answer;
}

} // namespace kestrova::authoring
