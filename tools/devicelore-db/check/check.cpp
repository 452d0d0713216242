#include "check/check.h"

#include "core/qt5Conversions.h"

#include <array>

using namespace kestrova::Morvel::Devicelore;

namespace kestrova::authoring {

namespace {

constexpr std::array databaseRules = {
    checkSchema,  checkValues,        checkDevices, checkHardwareTypes,  checkLinks,
    checkObjects, checkObjectClasses, checkTexts,   checkSpeakerClasses, checkSpeakers,
    checkFilters, checkGroups,        checkDspData,
};

} // namespace

bool Inspected::supplies(QString const & guid) const
{
    return isGuidText(guid) && set.cache().connectionName(CDeviceGuid(guid)) == database.file;
}

void Inspected::report(char const * rule, Table const & table, int row, char const * column,
                       QString const & subject, QString const & message) const
{
    bool const isInColumn = *column != 0;
    findings.add(rule, {database.file, table.name, table.rowNumber(row), QLatin1String(column), subject},
                 isInColumn ? shownValue(table.value(row, column)) : QString(), message);
}

QString subjectOf(Table const & table, int row)
{
    if (table.name == QLatin1String("Objects"))
        return QStringLiteral("%1 (id %2)").arg(table.text(row, "Name"), table.text(row, "id"));
    if (table.name == QLatin1String("Speakers"))
        return QStringLiteral("speaker %1 (%2)").arg(table.text(row, "SpeakerId"), table.text(row, "Name"));
    if (table.name == QLatin1String("Filters"))
        return QStringLiteral("filter %1").arg(table.text(row, "Id"));
    return qt5::toText(table.value(row, 0));
}

Findings checkDescriptions(DescriptionSet & set, sqlcipher::Progress const & progress)
{
    Findings findings;
    findings.setFiles(set.fileNames());
    for (QString const & file : set.fileNames()) {
        if (!set.trouble(file).isEmpty())
            findings.add("not-a-database", {file, {}, 0, {}, {}}, {}, set.trouble(file));
    }

    SeenBefore seen;
    qint64 const steps = set.openFiles().size() * static_cast<qint64>(databaseRules.size() + 1) + 1;
    qint64 done = 0;
    auto const stepDone = [&] {
        ++done;
        if (progress)
            progress(done, steps);
    };
    for (QString const & file : set.openFiles()) {
        Database const database = set.read(file);
        stepDone();
        for (auto const check : databaseRules) {
            check({database, set, seen, findings});
            stepDone();
        }
    }
    checkDeviceTypes(seen, findings);
    checkHardwareModels(seen, set, findings);
    checkDefaultSpeakers(seen, set, findings);
    stepDone();
    return findings;
}

} // namespace kestrova::authoring
