#pragma once

#include "check/finding.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

namespace kestrova::authoring {

/// How many findings there are of each severity.
struct FindingCounts {
    int errors = 0;
    int warnings = 0;
    int hints = 0;
};

FindingCounts countOf(QVector<Finding> const & findings);

/// The findings for people: one after the other, with what the library does and what to do.
QString findingsText(QVector<Finding> const & findings);

QJsonObject findingsJson(QVector<Finding> const & findings);

/// The findings in the Static Analysis Results Interchange Format, version 2.1.0, as code review tools read
/// it.
QJsonObject findingsSarif(QVector<Finding> const & findings);

/// All rules, explained.
QString rulesText();
QJsonArray rulesJson();

} // namespace kestrova::authoring
